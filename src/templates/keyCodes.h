#pragma once

#include <QCompleter>

namespace templates {

/// Offers, below a Key Code box, the codes that begin with what is typed, each with the template's name and
/// description. One that is chosen with the arrow keys stands in the box.
class KeyCodes : public QCompleter {
    Q_OBJECT

public:
    explicit KeyCodes(QObject* parent);

    /// Reads the codes that there are now; none when they cannot be read: the call itself will say why.
    void refresh();
};

} // namespace templates
