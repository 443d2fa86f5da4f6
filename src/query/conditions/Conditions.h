#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <span>

// The conditions that users build without writing SQL: the quick filter over all fields or one, and the
// filter on the selected cell.
namespace KOVAVSFDataGridLib {

struct TypedField
{
    QString name;                  // as the catalogue gives it
    std::optional<qint32> adoType; // nothing when nobody knows it
    QString written = {};          // what a condition writes for it; empty to have that made of the name
};

// The pieces before each separator, empty ones too, and what is left over if it isn't empty. With
// `keepsSeparator` each piece ends in its separator. A text without separator, or an empty separator, gives
// the text itself.
QStringList splitText(const QString &text, const QString &separator, bool keepsSeparator = false);

// "1" for numbers, "2" for texts, "3" for dates, "0" for everything else.
QString classifyFieldType(qint32 adoType);

// The text between FROM and WHERE, ORDER BY or the end, without blanks around it. The keywords are looked for
// in capitals, and in any case when there is no FROM in capitals; without any FROM the text is empty. Nothing
// when the condition or the sort stands before FROM.
std::optional<QString> GetTableOfSQL(const QString &strSQL);

// A condition that each word of the text ("%" stands between words) occurs in some field, as the engine can
// compare them. True with an empty condition when the text is empty. False, with the condition as it was,
// when there is nothing to search in: a word without any field that can be searched, an unknown database, for
// Access a type that nobody knows, or a statement that GetTableOfSQL can't read.
bool BuildLikeCondition(const QString &strText, std::span<const TypedField> fields, const QString &strSQL,
                        AllDBType database, QString &strCondition, const EngineMode &mode = {});
// The same in one field.
bool BuildLikeAllCondition(const QString &strText, const TypedField &field, const QString &strSQL,
                           AllDBType database, QString &strCondition, const EngineMode &mode = {});

// A condition that the field equals the cell's text, or what to tell the user instead. Both are empty when
// there is nothing to filter by.
struct CellFilter
{
    QString condition;
    QString message;
};

// `isComputed` says that the values don't come from a column, whose declared type says how they are stored.
// `cellText` is nothing for a Null value. An unknown type, or a field without a real name, gives an empty
// answer.
CellFilter buildCellFilter(const QString &realName, std::optional<qint32> adoType,
                           const std::optional<QString> &cellText, const EngineMode &mode = {},
                           bool isComputed = false);

} // namespace KOVAVSFDataGridLib
