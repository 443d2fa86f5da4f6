#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// What a column's heading shows beside its text.
struct HeadingMark
{
    int sortPlace = 0; // its number in the sort order of the rows, from 1; 0 if it isn't sorted by
    bool isDescending = false;
    bool isFiltered = false;
    QString spoken = {}; // all this in words, for a screen reader

    bool isEmpty() const { return sortPlace == 0 && !isFiltered; }
    bool operator==(const HeadingMark &) const = default;
};

} // namespace KOVAVSFDataGridLib
