#include "submission/frmUpload.h"

#include "support/bench.h"
#include "support/table.h"

#include <QListWidget>

using namespace Qt::StringLiterals;

/// The submission dialog over these unsubmitted jobs: A, B, C of August 16, B again of August 17.
struct Upload : Bench {
    Upload()
    {
        folder.run("delete from jobs");
        for (const QString job :
             {"#8/16/2004#,1,1,'A'", "#8/16/2004#,1,1,'B'", "#8/16/2004#,1,1,'C'", "#8/17/2004#,1,1,'B'"})
            folder.run("insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(" + job + ')');
        form = std::make_unique<submission::frmUpload>(shell, nullptr);
        form->show();
        list = &find<QListWidget>(*form, "List1");
    }

    void choose(const char* date) { ::choose(*form, "cmbDate", date); }
    void tick(int row, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, keys, list->visualItemRect(list->item(row)).center());
    }
    void save() { click(*form, "cmdSave"); }

    QString listed() const { return entries(*form, "List1").join(u' '); }
    QStringList stored() const { return folder.rows("select jobreference,jobuploaded from jobs"); }

    std::unique_ptr<submission::frmUpload> form;
    QListWidget* list;
};

class TestUpload : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void requiresDateAndTime()
    {
        const QString incomplete =
            "Make sure a date is selected in the drop down box and both a date and time are entered.";
        const QString noDate = "Please insert a date in this field.";
        Upload upload;
        const QStringList before = upload.stored();
        for (const auto& [date, time, message, focus] : {std::tuple("8/16/2004", "12:00", incomplete, "cmbDate"),
                                                         {"", "12:00", incomplete, "txtDate"},
                                                         {"8/16/2004", "", incomplete, "txtTime"},
                                                         {"2/30/2004", "12:00", noDate, "txtDate"}}) {
            type(*upload.form, "txtDate", date);
            type(*upload.form, "txtTime", time);
            upload.answers.expectBox(message);
            upload.save();
            QVERIFY(upload.form->isVisible());
            QCOMPARE(upload.form->focusWidget()->objectName(), focus);
            QCOMPARE(upload.stored(), before);
            upload.choose("8/16/2004");
            upload.list->selectAll();
        }
    }

    void marksWhatIsTickedAndStaysOpen()
    {
        Upload upload;
        QCOMPARE(entries(*upload.form, "cmbDate"), QStringList({"8/16/2004", "8/17/2004"}));
        upload.choose("8/16/2004");
        QCOMPARE(upload.listed(), "A B C");
        QCOMPARE(textOf(*upload.form, "txtDate") + u' ' + textOf(*upload.form, "txtTime"), "8/16/2004 12:00");
        upload.tick(0);
        upload.tick(2, Qt::ShiftModifier);
        upload.tick(1);
        type(*upload.form, "txtDate", "18 Aug 2004");
        type(*upload.form, "txtTime", "late; -- /* # ");
        upload.save();
        QCOMPARE(upload.stored().join(u' '), "A|18 Aug 2004 late; -- /* #  B|. C|18 Aug 2004 late; -- /* #  B|.");
        QVERIFY(upload.form->isVisible());
        QCOMPARE(upload.listed() + textOf(*upload.form, "txtDate"), "B8/16/2004");
        QCOMPARE(upload.shell.calls, QStringList());
        // Jobs are marked by reference alone, whatever their day.
        upload.tick(0);
        type(*upload.form, "txtDate", "8/20/2004");
        type(*upload.form, "txtTime", "12:00");
        upload.save();
        QCOMPARE(upload.stored().join(u' '),
                 "A|18 Aug 2004 late; -- /* #  B|8/20/2004 12:00 C|18 Aug 2004 late; -- /* #  B|8/20/2004 12:00");
        QVERIFY(!upload.form->isVisible());
        QCOMPARE(upload.shell.calls, QStringList("ShowList(job,8/20/2004,)"));
    }

    // A small letter is a click on that entry, a capital one a click with Shift, all else a key.
    void shiftTicksFromTheAnchor_data()
    {
        addRows({{"inputs", "ticked"},
                 {"click", "a C", "A B C"},
                 {"clicks one way and back", "a C B", "A B"},
                 {"click upwards, beside one ticked before", "a c B", "A B C"},
                 {"click before any other", "B C", "B C"},
                 {"keys", "a Shift+Down Shift+Down", "A B C"},
                 {"keys one way and back", "a Shift+End Shift+Up Shift+Up", "A"},
                 {"keys from where other keys went", "a Down Shift+Down", "A B C"},
                 {"keys before any click", "Shift+Down Shift+Down", "A B"},
                 {"click after keys", "a a End B", "B C"},
                 {"space", "c Up Up Shift+Space", "A C"},
                 {"without a move", "a a Shift+F5", ""}});
    }
    void shiftTicksFromTheAnchor()
    {
        QFETCH(QString, inputs);
        Upload upload;
        upload.choose("8/16/2004");
        upload.list->setFocus();
        for (const QString& input : inputs.split(u' ')) {
            const QString letter = input.toUpper();
            if (letter.size() == 1)
                upload.tick(letter[0].unicode() - u'A', input == letter ? Qt::ShiftModifier : Qt::NoModifier);
            else
                QTest::keySequence(upload.list, QKeySequence(input));
        }
        QStringList ticked;
        for (const QListWidgetItem* entry : upload.list->selectedItems())
            ticked << entry->text();
        ticked.sort();
        QTEST(ticked.join(u' '), "ticked");
    }

    void savingNothingRefreshesTheList()
    {
        Upload upload;
        upload.choose("8/16/2004");
        upload.folder.run("update jobs set jobuploaded='x' where jobreference='A'");
        upload.save();
        QVERIFY(upload.form->isVisible());
        QCOMPARE(upload.listed(), "B C");
        upload.folder.run("update jobs set jobuploaded='x'");
        upload.save();
        upload.save();
        QVERIFY(!upload.form->isVisible());
        QCOMPARE(upload.shell.calls, QStringList("ShowList(job,8/16/2004,)"));
    }

    void refusedReferenceDoesNotStopOthers()
    {
        Upload upload;
        upload.folder.run("update jobs set jobreference=\"O'Brien\" where jobreference='B'");
        upload.choose("8/16/2004");
        upload.list->selectAll();
        upload.expectSyntaxError("in string in query expression '''.");
        upload.save();
        QCOMPARE(upload.stored(), QStringList({"A|8/16/2004 12:00", "O'Brien|.", "C|8/16/2004 12:00", "O'Brien|."}));
        // Every statement was run, so the form closes.
        QVERIFY(!upload.form->isVisible());
    }
};

QTEST_MAIN(TestUpload)
#include "tst_upload.moc"
