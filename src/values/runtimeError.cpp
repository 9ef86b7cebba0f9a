#include "runtimeError.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

QString descriptionOf(Fault fault)
{
    switch (fault) {
    case Fault::InvalidCall:
        return u"Invalid procedure call or argument"_s;
    case Fault::Overflow:
        return u"Overflow"_s;
    case Fault::SubscriptOutOfRange:
        return u"Subscript out of range"_s;
    case Fault::DivisionByZero:
        return u"Division by zero"_s;
    case Fault::TypeMismatch:
        return u"Type mismatch"_s;
    case Fault::FileNotFound:
        return u"File not found"_s;
    case Fault::DiskFull:
        return u"Disk full"_s;
    case Fault::PermissionDenied:
        return u"Permission denied"_s;
    case Fault::PathFileAccess:
        return u"Path/File access error"_s;
    case Fault::PathNotFound:
        return u"Path not found"_s;
    case Fault::InvalidUseOfNull:
        return u"Invalid use of Null"_s;
    case Fault::InvalidArrayIndex:
        return u"Invalid property array index"_s;
    case Fault::ReadOnlyText:
        return u"'Text' property is read-only"_s;
    case Fault::NoCurrentRecord:
        return u"Either BOF or EOF is True, or the current record has been deleted. "
               "Requested operation requires a current record."_s;
    case Fault::Cancelled:
        return u"Cancel was selected"_s;
    }
    Q_UNREACHABLE();
}

} // namespace

RuntimeError::RuntimeError(int number, const QString& description)
    : m_number(number), m_description(description), m_what((QString::number(number) + u": "_s + description).toUtf8())
{
}

RuntimeError::RuntimeError(Fault fault) : RuntimeError(static_cast<int>(fault), descriptionOf(fault)) {}

} // namespace values
