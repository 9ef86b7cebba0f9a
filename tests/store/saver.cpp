// saver FOLDER NUMBER: saves the number in all jobs of a program folder, then the next one, and so on until it is
// killed. What it has saved it says at once, one number a line.
#include "store/command.h"
#include "store/connectionStrings.h"

#include <cstdio>

int main(int, char* arguments[])
{
    const QString connectionString = modMain::mainConnectionString(QString::fromLocal8Bit(arguments[1]));
    for (int number = QString::fromLocal8Bit(arguments[2]).toInt();; ++number) {
        {
            store::Connection connection(connectionString);
            store::Command(connection, QStringLiteral("update jobs set jobchar = %1, joblines = %1 / 4, "
                                                      "jobreference = 'save %1', jobuploaded = '%1'")
                                           .arg(number))
                .execute();
        }
        std::printf("%d\n", number);
        std::fflush(stdout);
    }
}
