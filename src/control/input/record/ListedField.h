#pragma once

#include "ado/values/DisplayFormat.h"

#include <QtGui/QImage>

namespace KOVAVSFDataGridLib {

// A row of the list of a single record.
struct ListedField
{
    int field = 0;           // 0-based
    bool isRequired = false; // it can be written, and takes no Null
    bool isBinary = false;
    ADODB::DisplayFormat format = {}; // of the value
    QImage picture = {};              // of a binary value that is one
};

} // namespace KOVAVSFDataGridLib
