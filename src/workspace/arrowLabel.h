#pragma once

#include <QWidget>

namespace workspace {

/// A downward arrow as high as a line of text, above the column that the grid's instruction tells people to click.
class ArrowLabel : public QWidget {
public:
    explicit ArrowLabel(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace workspace
