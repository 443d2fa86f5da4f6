#include "filter/FilterSql.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "query/FieldNames.h"
#include "sql/ReservedWords.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace KOVAVSFDataGridLib::FilterSql {

using namespace Qt::StringLiterals;

namespace {

QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', "''"_L1) + u'\'';
}

QString textLiteral(const Dialect &dialect, QString text)
{
    // SQL Server would squeeze anything else through its own code page first.
    const bool needsUnicode = dialect.isOdbc && dialect.database == dbSQLServer &&
                              dialect.engine == Engine::Other && !dialect.escapesByBackslash &&
                              std::any_of(text.begin(), text.end(), [](QChar c) { return c > u'~'; });
    if (dialect.escapesByBackslash)
        text.replace(u'\\', u"\\\\"_s);
    return needsUnicode ? u'N' + quoted(text) : quoted(text);
}

// The text in pieces of which none holds a word that begins a clause: the clauses of a statement are told
// apart by these words wherever they stand, so a value must not hold one.
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
QString dateLiteral(const Dialect &dialect, QLatin1StringView kind, const QString &text)
{
    return dialect.isOdbc ? u'{' + kind + u' ' + quoted(text) + u'}' : quoted(text);
}

QString timeText(QTime time)
{
    return time.toString(time.msec() == 0 ? u"HH:mm:ss"_s : u"HH:mm:ss.zzz"_s);
}

} // namespace

Dialect DialectOf(AllDBType database, const QString &connectionString)
{
    try {
        const ADODB::ConnectionString parts(connectionString);
        const bool isOdbc = parts.value(u"Provider"_s).startsWith("MSDASQL"_L1, Qt::CaseInsensitive) ||
                            parts.contains(u"DSN"_s) || parts.contains(u"FILEDSN"_s) ||
                            parts.contains(u"Driver"_s);
        return {database, isOdbc};
    } catch (const ADODB::Error &) {
        return {database, false};
    }
}

QString FieldName(const Dialect &dialect, const QString &name)
{
    if (QuotedFieldName(dialect.database, name) == name && !IsReservedWord(name))
        return name;
    // Inside brackets there is no way to write "]" that every database reads.
    if (dialect.database == dbAccess && !name.contains(u']'))
        return u'[' + name + u']';
    return u'"' + QString(name).replace(u'"', "\"\""_L1) + u'"';
}

QString Text(const Dialect &dialect, const QString &text)
{
    QString joined;
    for (const QString &piece : piecesWithoutClauseWords(text)) {
        const QString literal = textLiteral(dialect, piece);
        if (joined.isEmpty())
            joined = literal;
        else if (dialect.isOdbc)
            joined = u"{fn CONCAT(%1, %2)}"_s.arg(joined, literal);
        else
            joined = u"(%1 || %2)"_s.arg(joined, literal);
    }
    return joined;
}

QString Date(const Dialect &dialect, QDate date)
{
    return dateLiteral(dialect, "d"_L1, date.toString(Qt::ISODate));
}

QString Time(const Dialect &dialect, QTime time)
{
    return dateLiteral(dialect, "t"_L1, timeText(time));
}

QString Moment(const Dialect &dialect, const QDateTime &moment)
{
    return dateLiteral(dialect, "ts"_L1,
                       moment.date().toString(Qt::ISODate) + u' ' + timeText(moment.time()));
}

QString Like(const Dialect &dialect, const QString &field, const QString &text, Anchor anchor)
{
    // Not a backslash: some databases read that as an escape of the literal itself.
    constexpr QChar escape = u'!';
    const bool hasBracketSets = dialect.isOdbc && dialect.database == dbSQLServer;
    QString pattern;
    for (const QChar c : text) {
        if (c == u'%' || c == u'_' || c == escape || (c == u'[' && hasBracketSets))
            pattern += escape;
        pattern += c;
    }
    // Some databases read a backslash in a pattern as an escape unless they are told of another one.
    const bool isEscaped = pattern.size() > text.size() || text.contains(u'\\');
    if (anchor != Anchor::Begin)
        pattern.prepend(u'%');
    if (anchor != Anchor::End)
        pattern.append(u'%');
    return LikeOperand(dialect.engine, field) + " LIKE "_L1 + Text(dialect, pattern) +
           (isEscaped ? " ESCAPE '!'"_L1 : ""_L1);
}

QString IsTrue(const Dialect &dialect, const QString &field, bool wanted)
{
    // Servers with a real Boolean type compare it with a text, those of bits and numbers convert the text.
    if (dialect.engine == Engine::PostgreSQL || (dialect.isOdbc && dialect.database != dbAccess))
        return field + (wanted ? " = '1'"_L1 : " = '0'"_L1);
    // True is 1 here and -1 there.
    return field + (wanted ? " <> 0"_L1 : " = 0"_L1);
}

QString IsEmptyText(const Dialect &dialect, const QString &field)
{
    return u'(' + field + " IS NULL OR "_L1 + LikeOperand(dialect.engine, field) + " = '')"_L1;
}

QString IsNotEmptyText(const Dialect &dialect, const QString &field)
{
    // To Oracle '' is Null, and nothing differs from Null.
    return LikeOperand(dialect.engine, field) +
           (dialect.database == dbOracle ? " LIKE '_%'"_L1 : " <> ''"_L1);
}

QString DistinctValues(const Dialect &dialect, const QString &field, const QString &table, int count)
{
    const bool knowsLimit = !dialect.isOdbc || dialect.engine != Engine::Other;
    const QString limit = knowsLimit ? u"LIMIT %1"_s : u"OFFSET 0 ROWS FETCH NEXT %1 ROWS ONLY"_s;
    return u"SELECT DISTINCT "_s + field + " FROM "_L1 + table + " WHERE "_L1 + field +
           " IS NOT NULL ORDER BY "_L1 + field + u' ' + limit.arg(count);
}

QString Join(const QList<Term> &terms)
{
    QString text;
    int depth = 0;
    bool hasOuterOr = false;
    for (qsizetype i = 0; i < terms.size(); ++i) {
        const Term &term = terms.at(i);
        text += QString(term.opens, u'(') + term.condition + QString(term.closes, u')');
        depth += term.opens - term.closes;
        if (i + 1 == terms.size())
            break;
        text += term.orNext ? " OR "_L1 : " AND "_L1;
        hasOuterOr |= term.orNext && depth <= 0;
    }
    return hasOuterOr ? u'(' + text + u')' : text;
}

qsizetype UnmatchedBracket(const QList<Term> &terms)
{
    QList<qsizetype> open; // the terms that opened the brackets not closed yet
    for (qsizetype i = 0; i < terms.size(); ++i) {
        open.append(QList<qsizetype>(terms.at(i).opens, i));
        for (int closed = 0; closed < terms.at(i).closes; ++closed) {
            if (open.isEmpty())
                return i;
            open.removeLast();
        }
    }
    return open.isEmpty() ? -1 : open.constLast();
}

} // namespace KOVAVSFDataGridLib::FilterSql
