#include "rowsAsText.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace workspace {

namespace {

// A blank in front keeps a spreadsheet from calculating what a person typed.
QString cellText(QString text)
{
    static const QString formulaSigns = u"=+@-"_s;
    const bool isLikeFormula = !text.isEmpty() && formulaSigns.contains(text.front());
    text.replace(u'\t', u' ').replace(u'\n', u' ');
    return isLikeFormula ? u' ' + text : text;
}

} // namespace

QString rowsAsText(const QAbstractItemModel& model, const QModelIndexList& rows)
{
    QStringList lines;
    const auto addLine = [&](auto textOfColumn) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells << cellText(textOfColumn(column).toString());
        lines << cells.join(u'\t');
    };
    addLine([&](int column) { return model.headerData(column, Qt::Horizontal); });
    for (const QModelIndex& row : rows)
        addLine([&](int column) { return row.siblingAtColumn(column).data(); });
    return lines.join(u'\n') + u'\n';
}

} // namespace workspace
