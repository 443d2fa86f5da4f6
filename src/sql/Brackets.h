#pragma once

#include <QtCore/QString>

// Brackets around names, as Access uses them, for lists written by hosts and dialogs, where the engine's
// quoting is not considered. The name inside is unchanged; nothing is doubled.
namespace KOVAVSFDataGridLib {

// [name]
QString inBrackets(const QString &name);
// [T].[Name] for T.Name
QString partsInBrackets(const QString &name);

// Whether it begins or ends with a bracket.
bool hasBracket(const QString &name);
// Whether it contains anything that makes it more than a name, such as an operator, quotes or an alias. Such
// a text must not be put in brackets, and brackets can't be nested.
bool isMoreThanAName(const QString &field);

// Removes one "[" at the start and one "]" at the end, if present.
QString withoutBrackets(QString name);
// Removes the brackets around a whole name, unless it would look like an expression without them.
QString withoutSpareBrackets(const QString &name);

} // namespace KOVAVSFDataGridLib
