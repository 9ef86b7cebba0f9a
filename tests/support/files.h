#pragma once

#include <QFile>
#include <QTest>

/// All bytes of a file, or "cannot be read".
inline QByteArray readFile(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("cannot be read");
}

/// Writes or replaces a file.
inline void writeFile(const QString& fileName, const QByteArray& content)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}
