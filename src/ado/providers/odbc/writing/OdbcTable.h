#pragma once

#include "ado/FieldInfo.h"

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

// All columns of a table, as a statement for them was described, and the table's full name. Each way to the
// server is a wait, so what one statement has shown is not asked for again by the next one.
struct OdbcTableFields
{
    std::vector<FieldInfo> fields; // empty for what can't be read as a whole
    QString catalog;
    QString schema;
    std::chrono::steady_clock::time_point seen;

    static std::shared_ptr<const OdbcTableFields> of(const OdbcHandle &described,
                                                     const std::vector<FieldInfo> &fields);
    // What the session has seen a moment ago; null when it hasn't. Somebody may alter the table later.
    static std::shared_ptr<const OdbcTableFields> seenLately(OdbcConnection &connection,
                                                             const SimpleSelect &select);
};

// What the database's catalogue says about the table of a statement.
struct OdbcTable
{
    QString whyReadOnly; // what it is instead of a table; the rest is set only where this is empty
    QStringList columns;
    QStringList comparable; // those of them that can be compared with an equals sign
    // What tells a row from all others: the primary key, else a unique index without Nulls. Empty if there is
    // none.
    QStringList key;
    bool givesOrigins = false; // the driver tells which columns a statement's values come from
    bool isOrdinary = false;   // a table of the engine's own, kept where it keeps tables
    bool hasTransactions = true;

    static OdbcTable find(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                          const SimpleSelect &select);
};

} // namespace ADODB
