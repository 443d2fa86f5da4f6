#pragma once

#include "ado/connection/TableColumn.h"

#include <QtCore/QStringList>

#include <memory>

namespace ADODB {

class OdbcConnection;
struct OdbcEngine;

// See Session::filledColumns.
QStringList odbcFilledColumns(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                              const TableColumn &table);

} // namespace ADODB
