#pragma once

#include "sql/AllDBType.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace KOVAVSFDataGridLib {

struct ParseFailure
{
    QString source;
    QString description;
};

// The result of parsing the last statements.
struct ParsedStatements
{
    // Sets strSQLTable and colSQLFields. A text that is not a SELECT changes neither; a "*" after the last
    // comma adds no name. Except for Oracle, the condition and the brackets around each name are removed
    // first. On failure (FROM is missing or too early) colSQLFields is unchanged, strSQLTable is already set,
    // and a message for developers is returned.
    std::optional<ParseFailure> ParseSQLFieldList(const QString &statement, AllDBType database);
    void ClearSQLFieldList();

    // Sets colSelFields to the names as written; a "*" is a name too. Throws
    // std::invalid_argument if FROM is missing (colSelFields is unchanged)
    // or the list ends in a comma (the names before it are kept).
    void ParseSelFieldList(const QString &statement);

    QString strSQLTable;      // the FROM text of the last statement passed to ParseSQLFieldList
    QStringList colSQLFields; // its field names, in statement order
    QStringList colSelFields; // the field names of the last statement passed to ParseSelFieldList
};

} // namespace KOVAVSFDataGridLib
