#include "filter/conditions/ValueStatements.h"

#include "sql/Like.h"
#include "sql/Literals.h"
#include "sql/Predicates.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString valueOf(const Dialect &dialect, const FilterField &field)
{
    return hasDays(field.fieldClass) ? dayValue(dialect, field.written) : field.written;
}

} // namespace

ValueStatements::ValueStatements(const Dialect &dialect, const FilterField &field, FilterSql::Records records,
                                 const QString &search)
    : m_dialect(dialect), m_records(std::move(records)), m_value(valueOf(dialect, field))
{
    if (field.fieldClass == FieldClass::Text) {
        m_hasValue = isNotEmptyText(m_dialect, field.written);
        m_isEmpty = isEmptyText(m_dialect, field.written);
    } else {
        m_hasValue = field.written + " IS NOT NULL"_L1;
        m_isEmpty = field.written + " IS NULL"_L1;
    }
    if (!search.isEmpty())
        m_hasValue += " AND "_L1 + like(m_dialect, m_value, search, Anchor::None);
}

QString ValueStatements::from(const QString &condition) const
{
    const QString restricted =
        m_records.condition.isEmpty() ? QString() : u'(' + m_records.condition + ") AND "_L1;
    return " FROM "_L1 + m_records.source + " WHERE "_L1 + restricted + condition;
}

QString ValueStatements::counted(int count) const
{
    const RowLimit limit = rowLimit(m_dialect, count);
    return "SELECT "_L1 + limit.beforeList + m_value + " AS kova_value, COUNT(*) AS kova_count"_L1 +
           from(m_hasValue) + " GROUP BY "_L1 + m_value + " ORDER BY "_L1 + m_value + limit.behindSort;
}

QString ValueStatements::sample(int count) const
{
    constexpr int records = 10000;
    return FilterSql::distinctOfFirst(m_dialect, m_value, from(m_hasValue), count, records);
}

QString ValueStatements::countOfValues() const
{
    return "SELECT COUNT(DISTINCT "_L1 + m_value + u')' + from(m_hasValue);
}

QString ValueStatements::countOfEmpty() const
{
    return "SELECT COUNT(*)"_L1 + from(m_isEmpty);
}

} // namespace KOVAVSFDataGridLib
