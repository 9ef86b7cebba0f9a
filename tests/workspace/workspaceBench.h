#pragma once

#include "support/bench.h"
#include "support/find.h"
#include "support/table.h"
#include "workspace/frmJobs.h"

#include <QTableView>
#include <QTimer>

/// Shows the workspace with a list in it.
inline void bringToFront(workspace::frmJobs& form, const char* mode = "job", QDate day = {2004, 8, 18})
{
    form.resize(1100, 640);
    form.show();
    if (!QTest::qWaitForWindowActive(&form))
        qFatal("the workspace does not become active");
    form.ShowList(QLatin1String(mode), values::dateTime(day), QString());
}

/// Opens a record of the list by its row.
inline void openRow(const QWidget& form, int row)
{
    auto& grid = find<QTableView>(form, "dgList");
    grid.selectRow(row);
    QTest::keyClick(&grid, Qt::Key_Return);
}

/// Lets the clock of the open job count.
inline void tick(const QWidget& form, int seconds)
{
    for (int i = 0; i < seconds; ++i)
        QMetaObject::invokeMethod(&find<QTimer>(form, "Timer1"), "timeout");
}

/// The workspace in front of the user, with a list in it.
struct WorkspaceBench : Bench {
    explicit WorkspaceBench(const char* mode = "job", QDate day = {2004, 8, 18})
    {
        shell.real = &form;
        bringToFront(form, mode, day);
    }

    void list(const char* mode, QDate day = {2004, 8, 18})
    {
        form.ShowList(QLatin1String(mode), values::dateTime(day), QString());
    }

    QString headings() const
    {
        QStringList texts;
        for (int i = 0; i < grid.model()->columnCount(); ++i)
            texts << grid.model()->headerData(i, Qt::Horizontal).toString();
        return texts.join(u'|');
    }

    QStringList gridRows() const { return entries(form, "dgList"); }
    QString ids() const { return gridRows().replaceInStrings(QRegularExpression("\\|.*"), {}).join(u' '); }

    /// Where the cell of a row's id is, in the form.
    QPoint placeOf(int row) const
    {
        return grid.viewport()->mapTo(&form, grid.visualRect(grid.model()->index(row, 0)).center());
    }

    void clickRow(int row) { QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, placeOf(row)); }

    QString label(const char* name) const { return textOf(form, name); }

    workspace::frmJobs form{shell};
    QTableView& grid = find<QTableView>(form, "dgList");
};
