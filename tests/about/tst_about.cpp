#include "about/frmAbout.h"
#include "about/helpFile.h"

#include "support/bench.h"
#include "support/files.h"
#include "support/find.h"
#include "support/table.h"

#include <QIcon>
#include <QLabel>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// A search path of its own, on which only those programs are found that a test installs, and the poorest locale.
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
        QVERIFY(QFile::setPermissions(programs.filePath(name), QFile::ReadOwner | QFile::ExeOwner));
    }
    QString log() const { return programs.filePath(u"log"_s); }

    QTemporaryDir programs;
};

class TestAbout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsTheReleaseAndItsOwner()
    {
        const about::frmAbout form(nullptr);
        // The program may have its icon later than this box.
        const auto& icon = find<QLabel>(form, "picIcon");
        QVERIFY(icon.pixmap().isNull());
        QPixmap picture(16, 16);
        picture.fill(Qt::red);
        QApplication::setWindowIcon(picture);
        QCOMPARE(icon.pixmap().toImage().pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(form.windowTitle() + u'|' + shown(form, "lblTitle"), u"About Penwright|Penwright"_s);
        const QRegularExpression version(u"^Version \\d+\\.\\d+\\.\\d+$"_s);
        QVERIFY2(version.match(shown(form, "lblVersion")).hasMatch(), qPrintable(shown(form, "lblVersion")));
        const QRegularExpression notice(u"^Copyright .* \\d{4} .+\\. MIT License: "_s);
        QVERIFY2(notice.match(shown(form, "lblDisclaimer")).hasMatch(), qPrintable(shown(form, "lblDisclaimer")));
    }

    // Each program that is installed notes how it was started.
    void startsTheFirstViewerInstalled_data()
    {
        table({{"installed", "started"},
               {"of all", "hardinfo hardinfo2 kinfocenter", "kinfocenter"},
               {"with a page", "gnome-control-center", "gnome-control-center info-overview"},
               {"broken one passed over", "broken hardinfo hardinfo2", "hardinfo2"},
               {"no system viewer", "xchm", ""},
               {"help", "kchmviewer xchm xdg-open registered", "xchm %1/PWR.chm"},
               {"help: other", "kchmviewer xdg-open", "kchmviewer %1/PWR.chm"},
               {"help: desktop's", "xdg-open registered", "xdg-open %1/PWR.chm"},
               {"help: a browser would open", "xdg-open", ""}});
    }

    void startsTheFirstViewerInstalled()
    {
        QFETCH(QString, installed);
        QFETCH(QString, started);
        const bool isHelp = QByteArray(QTest::currentDataTag()).startsWith("help");
        Desktop desktop;
        for (const QString& name : installed.split(u' '))
            desktop.install(name, u"#!/bin/sh\necho \"$LC_ALL ${0##*/} $*\" >> '%1'\n"_s.arg(desktop.log()));
        if (installed.contains(u"broken"))
            desktop.install(u"kinfocenter"_s, u"#!/nowhere\n"_s);
        desktop.install(u"xdg-mime"_s, u"#!/bin/sh\n[ \"$*\" = 'query default application/vnd.ms-htmlhelp' ] && "
                                       "[ -e ${0%/*}/registered ] && echo okular.desktop\n"_s);
        about::frmAbout form(nullptr);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        if (started.isEmpty())
            desktop.answers.expectBox(isHelp ? u"There is no viewer for the help file. Install the package xchm."_s
                                             : u"System Information Is Unavailable At This Time"_s);
        else
            started = u"C.UTF-8 "_s + started.replace(u"%1"_s, desktop.folder.path());
        if (isHelp)
            about::openHelpFile();
        else
            QTest::keyClick(&form, Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(QString::fromUtf8(contentOf(desktop.log())).trimmed(), started);
        QTRY_COMPARE(desktop.answers.differences(), QStringList());
        QVERIFY(form.isVisible());
        click(form, "cmdOK");
        QVERIFY(!form.isVisible());
    }
};

QTEST_MAIN(TestAbout)
#include "tst_about.moc"
