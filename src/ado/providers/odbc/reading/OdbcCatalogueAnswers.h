#pragma once

#include "ado/providers/odbc/OdbcApi.h"

#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace ADODB {

class OdbcConnection;

// The full name of a table. Empty parts match anything.
struct OdbcTableName
{
    QString catalog;
    QString schema;
    QString table;
};

// Calls a catalogue function with the text and the length of each part of the name.
template<typename Function>
SQLRETURN askFor(const OdbcTableName &name, const Function &function)
{
    const auto text = [](const QString &part) { return part.isEmpty() ? nullptr : wide(part); };
    const auto length = [](const QString &part) { return static_cast<SQLSMALLINT>(part.size()); };
    return function(text(name.catalog), length(name.catalog), text(name.schema), length(name.schema),
                    text(name.table), length(name.table));
}

// Runs a catalogue query and calls `see` for each row with the values of the given columns, numbered from 1
// in ascending order. A function that the driver does not support returns no rows.
void forEachAnswer(const std::shared_ptr<OdbcConnection> &connection,
                   const std::function<SQLRETURN(SQLHSTMT)> &ask, const std::vector<int> &wanted,
                   const std::function<void(const QStringList &)> &see);

// The form in which the database stores a name that is written without quotes.
QString storedName(const QString &name, bool quoted, SQLUSMALLINT identifierCase);

} // namespace ADODB
