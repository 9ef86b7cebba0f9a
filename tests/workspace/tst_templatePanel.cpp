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
    void fill(const QStringList& texts) const
    {
        for (int i = 0; i < texts.size(); ++i)
            type(form, qPrintable(u"txtTemp_%1"_s.arg(i)), texts[i]);
    }
    QStringList stored() const { return rows("template"); }
    bool isPanelShown() const { return find<QWidget>(form, "frTemp").isVisible(); }
};

const QString ant = u"2|Ant|A1||\\Letters\\a.doc"_s;
const QString zoo = u"1|Zoo|Z1|animals|\\Letters\\z.doc"_s;
const QString sure = u"Are you sure you want to delete this template?"_s;

} // namespace

class TestTemplatePanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void showsTheTemplatesByName()
    {
        Manager bench;
        QVERIFY(bench.isPanelShown());
        QCOMPARE(find<QWidget>(bench.form, "frTemp").x(), ui::panelInView);
        QCOMPARE(bench.gridRows(), (QStringList{ant, zoo}));
        QStringList headers;
        for (int i = 0; i < bench.grid.model()->columnCount(); ++i)
            headers << bench.grid.model()->headerData(i, Qt::Horizontal).toString();
        QCOMPARE(headers.join(u'|'), u"ID|Name|Key Code|Description|Path"_s);
        QVERIFY(!find<QWidget>(bench.form, "frList").isVisible() &&
                !find<QWidget>(bench.form, "frDisplay").isVisible());
        QCOMPARE(
            bench.label("lblGridInstr"),
            u"To edit a record click the item in the grid below.  Please click in the column the arrow points to."_s);
        QVERIFY(bench.placeOf(0).y() > find<QWidget>(bench.form, "frTemp").geometry().bottom());
    }

    void savesWhatIsComplete_data()
    {
        QTest::addColumn<QString>("texts");
        QTest::addColumn<bool>("isComplete");
        QTest::newRow("no name") << u"|k|d|p"_s << false;
        QTest::newRow("no key code") << u"n||d|p"_s << false;
        QTest::newRow("no path") << u"n|k|d|"_s << false;
        QTest::newRow("no description") << u"Mid|k||p"_s << true;
    }
    void savesWhatIsComplete()
    {
        QFETCH(QString, texts);
        QFETCH(bool, isComplete);
        Manager bench;
        bench.fill(texts.split(u'|'));
        if (!isComplete)
            bench.answers.expectBox(u"Name, Key Code and Path must contain valid entrys."_s);
        click(bench.form, "cmdTempSave");
        QCOMPARE(bench.boxes(), isComplete ? u"|||"_s : texts);
        QCOMPARE(bench.gridRows(), isComplete ? (QStringList{ant, u"3|"_s + texts, zoo}) : (QStringList{ant, zoo}));
        QCOMPARE(bench.stored().size(), bench.gridRows().size());
    }

    // Emptied boxes do not end the editing: what is saved next replaces the clicked template.
    void saveUpdatesTheClickedTemplate_data()
    {
        QTest::addColumn<bool>("isReset");
        QTest::newRow("edited") << false;
        QTest::newRow("reset between") << true;
    }
    void saveUpdatesTheClickedTemplate()
    {
        QFETCH(bool, isReset);
        Manager bench;
        bench.clickRow(1);
        QCOMPARE(bench.boxes(), zoo.mid(2));
        if (isReset) {
            click(bench.form, "cmdTempReset");
            QCOMPARE(bench.boxes(), u"|||"_s);
        }
        const QStringList texts{u"Zebra"_s, u"Z2"_s, u"d"_s, u"\\L\\x.doc"_s};
        bench.fill(texts);
        click(bench.form, "cmdTempSave");
        QCOMPARE(bench.stored(), (QStringList{u"1|"_s + texts.join(u'|'), ant}));
        QCOMPARE(bench.boxes(), u"|||"_s);
        // The editing has ended: the next one is new.
        bench.fill(texts);
        click(bench.form, "cmdTempSave");
        QCOMPARE(bench.stored().value(2), u"3|"_s + texts.join(u'|'));
    }

    void deletes_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<QStringList>("left");
        QTest::newRow("no") << QMessageBox::No << QStringList{ant, zoo};
        QTest::newRow("yes") << QMessageBox::Yes << QStringList{zoo};
    }
    void deletes()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        Manager bench;
        bench.clickRow(0);
        bench.answers.expectBox(sure, answer);
        click(bench.form, "cmdDeleteTemp");
        QTEST(bench.gridRows(), "left");
        QCOMPARE(bench.stored().size(), bench.gridRows().size());
        QCOMPARE(bench.boxes(), answer == QMessageBox::Yes ? u"|||"_s : ant.mid(2));
    }

    void anyListHidesThePanel()
    {
        Manager bench;
        for (const char* mode : {"accts", "type", "job", "cancel"}) {
            bench.form.ShowTemplateManager();
            QVERIFY(bench.isPanelShown());
            QCOMPARE(bench.gridRows(), (QStringList{ant, zoo}));
            if (qstrcmp(mode, "cancel") == 0)
                click(bench.form, "cmdCancel");
            else
                bench.list(mode);
            QVERIFY2(!bench.isPanelShown(), mode);
        }
        QCOMPARE(bench.form.windowTitle(), u"Job List"_s);
        QCOMPARE(bench.ids(), u"1 2"_s);
        QVERIFY(find<QWidget>(bench.form, "frList").isVisible());
    }

    void browses_data()
    {
        QTest::addColumn<bool>("isAccepted");
        QTest::addColumn<QString>("path");
        QTest::newRow("open") << true << u"\\Radiology\\chest 1.doc"_s;
        QTest::newRow("cancel") << false << u"kept"_s;
    }
    void browses()
    {
        QFETCH(bool, isAccepted);
        Manager bench;
        QDir(bench.folder.path()).mkpath(u"templates/Radiology"_s);
        QFile file(bench.folder.path() + u"/templates/Radiology/chest 1.doc"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        bench.fill({u"n"_s, u"k"_s, u"d"_s, u"kept"_s});
        bench.answers.expectDialog(u"CommonDialog1"_s, [&](QWidget& window) {
            auto& dialog = dynamic_cast<QFileDialog&>(window);
            QCOMPARE(dialog.directory().path(), bench.folder.path() + u"/templates"_s);
            QCOMPARE(dialog.selectedNameFilter(), u"Word Files (*.doc)"_s);
            dialog.selectFile(file.fileName());
            QTest::keyClick(&dialog, isAccepted ? Qt::Key_Return : Qt::Key_Escape);
        });
        click(bench.form, "cmdPath");
        QTEST(bench.label("txtTemp_3"), "path");
        QCOMPARE(bench.label("txtTemp_0"), u"n"_s);
    }
};

QTEST_MAIN(TestTemplatePanel)
#include "tst_templatePanel.moc"
