// backer PROGRAM-FOLDER DESTINATION: says when it begins, and makes one backup.
#include "backup/copyFolders.h"

#include <QString>

#include <cstdio>

int main(int, char* arguments[])
{
    std::puts("begin");
    std::fflush(stdout);
    backup::CopyProgress progress;
    backup::copyFolders(QString::fromLocal8Bit(arguments[1]), QString::fromLocal8Bit(arguments[2]), progress);
    return 0;
}
