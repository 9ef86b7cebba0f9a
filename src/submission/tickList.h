#pragma once

#include <QListWidget>

namespace submission {

/// A list in which a click or Space ticks or unticks one entry and leaves the others. Shift, with the mouse or the
/// keys, ticks the range from the anchor: the entry at which the last input without Shift ended.
class TickList : public QListWidget {
    Q_OBJECT

public:
    explicit TickList(QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

private:
    void dropAnchor();
    void tickRange();

    // Not Qt's own anchor: some versions of Qt move that with Shift as well.
    QPersistentModelIndex m_anchor;
};

} // namespace submission
