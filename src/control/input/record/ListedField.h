#pragma once

#include "ado/values/DisplayFormat.h"

#include <QtGui/QImage>

namespace KOVAVSFDataGridLib {

// A row of the single-record list.
struct ListedField
{
    int field = 0;           // 0-based
    bool isRequired = false; // it can be written, but not with Null
    bool isBinary = false;
    ADODB::DisplayFormat format = {}; // of the value
    QImage picture = {};              // of a binary value that is a picture
};

} // namespace KOVAVSFDataGridLib
