#include "sql/select/SelectParts.h"

#include "sql/select/SelectSources.h"
#include "sql/select/SortTerms.h"
#include "sql/select/SqlWalk.h"
#include "sql/words/KnownFunctions.h"

#include <algorithm>
#include <utility>

namespace KOVAVSFDataGridLib {

namespace {

bool isQualified(const SqlScanner &statement, qsizetype index)
{
    return statement.isSymbol(index - 1, u'.') || statement.isSymbol(index + 1, u'.');
}

// Reads one statement; see SelectParts.
class Reader
{
public:
    explicit Reader(const SqlScanner &statement) : m_sql(statement), m_end(statement.count())
    {
        while (m_sql.isSymbol(m_end - 1, u';'))
            --m_end;
    }

    SelectParts parts()
    {
        qsizetype next = readWith();
        const bool isInBrackets = beginsSelectInBrackets(next);
        m_parts.isSelect = m_sql.isWord(next, u"SELECT") || isInBrackets;
        if (!m_parts.isSelect)
            return m_parts;
        m_parts.isCompound = isInBrackets;
        next = isInBrackets ? afterBrackets(m_sql, next) : readListWords(next + 1);
        readClauses(next);
        if (!m_parts.list.isEmpty())
            m_parts.items = itemsIn(m_parts.list, false);
        if (!m_parts.order.isEmpty())
            m_parts.sort = itemsIn({m_parts.order.begin + 2, m_parts.order.end}, true);
        readSources();
        m_parts.isVersioned =
            hasVersionMark({0, m_parts.listWords.begin}) || hasVersionMark({m_parts.listWords.end, m_end});
        m_parts.isGrouped |= hasAggregate(m_parts.list) || hasAggregate(m_parts.order);
        m_parts.hasWindow |= hasOver(m_parts.list) || hasOver(m_parts.order);
        m_parts.isLimited |= assigns(m_parts.list) || assigns(m_parts.where) || assigns(m_parts.order) ||
                             assigns(m_parts.source);
        m_parts.hasRows = m_sql.dialect() == SqlDialect::PostgreSql && hasCall(m_parts.list, isRowFunction);
        return m_parts;
    }

private:
    qsizetype readWith()
    {
        if (!m_sql.isWord(0, u"WITH"))
            return 0;
        qsizetype next = 1;
        const auto isSelect = [&](qsizetype i) {
            return m_sql.at(i).depth == 0 &&
                   (m_sql.isWord(i, u"SELECT") || (m_sql.isSymbol(i - 1, u')') && beginsSelectInBrackets(i)));
        };
        while (next < m_end && !isSelect(next))
            ++next;
        m_parts.with = {0, next};
        return next;
    }

    // ((SELECT …) UNION …) as well
    bool beginsSelectInBrackets(qsizetype open) const
    {
        while (m_sql.isSymbol(open, u'(') && m_sql.isSymbol(open + 1, u'('))
            ++open;
        return isSubselect(m_sql, open);
    }

    qsizetype readListWords(qsizetype next)
    {
        const qsizetype begin = next;
        while (next < m_end) {
            if (isDistinctWord(m_sql, next)) {
                m_parts.isDistinct = true;
                ++next;
                if (m_sql.isWord(next, u"ON") && m_sql.isSymbol(next + 1, u'(')) {
                    m_parts.isDistinctOn = true;
                    next = afterBrackets(m_sql, next + 1);
                }
            } else if (const qsizetype behind = afterIdleListWord(m_sql, next); behind > next) {
                next = behind;
            } else if (isTopAt(next)) {
                m_parts.isTop = true;
                next = m_sql.isSymbol(next + 1, u'(') ? afterBrackets(m_sql, next + 1) : next + 2;
                if (m_sql.isWord(next, u"PERCENT"))
                    ++next;
                if (m_sql.isWord(next, u"WITH") && m_sql.isWord(next + 1, u"TIES"))
                    next += 2;
            } else {
                break;
            }
        }
        m_parts.listWords = {begin, next};
        return next;
    }

    // The contents of brackets are not checked.
    bool hasVersionMark(TextRange range) const
    {
        for (qsizetype i = range.begin; i < range.end; ++i) {
            if (m_sql.at(i).depth == 0 && afterVersionMark(m_sql, i) > i)
                return true;
        }
        return false;
    }

    // A column can be named Top.
    bool isTopAt(qsizetype index) const
    {
        return m_sql.isWord(index, u"TOP") && index + 1 < m_end &&
               (m_sql.at(index + 1).kind == SqlToken::Kind::Number || m_sql.isSymbol(index + 1, u'('));
    }

    void readClauses(qsizetype next)
    {
        qsizetype begin = next;
        TextRange *open = &m_parts.list;
        TextRange unused;
        const auto close = [&](qsizetype end) {
            if (open && open->isEmpty())
                *open = {begin, end};
        };
        for (; next < m_end; ++next) {
            if (m_sql.at(next).depth > 0 || m_sql.at(next).kind != SqlToken::Kind::Word ||
                isQualified(m_sql, next))
                continue;
            TextRange *clause = clauseAt(next, unused);
            if (!clause)
                continue;
            close(next);
            const bool isFrom = clause == &m_parts.source;
            begin = isFrom ? next + 1 : next;
            open = m_parts.isCompound && clause != &m_parts.order ? nullptr : clause;
        }
        close(m_end);
    }

    TextRange *clauseAt(qsizetype index, TextRange &other)
    {
        if (m_sql.isWord(index, u"FROM"))
            return isAfterDistinct(index) || !m_parts.source.isEmpty() ? nullptr : &m_parts.source;
        if (m_sql.isWord(index, u"WHERE"))
            return &m_parts.where;
        if (m_sql.isWord(index, u"ORDER") && m_sql.isWord(index + 1, u"BY"))
            return &m_parts.order;
        if (isOneOf(m_sql, index, {u"UNION", u"EXCEPT", u"INTERSECT", u"MINUS"})) {
            m_parts.isCompound = true;
            return &other;
        }
        const bool isGroup = m_sql.isWord(index, u"GROUP") && m_sql.isWord(index + 1, u"BY");
        if (isGroup || m_sql.isWord(index, u"HAVING")) {
            m_parts.isGrouped = true;
            return std::exchange(m_isInGroup, isGroup) ? nullptr : &m_parts.group;
        }
        if (isOneOf(m_sql, index, {u"LIMIT", u"OFFSET", u"FETCH"})) {
            m_parts.isLimited = true;
            return &other;
        }
        if (m_sql.isWord(index, u"WINDOW") && m_sql.isWord(index + 2, u"AS")) {
            m_parts.hasWindow = true;
            return &other;
        }
        if (isOneOf(m_sql, index, {u"FOR", u"INTO", u"OPTION", u"PROCEDURE", u"CONNECT"})) {
            m_parts.isClosed = true;
            return &other;
        }
        if (m_sql.isWord(index, u"ROWNUM"))
            m_parts.isLimited = true;
        return nullptr;
    }

    // IS DISTINCT FROM
    bool isAfterDistinct(qsizetype index) const { return m_sql.isWord(index - 1, u"DISTINCT"); }

    std::vector<SelectParts::Item> itemsIn(TextRange range, bool isSort) const
    {
        std::vector<SelectParts::Item> items;
        qsizetype first = range.begin;
        for (qsizetype i = range.begin; i <= range.end; ++i) {
            if (i == range.end || (m_sql.isSymbol(i, u',') && m_sql.at(i).depth == 0)) {
                items.push_back(isSort ? sortTermIn(m_sql, {first, i}) : itemAt(first, i));
                first = i + 1;
            }
        }
        return items;
    }

    SelectParts::Item itemAt(qsizetype first, qsizetype end) const
    {
        // In SQL Server, a list can't contain comparisons; a name followed by "=" is an alias there.
        if (m_sql.dialect() == SqlDialect::SqlServer && m_sql.isName(first) &&
            m_sql.isSymbol(first + 1, u'=') && first + 2 < end) {
            SelectParts::Item item = SelectParts::itemWithoutAlias(m_sql, {first + 2, end});
            item.tokens.begin = first;
            item.alias = m_sql.name(first);
            item.hasAs = true;
            return item;
        }
        qsizetype valueEnd = end;
        // In PostgreSQL, a string after a name is a literal of that type.
        const bool endsInText = end > first && m_sql.at(end - 1).kind == SqlToken::Kind::String &&
                                m_sql.dialect() != SqlDialect::PostgreSql;
        const bool endsInName = end - first >= 2 && (m_sql.isName(end - 1) || endsInText);
        const bool hasAs = endsInName && m_sql.at(end - 1).depth == 0 && m_sql.isWord(end - 2, u"AS");
        if (hasAs)
            valueEnd = end - 2;
        else if (endsInName && m_sql.at(end - 1).depth == 0 && canEndValue(end - 2) &&
                 !isOneOf(m_sql, end - 1, {u"END", u"NULL", u"ISNULL", u"NOTNULL"}))
            valueEnd = end - 1;
        SelectParts::Item item = SelectParts::itemWithoutAlias(m_sql, {first, valueEnd});
        item.tokens.end = end;
        item.hasAs = hasAs;
        if (valueEnd < end)
            item.alias = aliasAt(end - 1);
        return item;
    }

    // Whether a name after this token is an alias and not part of an expression.
    bool canEndValue(qsizetype index) const
    {
        if (m_sql.isSymbol(index, u')') || m_sql.isSymbol(index, u']') ||
            m_sql.at(index).kind == SqlToken::Kind::String ||
            m_sql.at(index).kind == SqlToken::Kind::Number ||
            m_sql.at(index).kind == SqlToken::Kind::QuotedName)
            return true;
        return m_sql.isName(index) &&
               !isOneOf(m_sql, index,
                        {u"NOT",  u"AND",  u"OR",     u"LIKE",     u"IN",      u"IS",       u"BETWEEN",
                         u"THEN", u"ELSE", u"WHEN",   u"CASE",     u"COLLATE", u"ESCAPE",   u"DIV",
                         u"MOD",  u"GLOB", u"REGEXP", u"DISTINCT", u"ALL",     u"INTERVAL", u"AT"});
    }

    QString aliasAt(qsizetype index) const
    {
        if (m_sql.at(index).kind != SqlToken::Kind::String)
            return m_sql.name(index);
        const QStringView quoted = m_sql.text(index);
        return quoted.sliced(1, std::max<qsizetype>(0, quoted.size() - 2)).toString();
    }

    void readSources()
    {
        const auto [begin, end] = m_parts.source;
        if (isSubselect(m_sql, begin)) {
            qsizetype next = afterBrackets(m_sql, begin);
            if (m_sql.isWord(next, u"AS"))
                ++next;
            m_parts.isDerivedTable = next + 1 == end && m_sql.isName(next);
        }
        SelectSources found = SelectSources::in(m_sql, m_parts.source);
        m_parts.sources = std::move(found.sources);
        m_parts.hasPlainSources = found.arePlain;
        m_derivedTables = std::move(found.derivedTables);
    }

    // Whether one of these functions is called outside nested SELECTs.
    bool hasCall(TextRange range, bool (*isOne)(QStringView)) const
    {
        for (qsizetype i = range.begin; i < range.end; ++i) {
            if (isSubselect(m_sql, i))
                i = afterBrackets(m_sql, i) - 1;
            else if (m_sql.isSymbol(i + 1, u'(') && !m_sql.isSymbol(i - 1, u'.') &&
                     m_sql.at(i).kind == SqlToken::Kind::Word && isOne(m_sql.text(i)))
                return true;
        }
        return false;
    }

    // FILTER and WITHIN GROUP can follow any aggregate, including user-defined ones.
    bool hasAggregate(TextRange range) const
    {
        for (qsizetype i = range.begin; i < range.end; ++i) {
            if (isSubselect(m_sql, i))
                i = afterBrackets(m_sql, i) - 1;
            else if (m_sql.isSymbol(i, u')') &&
                     ((m_sql.isWord(i + 1, u"FILTER") && m_sql.isSymbol(i + 2, u'(')) ||
                      (m_sql.isWord(i + 1, u"WITHIN") && m_sql.isWord(i + 2, u"GROUP"))))
                return true;
        }
        return hasCall(range, isAggregateFunction);
    }

    // MySQL's user variables number the records in the order in which they are read. A derived table is read
    // before: it only sets their first value, or numbers its own records.
    bool assigns(TextRange range) const
    {
        for (qsizetype i = range.begin; i + 1 < range.end; ++i) {
            const auto table = std::ranges::find(m_derivedTables, i, &TextRange::begin);
            if (table != m_derivedTables.end())
                i = table->end - 1;
            else if (m_sql.isSymbol(i, u':') && m_sql.isSymbol(i + 1, u'='))
                return m_sql.dialect() == SqlDialect::MySql;
        }
        return false;
    }

    bool hasOver(TextRange range) const
    {
        for (qsizetype i = range.begin; i < range.end; ++i) {
            if (isSubselect(m_sql, i))
                i = afterBrackets(m_sql, i) - 1;
            if (m_sql.isSymbol(i, u')') && m_sql.isWord(i + 1, u"OVER"))
                return true;
        }
        return false;
    }

    const SqlScanner &m_sql;
    qsizetype m_end;
    bool m_isInGroup = false;               // after GROUP BY, HAVING belongs to it
    std::vector<TextRange> m_derivedTables; // of the source
    SelectParts m_parts;
};

} // namespace

SelectParts SelectParts::of(const SqlScanner &statement)
{
    return Reader(statement).parts();
}

SelectParts::Item SelectParts::itemWithoutAlias(const SqlScanner &statement, TextRange tokens)
{
    qsizetype next = tokens.begin;
    while (statement.isName(next) && statement.isSymbol(next + 1, u'.') && next + 2 < tokens.end)
        next += 2;
    const bool isOneMore = next + 1 == tokens.end;
    const bool isName =
        isOneMore && statement.isName(next) &&
        !isOneOf(statement, next,
                 {u"NULL", u"TRUE", u"FALSE", u"CURRENT_DATE", u"CURRENT_TIME", u"CURRENT_TIMESTAMP"});
    return {tokens, tokens, {}, false, isOneMore && statement.isSymbol(next, u'*'), isName};
}

QString textOf(const SqlScanner &statement, TextRange tokens)
{
    if (tokens.isEmpty())
        return {};
    const qsizetype begin = statement.at(tokens.begin).start;
    return statement.sql().sliced(begin, statement.at(tokens.end - 1).end() - begin);
}

std::vector<qsizetype> firstListWords(const SqlScanner &sql, TextRange tokens)
{
    std::vector<qsizetype> words;
    for (qsizetype i = tokens.begin; i < tokens.end; ++i) {
        const auto behindListWord = [&](qsizetype next) {
            return isDistinctWord(sql, next) ? next + 1 : afterIdleListWord(sql, next);
        };
        for (qsizetype next = i + 1; sql.isWord(i, u"SELECT") && behindListWord(next) > next;) {
            for (const qsizetype behind = behindListWord(next); next < behind; ++next) {
                if (isFirstListWord(sql, next))
                    words.push_back(next);
            }
        }
    }
    return words;
}

} // namespace KOVAVSFDataGridLib
