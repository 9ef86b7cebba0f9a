#pragma once

#include "office/document.h"

namespace templates {

/// Copies a document's content to the clipboard, as RTF, HTML and plain text at once.
void copyToClipboard(const office::Content& content);

} // namespace templates
