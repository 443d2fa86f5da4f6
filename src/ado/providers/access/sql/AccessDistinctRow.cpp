#include "ado/providers/access/sql/AccessDistinctRow.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "sql/select/SelectParts.h"
#include "sql/select/SqlWalk.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <set>

using namespace KOVAVSFDataGridLib;
using namespace Qt::Literals::StringLiterals;

namespace ADODB::AccessDistinctRow {

namespace {

bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

[[noreturn]] void refuse()
{
    throw Error(dbErrFailed, Texts::accessDistinctRow());
}

// One SELECT, starting at its first token.
class Select
{
public:
    Select(const QString &sql, const std::vector<AccessTable> &tables)
        : m_sql(sql), m_parts(SelectParts::of(m_sql)), m_tables(tables)
    {
    }

    // The GROUP BY list that makes the shown records distinct; empty if each row is one of them already.
    QString grouping() const
    {
        if (m_parts.sources.size() < 2)
            return {};
        std::set<std::size_t> shown;
        for (const SelectParts::Item &item : m_parts.items) {
            if (item.isStar && item.value.end - item.value.begin == 1)
                return {};
            addSources(item.value, shown);
        }
        if (shown.size() == m_parts.sources.size())
            return {};
        // With a sort by another table, it is undefined which of several records is meant.
        std::set<std::size_t> sorting = shown;
        for (const SelectParts::Item &term : m_parts.sort)
            addSources(term.value, sorting);
        if (shown.empty() || sorting != shown || m_parts.isGrouped)
            refuse();
        QStringList records;
        for (const std::size_t source : shown) {
            if (!tableOf(source))
                refuse();
            records.append(m_parts.sources[source].writtenAlias + u".rowid"_s);
        }
        return u" GROUP BY "_s + records.join(u", "_s) + u' ';
    }

    // Where GROUP BY must be inserted.
    qsizetype placeOfGrouping() const
    {
        return m_parts.order.isEmpty() ? m_sql.at(m_sql.count() - 1).end()
                                       : m_sql.at(m_parts.order.begin).start;
    }

private:
    const AccessTable *tableOf(std::size_t source) const
    {
        const auto found = std::ranges::find_if(m_tables, [&](const AccessTable &table) {
            return isSame(table.name, m_parts.sources[source].table);
        });
        return found == m_tables.end() ? nullptr : &*found;
    }

    // Adds the tables whose fields the tokens name. A nested SELECT shows none of them, so it is skipped.
    void addSources(TextRange tokens, std::set<std::size_t> &sources) const
    {
        for (qsizetype i = tokens.begin; i < tokens.end; ++i) {
            if (isSubselect(m_sql, i))
                i = afterBrackets(m_sql, i) - 1;
            else if (m_sql.isSymbol(i - 1, u'.') || m_sql.isSymbol(i - 1, u'!'))
                sources.insert(sourceNamed(m_sql.name(i - 2)));
            else if (m_sql.isName(i) && !m_sql.isSymbol(i + 1, u'.') && !m_sql.isSymbol(i + 1, u'!') &&
                     !m_sql.isSymbol(i + 1, u'('))
                addSourceOfField(i, sources);
        }
    }

    std::size_t sourceNamed(const QString &name) const
    {
        const auto found = std::ranges::find_if(
            m_parts.sources, [&](const SelectParts::Source &source) { return isSame(source.alias, name); });
        if (found == m_parts.sources.end())
            refuse();
        return static_cast<std::size_t>(found - m_parts.sources.begin());
    }

    // A word that is not a field of any table is a keyword, or an alias in ORDER BY.
    void addSourceOfField(qsizetype token, std::set<std::size_t> &sources) const
    {
        const QString name = m_sql.name(token);
        for (std::size_t source = 0; source < m_parts.sources.size(); ++source) {
            const AccessTable *const table = tableOf(source);
            if (!table)
                refuse();
            if (std::ranges::any_of(table->columns,
                                    [&](const AccessColumn &column) { return isSame(column.name, name); })) {
                sources.insert(source);
                return;
            }
        }
    }

    const SqlScanner m_sql;
    const SelectParts m_parts;
    const std::vector<AccessTable> &m_tables;
};

// The last one, so that nested ones are processed before those around them.
qsizetype lastDistinctRow(const SqlScanner &sql)
{
    qsizetype i = sql.count() - 1;
    while (i > 0 && !(sql.isWord(i, u"DISTINCTROW") && sql.isWord(i - 1, u"SELECT")))
        --i;
    return i;
}

qsizetype endOfSelect(const SqlScanner &sql, qsizetype from)
{
    const int depth = sql.at(from).depth;
    qsizetype end = from;
    while (end < sql.count() && sql.at(end).depth >= depth &&
           !(sql.at(end).depth == depth && (sql.isSymbol(end, u';') || sql.isWord(end, u"UNION"))))
        ++end;
    return end;
}

} // namespace

QString asGrouping(QString sql, const std::vector<AccessTable> &tables)
{
    for (;;) {
        const SqlScanner scanned(sql);
        const qsizetype word = lastDistinctRow(scanned);
        if (word <= 0)
            return sql;
        const qsizetype start = scanned.at(word - 1).start;
        const qsizetype end = scanned.at(endOfSelect(scanned, word) - 1).end();
        const Select select(sql.sliced(start, end - start), tables);
        if (const QString grouping = select.grouping(); !grouping.isEmpty())
            sql.insert(start + select.placeOfGrouping(), grouping);
        sql.remove(scanned.at(word).start, scanned.at(word).length);
    }
}

} // namespace ADODB::AccessDistinctRow
