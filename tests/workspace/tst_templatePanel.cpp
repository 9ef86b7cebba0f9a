#include "workspaceBench.h"

#include "ui/twips.h"

#include <QDir>
#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace {

/// The template manager in front of the user, with two templates.
struct Manager : WorkspaceBench {
    Manager()
    {
        folder.run(u"delete from template"_s);
        for (const char* values : {R"('Zoo','Z1','animals','\Letters\z.doc')", R"('Ant','A1','','\Letters\a.doc')"})
            folder.run(
                u"insert into template(tempname,tempref,tempdesc,temppath)values(%1)"_s.arg(QLatin1String(values)));
        form.ShowTemplateManager();
    }

    QString boxes() const
    {
        return QStringList{label("txtTemp_0"), label("txtTemp_1"), label("txtTemp_2"), label("txtTemp_3")}.join(u'|');
    }
    void fill(const QString& texts) const
    {
        for (int i = 0; i < 4; ++i)
            type(form, qPrintable(u"txtTemp_%1"_s.arg(i)), texts.section(u'|', i, i));
    }
    void press(const char* button) const { click(form, button); }
    QStringList stored() const { return rows("template"); }
    bool isShown(const char* control) const { return find<QWidget>(form, control).isVisible(); }
};

const QString ant = u"2|Ant|A1||\\Letters\\a.doc"_s;
const QString zoo = u"1|Zoo|Z1|animals|\\Letters\\z.doc"_s;
const QString emptied = u"|||"_s;

} // namespace

class TestTemplatePanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void showsTheTemplatesByNameUntilAnyList()
    {
        Manager bench;
        for (const char* mode : {"accts", "type", "job", "cancel"}) {
            bench.form.ShowTemplateManager();
            QVERIFY(bench.isShown("frTemp") && !bench.isShown("frList") && !bench.isShown("frDisplay"));
            QCOMPARE(bench.gridRows(), (QStringList{ant, zoo}));
            bench.clickRow(1);
            QCOMPARE(bench.boxes(), zoo.mid(2));
            qstrcmp(mode, "cancel") == 0 ? bench.press("cmdCancel") : bench.list(mode);
            QVERIFY2(!bench.isShown("frTemp"), mode);
            // What was edited is not any more: the next one is new.
            QCOMPARE(bench.boxes(), emptied);
            QVERIFY(!find<QWidget>(bench.form, "cmdDeleteTemp").isEnabled());
        }
        QCOMPARE(bench.form.windowTitle() + bench.ids(), u"Job List1 2"_s);
        QVERIFY(bench.isShown("frList"));
    }

    void standsAboveTheGrid()
    {
        Manager bench;
        const QRect panel = find<QWidget>(bench.form, "frTemp").geometry();
        QCOMPARE(panel.x(), ui::panelInView);
        QVERIFY(bench.placeOf(0).y() > panel.bottom());
        QStringList headers;
        for (int i = 0; i < bench.grid.model()->columnCount(); ++i)
            headers << bench.grid.model()->headerData(i, Qt::Horizontal).toString();
        QCOMPARE(headers.join(u'|'), u"ID|Name|Key Code|Description|Path"_s);
        QCOMPARE(
            bench.label("lblGridInstr"),
            u"To edit a record click the item in the grid below.  Please click in the column the arrow points to."_s);
    }

    void savesWhatIsComplete_data()
    {
        table({{"texts", "boxes", "row"},
               {"no name", "|k|d|p", "|k|d|p", ""},
               {"no key code", "n||d|p", "n||d|p", ""},
               {"no path", "n|k|d|", "n|k|d|", ""},
               {"no description", "Mid|k||p", "|||", "3|Mid|k||p"}});
    }

    void savesWhatIsComplete()
    {
        Manager bench;
        bench.fill(cell("texts"));
        if (cell("row").isEmpty())
            bench.answers.expectBox(u"Name, Key Code and Path must contain valid entrys."_s);
        bench.press("cmdTempSave");
        if (cell("row").isEmpty()) // in the first box that misses its text
            QCOMPARE(bench.form.focusWidget()->property("text").toString(), QString());
        QTEST(bench.boxes(), "boxes");
        QCOMPARE(bench.gridRows().removeAll(cell("row")), cell("row").isEmpty() ? 0 : 1);
        QTEST(bench.stored().value(2), "row");
    }

    // Emptied boxes do not end the editing: what is saved next replaces the clicked template.
    void saveUpdatesTheClickedTemplate()
    {
        Manager bench;
        bench.clickRow(1);
        QCOMPARE(bench.boxes(), zoo.mid(2));
        bench.press("cmdTempReset");
        QCOMPARE(bench.boxes(), emptied);
        const QString texts = u"Zebra|Z2|d|\\L\\x.doc"_s;
        bench.fill(texts);
        bench.press("cmdTempSave");
        QCOMPARE(bench.stored(), (QStringList{u"1|"_s + texts, ant}));
        QCOMPARE(bench.boxes(), emptied);
        // The editing has ended: the next one is new.
        bench.fill(texts);
        bench.press("cmdTempSave");
        QCOMPARE(bench.stored(), (QStringList{u"1|"_s + texts, ant, u"3|"_s + texts}));
    }

    // Neither keys nor a drag lead the editing to another row; a click does.
    void editedRowStaysCurrent()
    {
        Manager bench;
        bench.clickRow(1);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp, Qt::Key_A})
            QTest::keyClick(&bench.grid, key);
        QTest::mousePress(bench.form.windowHandle(), Qt::LeftButton, {}, bench.placeOf(0));
        QTest::mouseMove(bench.form.windowHandle(), bench.placeOf(0) + QPoint(60, 5));
        QTest::mouseRelease(bench.form.windowHandle(), Qt::LeftButton, {}, bench.placeOf(0) + QPoint(60, 0));
        QCOMPARE(bench.grid.currentIndex().row(), 1);
        QCOMPARE(bench.boxes(), zoo.mid(2));
        bench.clickRow(0);
        QCOMPARE(bench.grid.currentIndex().row(), 0);
        QCOMPARE(bench.boxes(), ant.mid(2));
        bench.answers.expectBox(u"Are you sure?"_s, QMessageBox::Yes, u"You're about to delete a record!"_s);
        QTest::keyClick(&bench.grid, Qt::Key_Delete);
        QCOMPARE(bench.boxes(), emptied);
        bench.fill(u"n|k|d|p"_s);
        bench.press("cmdTempSave");
        QCOMPARE(bench.stored(), (QStringList{zoo, u"3|n|k|d|p"_s}));
    }

    void jobTakesThePlaceOfThePanel()
    {
        Manager bench;
        bench.clickRow(1);
        bench.form.OpenJob(1, u"R"_s, 1, values::dateTime({2004, 8, 18}));
        QVERIFY(!bench.isShown("frTemp") && bench.isShown("frJob"));
        QCOMPARE(bench.boxes(), emptied);
    }

    void deletes()
    {
        Manager bench;
        bench.clickRow(0);
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            QCOMPARE(bench.stored(), (QStringList{zoo, ant}));
            QCOMPARE(bench.boxes(), ant.mid(2));
            bench.answers.expectBox(u"Are you sure you want to delete this template?"_s, answer);
            bench.press("cmdDeleteTemp");
        }
        QCOMPARE(bench.stored(), QStringList{zoo});
        QCOMPARE(bench.gridRows(), QStringList{zoo});
        QCOMPARE(bench.boxes(), emptied);
    }

    void browses()
    {
        Manager bench;
        QDir(bench.folder.path()).mkpath(u"templates/Radiology"_s);
        QFile file(bench.folder.path() + u"/templates/Radiology/chest 1.doc"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        bench.fill(u"n|k|d|kept"_s);
        for (const auto& [key, path] :
             {std::pair(Qt::Key_Escape, u"kept"_s), {Qt::Key_Return, u"\\Radiology\\chest 1.doc"_s}}) {
            bench.answers.expectDialog(u"CommonDialog1"_s, [&, key = key](QWidget& window) {
                auto& dialog = dynamic_cast<QFileDialog&>(window);
                QCOMPARE(dialog.directory().path(), bench.folder.path() + u"/templates"_s);
                QCOMPARE(dialog.selectedNameFilter(), u"Word Files (*.doc)"_s);
                dialog.selectFile(file.fileName());
                QTest::keyClick(&dialog, key);
            });
            bench.press("cmdPath");
            QCOMPARE(bench.boxes(), u"n|k|d|"_s + path);
        }
    }
};

QTEST_MAIN(TestTemplatePanel)
#include "tst_templatePanel.moc"
