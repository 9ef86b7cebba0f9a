#include "gridView.h"

#include "gridStyle.h"
#include "rowsAsText.h"

#include "ui/twips.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace workspace {

GridView::GridView(QWidget* parent) : QTableView(parent), m_model(new GridModel(this))
{
    setModel(m_model);
    auto* style = new GridStyle(this);
    setStyle(style);
    horizontalHeader()->setStyle(style);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setTextElideMode(Qt::ElideRight);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    connect(&m_watch, &DoubleClickWatch::doubleClicked, this, &GridView::gridDoubleClicked);
}

void GridView::showRows(store::RowSet rows, const List& list, JobNames names)
{
    const std::optional<qint64> id = m_model->list() == &list ? currentId() : std::nullopt;
    m_isRowKept = false;
    setAccessibleName(list.title);
    m_model->bind(std::move(rows), list, std::move(names));
    layOutColumns();
    makeCurrent(id);
}

void GridView::clearRows()
{
    m_model->unbind();
    Q_EMIT rowChanged();
}

// A number, a day or an amount that is cut would be misread, so these columns never give room to others.
ColumnSpan GridView::spanOf(int section) const
{
    constexpr int marginsAndGrid = 14;
    const auto widthOf = [this](const QString& text) { return fontMetrics().horizontalAdvance(text) + marginsAndGrid; };
    const GridColumn& column = m_model->list()->columns[static_cast<std::size_t>(section)];
    const int wanted = std::max(ui::designedWidth(*this, column.width), horizontalHeader()->sectionSizeHint(section));
    switch (column.look) {
    case ColumnLook::Text:
        return {wanted, std::min(wanted, widthOf(u"A-12"_s))};
    case ColumnLook::Day:
        return {wanted, std::min(wanted, widthOf(u"12/31/2000"_s))};
    case ColumnLook::Number:
        return {wanted, horizontalHeader()->sectionSizeHint(section)};
    case ColumnLook::Rate:
    case ColumnLook::Amount:
        break;
    }
    // Most amounts fit into this width.
    const int amount = std::max(wanted, widthOf(u"$99,999.99"_s));
    return {amount, amount};
}

void GridView::layOutColumns()
{
    const List* list = m_model->list();
    if (!list)
        return;
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    std::vector<ColumnSpan> spans;
    for (int i = 0; i < m_model->columnCount(); ++i)
        spans.push_back(spanOf(i));
    const int available = width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width();
    const std::vector<int> widths = fitColumns(spans, list->restColumn, available);
    for (int i = 0; i < m_model->columnCount(); ++i)
        setColumnWidth(i, widths[static_cast<std::size_t>(i)]);
}

void GridView::resizeEvent(QResizeEvent* event)
{
    layOutColumns();
    QTableView::resizeEvent(event);
}

std::optional<qint64> GridView::currentId() const
{
    if (!currentIndex().isValid())
        return std::nullopt;
    return field(0).toLong();
}

void GridView::makeCurrent(std::optional<qint64> id)
{
    const int rows = m_model->rowCount();
    int row = 0;
    while (id && row < rows && m_model->rows().at(row, 0).toLong() != *id)
        ++row;
    setCurrentIndex(m_model->index(row < rows ? row : 0, 0));
    scrollTo(currentIndex());
}

// With Ctrl or Shift down, setCurrentIndex() would leave other rows selected.
void GridView::selectOnly(const QModelIndex& row)
{
    selectionModel()->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void GridView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex kept = m_isRowKept ? currentIndex() : QModelIndex();
    QTableView::mousePressEvent(event);
    if (kept.isValid())
        selectOnly(kept);
    m_pressPosition = event->pos();
    m_isPressedOnTarget =
        event->button() == Qt::LeftButton && (m_model->rowCount() == 0 || indexAt(m_pressPosition).isValid());
}

// Dragging the mouse would change the current row.
void GridView::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_isRowKept)
        QTableView::mouseMoveEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent* event)
{
    QTableView::mouseReleaseEvent(event);
    const bool isInPlace = (event->pos() - m_pressPosition).manhattanLength() < QApplication::startDragDistance();
    if (!std::exchange(m_isPressedOnTarget, false) || event->button() != Qt::LeftButton || !isInPlace)
        return;
    // Several rows are selected in order to copy them, not to open one.
    if (event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier))
        return;
    if (m_isRowKept)
        setCurrentIndex(indexAt(m_pressPosition));
    m_watch.begin(event->globalPosition().toPoint(), event->timestamp());
    Q_EMIT gridClicked();
}

// The release after this second press does not count as a click.
void GridView::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_isPressedOnTarget = false;
    if (event->button() == Qt::LeftButton)
        Q_EMIT gridDoubleClicked();
}

void GridView::keyPressEvent(QKeyEvent* event)
{
    const bool isOnRow = currentIndex().isValid();
    if (isOnRow && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        Q_EMIT gridClicked();
    else if (isOnRow && event->key() == Qt::Key_Delete)
        askToDelete();
    else if (event->matches(QKeySequence::Copy))
        copyRows();
    else if (m_isRowKept)
        event->ignore();
    else
        QTableView::keyPressEvent(event);
}

// Only the current row is deleted, whatever was selected in order to copy it: so that row is seen while the question is
// asked.
void GridView::askToDelete()
{
    selectOnly(currentIndex());
    Q_EMIT deletePressed();
}

// Qt moves to the row beside it, but does not select that one.
void GridView::removeCurrentRow()
{
    m_model->removeBoundRow(currentIndex().row());
    selectOnly(currentIndex());
}

void GridView::copyRows() const
{
    QModelIndexList rows = selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    QGuiApplication::clipboard()->setText(rowsAsText(*m_model, rows));
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    Q_EMIT rowChanged();
}

void GridView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        layOutColumns();
}

} // namespace workspace
