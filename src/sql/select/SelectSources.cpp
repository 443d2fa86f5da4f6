#include "sql/select/SelectSources.h"

#include "sql/select/SqlWalk.h"

namespace KOVAVSFDataGridLib {

namespace {

class SourcesReader
{
public:
    SourcesReader(const SqlScanner &statement, TextRange from) : m_sql(statement), m_from(from) {}

    SelectSources sources()
    {
        for (qsizetype i = m_from.begin; i < m_from.end;)
            i = readAt(i);
        m_found.arePlain &= m_found.sources.size() == 1 ||
                            std::ranges::none_of(m_found.sources, [](const SelectParts::Source &source) {
                                return source.alias.isEmpty();
                            });
        return std::move(m_found);
    }

private:
    // Returns where the next part begins.
    qsizetype readAt(qsizetype index)
    {
        if (m_sql.isSymbol(index, u'('))
            return readBracket(index);
        if (m_sql.isSymbol(index, u',') || isOneOf(m_sql, index, {u"JOIN", u"STRAIGHT_JOIN", u"APPLY"})) {
            m_expectsTable = true;
        } else if (isOneOf(m_sql, index, {u"USING", u"NATURAL"})) {
            m_found.arePlain = false;
        } else if (m_expectsTable && m_sql.isName(index) && !isNoTable(index)) {
            return readTable(index);
        }
        return index + 1;
    }

    // A subquery, a nested join, or part of a condition.
    qsizetype readBracket(qsizetype open)
    {
        const qsizetype next = afterBrackets(m_sql, open);
        if (!m_expectsTable)
            return next;
        if (isSubselect(m_sql, open)) {
            if (!m_sql.isWord(open - 1, u"LATERAL"))
                m_found.derivedTables.push_back({open, next});
            return readAlias({}, next);
        }
        // If the whole join has an alias, its tables have no names outside.
        m_found.arePlain &= !m_sql.isWord(next, u"AS") && !isAlias(next);
        return open + 1;
    }

    qsizetype readTable(qsizetype index)
    {
        const qsizetype begin = index;
        while (m_sql.isSymbol(index + 1, u'.') && m_sql.isName(index + 2) && index + 2 < m_from.end)
            index += 2;
        const QString name = m_sql.name(index);
        const bool isFunction = m_sql.isSymbol(index + 1, u'(');
        qsizetype next = isFunction ? afterBrackets(m_sql, index + 1) : index + 1;
        if (m_sql.isWord(next, u"WITH") && m_sql.isWord(next + 1, u"ORDINALITY"))
            next += 2;
        if (m_sql.isWord(next, u"PARTITION") && m_sql.isSymbol(next + 1, u'('))
            next = afterBrackets(m_sql, next + 1);
        return readAlias({isFunction ? QString() : name, name, textOf(m_sql, {begin, index + 1})}, next);
    }

    qsizetype readAlias(SelectParts::Source source, qsizetype next)
    {
        m_expectsTable = false;
        if (m_sql.isWord(next, u"AS"))
            ++next;
        if (isAlias(next)) {
            source.alias = m_sql.name(next);
            source.writtenAlias = m_sql.text(next).toString();
            ++next;
        }
        m_found.sources.push_back(source);
        return next;
    }

    bool isAlias(qsizetype index) const
    {
        const bool isHint = isOneOf(m_sql, index, {u"USE", u"FORCE", u"IGNORE"}) &&
                            isOneOf(m_sql, index + 1, {u"INDEX", u"KEY"});
        return index < m_from.end && m_sql.isName(index) && !isHint &&
               !isOneOf(m_sql, index,
                        {u"JOIN", u"INNER", u"LEFT", u"RIGHT", u"FULL", u"CROSS", u"NATURAL", u"ON", u"USING",
                         u"INDEXED", u"NOT", u"STRAIGHT_JOIN", u"OUTER", u"WITH", u"TABLESAMPLE"});
    }

    // Words before a table. {oj …} is ODBC's syntax for an outer join.
    bool isNoTable(qsizetype index) const
    {
        return isOneOf(m_sql, index, {u"LATERAL", u"ONLY"}) ||
               (m_sql.isWord(index, u"OJ") && m_sql.isSymbol(index - 1, u'{'));
    }

    const SqlScanner &m_sql;
    const TextRange m_from;
    SelectSources m_found;
    bool m_expectsTable = true;
};

} // namespace

SelectSources SelectSources::in(const SqlScanner &statement, TextRange from)
{
    return SourcesReader(statement, from).sources();
}

} // namespace KOVAVSFDataGridLib
