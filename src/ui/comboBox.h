#pragma once

#include <QComboBox>

namespace ui {

/// A combo for names of any length: it shows their beginning, and its list is as wide as they are. The wheel changes it
/// only while it has the focus.
class ComboBox : public QComboBox {
    Q_OBJECT

public:
    explicit ComboBox(QWidget* parent = nullptr);

    void showPopup() override;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void showBeginning();
};

} // namespace ui
