#pragma once

#include <QByteArray>

namespace office {

/// A document in a form that is text (HTML, RTF), without what the suite would fetch from elsewhere whatever its
/// settings say: style sheets, background pictures and pictures of a field. Others come back as they are.
QByteArray withoutReferences(const QByteArray& document);

} // namespace office
