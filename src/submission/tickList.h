#pragma once

#include <QListWidget>

namespace submission {

/// A list in which a click or Space ticks or unticks one entry and leaves the others, and Shift ticks a range.
class TickList : public QListWidget {
    Q_OBJECT

public:
    explicit TickList(QWidget* parent = nullptr);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
};

} // namespace submission
