#pragma once

#include "ado/FieldInfo.h"
#include "ado/providers/odbc/reading/OdbcCatalogueAnswers.h"

#include <QtCore/QStringList>

#include <chrono>
#include <memory>
#include <vector>

namespace KOVAVSFDataGridLib {
struct SimpleSelect;
}

namespace ADODB {

using KOVAVSFDataGridLib::SimpleSelect;

class OdbcConnection;
class OdbcHandle;
struct OdbcEngine;

// The full name of a table, and all its columns as a statement for them described them. It is cached because
// each query to the server costs a round trip.
struct OdbcTableFields
{
    std::vector<FieldInfo> fields; // empty if the table can't be read as a whole
    QString catalog;
    QString schema;
    std::chrono::steady_clock::time_point seen;

    static std::shared_ptr<const OdbcTableFields> of(const OdbcHandle &described,
                                                     const std::vector<FieldInfo> &fields);
    // From the session's cache, if it is recent; otherwise null. Others may alter the table later.
    static std::shared_ptr<const OdbcTableFields> seenLately(OdbcConnection &connection,
                                                             const SimpleSelect &select);
};

// The catalogue's data for the table of a statement.
struct OdbcTable
{
    QString whyReadOnly; // for every statement that reads it; the rest may be missing then
    OdbcTableName fullName;
    QStringList columns;
    QStringList comparable; // those columns that can be compared with =
    // The columns that identify a row: the primary key, or else a unique index without Nulls. Empty if there
    // is neither.
    QStringList key;
    bool givesOrigins = false; // whether the driver tells which columns a statement's values come from
    bool isOrdinary = false;   // an ordinary table, not for example a foreign one
    bool hasTransactions = true;

    static OdbcTable find(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                          const SimpleSelect &select);
    // For MariaDB and MySQL: whether changes of the table can be undone; false if the server lists no such
    // table. If `held` is its name in a statement, nobody can alter it until the transaction ends.
    static bool isTransactional(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                                const OdbcTableName &name, const QString &held, int timeout);
};

} // namespace ADODB
