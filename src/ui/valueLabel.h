#pragma once

#include <QLabel>

namespace ui {

/// Shows a value as plain text in the room it has: a longer one ends in dots and shows whole in its tool tip. A value
/// that can be changed is clickable: by mouse, or by Space and Enter where Tab brings the focus.
class ValueLabel : public QLabel {
    Q_OBJECT

public:
    explicit ValueLabel(QWidget* parent = nullptr);

    void setClickable();

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

    bool m_clickable = false;
};

} // namespace ui
