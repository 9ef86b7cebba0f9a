#pragma once

#include "support/bench.h"
#include "support/find.h"
#include "support/table.h"
#include "workspace/frmJobs.h"

#include <QTableView>

/// The workspace in front of the user, with a list in it.
struct WorkspaceBench : Bench {
    explicit WorkspaceBench(const char* mode = "job", QDate day = {2004, 8, 18})
    {
        shell.real = &form;
        form.resize(1100, 640);
        form.show();
        if (!QTest::qWaitForWindowActive(&form))
            qFatal("the workspace does not become active");
        list(mode, day);
    }

    void list(const char* mode, QDate day = {2004, 8, 18})
    {
        form.ShowList(QLatin1String(mode), values::dateTime(day), QString());
    }

    /// The rows of the grid as shown, each with its fields joined by "|".
    QStringList gridRows() const
    {
        QStringList rows;
        for (int row = 0; row < grid.model()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < grid.model()->columnCount(); ++column)
                cells << grid.model()->index(row, column).data().toString();
            rows << cells.join(u'|');
        }
        return rows;
    }

    QString ids() const
    {
        return gridRows().replaceInStrings(QRegularExpression(QStringLiteral("\\|.*")), {}).join(u' ');
    }

    /// Where the cell of a row's id is, in the form.
    QPoint placeOf(int row) const
    {
        return grid.viewport()->mapTo(&form, grid.visualRect(grid.model()->index(row, 0)).center());
    }

    void clickRow(int row) { QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, placeOf(row)); }

    QString label(const char* name) const { return shown(form, name); }

    workspace::frmJobs form{shell};
    QTableView& grid = find<QTableView>(form, "dgList");
};
