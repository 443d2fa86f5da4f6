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

// What follows ORDER BY and its list so that at most `count` rows are read.
QString rowLimit(const Dialect &dialect, int count);

} // namespace KOVAVSFDataGridLib
