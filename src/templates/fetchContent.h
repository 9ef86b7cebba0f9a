#pragma once

#include "office/document.h"

namespace templates {

/// The content of a template, as office::readDocument() reads it and with its errors. What was fetched before comes
/// from memory (at most 64 MB; what was not used for longest goes first) as long as the file is unchanged.
office::Content fetchContent(const QString& fileName);

} // namespace templates
