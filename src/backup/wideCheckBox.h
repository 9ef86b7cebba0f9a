#pragma once

#include <QCheckBox>

namespace backup {

/// A check box that reacts to a click anywhere over its width, even beside its caption.
class WideCheckBox : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};

} // namespace backup
