#pragma once

#include <QModelIndexList>
#include <QString>

namespace workspace {

/// Rows of a grid with its headings as a spreadsheet pastes them: cells between tabs, one row a line. No cell becomes a
/// formula there.
QString rowsAsText(const QAbstractItemModel& model, const QModelIndexList& rows);

} // namespace workspace
