#pragma once

#include <QByteArray>

namespace office {

/// Removes from an HTML or RTF document what the suite would fetch from elsewhere in spite of its settings: style
/// sheets, background pictures, pictures of buttons and of a field. Other documents are returned unchanged.
QByteArray removeReferences(const QByteArray& document);

} // namespace office
