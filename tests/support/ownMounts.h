#pragma once

#include <QByteArray>

#include <filesystem>
#include <vector>

#include <sys/mount.h>
#include <unistd.h>

/// Restarts the program with its own mount table, which nobody else sees. To be called first in main().
inline void takeOwnMounts(int argc, char* argv[])
{
    if (qEnvironmentVariableIsSet("OWN_MOUNTS"))
        return;
    qputenv("OWN_MOUNTS", "yes");
    std::vector<const char*> words{"unshare", "--map-root-user", "--mount"};
    words.insert(words.end(), argv, argv + argc + 1);
    execvp(words[0], const_cast<char**>(words.data()));
    qFatal("no mount table of its own");
}

/// Mounts a disk of the size in the options, a megabyte, at this place. It vanishes when the program ends.
inline void mountDisk(const std::filesystem::path& place, const char* options = "size=1m")
{
    std::filesystem::create_directories(place);
    if (mount("disk", place.c_str(), "tmpfs", 0, options) != 0)
        qFatal("no disk at %s", place.c_str());
}
