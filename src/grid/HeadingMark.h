#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// What a column's heading shows beside its text.
struct HeadingMark
{
    int sortPlace = 0; // among the columns that the rows are sorted by, from 1; 0 for none
    bool isDescending = false;
    bool isFiltered = false;
    QString spoken = {}; // all this in words, for a screen reader

    bool isEmpty() const { return sortPlace == 0 && !isFiltered; }
    bool operator==(const HeadingMark &) const = default;
};

} // namespace KOVAVSFDataGridLib
