#pragma once

#include <QDateEdit>

namespace ui {

/// A date with a calendar (Alt+Down). Typed text is read as a whole, as in every other box of the program, at Enter or
/// when the focus leaves; text that is not a date is replaced by the previous date. Up and Down change the day.
class DatePicker : public QDateEdit {
    Q_OBJECT

public:
    explicit DatePicker(QWidget* parent = nullptr);

    void stepBy(int days) override;
    QValidator::State validate(QString& text, int& cursor) const override;
    void fixup(QString& text) const override;

protected:
    StepEnabled stepEnabled() const override;
    QDateTime dateTimeFromText(const QString& text) const override;
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void openCalendar();
};

} // namespace ui
