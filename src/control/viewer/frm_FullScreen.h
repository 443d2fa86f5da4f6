#pragma once

#include "control/viewer/ShowFullScreen.h"
#include "control/viewer/ViewerParts.h"
#include "control/viewer/ViewerWindow.h"
#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/Session.h"

#include <QtWidgets/QDialog>

#include <memory>

namespace KOVAVSFDataGridLib {

class PopupMenu;
class ResultFinder;
class StatementTrail;
class WindowCommands;
class clsFilterManagement;

// What the viewer asks of the control that opened it.
struct ViewerHost
{
    // Opens a statement in place of the one that is open, both in the control and for the viewer. When that
    // fails it throws ADODB::Error, and what was open still is.
    Session::Opener open;
    AskCondition askCondition;
};

// Shows a control's result on the whole screen, in a session of its own. It pages through the control's own
// recordset without ever moving it, and derives statements through the control's filter manager; only when
// the user asks for another statement is a new result opened, through the host. A command that fails leaves
// everything as it was.
//
// Set the filter manager, call GetData, exec(), read the results, then ClearRefObject.
class frm_FullScreen final : public QDialog
{
    Q_OBJECT

public:
    explicit frm_FullScreen(ViewerHost host, QWidget *parent = nullptr);
    ~frm_FullScreen() override;

    void PutFilterManager(std::shared_ptr<clsFilterManagement> manager);
    // What the user's way through that history has left.
    void PutTrail(std::shared_ptr<StatementTrail> trail);
    // Takes over what the control shows and shows it. Pages count from 1; `bUpdate` has no meaning. The
    // viewer opens with the row of the current record if the page has it.
    void GetData(const std::shared_ptr<ADODB::Connection> &newConnection,
                 const std::shared_ptr<ADODB::Recordset> &newTable, qint32 nCurPageIndex,
                 const QString &newConnectionString, const QString &NewSQL, bool bUpdate,
                 const QString &SortString, bool IsAll, bool bCanFilte, bool bCanSort, bool bCanFull);
    // Releases the filter manager; commands do nothing from then on, and one that is under way ends.
    void ClearRefObject();

    VSFlexGrid &grid() const { return *m_parts.vsfgShowData; }

    // The page shown, 0 when none is.
    qint32 GetPageIndex() const;
    bool IsAll() const;
    const QString &CurrentSQL() const;
    // Whether the host was asked for another result, and gave it.
    bool IsRequeried() const;

    // Shares the grid's width among its columns. Those hidden by the part-field view stay hidden.
    void SeeCompressView();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void fillScreen();
    void popUp(const QPoint &globalPosition, bool isOnCell, int col = 0);

    HostEvents m_noHost; // which hears of everything when the user has come back
    const std::unique_ptr<Questions> m_questions;
    const ViewerParts m_parts;
    ViewerWindow m_window;
    const std::shared_ptr<Session> m_session;
    const std::unique_ptr<WindowCommands> m_commands;
    PopupMenu *m_menu;
    const std::unique_ptr<ResultFinder> m_finder;
};

} // namespace KOVAVSFDataGridLib
