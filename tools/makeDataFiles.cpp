// Makes the data files of a new program folder. What is there already stays as it is.
#include "store/dataFiles.h"

#include "values/runtimeError.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("Usage: makeDataFiles PROGRAM-FOLDER\n", stderr);
        return 2;
    }
    try {
        store::createDataFiles(arguments[1]);
    } catch (const values::RuntimeError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
