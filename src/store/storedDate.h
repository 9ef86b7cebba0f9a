#pragma once

#include <QByteArrayView>
#include <QDateTime>

#include <optional>

namespace store {

/// The one form in which dates lie in the data files: YYYY-MM-DD HH:MM:SS. It sorts as the dates do.
QByteArray toStoredDate(const QDateTime& value);

/// Reads that form; empty for any other.
std::optional<QDateTime> fromStoredDate(QByteArrayView text);

} // namespace store
