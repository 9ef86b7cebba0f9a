#pragma once

#include "backup/copyFolders.h"
#include "store/dataFiles.h"
#include "support/errorOf.h"

#include <QMap>
#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace fs = std::filesystem;

inline void write(const fs::path& file, const std::string& content)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

inline std::string read(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A program folder and a backup folder, empty yet.
struct Trees {
    Trees()
    {
        for (const char* folder : {"reports", "templates"})
            fs::create_directories(source / folder);
        store::createDataFiles(program.path());
    }

    ~Trees()
    {
        std::error_code ignored;
        for (const fs::path& folder : {source, target})
            fs::remove_all(folder, ignored);
    }
    Q_DISABLE_COPY(Trees)

    values::RuntimeError copyTo(const fs::path& folder) const
    {
        return errorOf([&] {
            backup::CopyProgress progress;
            backup::copyFolders(program.path(), QString::fromStdString(folder.native()), progress);
        });
    }

    /// How many half-made files a backup has left.
    qsizetype leftovers() const
    {
        qsizetype count = 0;
        for (const auto& entry : fs::recursive_directory_iterator(target))
            count += entry.path().filename().native().starts_with(".penwright-");
        return count;
    }

    QTemporaryDir program;
    QTemporaryDir place;
    fs::path source = program.path().toStdString();
    fs::path target = place.path().toStdString();
};
