#pragma once

#include "session.h"

#include "office/bridge.h"

namespace office {

/// Changes the parts of a zipped document with the suite's own reader of such documents. Throws uno::Exception when
/// the document or one of its parts cannot be read.
void changeParts(const Session& session, const QString& fileName, const ChangePart& change);

} // namespace office
