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
};

struct SortTerm
{
    QString field;
    QString orderWord; // QueryTexts::Ascending() or Descending()
};

// The checked names, comma-separated; a name with a blank or "(" gets brackets unless it begins or ends with
// one.
QString ComposeFieldList(const QList<ListedField> &rows);

// For each row, whether a part field is the row's name, plain, in brackets or in double quotes.
QList<bool> SetListFieldCheck(const QStringList &rowTexts, const QStringList &partFields);

// A term is descending when " DESC" occurs in it, in any case; the field is what stands before.
SortTerm SplitSortTerm(const QString &term);

// The terms, comma-separated; ascending ones get no keyword.
QString ComposeSortList(const QList<SortTerm> &terms);

} // namespace KOVAVSFDataGridLib
