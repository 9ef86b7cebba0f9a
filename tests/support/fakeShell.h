#pragma once

#include "ui/shell.h"
#include "values/dates.h"

#include <QStringList>

/// Replaces the main window, and the workspace unless a real one is set. Notes the calls of both.
class FakeShell : public ui::Shell, private ui::Workspace {
public:
    ui::Workspace& workspace() override { return real ? *real : *this; }
    void setMenusEnabled(bool enabled) override
    {
        calls << (enabled ? QStringLiteral("menus on") : QStringLiteral("menus off"));
    }

    ui::Workspace* real = nullptr;
    QStringList calls;

private:
    void ShowList(const QString& mode, const QDateTime& listDate, const QString& text) override
    {
        calls << QStringLiteral("ShowList(%1,%2,%3)")
                     .arg(mode, listDate.isValid() ? values::dateText(listDate) : QStringLiteral("0"), text);
    }
    void OpenJob(qint32 jobId, const QString& reference, qint16 typeId, const QDateTime& jobDate) override
    {
        calls << QStringLiteral("OpenJob(%1,%2,%3,%4)")
                     .arg(QString::number(jobId), reference, QString::number(typeId), values::dateText(jobDate));
    }
    void ShowTemplateManager() override { calls << QStringLiteral("ShowTemplateManager()"); }
};
