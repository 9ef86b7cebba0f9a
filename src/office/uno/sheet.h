#pragma once

#include "session.h"

#include "office/bridge.h"

namespace office {

/// Fills a sheet of an open workbook, piece by piece, and says how far it is; stops between two pieces when told to.
/// Yes, NoSheet or Cancelled. Throws uno::Exception.
Made fillSheet(const Document& workbook, const Filling& filling, Progress& progress);

} // namespace office
