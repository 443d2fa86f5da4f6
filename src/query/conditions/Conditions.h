#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <span>

// Builds the conditions that users create without writing SQL: the quick filter over all fields or one, and
// the filter by the selected cell.
namespace KOVAVSFDataGridLib {

struct TypedField
{
    QString name;                  // as in the catalogue
    std::optional<qint32> adoType; // empty if unknown
    QString written = {};          // its name in conditions; if empty, it is derived from `name`
};

// Splits a text at each separator. Empty pieces are kept, except at the
// end. With `keepsSeparator`, each piece includes its separator. If there
// is no separator in the text, or it is empty, returns the whole text.
QStringList splitText(const QString &text, const QString &separator, bool keepsSeparator = false);

// "1" for numbers, "2" for texts, "3" for dates, "0" for everything else.
QString classifyFieldType(qint32 adoType);

// The trimmed text between FROM and WHERE, ORDER BY or the end. The keywords must be in upper case, or can be
// in any case if there is no FROM in upper case. An empty text if there is no FROM. No value if the condition
// or the sort precedes FROM.
std::optional<QString> GetTableOfSQL(const QString &strSQL);

// A condition that each word of the text ("%" separates words) occurs in some field, for fields that the
// engine can compare. True with an empty condition if the text is empty. False, with the condition unchanged,
// if it can't be built: no field can be searched for a word, the database is unknown, for Access a type is
// unknown, or GetTableOfSQL can't read the statement.
bool BuildLikeCondition(const QString &strText, std::span<const TypedField> fields, const QString &strSQL,
                        AllDBType database, QString &strCondition, const EngineMode &mode = {});
// The same for a single field.
bool BuildLikeAllCondition(const QString &strText, const TypedField &field, const QString &strSQL,
                           AllDBType database, QString &strCondition, const EngineMode &mode = {});

// A condition that the field equals the cell's text, or a message for the user. Both are empty if there is
// nothing to filter by.
struct CellFilter
{
    QString condition;
    QString message;
};

// `isComputed`: the values don't come from a column, so no declared type
// says how they are stored. `cellText` is empty for a Null value. The
// result is empty if the type is unknown or the field has no real name.
CellFilter buildCellFilter(const QString &realName, std::optional<qint32> adoType,
                           const std::optional<QString> &cellText, const EngineMode &mode = {},
                           bool isComputed = false);

} // namespace KOVAVSFDataGridLib
