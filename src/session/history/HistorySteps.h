#pragma once

#include "session/history/StatementTrail.h"

namespace KOVAVSFDataGridLib {

class Session;

// A statement that the user can go to.
struct HistoryStep
{
    int steps; // from what is shown: less than 0 back, more than 0 forward
    QString statement;
    std::optional<StatementTrail::Note> note;
};

// All of them and what is shown, the newest first.
std::vector<HistoryStep> historySteps(Session &session);

// Shows the statement that is so many steps back, which leaves the history as a single step back does, or
// forward, which brings back what steps back have removed from it. Both show many records again. Nothing
// happens when there is no such statement.
void goBack(Session &session, qsizetype steps);
void goToOrigin(Session &session);
void goForward(Session &session, qsizetype steps);

// Saves the current record and does either, as a command of the user's.
void goToStep(Session &session, int steps);

} // namespace KOVAVSFDataGridLib
