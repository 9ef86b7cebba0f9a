#pragma once

#include "session.h"

#include "office/workbook.h"

namespace office {

/// Fills a sheet of an open workbook, piece by piece, and says how far it is; stops between two pieces when told to.
/// Throws uno::Exception.
void fillSheet(const Document& workbook, const Filling& filling, Progress& progress);

} // namespace office
