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

// What statements were last parsed into.
struct ParsedStatements
{
    // Fills strSQLTable and colSQLFields. A text that is no SELECT leaves both as they are; a "*" after the
    // last comma adds no name. Other databases than Oracle lose the condition first and the brackets around
    // each name. On failure (FROM missing, or too early) colSQLFields keeps its names, strSQLTable is already
    // the new one, and the answer is a message for the developer.
    std::optional<ParseFailure> ParseSQLFieldList(const QString &statement, AllDBType database);
    void ClearSQLFieldList();

    // Fills colSelFields with the names as written; a "*" is a name of its own. Throws std::invalid_argument
    // when FROM is missing (colSelFields keeps its names) or the list ends in a comma (the names before it
    // stay).
    void ParseSelFieldList(const QString &statement);

    QString strSQLTable;      // the FROM text of the statement last given to ParseSQLFieldList
    QStringList colSQLFields; // its field names, in statement order
    QStringList colSelFields; // the field names of the statement last given to ParseSelFieldList
};

} // namespace KOVAVSFDataGridLib
