#pragma once

#include <QComboBox>

namespace ui {

/// A combo box for names of any length: it shows the beginning of a name, and its list is wide enough for all of them.
/// The mouse wheel changes it only while it has the focus.
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
