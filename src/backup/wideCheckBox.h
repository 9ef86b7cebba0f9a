#pragma once

#include <QCheckBox>

namespace backup {

/// A check box that is clicked over its whole width, also beside its caption.
class WideCheckBox : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};

} // namespace backup
