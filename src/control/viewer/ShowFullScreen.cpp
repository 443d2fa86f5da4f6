#include "control/viewer/ShowFullScreen.h"

#include "ado/Adodc.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "control/parts/GridParts.h"
#include "control/parts/GridToolbar.h"
#include "control/parts/PageView.h"
#include "control/viewer/frm_FullScreen.h"
#include "grid/FlexGrid.h"
#include "query/clsFilterManagement.h"
#include "session/ColumnLayout.h"
#include "session/ResultSet.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QPushButton>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool isOffered(const GridToolbar &toolbar, const QString &key)
{
    return toolbar.isButtonEnabled(key) && toolbar.isButtonVisible(key);
}

// The user's stay in the viewer. It ends early when the host destroys the control, or opens or closes a
// result of it: what the control has lent is another's or gone from then on. The viewer itself is still
// there, as one of its commands may be what the host was told of.
class Visit
{
public:
    explicit Visit(const FullScreenRequest &control);

    frm_FullScreen &viewer() { return m_viewer; }
    bool isOver() const { return m_isOver; }

private:
    void end();
    ViewerHost::Opened open(const QString &statement, const std::function<bool(qint64)> &progress);
    bool replaceResult(const ResultSet::Opened &opened);

    const FullScreenRequest &m_control;
    bool m_isReplacing = false; // the viewer itself puts another result in its place
    bool m_isOver = false;
    frm_FullScreen m_viewer;
};

Visit::Visit(const FullScreenRequest &control)
    : m_control(control),
      m_viewer({[this](const QString &statement, const std::function<bool(qint64)> &progress) {
                    return open(statement, progress);
                },
                control.askCondition},
               control.parts.picMainBack)
{
    QObject::connect(control.parts.Adodc1, &ADODB::Adodc::RecordsetChangeComplete, &m_viewer, [this] {
        if (!m_isReplacing)
            end();
    });
    // Told before the control deletes its children, of which the viewer must be none then.
    QObject::connect(&control.owner, &QObject::destroyed, &m_viewer, [this] {
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

// The control's own grid goes along at once, because its rows are read from the result that was replaced.
ViewerHost::Opened Visit::open(const QString &statement, const std::function<bool(qint64)> &progress)
{
    const auto opened = ResultSet::open(m_control.connectionString, statement, m_control.dbType,
                                        [&](qint64 rowsRead) { return progress(rowsRead) && !m_isOver; });
    if (!m_isOver && !replaceResult(opened) && !m_isOver)
        end();
    if (m_isOver)
        throw ADODB::Error(ADODB::dbErrCancelled, {});
    m_control.parts.vsfgDataGrid->ResetColWidths();
    m_control.pages.setCurrentPage(1);
    m_control.pages.fill(m_control.pictureField);
    return {opened.connection, opened.recordset};
}

// False when the host, told of it, has put something else in the result's place or destroyed the control.
bool Visit::replaceResult(const ResultSet::Opened &opened)
{
    const QScopedValueRollback<bool> replacing(m_isReplacing, true);
    ResultSet &result = m_control.result;
    result.close();
    if (m_isOver || result.isOpen())
        return false;
    result.replaceBy(opened);
    return !m_isOver && result.recordset() == opened.recordset && result.isOpen();
}

void layOutColumns(const FullScreenRequest &control, bool isAll)
{
    ColumnLayout columns(*control.parts.vsfgDataGrid, control.filter->SQLManager());
    if (isAll)
        columns.ShowAllFieldColumns();
    else
        columns.ShowPartFieldColumns(1);
}

void takeOver(const FullScreenRequest &control, const frm_FullScreen &viewer, bool wasAll)
{
    GridToolbar &toolbar = *control.parts.Toolbar1;
    toolbar.setEnabled(true);
    control.parts.cmdPgae->setEnabled(true);
    toolbar.setButtonPressed(viewer.IsAll() ? u"All"_s : u"Part"_s, true);

    const bool isPageTurned = viewer.GetPageIndex() != control.pages.currentPage();
    if (isPageTurned) {
        control.pages.setCurrentPage(viewer.GetPageIndex());
        control.pages.fill(control.pictureField);
    }
    if (viewer.IsRequeried() || viewer.IsAll() != wasAll || (isPageTurned && !viewer.IsAll()))
        layOutColumns(control, viewer.IsAll());
}

} // namespace

std::optional<FullScreenOutcome> ShowFullScreen(const FullScreenRequest &control)
{
    if (!control.result.isOpen() || control.result.recordset()->RecordCount() == 0)
        return std::nullopt;
    const GridToolbar &toolbar = *control.parts.Toolbar1;
    const bool wasAll = toolbar.isButtonPressed(u"All"_s);
    // The viewer opens with the widths that the user sees.
    ColumnLayout(*control.parts.vsfgDataGrid, control.filter->SQLManager()).SaveColumnWidths(0);

    Visit visit(control);
    frm_FullScreen &viewer = visit.viewer();
    viewer.PutFilterManager(control.filter);
    viewer.GetData(control.result.connection(), control.result.recordset(), control.pages.currentPage(),
                   control.connectionString, control.statement, true, control.sqlSort, wasAll,
                   isOffered(toolbar, u"Filter"_s), isOffered(toolbar, u"Sort"_s),
                   isOffered(toolbar, u"ToFullTable"_s));
    viewer.exec();
    if (visit.isOver())
        return std::nullopt;

    takeOver(control, viewer, wasAll);
    viewer.ClearRefObject();
    return FullScreenOutcome{viewer.IsAll(), viewer.IsRequeried(), viewer.CurrentSQL()};
}

} // namespace KOVAVSFDataGridLib
