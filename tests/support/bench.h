#pragma once

#include "answers.h"
#include "fakeShell.h"
#include "find.h"
#include "scratchFolder.h"

#include "store/connection.h"
#include "store/connectionStrings.h"
#include "ui/eventGuard.h"
#include "values/clock.h"

#include <QFile>
#include <QTest>

#include <cstdlib>

inline constexpr char sampleData[] = R"(
BEGIN;
INSERT INTO jobacct(acctname) VALUES('Zed Clinic'),('Adams'),('Brown');
INSERT INTO accttype(acctid,accttype,acctrate,acctunit,acctcharline) VALUES
    (1,'Notes',0.12,'Line',65),
    (2,'Letters',4.5,'Report',0),
    (1,'Visits',30,'Hourly',0),
    (7,'Of a client deleted',1,'Misc',NULL);
INSERT INTO jobs(jobdate,jobacctid,jobtypeid,jobreference,jobstart,jobchar,joblines,joblength) VALUES
    ('2004-08-18 00:00:00',1,1,'R','2004-08-18 08:05:30',6500,100,'1:5:7'),
    ('2004-08-18 00:00:00',2,2,'R',NULL,0,1,NULL),
    ('2004-08-15 00:00:00',1,1,'R',NULL,0,0,NULL),
    ('2004-08-21 00:00:00',2,2,'R',NULL,0,0,NULL),
    ('2004-08-22 00:00:00',1,1,'R',NULL,0,0,NULL),
    ('2004-08-31 00:00:00',1,1,'R',NULL,0,0,NULL),
    ('2004-07-31 00:00:00',2,2,'R',NULL,0,0,NULL),
    ('2004-09-01 00:00:00',1,1,'R',NULL,0,0,NULL);
COMMIT;
)";

/// What a form under test needs: a program folder with sample data, a main window, a user's answers and the time. The
/// test fails if a box or an end of the program was not expected, or was expected and did not come.
struct Bench {
    Bench()
    {
        values::setClock([this] { return now; });
        ui::setProgramEnd([this](int code) { exitCodes << code; });
        store::Connection(modMain::DBConnString).runNative(sampleData);
    }
    ~Bench()
    {
        values::setClock({});
        ui::setProgramEnd({});
        QStringList surprises = answers.differences();
        if (exitCodes != expectedExitCodes)
            surprises << QStringLiteral("the program ended %1 times").arg(exitCodes.size());
        QTest::qVerify(surprises.isEmpty(), "no surprise", qPrintable(surprises.join(u'\n')), __FILE__, __LINE__);
    }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    QStringList rows(const char* table) const
    {
        return folder.rows(QStringLiteral("select * from %1 order by id").arg(QLatin1String(table)));
    }

    /// Takes this file of the program folder away while the action runs, which must show the error of this procedure.
    template <typename Action>
    void withoutFile(const char* name, const char* procedure, Action action)
    {
        const QString file = folder.path() + u'/' + QLatin1String(name);
        QVERIFY(QFile::rename(file, file + u'~'));
        answers.expectBox(QStringLiteral("Error -2147467259 (Could not find file '%1'. Put it back, for example from a "
                                         "backup.) in procedure %2")
                              .arg(file, QLatin1String(procedure)));
        action();
        QVERIFY(QFile::rename(file + u'~', file));
    }

    /// The next statement that changes data must be refused with this syntax error.
    void expectSyntaxError(const QString& place)
    {
        answers.expectBox("Error -2147217900 (Syntax error " + place + ") in procedure ActionQry of Module modMain");
    }

    /// The program must show this error and end.
    void expectEnd(int number, const char* description)
    {
        answers.expectBox(QStringLiteral("Run-time error '%1':\n\n").arg(number) + QString::fromUtf8(description));
        expectedExitCodes << EXIT_FAILURE;
    }

    QDateTime now = values::dateTime(QDate(2004, 8, 18), QTime(9, 30));
    ScratchFolder folder;
    FakeShell shell;
    Answers answers;
    QList<int> exitCodes, expectedExitCodes;
};
