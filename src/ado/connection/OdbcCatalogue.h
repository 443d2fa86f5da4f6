#pragma once

#include "../../KovaExport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

// The ODBC drivers and data sources of this machine. Both functions return an empty list if nothing is
// installed or the driver manager fails. They never throw.
namespace ADODB {

struct OdbcDataSource
{
    QString name;   // as used in `DSN=`
    QString driver; // the driver's name, or on Unix possibly its path
};

// The names for `Driver=`, in alphabetical order.
KOVA_EXPORT QStringList odbcDrivers();
// The data sources of this user and of the system, in alphabetical order.
KOVA_EXPORT std::vector<OdbcDataSource> odbcDataSources();

} // namespace ADODB
