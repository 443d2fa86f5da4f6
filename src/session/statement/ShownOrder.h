#pragma once

#include <QtCore/QString>

#include <vector>

namespace KOVAVSFDataGridLib {

class Session;

// One term of the sort of the shown records.
struct SortTerm
{
    int column = 0; // from 1; 0 if it is not a column
    QString text;   // in the form for ORDER BY, with its direction; empty if there is none
    bool isDescending = false;
};

// The sort of the open statement; empty if it has none.
std::vector<SortTerm> shownOrder(Session &session);
// A column's name in sorts and conditions; empty if it has no unambiguous name.
QString writtenColumn(Session &session, int col);
// Why it has none, for the user to read; empty when it has one.
QString whyNotWritten(Session &session, int col);
// Why it can't be in a sort, for the user to read; empty when it can.
QString whyNotSorted(Session &session, int col);

} // namespace KOVAVSFDataGridLib
