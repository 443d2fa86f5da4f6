#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

// The texts that the dialogs for choosing fields and a sort write and read.
namespace KOVAVSFDataGridLib {

struct ListedField
{
    QString name;
    bool isChecked = false;
    QString written = {}; // its form in statements, if known
};

struct SortTerm
{
    QString field;
    QString orderWord; // QueryTexts::Ascending or Descending
};

// The checked names in their form for SQL, separated by commas. A name without a known form gets brackets if
// it contains a space or "(", unless it begins or ends with a bracket.
QString composeFieldList(const QList<ListedField> &rows);

// For each row, whether its name is a part field, written plain, in brackets or in double quotes.
QList<bool> SetListFieldCheck(const QStringList &rowTexts, const QStringList &partFields);

// A term is descending if it contains " DESC" in any case; the field is the text before that.
SortTerm splitSortTerm(const QString &term);

// The terms, separated by commas. Ascending terms have no keyword.
QString composeSortList(const QList<SortTerm> &terms);

} // namespace KOVAVSFDataGridLib
