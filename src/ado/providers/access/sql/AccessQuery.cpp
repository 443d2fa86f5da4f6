#include "ado/providers/access/sql/AccessQuery.h"

#include "sql/Brackets.h"

#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using KOVAVSFDataGridLib::inBrackets;

namespace {

enum Kind : qint64 { SelectKind = 1, UnionKind = 9 };
enum Option : qint64 {
    AllFields = 0x01,
    Distinct = 0x02, // of a UNION: without duplicates
    DistinctRow = 0x08,
    Top = 0x10,
    TopPercent = 0x20
};
enum Join : qint64 { InnerJoin = 1, LeftJoin = 2, RightJoin = 3 };

// The name that the other parts use for the table.
QString aliasOf(const AccessQuery::Row &table)
{
    return table.name2.isEmpty() ? table.name1 : table.name2;
}

// The parts with one attribute, in their order.
std::vector<AccessQuery::Row> partsOf(const AccessQuery &query, AccessQuery::Attribute attribute)
{
    std::vector<AccessQuery::Row> parts;
    std::copy_if(query.rows.begin(), query.rows.end(), std::back_inserter(parts),
                 [&](const AccessQuery::Row &row) { return row.attribute == attribute; });
    std::stable_sort(parts.begin(), parts.end(),
                     [](const AccessQuery::Row &a, const AccessQuery::Row &b) { return a.order < b.order; });
    return parts;
}

QStringList expressionsOf(const std::vector<AccessQuery::Row> &rows)
{
    QStringList expressions;
    for (const AccessQuery::Row &row : rows)
        expressions += row.expression;
    return expressions;
}

QString clause(QLatin1StringView words, const QStringList &parts)
{
    return parts.isEmpty() ? QString() : u' ' + words + u' ' + parts.join(u", "_s);
}

// Builds the FROM clause: the inner-joined tables come first, then each outer-joined table, after the one it
// is joined to.
class Source
{
public:
    explicit Source(const AccessQuery &query) : m_tables(partsOf(query, AccessQuery::TableRow))
    {
        for (const AccessQuery::Row &join : partsOf(query, AccessQuery::JoinRow)) {
            if (join.flag == InnerJoin)
                m_conditions += join.expression;
            else if (join.flag == LeftJoin || join.flag == RightJoin)
                addOuter(join);
            else
                m_isUnderstood = false;
        }
        place();
    }

    bool isUnderstood() const { return m_isUnderstood && !m_from.isEmpty(); }
    const QString &from() const { return m_from; }
    const QStringList &conditions() const { return m_conditions; }

private:
    struct Outer
    {
        QString kept;
        QString added;
        QStringList conditions;
    };

    void addOuter(const AccessQuery::Row &row)
    {
        const bool keepsLeft = row.flag == LeftJoin;
        const QString kept = keepsLeft ? row.name1 : row.name2;
        const QString added = keepsLeft ? row.name2 : row.name1;
        const auto known = std::find_if(m_outer.begin(), m_outer.end(),
                                        [&](const Outer &outer) { return outer.added == added; });
        if (known == m_outer.end())
            m_outer.push_back({kept, added, {row.expression}});
        else if (known->kept == kept)
            known->conditions += row.expression;
        else
            m_isUnderstood = false;
    }

    QString written(const QString &alias) const
    {
        for (const AccessQuery::Row &table : m_tables) {
            if (aliasOf(table) != alias)
                continue;
            const QString what =
                table.name1.isEmpty() ? u'(' + table.expression + u')' : inBrackets(table.name1);
            return alias == table.name1 ? what : what + " AS "_L1 + inBrackets(alias);
        }
        return {};
    }

    void place()
    {
        QSet<QString> placed;
        QStringList needed;
        for (const AccessQuery::Row &table : m_tables) {
            const QString alias = aliasOf(table);
            const bool isAdded = std::any_of(m_outer.begin(), m_outer.end(),
                                             [&](const Outer &outer) { return outer.added == alias; });
            if (isAdded)
                continue;
            needed += written(alias);
            placed.insert(alias);
        }
        m_from = needed.join(u", "_s);
        // A condition on an outer-joined table would drop the records without a match, either before or after
        // the join, depending on how Access nested it.
        m_isUnderstood = m_isUnderstood && (m_outer.empty() || m_conditions.isEmpty());
        while (!m_outer.empty()) {
            const auto next = std::find_if(m_outer.begin(), m_outer.end(),
                                           [&](const Outer &outer) { return placed.contains(outer.kept); });
            if (next == m_outer.end()) {
                m_isUnderstood = false;
                return;
            }
            m_from += " LEFT JOIN "_L1 + written(next->added) + " ON "_L1 + next->conditions.join(" AND "_L1);
            placed.insert(next->added);
            m_outer.erase(next);
        }
    }

    std::vector<AccessQuery::Row> m_tables;
    std::vector<Outer> m_outer;
    QStringList m_conditions;
    QString m_from;
    bool m_isUnderstood = true;
};

QString orderOf(const AccessQuery &query)
{
    QStringList terms;
    for (const AccessQuery::Row &row : partsOf(query, AccessQuery::OrderRow))
        terms +=
            row.expression + (row.name1.compare("D"_L1, Qt::CaseInsensitive) == 0 ? u" DESC"_s : QString());
    return clause("ORDER BY"_L1, terms);
}

QStringList columnsOf(const AccessQuery &query, qint64 options)
{
    QStringList columns;
    for (const AccessQuery::Row &row : partsOf(query, AccessQuery::ColumnRow))
        columns += row.name1.isEmpty() ? row.expression : row.expression + " AS "_L1 + inBrackets(row.name1);
    if (columns.isEmpty() || options & AllFields)
        columns += u"*"_s;
    return columns;
}

QString unionOf(const AccessQuery &query, qint64 options)
{
    const QStringList parts = expressionsOf(partsOf(query, AccessQuery::TableRow));
    return parts.join(options & Distinct ? " UNION "_L1 : " UNION ALL "_L1) + orderOf(query);
}

} // namespace

QString AccessQuery::select() const
{
    qint64 kind = SelectKind;
    qint64 options = 0;
    QString count;
    for (const Row &row : rows) {
        if (row.attribute == KindRow)
            kind = row.flag;
        if (row.attribute == ParameterRow)
            return {};
        if (row.attribute == OptionRow) {
            options = row.flag;
            count = row.name1;
        }
    }
    if (kind == UnionKind)
        return unionOf(*this, options);
    const Source source(*this);
    if (kind != SelectKind || !source.isUnderstood())
        return {};

    QString sql = u"SELECT "_s;
    if (options & Distinct)
        sql += "DISTINCT "_L1;
    else if (options & DistinctRow)
        sql += "DISTINCTROW "_L1;
    if (options & Top)
        sql += "TOP "_L1 + count + (options & TopPercent ? " PERCENT "_L1 : " "_L1);
    sql += columnsOf(*this, options).join(u", "_s) + " FROM "_L1 + source.from();
    QStringList conditions = source.conditions() + expressionsOf(partsOf(*this, WhereRow));
    for (QString &condition : conditions)
        condition = u'(' + condition + u')';
    if (!conditions.isEmpty())
        sql += " WHERE "_L1 + conditions.join(" AND "_L1);
    sql += clause("GROUP BY"_L1, expressionsOf(partsOf(*this, GroupRow)));
    sql += clause("HAVING"_L1, expressionsOf(partsOf(*this, HavingRow)));
    return sql + orderOf(*this);
}

} // namespace ADODB
