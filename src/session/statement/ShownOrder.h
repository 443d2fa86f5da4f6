#pragma once

#include <QtCore/QString>

#include <vector>

namespace KOVAVSFDataGridLib {

class Session;

// One term of the sort that the shown records are in.
struct SortTerm
{
    int column = 0; // from 1; 0 when it sorts by no column
    QString text;   // as a sort of the records has it, with its direction; empty when none can
    bool isDescending = false;
};

// The sort of the open statement; nothing when it has none.
std::vector<SortTerm> shownOrder(Session &session);
// What a sort or a condition writes for a column; empty when it has no name of its own.
QString writtenColumn(Session &session, int col);
// Why it has none, for the user to read; empty when it has one.
QString whyNotWritten(Session &session, int col);

} // namespace KOVAVSFDataGridLib
