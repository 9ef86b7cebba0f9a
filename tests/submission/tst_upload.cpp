#include "submission/frmUpload.h"

#include "support/bench.h"
#include "support/find.h"

#include <QListWidget>

namespace {

/// The submission dialog over these unsubmitted jobs: A, B, C of August 16, B again of August 17.
struct Upload : Bench {
    Upload()
    {
        folder.run(QStringLiteral("delete from jobs"));
        for (const char* job :
             {"#8/16/2004#,1,1,'A'", "#8/16/2004#,1,1,'B'", "#8/16/2004#,1,1,'C'", "#8/17/2004#,1,1,'B'"})
            folder.run(QStringLiteral("insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(%1)")
                           .arg(QLatin1String(job)));
        form = std::make_unique<submission::frmUpload>(shell, nullptr);
        form->show();
        list = &find<QListWidget>(*form, "List1");
    }

    void choose(int index) { find<QComboBox>(*form, "cmbDate").setCurrentIndex(index); }
    void tick(int row)
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
    }
    QStringList listed() const
    {
        QStringList texts;
        for (int i = 0; i < list->count(); ++i)
            texts << list->item(i)->text();
        return texts;
    }
    QStringList stored() const { return folder.rows(QStringLiteral("select jobreference,jobuploaded from jobs")); }

    std::unique_ptr<submission::frmUpload> form;
    QListWidget* list;
};

const QString incomplete =
    QStringLiteral("Make sure a date is selected in the drop down box and both a date and time are entered.");

} // namespace

class TestUpload : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersTheDatesOfUnsubmittedJobs();
    void wantsDateAndTime_data();
    void wantsDateAndTime();
    void marksWhatIsTickedAndStaysOpen();
    void marksByReferenceAloneAndCloses();
    void nothingTickedRefreshes();
    void emptyListCloses();
    void aRefusedReferenceDoesNotStopTheOthers();
    void ticksRangesAndAll();
};

void TestUpload::offersTheDatesOfUnsubmittedJobs()
{
    Upload upload;
    const auto& dates = find<QComboBox>(*upload.form, "cmbDate");
    QCOMPARE(dates.currentIndex(), -1);
    QCOMPARE(dates.itemText(0), QStringLiteral("8/16/2004"));
    QCOMPARE(dates.itemText(1), QStringLiteral("8/17/2004"));
    QCOMPARE(dates.count(), 2);
    upload.choose(0);
    QCOMPARE(upload.listed(), QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
    QCOMPARE(shown(*upload.form, "txtDate"), QStringLiteral("8/16/2004"));
    QCOMPARE(shown(*upload.form, "txtTime"), QStringLiteral("12:00"));
}

void TestUpload::wantsDateAndTime_data()
{
    QTest::addColumn<bool>("chosen");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("message");
    QTest::newRow("no day chosen") << false << "8/16/2004"
                                   << "12:00" << incomplete;
    QTest::newRow("no date") << true << ""
                             << "12:00" << incomplete;
    QTest::newRow("no time") << true << "8/16/2004"
                             << "" << incomplete;
    QTest::newRow("no such date") << true << "2/30/2004"
                                  << "12:00"
                                  << "Please insert a date in this field.";
}

void TestUpload::wantsDateAndTime()
{
    QFETCH(const bool, chosen);
    QFETCH(const QString, date);
    QFETCH(const QString, time);
    QFETCH(const QString, message);
    Upload upload;
    const QStringList before = upload.stored();
    if (chosen)
        upload.choose(0);
    find<QLineEdit>(*upload.form, "txtDate").setText(date);
    find<QLineEdit>(*upload.form, "txtTime").setText(time);
    upload.answers.expectBox(message);
    click(*upload.form, "cmdSave");
    QVERIFY(upload.form->isVisible());
    QCOMPARE(upload.stored(), before);
}

void TestUpload::marksWhatIsTickedAndStaysOpen()
{
    Upload upload;
    upload.choose(0);
    upload.tick(0);
    upload.tick(2);
    find<QLineEdit>(*upload.form, "txtDate").setText(QStringLiteral("18 Aug 2004"));
    find<QLineEdit>(*upload.form, "txtTime").setText(QStringLiteral("late; -- /* # "));
    click(*upload.form, "cmdSave");
    QCOMPARE(upload.stored(), QStringList({QStringLiteral("A|18 Aug 2004 late; -- /* # "), QStringLiteral("B|."),
                                           QStringLiteral("C|18 Aug 2004 late; -- /* # "), QStringLiteral("B|.")}));
    QCOMPARE(upload.listed(), QStringList(QStringLiteral("B")));
    QCOMPARE(shown(*upload.form, "txtDate"), QStringLiteral("8/16/2004"));
    QCOMPARE(upload.shell.calls, QStringList());
}

void TestUpload::marksByReferenceAloneAndCloses()
{
    Upload upload;
    upload.choose(1);
    upload.tick(0);
    find<QLineEdit>(*upload.form, "txtDate").setText(QStringLiteral("8/20/2004"));
    click(*upload.form, "cmdSave");
    QCOMPARE(upload.stored(), QStringList({QStringLiteral("A|."), QStringLiteral("B|8/20/2004 12:00"),
                                           QStringLiteral("C|."), QStringLiteral("B|8/20/2004 12:00")}));
    QVERIFY(!upload.form->isVisible());
    QCOMPARE(upload.shell.calls, QStringList(QStringLiteral("ShowList(job,8/20/2004,)")));
}

void TestUpload::nothingTickedRefreshes()
{
    Upload upload;
    upload.choose(0);
    upload.folder.run(QStringLiteral("update jobs set jobuploaded='x' where jobreference='A'"));
    click(*upload.form, "cmdSave");
    QVERIFY(upload.form->isVisible());
    QCOMPARE(upload.listed(), QStringList({QStringLiteral("B"), QStringLiteral("C")}));
}

void TestUpload::emptyListCloses()
{
    Upload upload;
    upload.folder.run(QStringLiteral("update jobs set jobuploaded='x'"));
    upload.choose(0);
    click(*upload.form, "cmdSave");
    QVERIFY(!upload.form->isVisible());
    QCOMPARE(upload.shell.calls, QStringList(QStringLiteral("ShowList(job,8/16/2004,)")));
}

void TestUpload::aRefusedReferenceDoesNotStopTheOthers()
{
    Upload upload;
    upload.folder.run(QStringLiteral("update jobs set jobreference=\"O'Brien\" where jobreference='B'"));
    upload.choose(0);
    upload.list->selectAll();
    upload.answers.expectBox(QStringLiteral("Error -2147217900 (Syntax error in string in query expression '''.) in "
                                            "procedure ActionQry of Module modMain"));
    click(*upload.form, "cmdSave");
    QCOMPARE(upload.stored(), QStringList({QStringLiteral("A|8/16/2004 12:00"), QStringLiteral("O'Brien|."),
                                           QStringLiteral("C|8/16/2004 12:00"), QStringLiteral("O'Brien|.")}));
    // All were run, so the form is done.
    QVERIFY(!upload.form->isVisible());
}

void TestUpload::ticksRangesAndAll()
{
    Upload upload;
    upload.choose(0);
    upload.tick(0);
    QTest::mouseClick(upload.list->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      upload.list->visualItemRect(upload.list->item(2)).center());
    QCOMPARE(upload.list->selectedItems().size(), 3);
    upload.tick(1);
    QCOMPARE(upload.list->selectedItems().size(), 2);
    QTest::keyClick(upload.list, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(upload.list->selectedItems().size(), 3);
}

QTEST_MAIN(TestUpload)

#include "tst_upload.moc"
