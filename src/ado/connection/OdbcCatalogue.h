#pragma once

#include "../../KovaExport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

// What this machine's ODBC driver manager has to offer. Both answers are empty where nothing is installed or
// the driver manager fails; neither throws.
namespace ADODB {

struct OdbcDataSource
{
    QString name;   // as `DSN=` takes it
    QString driver; // the name or, on Unix, also the path of its driver
};

// The names that `Driver=` takes, in alphabetical order.
KOVA_EXPORT QStringList odbcDrivers();
// The data sources of this user and of the system, in alphabetical order.
KOVA_EXPORT std::vector<OdbcDataSource> odbcDataSources();

} // namespace ADODB
