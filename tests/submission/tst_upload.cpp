#include "submission/frmUpload.h"

#include "support/bench.h"
#include "support/find.h"
#include "support/table.h"

#include <QListWidget>

using namespace Qt::StringLiterals;

/// The submission dialog over these unsubmitted jobs: A, B, C of August 16, B again of August 17.
struct Upload : Bench {
    Upload()
    {
        folder.run(u"delete from jobs"_s);
        for (const char* job :
             {"#8/16/2004#,1,1,'A'", "#8/16/2004#,1,1,'B'", "#8/16/2004#,1,1,'C'", "#8/17/2004#,1,1,'B'"})
            folder.run(
                u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(%1)"_s.arg(QLatin1String(job)));
        form = std::make_unique<submission::frmUpload>(shell, nullptr);
        form->show();
        list = &find<QListWidget>(*form, "List1");
    }

    void choose(int index)
    {
        find<QComboBox>(*form, "cmbDate").setFocus();
        for (int i = 0; i <= index; ++i)
            QTest::keyClick(&find<QComboBox>(*form, "cmbDate"), Qt::Key_Down);
    }
    void fill(const QString& date, const QString& time)
    {
        find<QLineEdit>(*form, "txtDate").setText(date);
        find<QLineEdit>(*form, "txtTime").setText(time);
    }
    void tick(int row, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, keys, list->visualItemRect(list->item(row)).center());
    }
    void save() { click(*form, "cmdSave"); }

    QString listed() const
    {
        QStringList texts;
        for (int i = 0; i < list->count(); ++i)
            texts << list->item(i)->text();
        return texts.join(u' ');
    }
    QStringList stored() const { return folder.rows(u"select jobreference,jobuploaded from jobs"_s); }
    bool hasClosedAndListed(const QString& day) const
    {
        return !form->isVisible() && shell.calls == QStringList(u"ShowList(job,%1,)"_s.arg(day));
    }

    std::unique_ptr<submission::frmUpload> form;
    QListWidget* list;
};

class TestUpload : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersTheDatesOfUnsubmittedJobs()
    {
        Upload upload;
        QCOMPARE(find<QComboBox>(*upload.form, "cmbDate").currentIndex(), -1);
        QCOMPARE(entries(*upload.form, "cmbDate"), (QStringList{u"8/16/2004"_s, u"8/17/2004"_s}));
        upload.choose(0);
        QCOMPARE(upload.listed(), u"A B C"_s);
        QCOMPARE(shown(*upload.form, "txtDate") + u' ' + shown(*upload.form, "txtTime"), u"8/16/2004 12:00"_s);
    }

    void wantsDateAndTime_data()
    {
        const char* const incomplete =
            "Make sure a date is selected in the drop down box and both a date and time are entered.";
        table({{"day", "date", "time", "message", "focus"},
               {"no day chosen", "", "8/16/2004", "12:00", incomplete, "cmbDate"},
               {"no date", "0", "", "12:00", incomplete, "txtDate"},
               {"no time", "0", "8/16/2004", "", incomplete, "txtTime"},
               {"no such date", "0", "2/30/2004", "12:00", "Please insert a date in this field.", "txtDate"}});
    }

    void wantsDateAndTime()
    {
        Upload upload;
        const QStringList before = upload.stored();
        if (cell("day") == u"0")
            upload.choose(0);
        upload.list->selectAll();
        upload.fill(cell("date"), cell("time"));
        upload.answers.expectBox(cell("message"));
        upload.save();
        QVERIFY(upload.form->isVisible());
        QTEST(upload.form->focusWidget()->objectName(), "focus");
        QCOMPARE(upload.stored(), before);
    }

    void marksWhatIsTickedAndStaysOpen()
    {
        Upload upload;
        upload.choose(0);
        upload.tick(0);
        upload.tick(2);
        upload.fill(u"18 Aug 2004"_s, u"late; -- /* # "_s);
        upload.save();
        QCOMPARE(upload.stored(), (QStringList{u"A|18 Aug 2004 late; -- /* # "_s, u"B|."_s,
                                               u"C|18 Aug 2004 late; -- /* # "_s, u"B|."_s}));
        QVERIFY(upload.form->isVisible());
        QCOMPARE(upload.listed() + shown(*upload.form, "txtDate"), u"B8/16/2004"_s);
        QCOMPARE(upload.shell.calls, QStringList());
    }

    void marksByReferenceAloneAndCloses()
    {
        Upload upload;
        upload.choose(1);
        upload.tick(0);
        upload.fill(u"8/20/2004"_s, u"12:00"_s);
        upload.save();
        QCOMPARE(upload.stored(), (QStringList{u"A|."_s, u"B|8/20/2004 12:00"_s, u"C|."_s, u"B|8/20/2004 12:00"_s}));
        QVERIFY(upload.hasClosedAndListed(u"8/20/2004"_s));
    }

    void nothingTickedRefreshesUntilNothingIsLeft()
    {
        Upload upload;
        upload.choose(0);
        upload.folder.run(u"update jobs set jobuploaded='x' where jobreference='A'"_s);
        upload.save();
        QVERIFY(upload.form->isVisible());
        QCOMPARE(upload.listed(), u"B C"_s);
        upload.folder.run(u"update jobs set jobuploaded='x'"_s);
        upload.save();
        upload.save();
        QVERIFY(upload.hasClosedAndListed(u"8/16/2004"_s));
    }

    void aRefusedReferenceDoesNotStopTheOthers()
    {
        Upload upload;
        upload.folder.run(u"update jobs set jobreference=\"O'Brien\" where jobreference='B'"_s);
        upload.choose(0);
        upload.list->selectAll();
        upload.answers.expectBox(u"Error -2147217900 (Syntax error in string in query expression '''.) in procedure "
                                 "ActionQry of Module modMain"_s);
        upload.save();
        QCOMPARE(upload.stored(),
                 (QStringList{u"A|8/16/2004 12:00"_s, u"O'Brien|."_s, u"C|8/16/2004 12:00"_s, u"O'Brien|."_s}));
        // All were run, so the form is done.
        QVERIFY(!upload.form->isVisible());
    }

    void ticksRanges()
    {
        Upload upload;
        upload.choose(0);
        upload.tick(0);
        upload.tick(2, Qt::ShiftModifier);
        QCOMPARE(upload.list->selectedItems().size(), 3);
        upload.tick(1);
        QCOMPARE(upload.list->selectedItems().size(), 2);
    }
};

QTEST_MAIN(TestUpload)
#include "tst_upload.moc"
