#include "workspaceBench.h"

#include "support/files.h"
#include "ui/twips.h"

#include <QDir>
#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace {

/// The template manager in front of the user, with two templates.
struct Manager : WorkspaceBench {
    Manager()
    {
        folder.run("delete from template");
        for (const QString values :
             {R"('Zoo &Son','Z1','animals','\Letters\z.doc')", R"('Ant','A1','','\Letters\a.doc')"})
            folder.run("insert into template(tempname,tempref,tempdesc,temppath)values(" + values + ')');
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
    bool isShown(const char* control) const { return find<QWidget>(form, control).isVisible(); }
};

const QString ant = "2|Ant|A1||\\Letters\\a.doc";
const QString zoo = "1|Zoo &Son|Z1|animals|\\Letters\\z.doc";
const QString emptied = "|||";

} // namespace

class TestTemplatePanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void showsTheTemplatesByNameUntilAnyList()
    {
        Manager bench;
        const QRect panel = find<QWidget>(bench.form, "frTemp").geometry();
        QCOMPARE(panel.x(), ui::panelInView);
        QVERIFY(bench.placeOf(0).y() > panel.bottom());
        QCOMPARE(bench.headings(), "ID|Name|Key Code|Description|Path");
        QCOMPARE(bench.label("lblGridInstr"),
                 "To edit a record click the item in the grid below.  Please click in the column the arrow points to.");
        for (const char* mode : {"accts", "type", "job", "cancel"}) {
            bench.form.ShowTemplateManager();
            QVERIFY(bench.isShown("frTemp") && !bench.isShown("frList") && !bench.isShown("frDisplay"));
            QCOMPARE(bench.gridRows(), (QStringList{ant, zoo}));
            bench.clickRow(1);
            QCOMPARE(bench.boxes(), zoo.mid(2));
            qstrcmp(mode, "cancel") == 0 ? click(bench.form, "cmdCancel") : bench.list(mode);
            QVERIFY2(!bench.isShown("frTemp"), mode);
            // The editing has ended: the next template is a new one.
            QCOMPARE(bench.boxes(), emptied);
            QVERIFY(!find<QWidget>(bench.form, "cmdDeleteTemp").isEnabled());
        }
        QCOMPARE(bench.form.windowTitle() + bench.ids(), "Job List1 2");
        QVERIFY(bench.isShown("frList"));
        bench.form.ShowTemplateManager();
        bench.clickRow(1);
        bench.form.OpenJob(1, "R", 1, values::dateTime({2004, 8, 18}));
        QVERIFY(!bench.isShown("frTemp") && bench.isShown("frJob"));
        QCOMPARE(bench.boxes(), emptied);
    }

    void refusesEmptyBoxes()
    {
        Manager bench;
        for (const char* texts : {"|k|d|p", "n||d|p", "n|k|d|"}) {
            bench.fill(texts);
            bench.answers.expectBox("Name, Key Code and Path must contain valid entrys.");
            click(bench.form, "cmdTempSave");
            QCOMPARE(bench.form.focusWidget()->property("text").toString(), "");
            QCOMPARE(bench.boxes(), texts);
        }
        QCOMPARE(bench.rows("template"), QStringList({zoo, ant}));
    }

    // Emptying the boxes does not end the editing: saving replaces the clicked template. Its name takes no access key
    // away.
    void saveUpdatesTheClickedTemplate()
    {
        Manager bench;
        bench.clickRow(1);
        QCOMPARE(bench.boxes(), zoo.mid(2));
        click(bench.form, "cmdTempReset");
        QCOMPARE(bench.boxes(), emptied);
        const QString texts = "Zebra|Z2|d|\\L\\x.doc";
        bench.fill(texts);
        QTest::keyClick(&bench.form, Qt::Key_S, Qt::AltModifier);
        QCOMPARE(bench.rows("template"), (QStringList{"1|" + texts, ant}));
        QCOMPARE(bench.boxes(), emptied);
        // Now the editing has ended: the next template is a new one. It needs no description.
        bench.fill("Mid|k||p");
        click(bench.form, "cmdTempSave");
        QCOMPARE(bench.rows("template"), (QStringList{"1|" + texts, ant, "3|Mid|k||p"}));
        QCOMPARE(bench.gridRows(), (QStringList{ant, "3|Mid|k||p", "1|" + texts}));
    }

    // Only a plain click changes the edited row, not keys or a drag. Deleting the template ends the editing.
    void editedRowStaysCurrent()
    {
        Manager bench;
        bench.clickRow(1);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp, Qt::Key_A})
            QTest::keyClick(&bench.grid, key);
        QTest::mousePress(bench.form.windowHandle(), Qt::LeftButton, {}, bench.placeOf(0));
        QTest::mouseMove(bench.form.windowHandle(), bench.placeOf(0) + QPoint(60, 5));
        QTest::mouseRelease(bench.form.windowHandle(), Qt::LeftButton, {}, bench.placeOf(0) + QPoint(60, 0));
        QTest::mouseClick(bench.form.windowHandle(), Qt::LeftButton, Qt::ControlModifier, bench.placeOf(0));
        QCOMPARE(bench.grid.currentIndex().row(), 1);
        QCOMPARE(bench.grid.selectionModel()->selectedRows(), QModelIndexList{bench.grid.model()->index(1, 0)});
        QCOMPARE(bench.boxes(), zoo.mid(2));
        bench.clickRow(0);
        QCOMPARE(bench.grid.currentIndex().row(), 0);
        QCOMPARE(bench.boxes(), ant.mid(2));
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            QCOMPARE(bench.rows("template"), (QStringList{zoo, ant}));
            QCOMPARE(bench.boxes(), ant.mid(2));
            bench.answers.expectBox("Are you sure you want to delete this template?", answer);
            click(bench.form, "cmdDeleteTemp");
        }
        QCOMPARE(bench.gridRows(), QStringList{zoo});
        QCOMPARE(bench.boxes(), emptied);
        // Deleting it in the grid ends the editing too: the next template is a new one.
        bench.clickRow(0);
        bench.answers.expectBox("Are you sure?", QMessageBox::Yes, "You're about to delete a record!");
        QTest::keyClick(&bench.grid, Qt::Key_Delete);
        QCOMPARE(bench.boxes(), emptied);
        bench.fill("n|k|d|p");
        click(bench.form, "cmdTempSave");
        QCOMPARE(bench.rows("template"), QStringList("3|n|k|d|p"));
    }

    void choosesAFile()
    {
        Manager bench;
        const QString templates = bench.folder.path() + "/templates";
        QDir().mkpath(templates + "/Radiology");
        writeFile(templates + "/Radiology/chest 1.doc", "");
        bench.fill("n|k|d|kept");
        for (const auto& [key, path] :
             {std::pair(Qt::Key_Escape, "kept"), {Qt::Key_Return, "\\Radiology\\chest 1.doc"}}) {
            bench.answers.expectDialog("CommonDialog1", [&, key = key](QWidget& window) {
                auto& dialog = dynamic_cast<QFileDialog&>(window);
                QCOMPARE(dialog.directory().path(), templates);
                QCOMPARE(dialog.selectedNameFilter(), "Word Files (*.doc)");
                dialog.selectFile(templates + "/Radiology/chest 1.doc");
                QTest::keyClick(&dialog, key);
            });
            click(bench.form, "cmdPath");
            QCOMPARE(bench.boxes(), "n|k|d|" + QString(path));
        }
    }
};

QTEST_MAIN(TestTemplatePanel)
#include "tst_templatePanel.moc"
