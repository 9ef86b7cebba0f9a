#pragma once

#include "office/document.h"

namespace templates {

/// Fills the clipboard with a document's content, as RTF, HTML and plain text at once.
void copyToClipboard(const office::Content& content);

} // namespace templates
