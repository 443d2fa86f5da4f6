#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

// Conditions and clauses that differ between engines.
namespace KOVAVSFDataGridLib {

// A condition that a Boolean field has this value.
QString isTrue(const Dialect &dialect, const QString &field, bool wanted);

// A condition that a text field is empty, or that it is not.
QString isEmptyText(const Dialect &dialect, const QString &field);
QString isNotEmptyText(const Dialect &dialect, const QString &field);

// A condition that excludes texts in a number field, for engines that allow them and sort them after all
// numbers. Empty for other engines.
QString beforeTexts(const Dialect &dialect, const QString &field);

// Whether WHERE can use a field's alias from the list.
bool readsAliasesInConditions(Engine engine);

// Whether an expression in ORDER BY can use one, which is then meant unless there is a column of that name. A
// term that is only an alias is taken by every engine.
bool readsAliasesInSortExpressions(Engine engine);

// The words that limit a SELECT to its first records. Each includes the space that separates it.
struct RowLimit
{
    QString beforeList;
    QString behindSort;
};
RowLimit rowLimit(const Dialect &dialect, int count);
// The same for a SELECT without a sort.
RowLimit rowLimitWithoutSort(const Dialect &dialect, int count);

// What follows the closing bracket of a derived table, including the space before it.
QString innerTableAlias(const Dialect &dialect, const QString &name);

// Whether a statement has the order of the derived table that it selects from. SQL Server refuses such an
// order, and MySQL loses it where a field is long or the table is large.
bool keepsInnerSort(const Dialect &dialect);

// Whether a field of a derived table has the name that its list gives it. SQLite, which also reads Access
// files, takes TRUE and FALSE for values and names the field by its place.
bool keepsNameInTable(const Dialect &dialect, const QString &name);

} // namespace KOVAVSFDataGridLib
