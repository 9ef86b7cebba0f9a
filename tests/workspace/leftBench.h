#pragma once

#include "workspaceBench.h"

#include <QLabel>

/// The program, which can end and start again.
struct LeftBench : Bench {
    LeftBench() { start(); }

    /// Without an end before, the program was killed.
    void start()
    {
        form = std::make_unique<workspace::frmJobs>(shell);
        bringToFront(*form);
        find<QTimer>(*form, "Timer1").stop();
    }
    void end()
    {
        expectedExitCodes << 0;
        ui::endProgram(0);
    }
    void list(const char* mode)
    {
        form->ShowList(QLatin1String(mode), values::dateTime(QDate(2004, 8, 18)), QString());
    }

    void open(int row) { openRow(*form, row); }
    void press(const char* button)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        click(*form, button);
    }
    void correct(const char* label, std::function<void(QWidget&)> work)
    {
        answers.expectDialog("frmEditJob", std::move(work));
        QTest::mouseClick(&find<QWidget>(*form, label), Qt::LeftButton);
        QVERIFY(QTest::qWaitForWindowActive(form.get()));
    }
    void correctReference(const QString& reference)
    {
        correct("lblJob_10", [reference](QWidget& editor) {
            type(editor, "txtRefId", reference);
            click(editor, "cmdApply_10");
        });
    }
    /// Opens the first job, corrects it, types characters without leaving their box and lets the clock run
    /// for 0:01:47.
    void work()
    {
        open(0);
        correctReference("A-114");
        press("cmdStart");
        find<QWidget>(*form, "txtChar").setFocus();
        type(*form, "txtChar", "5210");
        tick(*form, 107);
    }

    /// What the person sees of the job: all texts, and which boxes and buttons there are.
    QString panel() const
    {
        QStringList texts;
        for (const auto* control : find<QWidget>(*form, "frJob").findChildren<QWidget*>()) {
            const QVariant text = control->property("text");
            if (control->isVisible() && text.isValid())
                texts << control->objectName() + u'=' + text.toString() + (control->isEnabled() ? "" : " (grey)");
        }
        return texts.join(u'|');
    }
    /// The lines about jobs that were left, each with its button.
    QStringList lines() const { return visibleTexts("frLeft"); }
    QStringList offers() const { return visibleTexts("frTimer").filter("Take up"); }
    QString trouble() const
    {
        const auto& label = find<QLabel>(*form, "lblNotKept");
        return label.isVisible() ? label.text() : QString();
    }

    std::unique_ptr<workspace::frmJobs> form;
    const QString file = folder.path() + "/data/open.mdb";

private:
    QStringList visibleTexts(const char* frame) const
    {
        QStringList texts;
        for (const auto* control : find<QWidget>(*form, frame).findChildren<QWidget*>()) {
            if (control->isVisible() && control->property("text").isValid())
                texts << control->property("text").toString();
        }
        return texts;
    }
};
