#pragma once

#include <QByteArray>

namespace office {

/// Removes from a document in HTML, RTF or XML what the suite would fetch from elsewhere in spite of its settings:
/// style sheets, background pictures, pictures of buttons and of a field, and every address outside the document but
/// those of hyperlinks. A document of the old binary format is returned unchanged.
QByteArray removeReferences(const QByteArray& document);

/// The same for a part of a zipped document: all but XML is returned unchanged.
QByteArray removePartReferences(const QByteArray& part);

} // namespace office
