#pragma once

#include "forms/widgets/TickBoxes.h"

namespace KOVAVSFDataGridLib {

class GridToolbar;
class Session;

// The statements that the user can go back and forward to, the newest first, as a drop-down of the button
// that goes back, and one step forward at its end. It is filled each time it opens.
class HistoryMenu final : public Menu
{
    Q_OBJECT

public:
    // All must outlive it; the toolbar owns it.
    HistoryMenu(GridToolbar &toolbar, Session &session);

    // Opens below the button, or below the toolbar if the button is not visible.
    void open();

private:
    void fill();
    void addForward();

    GridToolbar &m_toolbar;
    Session &m_session;
};

} // namespace KOVAVSFDataGridLib
