#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// A condition in force that the next one replaces, unless the user keeps it.
struct ConditionInForce
{
    QString text; // as statements have it
    // What it was made from, as whoever was asked for it wrote that; empty where nobody was.
    QString built = {};
    QString field = {}; // the column whose values were chosen, as statements write it; empty for others
};

} // namespace KOVAVSFDataGridLib
