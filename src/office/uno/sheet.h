#pragma once

#include "session.h"

#include "office/workbook.h"

#include <QPromise>

namespace office {

/// Fills a sheet of an open workbook, piece by piece, and tells how many rows are written. False when there is no such
/// sheet. Throws uno::Exception.
bool fillSheet(const Document& workbook, const Filling& filling, QPromise<void>& progress);

} // namespace office
