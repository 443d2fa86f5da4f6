#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

// Conditions and clauses for which the engines have words of their own.
namespace KOVAVSFDataGridLib {

// A Boolean field that has this value.
QString isTrue(const Dialect &dialect, const QString &field, bool wanted);

// A text field that holds no character, or some.
QString isEmptyText(const Dialect &dialect, const QString &field);
QString isNotEmptyText(const Dialect &dialect, const QString &field);

// A condition that the value of a number field is a number, where the engine keeps texts in it as well, which
// it takes for larger than any number. Empty where it keeps none.
QString beforeTexts(const Dialect &dialect, const QString &field);

// Whether WHERE can name a field of the list by its alias.
bool readsAliasesInConditions(Engine engine);

// The words of a SELECT that is to give its first records only. Each has the blank that keeps it apart.
struct RowLimit
{
    QString beforeList;
    QString behindSort;
};
RowLimit rowLimit(const Dialect &dialect, int count);
// The same for a SELECT without a sort.
RowLimit rowLimitWithoutSort(const Dialect &dialect, int count);

// What follows the closing bracket of a SELECT that is selected from, with the blank before it.
QString innerTableAlias(const Dialect &dialect, const QString &name);

// Whether such a SELECT may be sorted where it isn't limited.
bool takesInnerSort(const Dialect &dialect);

} // namespace KOVAVSFDataGridLib
