// Options, date pickers, tick lists, combos and the wheel in the real window: what each press really does.
#include "journey.h"

#include "support/files.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

namespace {

const QString longName = "Riverside Orthopaedic Clinic and Associated Practices of the Northern Valley";

/// The names of those options that are chosen.
QString chosenOptions(const QString& options)
{
    QStringList names;
    for (const QString& name : options.split(u' ')) {
        const auto* option = qobject_cast<QAbstractButton*>(User::control(name));
        if (option && option->isChecked())
            names << name;
    }
    return names.join(u' ');
}

QString tickedEntries()
{
    QStringList texts;
    for (const QListWidgetItem* entry : qobject_cast<QListWidget*>(User::control("List1"))->selectedItems())
        texts << entry->text();
    return texts.join(u' ');
}

QLineEdit& boxOf(const char* combo)
{
    return *qobject_cast<QComboBox*>(User::control(combo))->lineEdit();
}

/// Simulates a desktop whose fixed font has letters of different widths.
void chooseDesktop(const QString& settings)
{
    writeFile(settings + "/kdeglobals", "[General]\nfixed=DejaVu Sans,10,-1,5,50,0,0,0,0,0\n");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings));
    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    qputenv("KDE_SESSION_VERSION", "5");
}

} // namespace

class ControlTour : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        storeClient(longName);
        storeJob("A", "8/16/2004");
        storeJob("B", "8/16/2004");
        storeJob("C", "8/17/2004");
        QVERIFY(start(m_folder.path()));
    }

    void optionsExcludeEachOther()
    {
        const QString all = "optSummary optDetail optClient_0 optAcct_0 optClient_1 optAcct_1";
        // A key press or click, and the options that are chosen afterwards.
        const QList<QStringList> steps{{"optDetail", "optDetail optClient_0 optClient_1"},
                                       {"optSummary", "optSummary optClient_0 optClient_1"},
                                       {"optSummary", "optSummary optClient_0 optClient_1"},
                                       {"optAcct_0", "optSummary optAcct_0 optClient_1"},
                                       {"alt+d", "optDetail optAcct_0 optClient_1"},
                                       {"alt+u", "optDetail optAcct_0 optAcct_1"},
                                       {"Up", "optDetail optAcct_0 optClient_1"},
                                       {"alt+s", "optSummary optAcct_0 optClient_1"},
                                       {"alt+e", "optSummary optClient_0 optClient_1"},
                                       {"Down", "optSummary optAcct_0 optClient_1"},
                                       {"alt+s Down", "optDetail optAcct_0 optClient_1"}};
        QVERIFY(playInReports([&] {
            for (const QStringList& step : steps) {
                step[0].startsWith("opt") ? click(step[0]) : press(step[0]);
                waitFor(step[0] + " to choose " + step[1], [&] { return chosenOptions(all) == step[1]; });
            }
        }));
    }

    void tabVisitsEachChoiceOnce()
    {
        QStringList stops;
        QVERIFY(playInReports([&] {
            // Typing a date chooses its period, and the focus stays in the box.
            typeInto("dtpOther", "8/16/2004\t");
            press("alt+v alt+s");
            do {
                stops << focusedControl();
                press("Tab");
            } while (focusedControl() != stops.first() && stops.size() < 40);
        }));
        QCOMPARE(stops.join(u' '), "optSummary optClient_0 cmbClientSumm cmbAcctSumm dtpFrom dtpTo optRange_4 dtpOther "
                                   "optSave cmdProcess cmdCancel");
    }

    void datesArriveAsTypedOrChosen()
    {
        // The box is left alternately with Tab and with a click on another control.
        const QList<QStringList> dates{
            {"8/1/2004", "8/1/2004"},   {"12/31/2003", "12/31/2003"}, {"08162004", "8/16/2004"},
            {"812004", "8/1/2004"},     {"8/16/04", "8/16/2004"},     {"2/29/96", "2/29/1996"},
            {"081629", "8/16/2029"},    {"081630", "8/16/1930"},      {"16 Aug 04", "8/16/2004"},
            {"2/30/2004", "8/16/2004"}, {"nonsense", "8/16/2004"},    {"14:30", "8/16/2004"}};
        QVERIFY(playInReports([&] {
            bool isLeftByTab = true;
            for (const QStringList& date : dates) {
                typeInto("dtpOther", date[0]);
                isLeftByTab ? press("Tab") : click("optOpen");
                isLeftByTab = !isLeftByTab;
                waitForText("dtpOther", date[1]);
            }
            expect("optRange_4", [] { return chosenOptions("optRange_0 optRange_4"); });
            // The calendar is English too.
            typeInto("dtpFrom", "3/31/2004");
            press("alt+Down");
            waitFor("March, its weeks from Sunday", [] {
                const QWidget* popup = QApplication::activePopupWidget();
                const auto* calendar = popup ? popup->findChild<QCalendarWidget*>() : nullptr;
                return calendar && calendar->firstDayOfWeek() == Qt::Sunday &&
                       calendar->findChild<QAbstractButton*>("qt_calendar_monthbutton")->text() == u"March";
            });
            press("Right Return");
            waitForText("dtpFrom", "4/1/2004");
        }));
    }

    void wheelChangesOnlyWhatHasTheFocus()
    {
        QVERIFY(playInReports([&] {
            typeInto("dtpTo", "8/16/2004\t");
            turnWheel("dtpTo");
            press("shift+Tab");
            waitForText("dtpTo", "8/16/2004");
            turnWheel("dtpTo");
            waitForText("dtpTo", "8/15/2004");
        }));
        QVERIFY(playIn("frmAddType", {"Data", "Acct/type", "Add"}, [&] {
            turnWheel("cmbUnit");
            click("txtFields_1");
            press("Tab");
            waitForText("cmbUnit", "Line");
            turnWheel("cmbUnit");
            waitForText("cmbUnit", "Report");
        }));
    }

    void ticksAndListsAgain()
    {
        QVERIFY(playIn("frmUpload", {"Data", "Jobs", "Submitted"}, [&] {
            press("Down");
            waitForText("txtDate", "8/16/2004");
            clickEntry("List1", 0);
            expect("A", tickedEntries);
            clickEntry("List1", 1, 2);
            clickEntry("List1", 0, 2);
            expect("A", tickedEntries);
            clickEntry("List1", 1, 3);
            expect("A B", tickedEntries);
            // The same day once more: its list is read again.
            m_folder.run("update jobs set jobuploaded='x' where jobreference='A'");
            typeInto("txtDate", "x");
            click("cmbDate");
            waitFor("the list of dates", [] { return QApplication::activePopupWidget() != nullptr; });
            press("Return");
            waitForText("txtDate", "8/16/2004");
            press("alt+j ctrl+a");
            expect("B", tickedEntries);
        }));
    }

    void longNamesShowTheirBeginning()
    {
        QVERIFY(playIn("frmAddJob", {"Data", "Jobs", "Add"}, [&] {
            press("Tab alt+Down");
            waitFor("entries as wide as their names", [] {
                const QWidget* list = QApplication::activePopupWidget();
                return list && list->width() >= list->fontMetrics().horizontalAdvance(longName);
            });
            press("Down Return");
            waitForText("cmbAcct", longName);
            waitFor("the beginning", [] { return boxOf("cmbAcct").cursorPositionAt(QPoint(8, 8)) < 4; });
            press("Tab shift+Tab");
            waitFor("the beginning, selected", [] {
                const QLineEdit& box = boxOf("cmbAcct");
                return box.selectedText() == longName && box.cursorPosition() == 0;
            });
        }));
    }

    void typeListStartsWithoutAChoice()
    {
        QVERIFY(play([&] {
            press("F7");
            waitForTitle("Penwright - [Job List]");
            press("alt+o Down");
            expect("optRange_4", [] { return chosenOptions("optRange_0 optRange_3 optRange_4"); });
            press("Tab");
            type("8/17/2004");
            press("alt+l");
            clickRow(0);
            waitForText("lblJob_10", "C");
            click("lblJob_2");
            waitForWindow("frmEditJob");
            waitFor("letters of equal width", [] { return QFontInfo(control("List1")->font()).fixedPitch(); });
            waitFor("no line to look chosen",
                    [] { return !qobject_cast<QListWidget*>(control("List1"))->currentItem(); });
            leave("Down Return");
            click("cmdClose");
        }));
    }

private:
    void expect(const QString& expected, const std::function<QString()>& shown)
    {
        waitFor(expected, [&] { return shown() == expected; });
    }
    /// Opens a form from the menus, does something there, and closes it.
    bool playIn(const QString& form, const QStringList& menus, const std::function<void()>& story)
    {
        return play([&] {
            open(form, menus);
            story();
            leave();
        });
    }
    bool playInReports(const std::function<void()>& story)
    {
        return playIn("frmReport", {"Reports", "Report Manager"}, story);
    }
    void typeInto(const QString& picker, const QString& text)
    {
        click(picker);
        press("ctrl+a");
        type(text);
    }
};

int main(int argc, char* argv[])
{
    const QTemporaryDir settings;
    chooseDesktop(settings.path());
    return runJourney<ControlTour>(argc, argv);
}

#include "tst_controlTour.moc"
