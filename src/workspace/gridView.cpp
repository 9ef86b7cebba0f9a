#include "gridView.h"

#include "gridStyle.h"

#include "ui/twips.h"

#include <QApplication>
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
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    connect(&m_watch, &DoubleClickWatch::doubleClicked, this, &GridView::gridDoubleClicked);
}

void GridView::showRows(store::RowSet rows, const List& list)
{
    const std::optional<qint64> id = m_model->list() == &list ? currentId() : std::nullopt;
    m_isRowKept = false;
    setAccessibleName(list.title);
    m_model->bind(std::move(rows), list);
    layOutColumns();
    makeCurrent(id);
}

void GridView::clearRows()
{
    m_model->unbind();
}

// An amount that is cut would be misread; most amounts fit into this width.
int GridView::minimumWidthOf(int section) const
{
    const int heading = horizontalHeader()->sectionSizeHint(section);
    const ColumnLook look = m_model->list()->columns[static_cast<std::size_t>(section)].look;
    if (look != ColumnLook::Amount && look != ColumnLook::Rate)
        return heading;
    constexpr int marginsAndGrid = 14;
    return std::max(heading, fontMetrics().horizontalAdvance(u"$99,999.99"_s) + marginsAndGrid);
}

// Uses the designed widths, but never one so narrow that a heading or an amount is cut.
void GridView::layOutColumns()
{
    const List* list = m_model->list();
    if (!list)
        return;
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    int columnsWidth = 0;
    for (int i = 0; i < m_model->columnCount(); ++i) {
        const int designed = ui::designedWidth(*this, list->columns[static_cast<std::size_t>(i)].width);
        setColumnWidth(i, std::max(designed, minimumWidthOf(i)));
        columnsWidth += columnWidth(i);
    }
    const int frameAndScrollBar = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    setMaximumWidth(std::max(ui::designedWidth(*this, list->width), columnsWidth + frameAndScrollBar));
}

std::optional<qint64> GridView::currentId() const
{
    if (!currentIndex().isValid())
        return std::nullopt;
    return field(0).toLong();
}

void GridView::makeCurrent(std::optional<qint64> id)
{
    int row = 0;
    for (int i = 0; id && i < m_model->rowCount(); ++i) {
        if (m_model->rows().at(i, 0).toLong() == *id)
            row = i;
    }
    setCurrentIndex(m_model->index(row, 0));
    scrollTo(currentIndex());
}

void GridView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex kept = m_isRowKept ? currentIndex() : QModelIndex();
    QTableView::mousePressEvent(event);
    if (kept.isValid())
        setCurrentIndex(kept);
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
        Q_EMIT deletePressed();
    else if (m_isRowKept)
        event->ignore();
    else
        QTableView::keyPressEvent(event);
}

void GridView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        layOutColumns();
}

} // namespace workspace
