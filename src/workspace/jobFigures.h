#pragma once

#include <QString>

namespace workspace {

inline const QString lineUnit = QStringLiteral("Line");
inline const QString reportUnit = QStringLiteral("Report");

/// The captions of the job panel that the calculation reads and writes.
struct JobFigures {
    QString unit;
    QString lines;
    QString rate;
    QString total;
};

/// The lines that so many characters make, halves to the even neighbour. Throws TypeMismatch, DivisionByZero, Overflow.
qint32 linesOf(const QString& characters, qint32 charactersPerLine);

/// Works out the total of a "Line" or "Report" job and writes rate and total as currency. The captions are read back
/// from their currency text, so a rate counts as it is shown from the second time on. Throws TypeMismatch, Overflow.
JobFigures calculated(JobFigures figures);

} // namespace workspace
