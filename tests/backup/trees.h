#pragma once

#include "backup/copyFolders.h"
#include "store/connectionStrings.h"
#include "store/dataFiles.h"
#include "support/errorOf.h"
#include "support/scratchFolder.h"

#include <QFuture>
#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

inline void write(const fs::path& file, const std::string& content)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

inline std::string read(const fs::path& file)
{
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

/// A program folder and an empty backup folder.
struct Trees {
    Trees()
    {
        store::createDataFiles(program.path());
        store::createOpenJobsFile(program.path());
        for (const char* folder : {"reports", "templates"})
            fs::create_directories(source / folder);
    }
    // QTemporaryDir cannot remove files whose names are not valid UTF-8.
    ~Trees()
    {
        std::error_code ignored;
        for (const QTemporaryDir* folder : {&program, &place})
            fs::remove_all(folder->path().toStdString(), ignored);
    }
    Q_DISABLE_COPY(Trees)

    values::RuntimeError copyTo(const fs::path& folder) const
    {
        QPromise<void> progress;
        return catchError([&] { backup::copyFolders(program.path(), QString::fromStdString(folder), progress); });
    }

    /// The number of jobs in the copy of the data file.
    QStringList copiedJobs() const
    {
        return readRows(modMain::mainConnectionString(place.path()), "select count(*) from jobs");
    }

    /// The number of unfinished files that a backup has left.
    int leftovers() const
    {
        int count = 0;
        for (const auto& entry : fs::recursive_directory_iterator(place.path().toStdString()))
            count += entry.path().filename().native().starts_with(".penwright-");
        return count;
    }

    QTemporaryDir program;
    QTemporaryDir place;
    fs::path source = program.path().toStdString();
    fs::path target = place.path().toStdString();
};
