#pragma once

#include <QDateEdit>

namespace ui {

/// A date with a calendar (Alt+Down). What is typed is read as a whole, as in every other box of the program, when the
/// focus leaves or at Enter; what is no date gives way to the date before. Up and Down go by days.
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
