#pragma once

#include "session.h"

#include "office/workbook.h"

#include <QPromise>

namespace office {

/// Fills a sheet of an open workbook piece by piece and reports the rows written so far as progress. False when there
/// is no such sheet. Throws uno::Exception.
bool fillSheet(const Document& workbook, const SheetContent& content, QPromise<void>& progress);

} // namespace office
