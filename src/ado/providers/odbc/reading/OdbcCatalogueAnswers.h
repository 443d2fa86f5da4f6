#pragma once

#include "ado/providers/odbc/OdbcApi.h"

#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace ADODB {

class OdbcConnection;

// The full name of a table. Empty parts are not asked for.
struct OdbcTableName
{
    QString catalog;
    QString schema;
    QString table;
};

// Calls a function of the catalogue with the text and the length of each part of the name.
template<typename Function>
SQLRETURN askFor(const OdbcTableName &name, const Function &function)
{
    const auto text = [](const QString &part) { return part.isEmpty() ? nullptr : wide(part); };
    const auto length = [](const QString &part) { return static_cast<SQLSMALLINT>(part.size()); };
    return function(text(name.catalog), length(name.catalog), text(name.schema), length(name.schema),
                    text(name.table), length(name.table));
}

// Asks the catalogue and calls `see` with each row's values in the wanted columns, which count from 1 and go
// up. What the driver does not answer, it does not know.
void forEachAnswer(const std::shared_ptr<OdbcConnection> &connection,
                   const std::function<SQLRETURN(SQLHSTMT)> &ask, const std::vector<int> &wanted,
                   const std::function<void(const QStringList &)> &see);

// As the database keeps a name that is written without quotes.
QString storedName(const QString &name, bool quoted, SQLUSMALLINT identifierCase);

} // namespace ADODB
