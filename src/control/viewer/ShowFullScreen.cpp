#include "control/viewer/ShowFullScreen.h"

#include "ado/Adodc.h"
#include "ado/Recordset.h"
#include "control/ColumnLayout.h"
#include "control/GridParts.h"
#include "control/GridToolbar.h"
#include "control/PageView.h"
#include "control/ResultSet.h"
#include "control/viewer/frm_FullScreen.h"
#include "grid/FlexGrid.h"
#include "query/clsFilterManagement.h"

#include <QtCore/QPointer>
#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QPushButton>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool isOffered(const GridToolbar &toolbar, const QString &key)
{
    return toolbar.isButtonEnabled(key) && toolbar.isButtonVisible(key);
}

// What happens to the control's result while the viewer is shown.
struct Visit
{
    bool isOpening = false;  // the viewer itself puts another result in its place
    bool isObsolete = false; // the host has done so, or has closed it
};

// The control's own grid goes along at once, because its rows are read from the result that was replaced.
ViewerHost hostFor(const FullScreenRequest &control, Visit &visit)
{
    const auto open = [&control, &visit](const QString &statement,
                                         const std::function<bool(qint64)> &progress) {
        auto opened =
            ResultSet::open(control.connectionString, statement, control.dbType,
                            [&](qint64 rowsRead) { return progress(rowsRead) && !visit.isObsolete; });
        const QScopedValueRollback<bool> opening(visit.isOpening, true);
        control.result.replaceBy(std::move(opened));
        control.parts.vsfgDataGrid->ResetColWidths();
        control.pages.setCurrentPage(1);
        control.pages.fill(control.pictureField);
        return ViewerHost::Opened{control.result.connection(), control.result.recordset()};
    };
    return {open, control.askCondition};
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

    // On the heap, because a host that closes its window under the viewer destroys it as well.
    Visit visit;
    const QPointer<QWidget> owner = control.parts.picMainBack;
    auto *viewer = new frm_FullScreen(hostFor(control, visit), control.parts.picMainBack);
    const QPointer<frm_FullScreen> alive = viewer;
    // A host that reloads the control meanwhile, from a timer say, takes its result and its history away.
    QObject::connect(control.parts.Adodc1, &ADODB::Adodc::RecordsetChangeComplete, viewer, [&, viewer] {
        if (visit.isOpening)
            return;
        visit.isObsolete = true;
        viewer->ClearRefObject();
        viewer->reject();
    });
    viewer->PutFilterManager(control.filter);
    viewer->GetData(control.result.connection(), control.result.recordset(), control.pages.currentPage(),
                    control.connectionString, control.statement, true, control.sqlSort, wasAll,
                    isOffered(toolbar, u"Filter"_s), isOffered(toolbar, u"Sort"_s),
                    isOffered(toolbar, u"ToFullTable"_s));
    viewer->exec();
    if (!alive)
        return std::nullopt;
    const std::unique_ptr<frm_FullScreen> owned(viewer);
    if (!owner || visit.isObsolete)
        return std::nullopt;

    takeOver(control, *viewer, wasAll);
    viewer->ClearRefObject();
    return FullScreenOutcome{viewer->IsAll(), viewer->IsRequeried(), viewer->CurrentSQL()};
}

} // namespace KOVAVSFDataGridLib
