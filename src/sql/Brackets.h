#pragma once

#include <QtCore/QString>

// The brackets of Access's names in the lists that hosts and dialogs write, where no engine is asked how it
// quotes. The name inside is as it is: nothing in it is doubled.
namespace KOVAVSFDataGridLib {

// [name]
QString inBrackets(const QString &name);
// [T].[Name] for T.Name
QString partsInBrackets(const QString &name);

// Whether it begins or ends with a bracket.
bool hasBracket(const QString &name);
// Whether it holds what makes it more than one name, such as an operator, quotes or an alias. Brackets would
// make a strange name of that, and can't stand around other brackets.
bool isMoreThanAName(const QString &field);

// Without one "[" at its begin and one "]" at its end, whichever is there.
QString withoutBrackets(QString name);
// Without the brackets around a whole name that needs none to be told from an expression.
QString withoutSpareBrackets(const QString &name);

} // namespace KOVAVSFDataGridLib
