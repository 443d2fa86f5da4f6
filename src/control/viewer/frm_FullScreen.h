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

// What the viewer needs from the control that opened it.
struct ViewerHost
{
    // Opens a statement instead of the open one, both in the control and for the viewer. If that fails,
    // throws ADODB::Error, and the previous result stays open.
    Session::Opener open;
    AskCondition askCondition;
};

// Shows a control's result in full screen, in a separate session. It pages through the control's own
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
    // The user's trail through that history.
    void PutTrail(std::shared_ptr<StatementTrail> trail);
    // Shows what the control shows. Pages are numbered from 1; `bUpdate` is ignored. The viewer starts in the
    // row of the current record if the page contains it.
    void GetData(const std::shared_ptr<ADODB::Connection> &newConnection,
                 const std::shared_ptr<ADODB::Recordset> &newTable, qint32 nCurPageIndex,
                 const QString &newConnectionString, const QString &NewSQL, bool bUpdate,
                 const QString &SortString, bool IsAll, bool bCanFilte, bool bCanSort, bool bCanFull);
    // Releases the filter manager. Commands do nothing afterwards, and a running one ends.
    void ClearRefObject();

    VSFlexGrid &grid() const { return *m_parts.vsfgShowData; }

    // The shown page, 0 if there is none.
    qint32 GetPageIndex() const;
    bool IsAll() const;
    const QString &CurrentSQL() const;
    // Whether the host was asked for another result and provided it.
    bool IsRequeried() const;

    // Divides the grid's width equally among its columns. Those hidden by the part-field view stay hidden.
    void SeeCompressView();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void fillScreen();
    void popUp(const QPoint &globalPosition, bool isOnCell, int col = 0);

    HostEvents m_noHost; // the host is notified only after the user has come back
    const std::unique_ptr<Questions> m_questions;
    const ViewerParts m_parts;
    ViewerWindow m_window;
    const std::shared_ptr<Session> m_session;
    const std::unique_ptr<WindowCommands> m_commands;
    PopupMenu *m_menu;
    const std::unique_ptr<ResultFinder> m_finder;
};

} // namespace KOVAVSFDataGridLib
