#pragma once

#include <QFile>
#include <QTest>

/// All bytes of a file; other than any file's when there is none.
inline QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("cannot be read");
}

/// Makes the file anew with this content.
inline void writeFile(const QString& fileName, const QByteArray& content)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}
