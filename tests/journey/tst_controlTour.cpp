// Options, date pickers, tick lists, combos and the wheel in the real window: what each press really does.
#include "user.h"

#include "app/start.h"
#include "support/scratchFolder.h"
#include "ui/eventGuard.h"
#include "values/dates.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString longName = u"Riverside Orthopaedic Clinic and Associated Practices of the Northern Valley"_s;

/// Those of the options, by their names, that are chosen.
QString chosen(const QString& options)
{
    QStringList names;
    for (const QString& name : options.split(u' ')) {
        const auto* option = qobject_cast<QAbstractButton*>(User::control(name));
        if (option && option->isChecked())
            names << name;
    }
    return names.join(u' ');
}

QString ticked()
{
    QStringList texts;
    for (const QListWidgetItem* entry : qobject_cast<QListWidget*>(User::control(u"List1"_s))->selectedItems())
        texts << entry->text();
    return texts.join(u' ');
}

QLineEdit& boxOf(const char* combo)
{
    return *qobject_cast<QComboBox*>(User::control(QLatin1String(combo)))->lineEdit();
}

/// Makes the desktop one whose fixed font has letters of different widths.
void chooseDesktop(const QString& settings)
{
    QFile file(settings + u"/kdeglobals"_s);
    if (!file.open(QIODevice::WriteOnly) || file.write("[General]\nfixed=DejaVu Sans,10,-1,5,50,0,0,0,0,0\n") < 0)
        qFatal("no desktop");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings));
    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    qputenv("KDE_SESSION_VERSION", "5");
}

} // namespace

class ControlTour : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void optionsOfOneChoice();
    void tabVisitsEachChoiceOnce();
    void datesArriveAsTyped();
    void calendarIsEnglish();
    void wheelChangesOnlyWhatHasTheFocus();
    void ticksAndListsAgain();
    void longNamesShowTheirBeginning();
    void typeListStartsWithoutAChoice();
    void cleanupTestCase() { m_window->close(); }

private:
    void play(const std::function<void()>& story) { QCOMPARE(m_user->play(story), QString()); }
    void expect(const QString& expected, const std::function<QString()>& shown)
    {
        m_user->waitFor(expected, [&] { return shown() == expected; });
    }
    /// Opens a form from the menus, does something there, and closes it.
    void in(const QString& form, const QStringList& menus, const std::function<void()>& story)
    {
        play([&] {
            m_user->choose(menus);
            m_user->waitForWindow(form);
            story();
            m_user->press(u"Escape"_s);
            m_user->waitForNoWindow();
        });
    }
    void inReports(const std::function<void()>& story)
    {
        in(u"frmReport"_s, {u"Reports"_s, u"Report Manager"_s}, story);
    }
    void typeInto(const QString& picker, const QString& text)
    {
        m_user->click(picker);
        m_user->press(u"ctrl+a"_s);
        m_user->type(text);
    }

    ScratchFolder m_folder;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<User> m_user;
};

void ControlTour::initTestCase()
{
    m_folder.run(u"insert into jobacct(acctname)values('%1')"_s.arg(longName));
    m_folder.run(
        u"insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)values(1,'Notes',1,65,'Line')"_s);
    for (const char* job : {"#8/16/2004#,1,1,'A'", "#8/16/2004#,1,1,'B'", "#8/17/2004#,1,1,'C'"})
        m_folder.run(u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(%1)"_s.arg(QLatin1String(job)));
    m_user = std::make_unique<User>(QStringLiteral(TOUR_FOLDER));
    // The end of the program shall not be that of the test.
    ui::setProgramEnd([](int) {});
    m_window = modMain::Main(m_folder.path());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void ControlTour::optionsOfOneChoice()
{
    const QString all = u"optSummary optDetail optClient_0 optAcct_0 optClient_1 optAcct_1"_s;
    // Each press, and the options that are chosen then.
    const std::pair<const char*, const char*> steps[] = {
        {"optDetail", "optDetail optClient_0 optClient_1"},
        {"optSummary", "optSummary optClient_0 optClient_1"},
        {"optSummary", "optSummary optClient_0 optClient_1"},
        {"optAcct_0", "optSummary optAcct_0 optClient_1"},
        {"alt+d", "optDetail optAcct_0 optClient_1"},
        {"alt+u", "optDetail optAcct_0 optAcct_1"},
        {"Up", "optDetail optAcct_0 optClient_1"},
        {"alt+s", "optSummary optAcct_0 optClient_1"},
        {"alt+e", "optSummary optClient_0 optClient_1"},
        {"Down", "optSummary optAcct_0 optClient_1"},
        {"alt+s Down", "optDetail optAcct_0 optClient_1"},
    };
    inReports([&] {
        for (const auto& [press, expected] : steps) {
            const QString name = QLatin1String(press);
            name.startsWith(u"opt") ? m_user->click(name) : m_user->press(name);
            m_user->waitFor(name + u" to choose "_s + QLatin1String(expected),
                            [&] { return chosen(all) == QLatin1String(expected); });
        }
    });
}

void ControlTour::tabVisitsEachChoiceOnce()
{
    QStringList stops;
    inReports([&] {
        // What is typed chooses the period without going there.
        typeInto(u"dtpOther"_s, u"8/16/2004\t"_s);
        m_user->press(u"alt+v alt+s"_s);
        do {
            stops << m_user->focused();
            m_user->press(u"Tab"_s);
        } while (m_user->focused() != stops.first() && stops.size() < 40);
    });
    QCOMPARE(stops.join(u' '), u"optSummary optClient_0 cmbClientSumm cmbAcctSumm dtpFrom dtpTo optRange_4 dtpOther "
                               "optSave cmdProcess cmdCancel"_s);
}

void ControlTour::datesArriveAsTyped()
{
    // Alternately left with Tab and with a click on another control.
    const std::pair<const char*, const char*> dates[] = {
        {"8/1/2004", "8/1/2004"},   {"12/31/2003", "12/31/2003"}, {"08162004", "8/16/2004"}, {"812004", "8/1/2004"},
        {"8/16/04", "8/16/2004"},   {"2/29/96", "2/29/1996"},     {"081629", "8/16/2029"},   {"081630", "8/16/1930"},
        {"16 Aug 04", "8/16/2004"}, {"2/30/2004", "8/16/2004"},   {"nonsense", "8/16/2004"}, {"14:30", "8/16/2004"},
    };
    inReports([&] {
        bool leavesByTab = true;
        for (const auto& [typed, arrived] : dates) {
            typeInto(u"dtpOther"_s, QLatin1String(typed));
            leavesByTab ? m_user->press(u"Tab"_s) : m_user->click(u"optOpen"_s);
            leavesByTab = !leavesByTab;
            m_user->waitForText(u"dtpOther"_s, QLatin1String(arrived));
        }
        expect(u"optRange_4"_s, [] { return chosen(u"optRange_0 optRange_4"_s); });
    });
}

void ControlTour::calendarIsEnglish()
{
    inReports([&] {
        typeInto(u"dtpFrom"_s, u"3/31/2004"_s);
        m_user->press(u"alt+Down"_s);
        m_user->waitFor(u"March, its weeks from Sunday"_s, [] {
            const QWidget* popup = QApplication::activePopupWidget();
            const auto* calendar = popup ? popup->findChild<QCalendarWidget*>() : nullptr;
            return calendar && calendar->firstDayOfWeek() == Qt::Sunday &&
                   calendar->findChild<QAbstractButton*>(u"qt_calendar_monthbutton"_s)->text() == u"March";
        });
        m_user->press(u"Right Return"_s);
        m_user->waitForText(u"dtpFrom"_s, u"4/1/2004"_s);
    });
}

void ControlTour::wheelChangesOnlyWhatHasTheFocus()
{
    inReports([&] {
        typeInto(u"dtpTo"_s, u"8/16/2004\t"_s);
        m_user->turnWheel(u"dtpTo"_s);
        m_user->press(u"shift+Tab"_s);
        m_user->waitForText(u"dtpTo"_s, u"8/16/2004"_s);
        m_user->turnWheel(u"dtpTo"_s);
        m_user->waitForText(u"dtpTo"_s, u"8/15/2004"_s);
    });
    in(u"frmAddType"_s, {u"Data"_s, u"Acct/type"_s, u"Add"_s}, [&] {
        m_user->turnWheel(u"cmbUnit"_s);
        m_user->click(u"txtFields_1"_s);
        m_user->press(u"Tab"_s);
        m_user->waitForText(u"cmbUnit"_s, u"Line"_s);
        m_user->turnWheel(u"cmbUnit"_s);
        m_user->waitForText(u"cmbUnit"_s, u"Report"_s);
    });
}

void ControlTour::ticksAndListsAgain()
{
    in(u"frmUpload"_s, {u"Data"_s, u"Jobs"_s, u"Submitted"_s}, [&] {
        m_user->press(u"Down"_s);
        m_user->waitForText(u"txtDate"_s, u"8/16/2004"_s);
        m_user->clickEntry(u"List1"_s, 0);
        expect(u"A"_s, ticked);
        m_user->clickEntry(u"List1"_s, 1, 2);
        m_user->clickEntry(u"List1"_s, 0, 2);
        expect(u"A"_s, ticked);
        m_user->clickEntry(u"List1"_s, 1, 3);
        expect(u"A B"_s, ticked);
        // The same day once more: its list is read again.
        m_folder.run(u"update jobs set jobuploaded='x' where jobreference='A'"_s);
        typeInto(u"txtDate"_s, u"x"_s);
        m_user->click(u"cmbDate"_s);
        m_user->waitFor(u"the list of dates"_s, [] { return QApplication::activePopupWidget() != nullptr; });
        m_user->press(u"Return"_s);
        m_user->waitForText(u"txtDate"_s, u"8/16/2004"_s);
        m_user->press(u"alt+j ctrl+a"_s);
        expect(u"B"_s, ticked);
    });
}

void ControlTour::longNamesShowTheirBeginning()
{
    in(u"frmAddJob"_s, {u"Data"_s, u"Jobs"_s, u"Add"_s}, [&] {
        m_user->press(u"Tab alt+Down"_s);
        m_user->waitFor(u"entries as wide as their names"_s, [] {
            const QWidget* list = QApplication::activePopupWidget();
            return list && list->width() >= list->fontMetrics().horizontalAdvance(longName);
        });
        m_user->press(u"Down Return"_s);
        m_user->waitForText(u"cmbAcct"_s, longName);
        m_user->waitFor(u"the beginning"_s, [] { return boxOf("cmbAcct").cursorPositionAt(QPoint(8, 8)) < 4; });
        m_user->press(u"Tab shift+Tab"_s);
        m_user->waitFor(u"the beginning, selected"_s, [] {
            const QLineEdit& box = boxOf("cmbAcct");
            return box.selectedText() == longName && box.cursorPosition() == 0;
        });
    });
}

void ControlTour::typeListStartsWithoutAChoice()
{
    play([&] {
        m_user->press(u"F7"_s);
        m_user->waitForTitle(u"Penwright - [Job List]"_s);
        m_user->press(u"alt+o Down"_s);
        expect(u"optRange_4"_s, [] { return chosen(u"optRange_0 optRange_3 optRange_4"_s); });
        m_user->press(u"Tab"_s);
        m_user->type(u"8/17/2004"_s);
        m_user->press(u"alt+l"_s);
        m_user->clickCell(0, 0);
        m_user->waitForText(u"lblJob_10"_s, u"C"_s);
        m_user->click(u"lblJob_2"_s);
        m_user->waitForWindow(u"frmEditJob"_s);
        m_user->waitFor(u"letters of equal width"_s,
                        [] { return QFontInfo(User::control(u"List1"_s)->font()).fixedPitch(); });
        m_user->waitFor(u"no line to look chosen"_s,
                        [] { return !qobject_cast<QListWidget*>(User::control(u"List1"_s))->currentItem(); });
        m_user->press(u"Down Return"_s);
        m_user->waitForNoWindow();
        m_user->click(u"cmdClose"_s);
    });
}

int main(int argc, char* argv[])
{
    const QTemporaryDir settings;
    chooseDesktop(settings.path());
    QApplication application(argc, argv);
    modMain::setApplicationLook();
    ControlTour tour;
    return QTest::qExec(&tour, argc, argv);
}

#include "tst_controlTour.moc"
