#include "about/frmAbout.h"
#include "about/helpFile.h"

#include "support/bench.h"
#include "support/files.h"
#include "support/table.h"

#include <QIcon>
#include <QLabel>
#include <QRegularExpression>

/// A desktop with only the programs that the test installs, and with the locale C.
struct Desktop : Bench {
    Desktop()
    {
        qputenv("PATH", programs.path().toLocal8Bit());
        qputenv("LC_ALL", "C");
        writeFile(log(), QByteArray());
    }

    void install(const QString& name, const QString& script) const
    {
        writeFile(programs.filePath(name), script.toUtf8());
        QFile::setPermissions(programs.filePath(name), QFile::ReadOwner | QFile::ExeOwner);
    }
    QString log() const { return programs.filePath("log"); }

    QTemporaryDir programs;
};

class TestAbout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsReleaseAndCopyright()
    {
        const about::frmAbout form(nullptr);
        // The program may get its icon after this box was opened.
        const auto& icon = find<QLabel>(form, "picIcon");
        QVERIFY(icon.pixmap().isNull());
        QPixmap picture(16, 16);
        picture.fill(Qt::red);
        QApplication::setWindowIcon(picture);
        QCOMPARE(icon.pixmap().toImage().pixelColor(0, 0), QColor(Qt::red));
        const QString text = textOf(form, "lblVersion") + '/' + textOf(form, "lblDisclaimer");
        const QRegularExpression expected(R"(^Version \d+\.\d+\.\d+/Copyright .* \d{4} .+\. MIT License: )");
        QVERIFY2(text.contains(expected), qPrintable(text));
    }

    // Each installed program logs how it was started.
    void startsFirstInstalledViewer_data()
    {
        addRows({{"installed", "started"},
                 {"of all", "hardinfo hardinfo2 kinfocenter", "kinfocenter"},
                 {"with a page", "gnome-control-center", "gnome-control-center info-overview"},
                 {"broken one passed over", "broken hardinfo hardinfo2", "hardinfo2"},
                 {"no system viewer", "xchm", ""},
                 {"help", "kchmviewer xchm xdg-open registered", "xchm %1/PWR.chm"},
                 {"help: other", "kchmviewer xdg-open", "kchmviewer %1/PWR.chm"},
                 {"help: desktop's", "xdg-open registered", "xdg-open %1/PWR.chm"},
                 {"help: a browser would open", "xdg-open", ""}});
    }

    void startsFirstInstalledViewer()
    {
        const QString installed = cell("installed");
        QString started = cell("started");
        const bool isHelp = QByteArray(QTest::currentDataTag()).startsWith("help");
        Desktop desktop;
        for (const QString& name : installed.split(u' '))
            desktop.install(name, "#!/bin/sh\necho \"$LC_ALL ${0##*/} $*\" >> '" + desktop.log() + "'\n");
        if (installed.contains("broken"))
            desktop.install("kinfocenter", "#!/nowhere\n");
        desktop.install("xdg-mime", "#!/bin/sh\n[ \"$*\" = 'query default application/vnd.ms-htmlhelp' ] && "
                                    "[ -e ${0%/*}/registered ] && echo okular.desktop\n");
        about::frmAbout form(nullptr);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        if (started.isEmpty())
            desktop.answers.expectBox(isHelp ? "There is no viewer for the help file. Install the package xchm."
                                             : "System Information Is Unavailable At This Time");
        else
            started = "C.UTF-8 " + started.replace("%1", desktop.folder.path());
        if (isHelp)
            about::openHelpFile();
        else
            QTest::keyClick(&form, Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(QString(readFile(desktop.log())).trimmed(), started);
        QTRY_COMPARE(desktop.answers.differences(), QStringList());
        QVERIFY(form.isVisible());
        click(form, "cmdOK");
        QVERIFY(!form.isVisible());
    }
};

QTEST_MAIN(TestAbout)
#include "tst_about.moc"
