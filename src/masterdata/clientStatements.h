#pragma once

#include <QString>

namespace masterdata {

QString insertClient(const QString& name);
QString updateClient(qint16 id, const QString& name);
/// The id as the form shows it, as text.
QString deleteClient(const QString& id);
QString selectClient(qint16 id);

} // namespace masterdata
