#pragma once

#include <QLabel>

namespace ui {

/// Shows a value as plain text in the room it has: a longer one ends in dots and shows whole in its tool tip.
class ValueLabel : public QLabel {
    Q_OBJECT

public:
    explicit ValueLabel(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QString shownText() const;
};

} // namespace ui
