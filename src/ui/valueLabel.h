#pragma once

#include <QLabel>

namespace ui {

/// Shows a value as plain text. A text too long for the label ends in dots and is complete in its tool tip. A value
/// that can be changed is clickable: with the mouse, or with Space and Enter once Tab has brought the focus.
class ValueLabel : public QLabel {
    Q_OBJECT

public:
    explicit ValueLabel(QWidget* parent = nullptr);

    void setClickable();
    bool isClickable() const { return m_isClickable; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString shownText() const;

    bool m_isClickable = false;
};

} // namespace ui
