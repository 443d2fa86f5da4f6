#include "ado/providers/access/sql/AccessDateLiteral.h"

#include <QtCore/QDateTime>
#include <QtCore/QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::AccessDateLiteral {

namespace {

int fullYear(QStringView digits)
{
    constexpr int firstOfLastCentury = 30;
    const int year = digits.toInt();
    if (digits.size() > 2)
        return year;
    return year + (year < firstOfLastCentury ? 2000 : 1900);
}

} // namespace

QString text(QStringView literal)
{
    static const QRegularExpression form(
        uR"(\A\s*(?:(?:(\d{4})[-/.](\d{1,2})[-/.](\d{1,2})|(\d{1,2})[-/](\d{1,2})[-/](\d{4}|\d{2}))(?:\s+|\s*\z))?)"
        uR"((?:(\d{1,2}):(\d{2})(?::(\d{2}))?\s*([AP]M)?\s*)?\z)"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(literal.toString());
    const auto at = [&](int group) { return match.capturedView(group); };
    const bool hasTime = !at(7).isEmpty();
    if (!match.hasMatch() || literal.trimmed().isEmpty())
        return {};
    QDate date(1899, 12, 30); // for a time alone
    if (!at(1).isEmpty())
        date = QDate(at(1).toInt(), at(2).toInt(), at(3).toInt());
    else if (!at(4).isEmpty()) {
        const int year = fullYear(at(6));
        date = QDate(year, at(4).toInt(), at(5).toInt());
        if (!date.isValid())
            date = QDate(year, at(5).toInt(), at(4).toInt());
    }
    int hour = hasTime ? at(7).toInt() : 0;
    if (const QStringView half = at(10); !half.isEmpty())
        hour = hour % 12 + (half.startsWith(u'p', Qt::CaseInsensitive) ? 12 : 0);
    const QTime time(hour, hasTime ? at(8).toInt() : 0, at(9).isEmpty() ? 0 : at(9).toInt());
    if (!date.isValid() || !time.isValid())
        return {};
    return date.toString(Qt::ISODate) + u' ' + time.toString(Qt::ISODate);
}

} // namespace ADODB::AccessDateLiteral
