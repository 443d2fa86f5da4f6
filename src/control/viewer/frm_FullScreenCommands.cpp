#include "ado/EngineOf.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "control/parts/GridToolbar.h"
#include "control/parts/LoadProgress.h"
#include "control/viewer/ViewerMenu.h"
#include "control/viewer/ViewerTexts.h"
#include "control/viewer/frm_FullScreen.h"
#include "forms/Messages.h"
#include "grid/FlexGrid.h"
#include "query/Conditions.h"
#include "query/SharedValues.h"
#include "query/SqlText.h"
#include "query/clsFilterManagement.h"
#include "session/ColumnLayout.h"

#include <algorithm>
#include <exception>

// The viewer's commands: from a key to another statement, and what it leaves in the history and the columns.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

struct frm_FullScreen::Command
{
    QLatin1StringView key;
    bool needsRecords;
    bool (*run)(frm_FullScreen &viewer);
};

// A command that fails gives the filter manager and its history back as they were. The cell filter has a key
// for the menu's sake; no button has it.
void frm_FullScreen::press(const QString &key)
{
    using Viewer = frm_FullScreen;
    static const Command commands[] = {
        {"All"_L1, true, [](Viewer &v) { return v.showAllFields(); }},
        {"Part"_L1, true, [](Viewer &v) { return v.showPartFields(); }},
        {"SelField"_L1, true, [](Viewer &v) { return v.selectFields(); }},
        {"Filter"_L1, true, [](Viewer &v) { return v.ShowFilterDialog(); }},
        {"CellFilter"_L1, true, [](Viewer &v) { return v.filterBySelectedCell(); }},
        {"Sort"_L1, false, [](Viewer &v) { return v.sort(); }},
        {"ToPreview"_L1, false, [](Viewer &v) { return v.stepBack(&colShowSQLSentences::GetPreviewSQL); }},
        {"ToOrigin"_L1, false, [](Viewer &v) { return v.stepBack(&colShowSQLSentences::GetFirstSQL); }},
        {"ToFullTable"_L1, false, [](Viewer &v) { return v.showFullTable(); }},
    };
    static const QString pageKeys[] = {u"First"_s, u"Previous"_s, u"Next"_s, u"Last"_s};

    const auto *page = std::ranges::find(pageKeys, key);
    const auto *command = std::ranges::find(commands, key, &Command::key);
    if (page != std::end(pageKeys)) {
        GotoPage(static_cast<int>(page - pageKeys) + 1);
    } else if (key == u"CompressView") {
        SeeCompressView();
    } else if (command != std::end(commands) && m_filter && (!command->needsRecords || hasRecords())) {
        runCommand(*command);
    }
    // A click has pressed "All" or "Part" already, whatever came of it.
    SetPartButton(m_isAll ? 1 : 2);
    makeShownCellCurrent();
    UpdateRecordPosition();
    tellIfEmpty();
}

// The host can load another result of the control from behind a dialog: the filter manager that the command
// works on is then another's no more, but it lives until the command has ended.
void frm_FullScreen::runCommand(const Command &command)
{
    const auto manager = m_filter;
    const clsFilterManagement before = *manager;
    bool isShown = false;
    try {
        isShown = command.run(*this);
    } catch (const std::exception &) {
        // It ends quietly, like one that derives nothing.
    }
    if (!isShown)
        *manager = before;
}

void frm_FullScreen::RunPopupAction(int index)
{
    switch (index) {
    case ViewerMenu::AllFields:
        return press(u"All"_s);
    case ViewerMenu::PartFields:
        return press(u"Part"_s);
    case ViewerMenu::CellFilter:
        return press(u"CellFilter"_s);
    case ViewerMenu::FullTable:
        return press(u"ToFullTable"_s);
    case ViewerMenu::Back:
        return accept();
    default:
        return;
    }
}

void frm_FullScreen::SetPartButton(int mode)
{
    m_parts.Toolbar1->setButtonPressed(mode == 1 ? u"All"_s : u"Part"_s, true);
}

colShowSQLSentences &frm_FullScreen::history()
{
    return m_filter->SQLManager();
}

// By value: the history can be cleared behind a dialog.
std::optional<clsShowSQLSentence> frm_FullScreen::latestEntry()
{
    const clsShowSQLSentence *latest = history().Item(history().Count());
    return latest ? std::optional(*latest) : std::nullopt;
}

bool frm_FullScreen::ReopenRecordset(const QString &statement)
{
    if (SharedValues::instance().isOpening)
        return false;
    try {
        LoadProgress progress(*this, [this] { return m_parts.foot(); });
        const ViewerHost::Opened opened =
            m_host.open(statement, [&progress](qint64 rowsRead) { return progress.goOn(rowsRead); });
        m_connection = opened.connection;
        m_recordset = opened.recordset;
        return true;
    } catch (const ADODB::Error &) {
        return false;
    }
}

bool frm_FullScreen::Requery(const QString &statement)
{
    if (statement.isEmpty() || !ReopenRecordset(statement))
        return false;
    m_currentSQL = statement;
    m_isRequeried = true;
    SetPageIndex(1);
    // The columns may be other fields now; their widths come from the field catalogue.
    m_parts.vsfgShowData->ResetColWidths();
    return FillGrid();
}

void frm_FullScreen::RecordInHistory(const QString &partFields, const QString &orderFields)
{
    columns().RecordShowSQL(m_currentSQL, m_isAll ? 1 : 0, 0, partFields, orderFields, m_connectionString);
}

bool frm_FullScreen::showAllFields()
{
    SaveColumnWidths();
    if (!Requery(m_filter->GetCurrentSQL20(1)))
        return false;
    m_isAll = true;
    RecordInHistory(colShowSQLSentences::NoPartField(), colShowSQLSentences::NoSort());
    return true;
}

// The fields not chosen are only hidden, unless a chosen one has no column.
bool frm_FullScreen::showPartFields()
{
    const auto latest = latestEntry();
    QString partStatement;
    if (!latest || !latest->GetCurrUsePartFieldSQL(partStatement))
        return false;
    SaveColumnWidths();
    const QString statement = m_filter->GetCurrentSQL20(2);
    if (statement.isEmpty() || (!columns().hasColumnsFor(columns().fieldsShownBy(0)) && !Requery(statement)))
        return false;
    m_currentSQL = statement;
    m_isAll = false;
    RecordInHistory(colShowSQLSentences::NoPartField(), colShowSQLSentences::NoSort());
    return true;
}

bool frm_FullScreen::selectFields()
{
    m_filter->SetDBConnString(m_connectionString);
    const auto latest = latestEntry();
    if (!latest)
        return false;
    QString partStatement;
    latest->GetCurrUsePartFieldSQL(partStatement);
    QString chosen;
    if (!m_filter->GetPartShowSelFields(latest->AllFields, partStatement, latest->ShowSQL, chosen) ||
        !m_filter)
        return false;
    SaveColumnWidths();
    if (!Requery(chosen))
        return false;
    m_isAll = false;
    RecordInHistory(SplitSQLSentence(chosen)->fields, colShowSQLSentences::NoSort());
    return true;
}

bool frm_FullScreen::sort()
{
    m_filter->SetDBConnString(m_connectionString);
    const auto latest = latestEntry();
    if (!latest)
        return false;
    QString present;
    latest->GetCurrUseOrderFieldSQL(present);
    QString chosen;
    QString statement;
    if (!m_filter->GetPartSortSelFields(latest->AllFields, present.isEmpty() ? m_sortString : present,
                                        chosen) ||
        !m_filter || !history().GetNextSQLBySort(chosen, statement))
        return false;
    SaveColumnWidths();
    if (!Requery(statement))
        return false;
    RecordInHistory(colShowSQLSentences::NoPartField(), chosen);
    return true;
}

bool frm_FullScreen::ShowFilterDialog()
{
    const QString condition = m_host.askCondition(this).trimmed();
    return m_filter && !condition.isEmpty() && filterBy(condition);
}

bool frm_FullScreen::filterBySelectedCell()
{
    const VSFlexGrid &grid = *m_parts.vsfgShowData;
    if (grid.Row() == 0 || grid.Text().isEmpty())
        return false;
    const QString name = history().GetSelFieldRealName(grid.TextMatrix(0, grid.Col()));
    const CellFilter filter = BuildCellFilter(name, m_recordset->Fields().Item(grid.Col() - 1).Type(),
                                              grid.Text(), EngineOf(m_connection));
    if (!filter.message.isEmpty())
        Messages::tell(this, filter.message);
    return m_filter && !filter.condition.isEmpty() && filterBy(filter.condition);
}

// The condition narrows what is shown.
bool frm_FullScreen::filterBy(const QString &condition)
{
    if (m_filter->LastUseFilter() != m_currentSQL)
        m_filter->LetNewSQLStr(m_currentSQL);
    QString statement;
    if (!m_filter->LetNewFilter(condition, statement))
        return false;
    SaveColumnWidths();
    if (!Requery(statement)) {
        if (m_filter) // else the host has ended the visit
            Messages::tell(this, ViewerTexts::ReadFailed);
        return false;
    }
    RecordInHistory(colShowSQLSentences::NoPartField(), colShowSQLSentences::NoSort());
    return true;
}

bool frm_FullScreen::showFullTable()
{
    QString latest;
    QString key;
    QString statement;
    if (!history().GetLatestSQL(latest, &key) || !m_filter->GetRequirePartSQL(latest, 3, statement))
        return false;
    SaveColumnWidths();
    if (!Requery(statement))
        return false;
    m_isAll = history().Item(key)->IsShowAllFields == 1;
    RecordInHistory(colShowSQLSentences::NoPartField(), colShowSQLSentences::NoSort());
    return true;
}

bool frm_FullScreen::stepBack(bool (colShowSQLSentences::*step)(QString &, QString &))
{
    SaveColumnWidths();
    QString statement;
    QString key;
    if (!(history().*step)(statement, key) || !Requery(statement))
        return false;
    m_isAll = history().Item(key)->IsShowAllFields == 1;
    applyFieldWidths();
    return true;
}

ColumnLayout frm_FullScreen::columns()
{
    return ColumnLayout(*m_parts.vsfgShowData, history());
}

void frm_FullScreen::SaveColumnWidths()
{
    columns().SaveColumnWidths(0);
}

void frm_FullScreen::ApplyAllFieldWidths()
{
    columns().ShowAllFieldColumns();
}

void frm_FullScreen::ApplyPartFieldWidths()
{
    columns().ShowPartFieldColumns(1);
}

void frm_FullScreen::applyFieldWidths()
{
    if (!m_filter)
        return;
    if (m_isAll)
        ApplyAllFieldWidths();
    else
        ApplyPartFieldWidths();
}

void frm_FullScreen::SeeCompressView()
{
    const std::optional<double> share = m_filter ? columns().shareOfWidth() : std::nullopt;
    if (!share)
        return;
    VSFlexGrid &grid = *m_parts.vsfgShowData;
    for (int col = 1; col < grid.Cols(); ++col) {
        if (m_isAll || grid.ColWidth(col) != 0)
            grid.PutColWidth(col, qRound(*share));
    }
}

} // namespace KOVAVSFDataGridLib
