#pragma once

#include "query/SharedValues.h"
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

// Fills strSQLTable and colSQLFields of the shared values. A text that is no SELECT leaves both as they are;
// a "*" behind the last comma adds no name. Other databases than Oracle lose the condition first and the
// brackets around each name. On failure (FROM missing, or too early) colSQLFields keeps its names,
// strSQLTable is already the new one, and the answer is what to tell the developer.
std::optional<ParseFailure> ParseSQLFieldList(const QString &statement, AllDBType database);

void ClearSQLFieldList();

// Fills colSelFields with the names as written; a "*" is a name of its own. Throws std::invalid_argument when
// FROM is missing (colSelFields keeps its names) or the list ends in a comma (the names before it stay).
void ParseSelFieldList(const QString &statement);

} // namespace KOVAVSFDataGridLib
