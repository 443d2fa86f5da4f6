#include "ado/providers/access/sql/AccessDialect.h"

#include "ado/providers/access/sql/AccessCollation.h"
#include "ado/providers/access/sql/AccessDateLiteral.h"
#include "sql/SqlScanner.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::AccessDialect {

using KOVAVSFDataGridLib::SqlScanner;
using KOVAVSFDataGridLib::SqlToken;

namespace {

struct Edit
{
    // The order of edits at the same position.
    enum Rank { CloseSum, Close, Open, OpenSum, Replace };

    Rank rank;
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
// Keywords of SQLite's grammar are function names only if quoted.
constexpr std::array functions{Words{u"LEFT", "\"Left\""_L1}, Words{u"RIGHT", "\"Right\""_L1},
                               Words{u"ISNULL", "\"IsNull\""_L1}};
// These return texts, which are compared as text fields are.
constexpr std::array<QStringView, 13> textFunctions{u"LEFT",   u"RIGHT",   u"MID",    u"UCASE", u"LCASE",
                                                    u"TRIM",   u"LTRIM",   u"RTRIM",  u"CSTR",  u"CHR",
                                                    u"FORMAT", u"REPLACE", u"STRCONV"};

// The words that delimit expressions.
constexpr std::array<QStringView, 44> clauseWords{
    u"SELECT", u"DISTINCT", u"DISTINCTROW", u"ALL",      u"FROM",   u"WHERE",   u"GROUP", u"BY",
    u"HAVING", u"ORDER",    u"ASC",         u"DESC",     u"UNION",  u"EXCEPT",  u"LIMIT", u"OFFSET",
    u"ON",     u"JOIN",     u"INNER",       u"OUTER",    u"CROSS",  u"NATURAL", u"USING", u"AS",
    u"AND",    u"OR",       u"NOT",         u"XOR",      u"LIKE",   u"ESCAPE",  u"IN",    u"BETWEEN",
    u"IS",     u"WHEN",     u"THEN",        u"ELSE",     u"EXISTS", u"COLLATE", u"WITH",  u"VALUES",
    u"GLOB",   u"OVER",     u"FILTER",      u"INTERSECT"};

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

// TOP 10 and TOP 10 PERCENT.
bool isTop(const SqlScanner &statement, qsizetype index)
{
    const qsizetype select = isSelectModifier(statement, index - 1) ? index - 2 : index - 1;
    return statement.isWord(index, u"TOP") && statement.isWord(select, u"SELECT") &&
           index + 1 < statement.count() && statement.at(index + 1).kind == SqlToken::Kind::Number;
}

class Translation
{
public:
    Translation(const QString &sql, Patterns patterns)
        : m_statement(sql), m_patterns(patterns), m_isInDate(static_cast<std::size_t>(m_statement.count()))
    {
    }

    QString run()
    {
        for (qsizetype i = 0; i < m_statement.count(); ++i) {
            const qsizetype dateEnd = m_statement.isSymbol(i, u'#') ? replaceDate(i) : i;
            if (dateEnd == i)
                replaceToken(i);
            for (; i < dateEnd; ++i)
                m_isInDate[static_cast<std::size_t>(i + 1)] = true;
        }
        replaceOperators();
        for (qsizetype i = 0; i < m_statement.count(); ++i) {
            if (isTop(m_statement, i))
                replaceTop(i);
        }
        return edited();
    }

private:
    void replace(qsizetype token, const QString &text)
    {
        m_edits.push_back({Edit::Replace, m_statement.at(token).start, m_statement.at(token).length, text});
    }
    void insert(Edit::Rank rank, qsizetype at, const QString &text)
    {
        m_edits.push_back({rank, at, 0, text});
    }

    // Returns the last token of the date.
    qsizetype replaceDate(qsizetype open)
    {
        qsizetype close = open + 1;
        while (close < m_statement.count() && !m_statement.isSymbol(close, u'#'))
            ++close;
        if (close == m_statement.count())
            return open;
        const qsizetype start = m_statement.at(open).start;
        const qsizetype end = m_statement.at(close).end();
        const QString date =
            AccessDateLiteral::text(QStringView(m_statement.sql()).sliced(start + 1, end - start - 2));
        if (date.isEmpty())
            return open;
        m_edits.push_back({Edit::Replace, start, end - start, u'\'' + date + u'\''});
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
        else if (const Words *constant = find(constants, m_statement, i);
                 constant && !isCall && !m_statement.isWord(i - 1, u"AS")) // else an alias
            replace(i, constant->sqlite);
        else if (m_statement.isWord(i, u"ALIKE"))
            replace(i, u"LIKE"_s);
        else if (m_patterns == Patterns::Access && m_statement.isWord(i, u"LIKE"))
            replace(i, u"GLOB"_s);
        else if (m_statement.isSymbol(i, u'/')) // which SQLite would cut off between whole numbers
            replace(i, u"*1.0/"_s);
        else if (m_statement.isWord(i, u"MOD") && endsOperand(i - 1) && !isClauseWord(i - 1))
            replace(i, u"%"_s);
        else if (isCall)
            replaceCall(i);
    }

    void replaceCall(qsizetype i)
    {
        if (const Words *function = find(functions, m_statement, i))
            replace(i, function->sqlite);
        if (!isOneOf(textFunctions, i))
            return;
        qsizetype close = i + 2;
        while (close < m_statement.count() && m_statement.at(close).depth > m_statement.at(i).depth)
            ++close;
        if (close < m_statement.count())
            insert(Edit::CloseSum, m_statement.at(close).end(), textOrder());
    }

    static QString textOrder() { return u" COLLATE "_s + QLatin1StringView(AccessCollation::textName); }

    template<typename List>
    bool isOneOf(const List &words, qsizetype index) const
    {
        return std::any_of(words.begin(), words.end(),
                           [&](QStringView word) { return m_statement.isWord(index, word); });
    }
    bool endsOperand(qsizetype index) const
    {
        return index >= 0 && !m_statement.isWord(index, u"CASE") &&
               (m_statement.at(index).kind != SqlToken::Kind::Symbol || m_statement.isSymbol(index, u')') ||
                m_isInDate[static_cast<std::size_t>(index)]);
    }
    // Whether a name follows its expression without AS.
    bool isAlias(qsizetype index) const
    {
        return m_statement.isName(index) && endsOperand(index - 1) && !endsExpression(index - 1) &&
               !m_statement.isWord(index, u"MOD") && !m_statement.isWord(index - 1, u"MOD");
    }
    bool isClauseWord(qsizetype index) const { return isOneOf(clauseWords, index); }

    bool endsExpression(qsizetype index) const
    {
        const bool isCount = isTop(m_statement, index - 1);
        const bool isPercent = isTop(m_statement, index - 2) && m_statement.isWord(index, u"PERCENT");
        const bool isUnequal = m_statement.isSymbol(index, u'!') && m_statement.isSymbol(index + 1, u'=');
        return isClauseWord(index) || isCount || isPercent || isUnequal || isTop(m_statement, index) ||
               (m_statement.at(index).kind == SqlToken::Kind::Symbol &&
                u",;=<>"_s.contains(m_statement.text(index)));
    }

    // A sequence of operands and the operators between them.
    struct Run
    {
        qsizetype first = -1;
        qsizetype last = -1;
        std::vector<qsizetype> joints;

        void take(qsizetype token)
        {
            if (first < 0)
                first = token;
            last = token;
        }
        // Operators before a word such as NOT are left to SQLite.
        void dropLastWithoutOperand()
        {
            if (!joints.empty() && joints.back() == last)
                joints.pop_back();
        }
    };
    // The state within one pair of parentheses, or of CASE and END. A sum is an operand of &.
    struct Level
    {
        Run text;
        Run sum;
    };

    // SQLite's || binds more tightly than &, and a Null makes its result Null. So & becomes a call.
    void finishText(Run &run)
    {
        run.dropLastWithoutOperand();
        if (!run.joints.empty()) {
            insert(Edit::Open, m_statement.at(run.first).start, u"access_concat("_s);
            for (const qsizetype joint : run.joints)
                replace(joint, u","_s);
            insert(Edit::Close, m_statement.at(run.last).end(), u")"_s + textOrder());
        }
        run = {};
    }

    // SQLite can't add dates or texts; it would convert them to numbers.
    void finishSum(Run &run)
    {
        run.dropLastWithoutOperand();
        // The last operator becomes the outermost call.
        for (auto joint = run.joints.rbegin(); joint != run.joints.rend(); ++joint)
            insert(Edit::OpenSum, m_statement.at(run.first).start,
                   m_statement.isSymbol(*joint, u'+') ? u"access_add("_s : u"access_subtract("_s);
        for (std::size_t i = 0; i < run.joints.size(); ++i) {
            const qsizetype end = i + 1 < run.joints.size() ? run.joints[i + 1] - 1 : run.last;
            replace(run.joints[i], u","_s);
            insert(Edit::CloseSum, m_statement.at(end).end(), u")"_s);
        }
        run = {};
    }

    // 1e+5 is scanned as three tokens.
    bool isInNumber(qsizetype sign) const
    {
        const SqlToken &before = m_statement.at(sign - 1);
        const QStringView text = m_statement.text(sign - 1);
        return before.kind == SqlToken::Kind::Number && before.end() == m_statement.at(sign).start &&
               text.endsWith(u'e', Qt::CaseInsensitive) && !text.startsWith(u"0x", Qt::CaseInsensitive);
    }

    bool isSumOperator(qsizetype index) const
    {
        return (m_statement.isSymbol(index, u'+') || m_statement.isSymbol(index, u'-')) &&
               endsOperand(index - 1) && !endsExpression(index - 1) && !isInNumber(index);
    }

    void replaceOperators()
    {
        std::vector<Level> levels; // one per open parenthesis and CASE
        int cases = 0;
        for (qsizetype i = 0; i < m_statement.count(); ++i) {
            const bool isCase = m_statement.isWord(i, u"CASE");
            const bool isEnd = cases > 0 && m_statement.isWord(i, u"END");
            cases -= isEnd ? 1 : 0;
            const auto depth =
                static_cast<std::size_t>(m_statement.at(i).depth) + static_cast<std::size_t>(cases);
            cases += isCase ? 1 : 0;
            for (; levels.size() > depth + 1; levels.pop_back())
                finish(levels.back());
            levels.resize(depth + 1);
            Level &level = levels.back();
            const bool isInDate = m_isInDate[static_cast<std::size_t>(i)];
            if (!isInDate && !isEnd && (endsExpression(i) || isAlias(i))) {
                finish(level);
                continue;
            }
            level.text.take(i);
            if (m_statement.isSymbol(i, u'&')) {
                finishSum(level.sum);
                level.text.joints.push_back(i);
                continue;
            }
            if (!isInDate && isSumOperator(i))
                level.sum.joints.push_back(i);
            level.sum.take(i);
        }
        for (Level &level : levels)
            finish(level);
    }

    void finish(Level &level)
    {
        finishSum(level.sum);
        finishText(level.text);
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
        const bool isPercent = m_statement.isWord(top + 2, u"PERCENT");
        QString limit = count;
        if (isPercent) {
            const auto from = m_statement.at(top + 2).end();
            const QStringView rest =
                QStringView(m_statement.sql()).sliced(from, m_statement.at(end - 1).end() - from);
            const QString modifier =
                isSelectModifier(m_statement, top - 1) ? m_statement.text(top - 1).toString() : QString();
            limit = u"(SELECT CAST((COUNT(*) * %1 + 99) / 100 AS INTEGER) FROM (%2))"_s.arg(
                count, Translation(u"SELECT "_s + modifier + rest.toString(), m_patterns).run());
        }
        for (qsizetype i = top; i < top + (isPercent ? 3 : 2); ++i)
            replace(i, {});
        // An enclosing SELECT may sort these records; SQLite would sort before it takes the first ones.
        const qsizetype select = isSelectModifier(m_statement, top - 1) ? top - 2 : top - 1;
        const bool isTable = m_statement.isSymbol(select - 1, u'(') && !hasOrder(top, end, depth);
        insert(Edit::Open, m_statement.at(end - 1).end(),
               (isTable ? " ORDER BY NULL LIMIT "_L1 : " LIMIT "_L1) + limit);
    }

    bool hasOrder(qsizetype begin, qsizetype end, int depth) const
    {
        for (qsizetype i = begin; i < end; ++i) {
            if (m_statement.at(i).depth == depth && m_statement.isWord(i, u"ORDER"))
                return true;
        }
        return false;
    }

    QString edited()
    {
        std::stable_sort(m_edits.begin(), m_edits.end(), [](const Edit &a, const Edit &b) {
            return std::pair(a.start, a.rank) < std::pair(b.start, b.rank);
        });
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
    Patterns m_patterns;
    std::vector<bool> m_isInDate; // per token; false for the first token of a date
    std::vector<Edit> m_edits;
};

} // namespace

QString toSqlite(const QString &sql, Patterns patterns)
{
    return Translation(sql, patterns).run();
}

} // namespace ADODB::AccessDialect
