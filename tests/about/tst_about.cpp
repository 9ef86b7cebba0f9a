#include "about/frmAbout.h"
#include "about/helpFile.h"

#include "support/bench.h"
#include "support/find.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// A search path of its own, on which only those programs are found that a test installs, and the poorest locale.
struct Desktop : Bench {
    Desktop()
    {
        qputenv("PATH", programs.path().toLocal8Bit());
        qputenv("LC_ALL", "C");
    }
    ~Desktop()
    {
        qputenv("PATH", path);
        qputenv("LC_ALL", locale);
    }

    /// Each "name" notes how it was started, each "name=script" runs that script.
    void install(const QStringList& names) const
    {
        for (const QString& name : names) {
            QFile file(programs.filePath(name.section(u'=', 0, 0)));
            if (!file.open(QIODevice::WriteOnly))
                qFatal("cannot write a program");
            const QString script = name.contains(u'=')
                                       ? name.section(u'=', 1)
                                       : u"#!/bin/sh\necho \"$LC_ALL ${0##*/} $*\" >> '%1'\n"_s.arg(log());
            file.write(script.toUtf8());
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
    }
    QString log() const { return programs.filePath(u"log"_s); }
    QString started() const
    {
        QFile file(log());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
    }

    QTemporaryDir programs;
    QByteArray path = qgetenv("PATH");
    QByteArray locale = qgetenv("LC_ALL");
};

class TestAbout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsTheReleaseAndItsOwner()
    {
        const about::frmAbout form(nullptr);
        QCOMPARE(form.windowTitle(), u"About Penwright"_s);
        QCOMPARE(shown(form, "lblTitle"), u"Penwright"_s);
        const QRegularExpression version(u"^Version \\d+\\.\\d+\\.\\d+$"_s);
        QVERIFY2(version.match(shown(form, "lblVersion")).hasMatch(), qPrintable(shown(form, "lblVersion")));
        QVERIFY(shown(form, "lblDescription").contains(u"templates"_s));
        QFile licence(QStringLiteral(LICENCE));
        QVERIFY(licence.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(licence.readAll()).split(u'\n');
        QVERIFY(shown(form, "lblDisclaimer").startsWith(lines.at(2) + u'.'));
        QVERIFY(shown(form, "lblDisclaimer").contains(lines.at(0)));
    }

    void startsTheFirstViewerInstalled_data()
    {
        QTest::addColumn<bool>("isHelp");
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QString>("started");
        const QString noDefault = u"xdg-mime=#!/bin/sh\n"_s;
        const QString registered = u"xdg-mime=#!/bin/sh\n[ \"$*\" = 'query default application/vnd.ms-htmlhelp' ] && "
                                   "echo okular.desktop\n"_s;
        QTest::newRow("of all") << false << QStringList{u"hardinfo"_s, u"hardinfo2"_s, u"kinfocenter"_s}
                                << u"kinfocenter"_s;
        QTest::newRow("next") << false << QStringList{u"gnome-control-center"_s, u"hardinfo"_s} << u"hardinfo"_s;
        QTest::newRow("with a page") << false << QStringList{u"gnome-control-center"_s}
                                     << u"gnome-control-center info-overview"_s;
        QTest::newRow("broken one passed over")
            << false << QStringList{u"kinfocenter=#!/nowhere\n"_s, u"hardinfo2"_s} << u"hardinfo2"_s;
        QTest::newRow("no system viewer") << false << QStringList{u"xchm"_s} << QString();
        QTest::newRow("help") << true << QStringList{u"kchmviewer"_s, u"xchm"_s, u"xdg-open"_s, registered}
                              << u"xchm %1/PWR.chm"_s;
        QTest::newRow("other") << true << QStringList{u"kchmviewer"_s, u"xdg-open"_s} << u"kchmviewer %1/PWR.chm"_s;
        QTest::newRow("desktop's") << true << QStringList{u"xdg-open"_s, registered} << u"xdg-open %1/PWR.chm"_s;
        QTest::newRow("a browser would open") << true << QStringList{u"xdg-open"_s, noDefault} << QString();
        QTest::newRow("no help viewer") << true << QStringList{} << QString();
    }

    void startsTheFirstViewerInstalled()
    {
        QFETCH(bool, isHelp);
        QFETCH(QStringList, installed);
        QFETCH(QString, started);
        Desktop desktop;
        desktop.install(installed);
        about::frmAbout form(nullptr);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        if (started.isEmpty())
            desktop.answers.expectBox(isHelp ? u"There is no viewer for the help file. Install the package xchm."_s
                                             : u"System Information Is Unavailable At This Time"_s);
        if (isHelp)
            about::openHelpFile();
        else
            QTest::keyClick(&form, Qt::Key_S, Qt::AltModifier);
        if (!started.isEmpty())
            started = u"C.UTF-8 "_s + started.replace(u"%1"_s, desktop.folder.path());
        QTRY_COMPARE(desktop.started(), started);
        QTRY_COMPARE(desktop.answers.differences(), QStringList());
        QVERIFY(form.isVisible());
        click(form, "cmdOK");
        QVERIFY(!form.isVisible());
    }
};

QTEST_MAIN(TestAbout)
#include "tst_about.moc"
