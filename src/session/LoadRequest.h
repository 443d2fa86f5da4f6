#pragma once

#include "query/StatementSource.h"

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// What the host wants to load, from the properties of its control.
struct LoadRequest
{
    QString connectionString;
    QString sqlShow;
    QString sqlPartDisplay;
    QString sqlFilter;
    QString sqlSort;
    QString passQurryFilter;
    QString picField;
    QString recordSource;
    StatementSource tableType = FromTable;
};

} // namespace KOVAVSFDataGridLib
