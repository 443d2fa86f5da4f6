#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

// What the dialogs for choosing fields and a sort write and read.
namespace KOVAVSFDataGridLib {

struct ListedField
{
    QString name;
    bool isChecked = false;
    QString written = {}; // as statements write it, where that is known
};

struct SortTerm
{
    QString field;
    QString orderWord; // QueryTexts::Ascending or Descending
};

// The checked names, comma-separated, as they are written; one of which that isn't known gets brackets when
// it has a blank or "(", unless it begins or ends with a bracket.
QString composeFieldList(const QList<ListedField> &rows);

// For each row, whether a part field is the row's name, plain, in brackets or in double quotes.
QList<bool> SetListFieldCheck(const QStringList &rowTexts, const QStringList &partFields);

// A term is descending when " DESC" occurs in it, in any case; the field is what stands before.
SortTerm splitSortTerm(const QString &term);

// The terms, comma-separated; ascending ones get no keyword.
QString composeSortList(const QList<SortTerm> &terms);

} // namespace KOVAVSFDataGridLib
