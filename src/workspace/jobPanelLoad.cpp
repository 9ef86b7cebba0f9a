// The part of the job panel that reads a stored job or another type for it.
#include "jobPanel.h"
#include "ui_jobPanel.h"

#include "clearLayout.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "values/dates.h"
#include "values/money.h"
#include "values/numbers.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace workspace {

namespace {

QString formatStart(const store::Field& start)
{
    return values::toDate(start.toText()).toString(u"M/d/yyyy HH:mm"_s);
}

} // namespace

void JobPanel::begin()
{
    m_jobId = 0;
    m_typeId = 0;
    m_jobDate = QDateTime();
    m_controls->lblJobID->setText(u".."_s);
    m_controls->txtChar->clear();
    m_controls->txtChar->setEnabled(false);
    m_stored.reset();
    clearLayout(*m_controls->offers);
    m_controls->lblNotKept->hide();
    m_controls->cmdStart->setFocus();
}

// The calculation comes last, because it may throw: the person can then still correct and save the whole job.
void JobPanel::LoadForm(qint32 jobId, const QString& reference, qint16 typeId, const QDateTime& jobDate)
{
    m_controls->lblJobID->setText(QString::number(jobId));
    m_jobId = jobId;
    m_typeId = typeId;
    m_jobDate = jobDate;
    value(Reference).setText(reference);
    store::Connection connection(modMain::DBConnString);
    loadCharactersPerLine(connection, typeId);
    loadValues(connection, jobId);
    m_controls->txtChar->setText(value(Characters).text());
    m_stored = readStoredJob(jobId);
    const auto keeping = qScopeGuard([this] { beginKeeping(); });
    CalcForm();
}

// The box stays disabled when reading fails: the earlier job's characters per line would give wrong lines.
void JobPanel::loadCharactersPerLine(store::Connection& connection, qint16 typeId)
{
    if (store::Recordset(connection, countLineType(typeId)).field(0).toLong() == 0)
        return;
    const store::Recordset type(connection, selectCharactersPerLine(typeId));
    m_charactersPerLine = type.field(0).toLong();
    m_controls->txtChar->setEnabled(true);
}

// A job that was not started or timed yet has no start or length: their labels keep their texts.
void JobPanel::loadValues(store::Connection& connection, qint32 jobId)
{
    const store::Recordset job(connection, selectJob(jobId));
    for (int i = 0; i < job.fieldCount(); ++i) {
        const store::Field field = job.field(i);
        const bool mayBeEmpty = i == Started || i == Length;
        if (mayBeEmpty && field.isNull())
            continue;
        value(i).setText(i == Started ? formatStart(field) : field.toText());
    }
}

// Everything is read before anything is shown, so that the job does not change when the type cannot be read. The total
// is empty until the next calculation.
void JobPanel::changeType(qint32 typeId)
{
    const qint16 newTypeId = values::toInteger(typeId);
    store::Connection connection(modMain::DBConnString);
    const store::Recordset type(connection, selectType(typeId));
    const QStringList texts{type.field(0).toText(), type.field(1).toText(), type.field(2).toText(),
                            values::rateText(type.field(3).toDouble())};
    m_charactersPerLine = type.field(4).toLong();
    m_typeId = newTypeId;
    value(Client).setText(texts[0]);
    value(Type).setText(texts[1]);
    value(Unit).setText(texts[2]);
    value(Rate).setText(texts[3]);
    m_controls->lblJobTotal->clear();
    m_controls->txtChar->setEnabled(isLine());
    showLineControls();
}

qint32 JobPanel::GetAcctID(qint32 typeId)
{
    store::Connection connection(modMain::DBConnString);
    return store::Recordset(connection, selectClientOfType(typeId)).field(0).toLong();
}

} // namespace workspace
