#pragma once

#include <QString>

namespace masterdata {

/// An account/job type as its form holds it. The texts are not escaped, nor checked to be numbers.
struct TypeEntry {
    qint32 clientId;
    QString name;
    QString rate;
    QString charactersPerLine;
    QString unit;
};

QString insertType(const TypeEntry& type);
QString updateType(qint16 id, const TypeEntry& type);
/// The id as the form shows it, as text.
QString deleteType(const QString& id);
QString selectType(qint16 id);

} // namespace masterdata
