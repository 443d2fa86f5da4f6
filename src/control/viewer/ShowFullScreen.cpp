#include "control/viewer/ShowFullScreen.h"

#include "ado/Adodc.h"
#include "ado/Error.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "control/parts/GridParts.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "control/viewer/frm_FullScreen.h"
#include "grid/FlexGrid.h"
#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/CommandKeys.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ColumnLayout.h"
#include "session/layout/ShownColumns.h"
#include "session/pages/Pages.h"
#include "session/statement/ShownStatement.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QPushButton>

namespace KOVAVSFDataGridLib {

namespace {

bool isOffered(const GridToolbar &toolbar, const QString &key)
{
    return toolbar.isButtonEnabled(key) && toolbar.isButtonVisible(key);
}

// The time that the user spends in the viewer. It ends early if the host destroys the control, or opens or
// closes a result in it, because the lent result is then no longer valid. The viewer object still exists
// then, because one of its commands may have caused that.
class Visit
{
public:
    Visit(QWidget &control, Session &session, GridParts &parts, const AskCondition &askCondition);

    frm_FullScreen &viewer() { return m_viewer; }
    bool isOver() const { return m_isOver; }

private:
    void end();
    ResultSet::Opened open(const QString &statement, const ResultSet::Progress &progress);

    Session &m_session;
    bool m_isReplacing = false; // the viewer itself is replacing the result
    bool m_isOver = false;
    frm_FullScreen m_viewer;
};

Visit::Visit(QWidget &control, Session &session, GridParts &parts, const AskCondition &askCondition)
    : m_session(session),
      m_viewer({[this](const QString &statement, const ResultSet::Progress &progress) {
                    return open(statement, progress);
                },
                askCondition},
               parts.picMainBack)
{
    QObject::connect(parts.Adodc1, &ADODB::Adodc::RecordsetChangeComplete, &m_viewer, [this] {
        if (!m_isReplacing)
            end();
    });
    // Emitted before the control deletes its children; the viewer must not be one of them then.
    QObject::connect(&control, &QObject::destroyed, &m_viewer, [this] {
        end();
        m_viewer.setParent(nullptr, m_viewer.windowFlags());
    });
}

void Visit::end()
{
    m_isOver = true;
    m_viewer.ClearRefObject();
    for (QDialog *dialog : m_viewer.findChildren<QDialog *>())
        dialog->reject();
    m_viewer.reject();
}

// The control's own grid is updated immediately, because it reads its rows from the replaced result.
ResultSet::Opened Visit::open(const QString &statement, const ResultSet::Progress &progress)
{
    auto opened =
        ResultSet::open(m_session.texts.connectionString, statement, m_session.filterManager().DBType(),
                        [&](qint64 rowsRead, const ADODB::Recordset &opening) {
                            return progress(rowsRead, opening) && !m_isOver;
                        });
    if (!m_isOver) {
        const QScopedValueRollback<bool> replacing(m_isReplacing, true);
        if (!m_session.shown().replaceResult(opened) && !m_isOver)
            end();
    }
    if (m_isOver)
        throw ADODB::Error(ADODB::dbErrCancelled, {});
    return opened;
}

void adoptState(Session &session, GridParts &parts, const frm_FullScreen &viewer, bool wasAll)
{
    const ADODB::Notifications::Hold hold(session.notifications());
    parts.Toolbar1->setEnabled(true);
    parts.cmdPgae->setEnabled(true);
    session.fields().setView(viewer.IsAll() ? FieldView::All : FieldView::Part);
    const bool isPageTurned = viewer.GetPageIndex() != session.pages().current();
    if (isPageTurned)
        session.pages().showPage(viewer.GetPageIndex());
    if (viewer.IsRequeried() || viewer.IsAll() != wasAll || (isPageTurned && !viewer.IsAll()))
        session.fields().layOut();
    session.shown().setText(viewer.CurrentSQL());
    if (viewer.IsRequeried())
        session.shown().writeFilter(viewer.CurrentSQL());
}

} // namespace

bool ShowFullScreen(QWidget &control, Session &session, GridParts &parts, const AskCondition &askCondition)
{
    if (!session.result().hasRecords())
        return false;
    if (session.window().isSingleRecordShown())
        session.window().showAllRecords();
    const GridToolbar &toolbar = *parts.Toolbar1;
    const bool wasAll = toolbar.isButtonPressed(CommandKeys::All);
    session.columns().SaveColumnWidths(); // the viewer starts with the current widths

    Visit visit(control, session, parts, askCondition);
    frm_FullScreen &viewer = visit.viewer();
    viewer.PutFilterManager(session.sharedHistory().manager());
    viewer.PutTrail(session.sharedHistory().sharedTrail());
    viewer.GetData(session.result().connection(), session.result().recordset(), session.pages().current(),
                   session.texts.connectionString, session.shown().text(), true, session.texts.sqlSort,
                   wasAll, isOffered(toolbar, CommandKeys::Filter), isOffered(toolbar, CommandKeys::Sort),
                   isOffered(toolbar, CommandKeys::ToFullTable));
    VSFlexGrid &shown = viewer.grid();
    shown.ArrangeColumns(parts.vsfgDataGrid->ColumnOrder(), parts.vsfgDataGrid->FrozenCols());
    viewer.exec();
    if (visit.isOver())
        return false;
    adoptState(session, parts, viewer, wasAll);
    parts.vsfgDataGrid->ArrangeColumns(shown.ColumnOrder(), shown.FrozenCols());
    viewer.ClearRefObject();
    return true;
}

} // namespace KOVAVSFDataGridLib
