#pragma once

#include <QByteArrayView>
#include <QDateTime>

#include <optional>

namespace store {

/// The date as the data files store it: YYYY-MM-DD HH:MM:SS. Sorted as texts, dates are in order.
QByteArray toStoredDate(const QDateTime& value);

/// Reads a stored date; empty for any other text.
std::optional<QDateTime> fromStoredDate(QByteArrayView text);

} // namespace store
