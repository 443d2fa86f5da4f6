#include "ado/providers/access/AccessDialect.h"

#include "ado/SqlScanner.h"

#include <QtCore/QDateTime>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::AccessDialect {

namespace {

struct Edit
{
    qsizetype start;
    qsizetype length;
    QString text;
};

struct Words
{
    QStringView access;
    QLatin1StringView sqlite;
};
constexpr std::array constants{Words{u"TRUE", "-1"_L1}, Words{u"YES", "-1"_L1}, Words{u"FALSE", "0"_L1},
                               Words{u"NO", "0"_L1}};
// What are words of SQLite's grammar are functions only in quotes.
constexpr std::array functions{Words{u"LEFT", "\"Left\""_L1}, Words{u"RIGHT", "\"Right\""_L1},
                               Words{u"ISNULL", "\"IsNull\""_L1}};

// The words between which expressions stand.
constexpr std::array<QStringView, 46> clauseWords{
    u"SELECT", u"DISTINCT", u"DISTINCTROW", u"ALL",   u"FROM",   u"WHERE",    u"GROUP",  u"BY",
    u"HAVING", u"ORDER",    u"ASC",         u"DESC",  u"UNION",  u"EXCEPT",   u"LIMIT",  u"OFFSET",
    u"ON",     u"JOIN",     u"INNER",       u"OUTER", u"CROSS",  u"NATURAL",  u"USING",  u"AS",
    u"AND",    u"OR",       u"NOT",         u"XOR",   u"LIKE",   u"ESCAPE",   u"IN",     u"BETWEEN",
    u"IS",     u"CASE",     u"WHEN",        u"THEN",  u"ELSE",   u"END",      u"EXISTS", u"COLLATE",
    u"WITH",   u"VALUES",   u"GLOB",        u"OVER",  u"FILTER", u"INTERSECT"};

template<typename Table>
const Words *find(const Table &table, const SqlScanner &statement, qsizetype index)
{
    const auto found = std::find_if(table.begin(), table.end(), [&](const Words &words) {
        return statement.isWord(index, words.access);
    });
    return found == table.end() ? nullptr : &*found;
}

bool isSelectModifier(const SqlScanner &statement, qsizetype index)
{
    return statement.isWord(index, u"DISTINCT") || statement.isWord(index, u"DISTINCTROW") ||
           statement.isWord(index, u"ALL");
}

// TOP 10, but not TOP 10 PERCENT, which SQLite has nothing for.
bool isTop(const SqlScanner &statement, qsizetype index)
{
    const qsizetype select = isSelectModifier(statement, index - 1) ? index - 2 : index - 1;
    return statement.isWord(index, u"TOP") && statement.isWord(select, u"SELECT") &&
           index + 1 < statement.count() && statement.at(index + 1).kind == SqlToken::Kind::Number &&
           !statement.isWord(index + 2, u"PERCENT");
}

bool endsOperand(const SqlScanner &statement, qsizetype index)
{
    return index >= 0 &&
           (statement.at(index).kind != SqlToken::Kind::Symbol || statement.isSymbol(index, u')'));
}

class Translation
{
public:
    explicit Translation(const QString &sql) : m_statement(sql) {}

    QString run()
    {
        for (qsizetype i = 0; i < m_statement.count(); ++i) {
            if (m_statement.isSymbol(i, u'#'))
                i = replaceDate(i);
            else
                replaceToken(i);
        }
        replaceConcatenations();
        for (qsizetype i = 0; i < m_statement.count(); ++i) {
            if (isTop(m_statement, i))
                replaceTop(i);
        }
        return edited();
    }

private:
    void replace(qsizetype token, const QString &text)
    {
        m_edits.push_back({m_statement.at(token).start, m_statement.at(token).length, text});
    }
    void insert(qsizetype at, const QString &text) { m_edits.push_back({at, 0, text}); }

    // Answers the last token of the date.
    qsizetype replaceDate(qsizetype open)
    {
        qsizetype close = open + 1;
        while (close < m_statement.count() && !m_statement.isSymbol(close, u'#'))
            ++close;
        if (close == m_statement.count())
            return open;
        const qsizetype start = m_statement.at(open).start;
        const qsizetype end = m_statement.at(close).end();
        const QString date = dateText(QStringView(m_statement.sql()).sliced(start + 1, end - start - 2));
        if (date.isEmpty())
            return open;
        m_edits.push_back({start, end - start, u'\'' + date + u'\''});
        return close;
    }

    void replaceToken(qsizetype i)
    {
        const bool isMember = m_statement.isSymbol(i - 1, u'.') || m_statement.isSymbol(i - 1, u'!');
        const bool isCall = m_statement.isSymbol(i + 1, u'(');
        if (m_statement.isSymbol(i, u'!') && m_statement.isName(i - 1) && m_statement.isName(i + 1))
            replace(i, u"."_s);
        else if (isMember || m_statement.isSymbol(i + 1, u'.'))
            return;
        else if (const Words *constant = find(constants, m_statement, i); constant && !isCall)
            replace(i, constant->sqlite);
        else if (const Words *function = find(functions, m_statement, i); function && isCall)
            replace(i, function->sqlite);
        else if (m_statement.isWord(i, u"DISTINCTROW") && m_statement.isWord(i - 1, u"SELECT"))
            replace(i, {});
        else if (m_statement.isWord(i, u"MOD") && endsOperand(m_statement, i - 1) && !isClauseWord(i - 1))
            replace(i, u"%"_s);
    }

    bool isClauseWord(qsizetype index) const
    {
        return std::any_of(clauseWords.begin(), clauseWords.end(),
                           [&](QStringView word) { return m_statement.isWord(index, word); });
    }

    bool endsExpression(qsizetype index) const
    {
        const bool isCount = index > 0 && isTop(m_statement, index - 1);
        return isClauseWord(index) || isCount || isTop(m_statement, index) ||
               (m_statement.at(index).kind == SqlToken::Kind::Symbol &&
                u",;=<>"_s.contains(m_statement.text(index)));
    }

    // What & joins, from the first operand to the last. In SQLite && does not bind as loosely, and Null would
    // make the whole text Null, so it becomes a call.
    struct Run
    {
        qsizetype first = -1;
        qsizetype last = -1;
        std::vector<qsizetype> joints;
    };

    void finish(const Run &run)
    {
        if (run.joints.empty())
            return;
        insert(m_statement.at(run.first).start, u"access_concat("_s);
        for (const qsizetype joint : run.joints)
            replace(joint, u","_s);
        insert(m_statement.at(run.last).end(), u")"_s);
    }

    void replaceConcatenations()
    {
        std::vector<Run> runs; // one for each open parenthesis
        for (qsizetype i = 0; i < m_statement.count(); ++i) {
            const auto depth = static_cast<std::size_t>(m_statement.at(i).depth);
            for (; runs.size() > depth + 1; runs.pop_back())
                finish(runs.back());
            runs.resize(depth + 1);
            Run &run = runs.back();
            if (endsExpression(i)) {
                finish(run);
                run = {};
                continue;
            }
            if (run.first < 0)
                run.first = i;
            run.last = i;
            if (m_statement.isSymbol(i, u'&'))
                run.joints.push_back(i);
        }
        for (const Run &run : runs)
            finish(run);
    }

    void replaceTop(qsizetype top)
    {
        const int depth = m_statement.at(top).depth;
        qsizetype end = top + 2;
        while (end < m_statement.count() && m_statement.at(end).depth >= depth &&
               !(m_statement.at(end).depth == depth &&
                 (m_statement.isSymbol(end, u';') || m_statement.isWord(end, u"UNION"))))
            ++end;
        const QString count = m_statement.text(top + 1).toString();
        replace(top, {});
        replace(top + 1, {});
        insert(m_statement.at(end - 1).end(), " LIMIT "_L1 + count);
    }

    QString edited()
    {
        std::stable_sort(m_edits.begin(), m_edits.end(),
                         [](const Edit &a, const Edit &b) { return a.start < b.start; });
        QString text;
        qsizetype from = 0;
        for (const Edit &edit : m_edits) {
            text += QStringView(m_statement.sql()).sliced(from, edit.start - from);
            text += edit.text;
            from = edit.start + edit.length;
        }
        text += QStringView(m_statement.sql()).sliced(from);
        return text;
    }

    SqlScanner m_statement;
    std::vector<Edit> m_edits;
};

int fullYear(QStringView digits)
{
    constexpr int firstOfLastCentury = 30;
    const int year = digits.toInt();
    if (digits.size() > 2)
        return year;
    return year + (year < firstOfLastCentury ? 2000 : 1900);
}

} // namespace

QString dateText(QStringView literal)
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
    QDate date(1899, 12, 30); // a time alone
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

QString toSqlite(const QString &sql)
{
    return Translation(sql).run();
}

} // namespace ADODB::AccessDialect
