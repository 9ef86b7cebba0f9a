#include "dates.h"

#include "clock.h"
#include "digits.h"
#include "runtimeError.h"

#include <QLocale>
#include <QTimeZone>

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace values {

namespace {

/// A piece of the text. Its kind is one character, so that the kinds of several tokens form a pattern:
/// n: number of one or two digits, y: of three or four, w: month name (1 to 12), h: AM (0) or PM (12), t: the T of ISO;
/// the blank and the marks / - , : stand for themselves.
struct Token {
    char kind;
    int value = 0;
};
using Tokens = std::span<const Token>;

bool contains(std::string_view kinds, char kind)
{
    return kinds.find(kind) != std::string_view::npos;
}

bool isMark(char kind)
{
    return contains("/-,:", kind);
}

bool isBlank(QChar c)
{
    return c.isSpace();
}

bool isLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

QStringView takeWhile(QStringView& rest, bool (*isPart)(QChar))
{
    const auto end = std::ranges::find_if_not(rest, isPart);
    const QStringView piece = rest.first(end - rest.begin());
    rest = rest.sliced(piece.size());
    return piece;
}

std::optional<Token> numberToken(QStringView digits)
{
    if (digits.size() > 4)
        return {};
    return Token{digits.size() <= 2 ? 'n' : 'y', digits.toInt()};
}

std::optional<Token> wordToken(QStringView word)
{
    static constexpr std::array<QStringView, 12> monthNames = {u"january",   u"february", u"march",    u"april",
                                                               u"may",       u"june",     u"july",     u"august",
                                                               u"september", u"october",  u"november", u"december"};

    const auto matches = [word](QStringView name) { return word.compare(name, Qt::CaseInsensitive) == 0; };
    if (matches(u"am"))
        return Token{'h', 0};
    if (matches(u"pm"))
        return Token{'h', 12};
    if (matches(u"t"))
        return Token{'t'};
    if (matches(u"sept"))
        return Token{'w', 9};
    for (int month = 1; const QStringView name : monthNames) {
        if (matches(name) || matches(name.first(3)))
            return Token{'w', month};
        ++month;
    }
    return {};
}

std::optional<Token> takeToken(QStringView& rest)
{
    if (isDigit(rest.front()))
        return numberToken(takeWhile(rest, isDigit));
    if (isLetter(rest.front()))
        return wordToken(takeWhile(rest, isLetter));
    const char mark = rest.front().toLatin1();
    rest = rest.sliced(1);
    if (!isMark(mark))
        return {};
    return Token{mark};
}

/// A blank beside a mark, or before AM or PM, changes nothing.
bool isBlankSignificant(char kindBefore, char kindBehind)
{
    return !isMark(kindBefore) && !isMark(kindBehind) && kindBehind != 'h';
}

/// The tokens of the text; none at all when a part of it cannot belong to a date.
std::vector<Token> tokenize(const QString& text)
{
    std::vector<Token> tokens;
    QStringView rest = QStringView(text).trimmed();
    while (!rest.isEmpty()) {
        const bool hasBlank = !takeWhile(rest, isBlank).isEmpty();
        const std::optional<Token> token = takeToken(rest);
        if (!token)
            return {};
        if (hasBlank && isBlankSignificant(tokens.back().kind, token->kind))
            tokens.push_back({' '});
        tokens.push_back(*token);
    }
    return tokens;
}

/// Which kinds of fields form a date, and what each field then is: m, d or y.
struct DateForm {
    std::string_view kinds;
    std::string_view order;
};

constexpr std::array<DateForm, 11> dateForms = {{
    {"nnn", "mdy"},
    {"nny", "mdy"},
    {"ynn", "ymd"},
    {"nn", "md"},
    {"nwn", "dmy"},
    {"nwy", "dmy"},
    {"nw", "dm"},
    {"wnn", "mdy"},
    {"wny", "mdy"},
    {"wn", "md"},
    {"wy", "my"},
}};

/// Numbers alone form a date only with the same mark between all of them; with a month name any marks will do.
bool canSeparate(std::string_view separators, bool hasMonthName)
{
    if (hasMonthName)
        return separators.find_first_not_of(" /-,") == std::string_view::npos;
    return separators.find_first_not_of('/') == std::string_view::npos ||
           separators.find_first_not_of('-') == std::string_view::npos;
}

/// Gives 0, which makes the date invalid, when the number cannot be a year.
int yearOf(Token token)
{
    if (token.kind == 'y')
        return token.value >= 100 ? token.value : 0;
    return token.value + (token.value < 30 ? 2000 : 1900);
}

QDate assembleDate(const std::vector<Token>& fields, std::string_view order)
{
    int year = 0;
    int month = 1;
    int day = 1;
    for (size_t i = 0; i < order.size(); ++i) {
        if (order[i] == 'y')
            year = yearOf(fields[i]);
        else
            (order[i] == 'm' ? month : day) = fields[i].value;
    }
    if (!contains(order, 'y'))
        year = today().year();
    if (order.starts_with('m') && month > 12)
        std::swap(month, day);
    return QDate(year, month, day);
}

std::optional<QDate> matchDate(Tokens tokens)
{
    std::vector<Token> fields;
    std::string kinds;
    std::string separators;
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (i % 2 == 0) {
            fields.push_back(tokens[i]);
            kinds += tokens[i].kind;
        } else {
            separators += tokens[i].kind;
        }
    }
    const auto form = std::ranges::find(dateForms, kinds, &DateForm::kinds);
    const bool endsWithField = fields.size() > separators.size();
    if (form == dateForms.end() || !endsWithField || !canSeparate(separators, contains(kinds, 'w')))
        return {};
    const QDate date = assembleDate(fields, form->order);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

std::optional<QTime> matchTime(Tokens tokens)
{
    static constexpr std::array<std::string_view, 5> timeForms = {"n:n", "n:n:n", "nh", "n:nh", "n:n:nh"};

    std::string kinds;
    for (const Token token : tokens)
        kinds += token.kind;
    if (std::ranges::find(timeForms, kinds) == timeForms.end())
        return {};

    const auto numberAt = [&](size_t i) { return i < kinds.size() && kinds[i] == 'n' ? tokens[i].value : 0; };
    int hour = numberAt(0);
    if (kinds.ends_with('h')) {
        if (hour < 1 || hour > 12)
            return {};
        hour = hour % 12 + tokens.back().value;
    }
    const QTime time(hour, numberAt(2), numberAt(4));
    return time.isValid() ? std::optional(time) : std::nullopt;
}

/// Empty unless the first part is a date and the second one a time.
std::optional<QDateTime> matchDateAndTime(Tokens datePart, Tokens timePart)
{
    const std::optional<QDate> date = matchDate(datePart);
    const std::optional<QTime> time = matchTime(timePart);
    return date && time ? std::optional(dateTime(*date, *time)) : std::nullopt;
}

} // namespace

QDateTime dateTime(QDate date, QTime time)
{
    return QDateTime(date, time, QTimeZone::utc());
}

std::optional<QDateTime> readDate(const QString& text)
{
    const std::vector<Token> pieces = tokenize(text);
    const Tokens tokens = pieces;
    if (const auto date = matchDate(tokens))
        return dateTime(*date);
    if (const auto time = matchTime(tokens))
        return dateTime(timeOnlyDay, *time);

    // A blank may also be part of the date, so the text is split at each one in turn; at most one split fits.
    for (size_t i = 0; i < tokens.size(); ++i) {
        const bool isIso = tokens[i].kind == 't' && tokens.front().kind == 'y';
        if (tokens[i].kind != ' ' && !isIso)
            continue;
        const Tokens left = tokens.first(i);
        const Tokens right = tokens.subspan(i + 1);
        if (const auto found = matchDateAndTime(left, right))
            return found;
        if (const auto found = matchDateAndTime(right, left))
            return found;
    }
    return {};
}

bool isDate(const QString& text)
{
    return readDate(text).has_value();
}

QDateTime toDate(const QString& text)
{
    if (const auto date = readDate(text))
        return *date;
    throw RuntimeError(Fault::TypeMismatch);
}

QString dateText(const QDateTime& value)
{
    if (!value.isValid())
        throw RuntimeError(Fault::TypeMismatch);
    const QLocale plain = QLocale::c();
    const QString date = plain.toString(value.date(), u"M/d/yyyy"_s);
    QString time = plain.toString(value.time(), u"h:mm:ss AP"_s);
    if (value.date() == timeOnlyDay)
        return time;
    return value.time() == QTime(0, 0) ? date : date + u' ' + time;
}

} // namespace values
