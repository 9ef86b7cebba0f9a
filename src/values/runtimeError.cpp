#include "runtimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace values {

namespace {

struct Description {
    Fault fault;
    QStringView text;
};

constexpr Description descriptions[] = {
    {Fault::InvalidCall, u"Invalid procedure call or argument"},
    {Fault::Overflow, u"Overflow"},
    {Fault::SubscriptOutOfRange, u"Subscript out of range"},
    {Fault::DivisionByZero, u"Division by zero"},
    {Fault::TypeMismatch, u"Type mismatch"},
    {Fault::FileNotFound, u"File not found"},
    {Fault::DiskFull, u"Disk full"},
    {Fault::PermissionDenied, u"Permission denied"},
    {Fault::PathFileAccess, u"Path/File access error"},
    {Fault::PathNotFound, u"Path not found"},
    {Fault::InvalidUseOfNull, u"Invalid use of Null"},
    {Fault::InvalidArrayIndex, u"Invalid property array index"},
    {Fault::ReadOnlyText, u"'Text' property is read-only"},
    {Fault::NoCurrentRecord, u"Either BOF or EOF is True, or the current record has been deleted. "
                             "Requested operation requires a current record."},
    {Fault::Cancelled, u"Cancel was selected"},
};

QString descriptionOf(Fault fault)
{
    return std::ranges::find(descriptions, fault, &Description::fault)->text.toString();
}

} // namespace

RuntimeError::RuntimeError(int number, const QString& description)
    : m_number(number), m_description(description), m_what((QString::number(number) + u": "_s + description).toUtf8())
{
}

RuntimeError::RuntimeError(Fault fault) : RuntimeError(static_cast<int>(fault), descriptionOf(fault)) {}

} // namespace values
