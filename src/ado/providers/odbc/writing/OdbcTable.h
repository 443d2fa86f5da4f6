#pragma once

#include "ado/FieldInfo.h"

#include <QtCore/QStringList>

#include <memory>
#include <vector>

namespace KOVAVSFDataGridLib {
struct SimpleSelect;
}

namespace ADODB {

using KOVAVSFDataGridLib::SimpleSelect;

class OdbcConnection;
struct OdbcEngine;

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
