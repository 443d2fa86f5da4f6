#include "sql/Literals.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', "''"_L1) + u'\'';
}

// SQL Server would first convert any other literal to its own code page.
bool needsUnicode(const Dialect &dialect, const QString &text)
{
    const bool isSqlServer = dialect.engine == Engine::SqlServer ||
                             (dialect.engine == Engine::Other && dialect.isOdbc &&
                              dialect.database == dbSQLServer && !dialect.escapesByBackslash);
    return isSqlServer && std::any_of(text.begin(), text.end(), [](QChar c) { return c > u'~'; });
}

QStringList piecesWithoutClauseWords(const QString &text)
{
    static const QRegularExpression insideOfWord(
        u"(?<=F)ROM |(?<=W)HERE |(?<=O)RDER BY |(?i:(?<= o)rder by )"_s);
    QStringList pieces;
    qsizetype begin = 0;
    for (auto found = insideOfWord.globalMatch(text); found.hasNext();) {
        const qsizetype end = found.next().capturedStart();
        pieces.append(text.sliced(begin, end - begin));
        begin = end;
    }
    pieces.append(text.sliced(begin));
    return pieces;
}

// `kind` is the letter or letters of the ODBC escape: d, t or ts.
QString momentText(const Dialect &dialect, QLatin1StringView kind, const QString &text)
{
    return dialect.isOdbc ? u'{' + kind + u' ' + quoted(text) + u'}' : quoted(text);
}

// Oracle reads a plain string by the session's date format; the others know this format.
QString scriptTime(const Dialect &dialect, QLatin1StringView word, const QString &text)
{
    return dialect.likelyEngine() == Engine::Oracle ? word + u' ' + quoted(text) : quoted(text);
}

qsizetype digitsOf(const QString &number)
{
    const QString mantissa = number.section(u'e', 0, 0, QString::SectionCaseInsensitiveSeps);
    bool hasBegun = false;
    qsizetype digits = 0;
    for (const QChar c : mantissa) {
        hasBegun = hasBegun || (c >= u'1' && c <= u'9');
        digits += hasBegun && c.isDigit() ? 1 : 0;
    }
    return digits;
}

// Half the distance between the float nearest to the number and the next float.
double halfStepOfFloat(double number)
{
    const float nearest = std::abs(static_cast<float>(number));
    const float next = std::nextafter(nearest, std::numeric_limits<float>::infinity());
    return (static_cast<double>(next) - static_cast<double>(nearest)) / 2;
}

// SQLite has no date type, but its ODBC driver has.
bool keepsDatesAsTexts(const Dialect &dialect)
{
    return dialect.engine == Engine::SQLite && !dialect.isOdbc;
}

// `form` converts all texts with the same meaning to one; %1 is the field.
QString inOneForm(const Dialect &dialect, const QString &field, const QString &form)
{
    return keepsDatesAsTexts(dialect) ? form.arg(field) : field;
}

QString timeText(QTime time, const QString &finer)
{
    const bool isWhole = time.msec() == 0 && finer.isEmpty();
    return time.toString(isWhole ? u"HH:mm:ss"_s : u"HH:mm:ss.zzz"_s) + finer;
}

QString dayAndTime(const QDateTime &moment, const QString &finer)
{
    return moment.date().toString(Qt::ISODate) + u' ' + timeText(moment.time(), finer);
}

} // namespace

QString textLiteral(const Dialect &dialect, QString text)
{
    if (dialect.escapesByBackslash)
        text.replace(u'\\', "\\\\"_L1);
    return needsUnicode(dialect, text) ? u'N' + quoted(text) : quoted(text);
}

QString textWithoutClauses(const Dialect &dialect, const QString &text)
{
    QString joined;
    for (const QString &piece : piecesWithoutClauseWords(text)) {
        const QString literal = textLiteral(dialect, piece);
        if (joined.isEmpty())
            joined = literal;
        else if (dialect.isOdbc && dialect.engine != Engine::SQLite) // its driver passes CONCAT on unchanged
            joined = u"{fn CONCAT(%1, %2)}"_s.arg(joined, literal);
        else
            joined = u"(%1 || %2)"_s.arg(joined, literal);
    }
    return joined;
}

NumberRange rangeShownAs(const QString &number, FloatSize size, Engine engine)
{
    const double value = number.toDouble();
    const bool isSingle = size == FloatSize::Single;
    const int digits = !isSingle ? 15 : engine == Engine::MySQL ? 6 : 9;
    if (value == 0 || !std::isfinite(value) || digitsOf(number) > digits)
        return {};
    const double half = isSingle && engine != Engine::MySQL
                            ? halfStepOfFloat(value)
                            : 0.5 * std::pow(10.0, std::floor(std::log10(std::abs(value))) - (digits - 1));
    constexpr int digitsOfBound = 16;
    return {QString::number(value - half, 'g', digitsOfBound),
            QString::number(value + half, 'g', digitsOfBound)};
}

bool isNumberText(const QString &text)
{
    static const QRegularExpression number(uR"(\A-?[0-9]+(\.[0-9]+)?([eE][-+]?[0-9]+)?\z)"_s);
    return number.match(text).hasMatch();
}

QString dateLiteral(const Dialect &dialect, QDate date)
{
    return momentText(dialect, "d"_L1, date.toString(Qt::ISODate));
}

QString dateOperand(const Dialect &dialect, const QString &field)
{
    return inOneForm(dialect, field,
                     u"COALESCE(REPLACE(strftime('%Y-%m-%d %H:%M:%f', %1), ' 00:00:00.000', ''), %1)"_s);
}

QString dayOperand(const Dialect &dialect, const QString &field)
{
    return inOneForm(dialect, field, u"COALESCE(date(%1), %1)"_s);
}

bool daysHaveTimes(const Dialect &dialect)
{
    return keepsDatesAsTexts(dialect);
}

QString moneyOperand(Engine engine, const QString &field)
{
    return engine == Engine::PostgreSQL ? u"CAST(%1 AS NUMERIC)"_s.arg(field) : field;
}

QString dayValue(const Dialect &dialect, const QString &field)
{
    switch (dialect.engine) {
    case Engine::SQLite:
        return u"COALESCE(date(%1), %1)"_s.arg(field);
    case Engine::Oracle: // its DATE includes a time of day
        return u"TRUNC(%1)"_s.arg(field);
    case Engine::SqlServer:
    case Engine::PostgreSQL:
    case Engine::MySQL:
    case Engine::Standard:
        return u"CAST(%1 AS DATE)"_s.arg(field);
    case Engine::Access:
    case Engine::Other:
        return field;
    }
    Q_UNREACHABLE();
}

QString momentOperand(const Dialect &dialect, const QString &field)
{
    // A fraction only if there is one, as in literals. One
    // with more than three decimals is shown as stored.
    return inOneForm(dialect, field,
                     u"COALESCE(CASE WHEN length(rtrim(%1, '0')) < 24 THEN "
                     "REPLACE(strftime('%Y-%m-%d %H:%M:%f', %1), '.000', '') END, %1)"_s);
}

QString timeLiteral(const Dialect &dialect, QTime time, const QString &finer)
{
    return momentText(dialect, "t"_L1, timeText(time, finer));
}

QString numberWordLiteral(const Dialect &dialect, const QString &text)
{
    static const QRegularExpression words(uR"(\A(nan|[-+]?inf(inity)?)\z)"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return dialect.engine == Engine::PostgreSQL && words.match(text).hasMatch() ? quoted(text) : QString();
}

QString durationLiteral(const Dialect &dialect, const QString &text)
{
    static const QRegularExpression form(uR"(\A-?[0-9]{1,3}:[0-5][0-9](:[0-5][0-9](\.[0-9]{1,6})?)?\z)"_s);
    return dialect.engine == Engine::MySQL && form.match(text).hasMatch() ? quoted(text) : QString();
}

QString momentLiteral(const Dialect &dialect, const QDateTime &moment, const QString &finer)
{
    return momentText(dialect, "ts"_L1, dayAndTime(moment, finer));
}

QString zonedMomentLiteral(const Dialect &dialect, const QDateTime &moment, const QString &finer,
                           const QString &zone)
{
    // Not in standard syntax: WITH also begins other clauses.
    return dialect.engine == Engine::PostgreSQL ? "TIMESTAMPTZ "_L1 + quoted(dayAndTime(moment, finer) + zone)
                                                : QString();
}

// In PostgreSQL the meaning of a backslash depends on a session setting, except in a string of this kind.
QString scriptText(Dialect dialect, const QString &text)
{
    if (dialect.likelyEngine() != Engine::PostgreSQL || !text.contains(u'\\'))
        return textLiteral(dialect, text);
    dialect.escapesByBackslash = true;
    return u'E' + textLiteral(dialect, text);
}

QString scriptBytes(const Dialect &dialect, const QByteArray &bytes)
{
    const QString digits = QString::fromLatin1(bytes.toHex().toUpper());
    switch (dialect.likelyEngine()) {
    case Engine::PostgreSQL:
        return u"'\\x"_s + digits + u"'::bytea"_s;
    case Engine::SqlServer:
        return u"0x"_s + digits;
    case Engine::Oracle:
        return u"HEXTORAW('"_s + digits + u"')"_s;
    default:
        return u"X'"_s + digits + u'\'';
    }
}

QString scriptBoolean(const Dialect &dialect, bool value)
{
    if (dialect.likelyEngine() == Engine::PostgreSQL)
        return value ? u"TRUE"_s : u"FALSE"_s;
    return value ? u"1"_s : u"0"_s;
}

QString scriptDate(const Dialect &dialect, const QString &text)
{
    return scriptTime(dialect, "DATE"_L1, text);
}

QString scriptMoment(const Dialect &dialect, const QString &text)
{
    return scriptTime(dialect, "TIMESTAMP"_L1, text);
}

} // namespace KOVAVSFDataGridLib
