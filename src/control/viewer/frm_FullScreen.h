#pragma once

#include "control/viewer/ViewerHost.h"
#include "control/viewer/ViewerParts.h"

#include <QtWidgets/QDialog>

#include <memory>
#include <optional>

namespace KOVAVSFDataGridLib {

class ColumnLayout;
class ViewerMenu;
class clsFilterManagement;
class clsShowSQLSentence;
class colShowSQLSentences;

// Shows a control's result on the whole screen. It pages through the control's own recordset without ever
// moving it, and derives statements through the control's filter manager; only when the user asks for another
// statement is a new result opened, through the host. A command that fails leaves everything as it was.
//
// Set the filter manager, call GetData, exec(), read the results, then ClearRefObject.
class frm_FullScreen final : public QDialog
{
    Q_OBJECT

public:
    explicit frm_FullScreen(ViewerHost host, QWidget *parent = nullptr);
    ~frm_FullScreen() override;

    void PutFilterManager(std::shared_ptr<clsFilterManagement> manager) { m_filter = std::move(manager); }
    // Takes over what the control shows and shows it. Pages count from 1; `bUpdate` has no meaning. The
    // viewer opens with the row of the current record if the page has it.
    void GetData(const std::shared_ptr<ADODB::Connection> &newConnection,
                 const std::shared_ptr<ADODB::Recordset> &newTable, qint32 nCurPageIndex,
                 const QString &newConnectionString, const QString &NewSQL, bool bUpdate,
                 const QString &SortString, bool IsAll, bool bCanFilte, bool bCanSort, bool bCanFull);
    // Lets go of the filter manager; commands do nothing from then on, and one that is under way ends.
    void ClearRefObject() { m_filter.reset(); }

    // The page shown, 0 when none is.
    qint32 GetPageIndex() const { return m_page; }
    bool IsAll() const { return m_isAll; }
    const QString &CurrentSQL() const { return m_currentSQL; }
    // Whether the host was asked for another result, and gave it.
    bool IsRequeried() const { return m_isRequeried; }

    // Shares the grid's width among its columns. Those hidden by the part-field view stay hidden.
    void SeeCompressView();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct Command;

    void fillScreen();
    bool isOpen() const;
    bool hasRecords() const;

    // Pages
    void SetPageIndex(qint64 page);
    bool FillGrid();
    void showPage(qint64 page);
    void GotoPage(int kind);
    void goToTypedPage();
    qint64 firstRecord() const;
    void UpdateRecordPosition();
    void makeShownCellCurrent();
    void tellIfEmpty();

    // Columns
    ColumnLayout columns();
    void SaveColumnWidths();
    void ApplyAllFieldWidths();
    void ApplyPartFieldWidths();
    void applyFieldWidths();

    // Commands; those that answer say whether what they derived is shown now.
    void press(const QString &key);
    void SetPartButton(int mode);
    colShowSQLSentences &history();
    std::optional<clsShowSQLSentence> latestEntry();
    void runCommand(const Command &command);
    bool showAllFields();
    bool showPartFields();
    bool selectFields();
    bool sort();
    bool ShowFilterDialog();
    bool filterBySelectedCell();
    bool filterBy(const QString &condition);
    bool showFullTable();
    bool stepBack(bool (colShowSQLSentences::*step)(QString &, QString &));
    bool ReopenRecordset(const QString &statement);
    bool Requery(const QString &statement);
    void RecordInHistory(const QString &partFields, const QString &orderFields);

    // Popup menu
    void popUp(const QPoint &globalPosition, bool isOnCell);
    void EnablePopupItems(bool isOnCell);
    void RunPopupAction(int index);

    const ViewerHost m_host;
    const ViewerParts m_parts;
    ViewerMenu *m_menu;
    std::shared_ptr<clsFilterManagement> m_filter;
    std::shared_ptr<ADODB::Connection> m_connection;
    std::shared_ptr<ADODB::Recordset> m_recordset;
    QString m_connectionString;
    QString m_currentSQL;
    QString m_sortString;
    bool m_isAll = true;
    bool m_isRequeried = false;
    qint32 m_page = 0;
};

} // namespace KOVAVSFDataGridLib
