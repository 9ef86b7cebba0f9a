#include "field.h"

#include "values/dates.h"
#include "values/numbers.h"
#include "values/runtimeError.h"

using namespace Qt::StringLiterals;

namespace store {

using values::Fault;
using values::RuntimeError;

namespace {

struct AsText {
    QString operator()(std::monostate) const { throw RuntimeError(Fault::InvalidUseOfNull); }
    QString operator()(qint64 number) const { return QString::number(number); }
    QString operator()(double number) const { return values::numberText(number); }
    QString operator()(const QString& text) const { return text; }
    QString operator()(const QDateTime& date) const { return values::dateText(date); }
    QString operator()(bool yes) const { return yes ? u"True"_s : u"False"_s; }
};

struct AsNumber {
    double operator()(std::monostate) const { throw RuntimeError(Fault::InvalidUseOfNull); }
    double operator()(qint64 number) const { return static_cast<double>(number); }
    double operator()(double number) const { return number; }
    double operator()(const QString& text) const { return values::toDouble(text); }
    double operator()(const QDateTime&) const { throw RuntimeError(Fault::TypeMismatch); }
    double operator()(bool yes) const { return yes ? 1 : 0; }
};

} // namespace

Field::Field(Value value) : m_value(std::move(value)) {}

QString Field::toText() const
{
    return std::visit(AsText{}, m_value);
}

double Field::toDouble() const
{
    return std::visit(AsNumber{}, m_value);
}

qint32 Field::toLong() const
{
    return values::toLong(toDouble());
}

qint16 Field::toInteger() const
{
    return values::toInteger(toDouble());
}

QDateTime Field::toDate() const
{
    if (const auto* date = std::get_if<QDateTime>(&m_value))
        return *date;
    if (const auto* text = std::get_if<QString>(&m_value))
        return values::toDate(*text);
    throw RuntimeError(isNull() ? Fault::InvalidUseOfNull : Fault::TypeMismatch);
}

} // namespace store
