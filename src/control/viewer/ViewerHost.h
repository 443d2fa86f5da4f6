#pragma once

#include "session/ResultSet.h"

class QWidget;

namespace KOVAVSFDataGridLib {

// What the full-screen viewer asks of the control that opened it.
struct ViewerHost
{
    // Opens a statement in place of the one that is open, both in the control and for the viewer. When that
    // fails it throws ADODB::Error, and what was open still is.
    std::function<ResultSet::Opened(const QString &statement, const ResultSet::Progress &progress)> open;
    // Lets the user build a condition in a dialog above `parent`; an empty text when he cancels.
    std::function<QString(QWidget *parent)> askCondition;
};

} // namespace KOVAVSFDataGridLib
