#pragma once

#include "IKOVAVSFDataGrid.h"

#include <QtWidgets/QWidget>

#include <memory>

namespace KOVAVSFDataGridLib {
class PropertyBag;
}

// The SQL result grid. Set ConnectionString, DBType and a SELECT in SQLShow, then call IsLoadData. The user
// can then filter, sort, choose fields and edit; each step is a new statement that runs on the database.
//
// Every member of IKOVAVSFDataGrid can also be used by name through the meta-object, by a host that has only
// a QWidget. Everything runs on the GUI thread. Errors are shown in message boxes. No member throws, except
// UseModel and PutUseModel when called from C++.
class KOVA_EXPORT KOVAVSFDataGrid : public QWidget, public IKOVAVSFDataGrid
{
    Q_OBJECT
    // A form file stores only BackColor. A host sets all other properties in code before IsLoadData.

    Q_PROPERTY(QString STR_SQLTEMP READ STR_SQLTEMP WRITE PutSTR_SQLTEMP STORED false)
    Q_PROPERTY(bool Enabled READ Enabled WRITE PutEnabled STORED false)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE PutBackColor RESET ResetBackColor)
    Q_PROPERTY(bool DisplayEable READ DisplayEable WRITE PutDisplayEable STORED false)
    Q_PROPERTY(bool FilterEnable READ FilterEnable WRITE PutFilterEnable STORED false)
    Q_PROPERTY(bool SortEnable READ SortEnable WRITE PutSortEnable STORED false)
    Q_PROPERTY(QColor DataBackColor READ DataBackColor WRITE PutDataBackColor STORED false)
    Q_PROPERTY(QFont DataFont READ DataFont WRITE PutDataFont STORED false)
    Q_PROPERTY(UseModelChoose UseModel READ lateUseModel WRITE putLateUseModel STORED false)
    Q_PROPERTY(ShowModelChoose ShowModel READ showModelChoice WRITE PutShowModel STORED false)
    Q_PROPERTY(QString ConnectionString READ ConnectionString WRITE PutConnectionString STORED false)
    Q_PROPERTY(QString SQLShow READ SQLShow WRITE PutSQLShow STORED false)
    Q_PROPERTY(QObject *RecordSet READ RecordSet STORED false)
    Q_PROPERTY(QString RecordSource READ RecordSource STORED false)
    Q_PROPERTY(QString SQLPartDisplay READ SQLPartDisplay WRITE PutSQLPartDisplay STORED false)
    Q_PROPERTY(QString SQLFilter READ SQLFilter WRITE PutSQLFilter STORED false)
    Q_PROPERTY(QString SQLSort READ SQLSort WRITE PutSQLSort STORED false)
    Q_PROPERTY(TBLType TableType READ tableTypeChoice WRITE PutTableType STORED false)
    Q_PROPERTY(bool ErrorHint READ ErrorHint WRITE PutErrorHint STORED false)
    Q_PROPERTY(AllDBType DBType READ dbTypeChoice WRITE PutDBType STORED false)
    Q_PROPERTY(QString SysDBCnn READ SysDBCnn WRITE PutSysDBCnn STORED false)
    Q_PROPERTY(QString SysDBMode READ SysDBMode WRITE PutSysDBMode STORED false)
    Q_PROPERTY(QString PassQurryFilter READ PassQurryFilter WRITE PutPassQurryFilter STORED false)
    Q_PROPERTY(qint32 CurrPosition READ CurrPosition STORED false)
    Q_PROPERTY(QString PicField READ PicField WRITE PutPicField STORED false)
    // True at run time, False at design time. The control detects whether it is in a form editor; a host can
    // override this.
    Q_PROPERTY(bool UserMode READ UserMode WRITE PutUserMode STORED false DESIGNABLE false)
    Q_PROPERTY(bool ReadOnly READ ReadOnly WRITE PutReadOnly STORED false)
    Q_PROPERTY(QString LayoutKey READ LayoutKey WRITE PutLayoutKey STORED false)
    Q_PROPERTY(QString Language READ Language WRITE PutLanguage STORED false)

public:
    // Who filters and sorts.
    enum UseModelChoose : qint32 {
        ModelUsing = 0, // the user, by the toolbar
        ModelDefine = 1 // the host: the buttons "Filter" and "Sort" are hidden
    };
    Q_ENUM(UseModelChoose)

    // Which fields a load shows.
    enum ShowModelChoose : qint32 {
        ModelAll = 0, // all fields of the statement
        ModelPart = 1 // the fields in SQLPartDisplay
    };
    Q_ENUM(ShowModelChoose)

    // For hosts' own use; no property has this type.
    enum backstyleChoose : qint32 {
        Transparent = 0, // shows the background
        Opaque = 1       // covers the background
    };
    Q_ENUM(backstyleChoose)

    // For hosts' own use; no property has this type.
    enum AppearanceChoose : qint32 {
        Flat = 0,   // without depth
        Cascade = 1 // with depth
    };
    Q_ENUM(AppearanceChoose)

    // The SQL dialect of derived statements: how names, texts, dates and LIKE are written.
    enum AllDBType : qint32 {
        dbAccess = 1,   // Access, also right for SQLite
        dbOracle = 2,   // Oracle; a load replaces `*` by the names of all fields
        dbSQLServer = 3 // SQL Server
    };
    Q_ENUM(AllDBType)

    // What the statement shows.
    enum TBLType : qint32 {
        DataTable = 0, // one table
        DataView = 1,  // one view
        DefSQL = 2     // another query, so there is no single table to show in full
    };
    Q_ENUM(TBLType)

    // An empty grid. Everything is disabled until IsLoadData.
    explicit KOVAVSFDataGrid(QWidget *parent = nullptr);
    // Cancels open dialogs. Closes the result, its files and its connection immediately, unless the host
    // shares ADODB::Adodc::Recordset().
    ~KOVAVSFDataGrid() override;

    QString STR_SQLTEMP() const override;
    void PutSTR_SQLTEMP(const QString &text) override;
    bool Enabled() const override;
    void PutEnabled(bool on) override;
    QColor BackColor() const override;
    void PutBackColor(const QColor &colour) override;
    bool DisplayEable() const override;
    void PutDisplayEable(bool on) override;
    bool FilterEnable() const override;
    void PutFilterEnable(bool on) override;
    bool SortEnable() const override;
    void PutSortEnable(bool on) override;
    QColor DataBackColor() const override;
    void PutDataBackColor(const QColor &colour) override;
    QFont DataFont() const override;
    void PutDataFont(const QFont &font) override;
    qint32 UseModel() const override;
    void PutUseModel(qint32 model) override;
    qint32 ShowModel() const override;
    void PutShowModel(qint32 model) override;
    QString ConnectionString() const override;
    void PutConnectionString(const QString &text) override;
    QString SQLShow() const override;
    void PutSQLShow(const QString &statement) override;
    QObject *RecordSet() const override;
    QString RecordSource() const override;
    QString SQLPartDisplay() const override;
    void PutSQLPartDisplay(const QString &statement) override;
    QString SQLFilter() const override;
    void PutSQLFilter(const QString &statement) override;
    QString SQLSort() const override;
    void PutSQLSort(const QString &sort) override;
    qint32 TableType() const override;
    void PutTableType(qint32 type) override;
    bool ErrorHint() const override;
    void PutErrorHint(bool on) override;
    qint32 DBType() const override;
    void PutDBType(qint32 type) override;
    QString SysDBCnn() const override;
    void PutSysDBCnn(const QString &text) override;
    QString SysDBMode() const override;
    void PutSysDBMode(const QString &text) override;
    QString PassQurryFilter() const override;
    void PutPassQurryFilter(const QString &condition) override;
    qint32 CurrPosition() const override;
    Q_INVOKABLE qint32 GetBindFieldIndex(const QString &strFieldName) const override;
    QString PicField() const override;
    void PutPicField(const QString &field) override;

    Q_INVOKABLE void Refresh() override;
    Q_INVOKABLE bool LocateSelRecord(qint32 lRecordRow) override;
    Q_INVOKABLE void ShowConnectionString() override;
    Q_INVOKABLE void ShowRecordSource() override;
    Q_INVOKABLE void ShowSQLShow() override;
    Q_INVOKABLE void ShowPartDisplay() override;
    Q_INVOKABLE void ShowFilterCondtion() override;
    Q_INVOKABLE void ShowSort() override;
    Q_INVOKABLE void GetConnection() override;
    Q_INVOKABLE void SetFieldName() override;
    Q_INVOKABLE void SetSQLShow() override;
    Q_INVOKABLE void SetSQLFilter() override;
    Q_INVOKABLE void SetSortFN() override;
    Q_INVOKABLE void SetGridCol(const qint32 &Col) override;
    Q_INVOKABLE QString CellText(const qint16 &n_row, const qint16 &n_col) override;
    Q_INVOKABLE void Clear() override;
    Q_INVOKABLE void ClearAll() override;
    Q_INVOKABLE QObject *GetBond() override;
    Q_INVOKABLE qint16 GetGridCol() override;
    Q_INVOKABLE void SetGridRow(const qint32 &Row) override;
    Q_INVOKABLE qint16 GetGridRow() override;
    Q_INVOKABLE void CloseAllAction() override;
    Q_INVOKABLE bool IsLoadData() override;
    Q_INVOKABLE void SeeCompressView() override;
    Q_INVOKABLE void ClearObject() override;
    Q_INVOKABLE QString CellTextL(const qint32 &n_row, const qint32 &n_col) override;
    Q_INVOKABLE qint32 GetGridRowL() override;
    bool ReadOnly() const override;
    void PutReadOnly(bool on) override;
    Q_INVOKABLE bool ExportData(const QString &strFile, const QString &strOptions) override;
    Q_INVOKABLE QString SaveLayout() override;
    Q_INVOKABLE bool RestoreLayout(const QString &strLayout) override;
    QString LayoutKey() const override;
    void PutLayoutKey(const QString &strKey) override;
    Q_INVOKABLE bool PrintData(const QString &strFile, const QString &strOptions) override;
    Q_INVOKABLE QString SaveFilters() override;
    Q_INVOKABLE bool RestoreFilters(const QString &strFilters) override;
    QString Language() const override;
    void PutLanguage(const QString &strName) override;

    // See the property.
    bool UserMode() const;
    void PutUserMode(bool on);

    // Sets BackColor to the system's button-face colour, which follows the palette.
    void ResetBackColor();

    // The container calls this for a new control on a form. It clears the statements and the grid, and sets
    // UseModel and ShowModel to 0.
    void InitProperties();
    // The container calls this to restore a control from a form. It reads BackColor; the default is the
    // button-face colour.
    void ReadProperties(const KOVAVSFDataGridLib::PropertyBag &bag);
    // The container calls this to store a control in its form. It writes only BackColor, as a 32-bit number.
    void WriteProperties(KOVAVSFDataGridLib::PropertyBag &bag) const;

    // Three times the minimum size of 3000 x 1500 twips.
    QSize sizeHint() const override;

    // The implementation.
    class Private;

Q_SIGNALS:
    // The events, in their fixed order. A directly connected handler may change arguments passed by
    // reference. Positions are in twips, 1440 per inch, from the grid's top left corner. Button is 1 for
    // left, 2 for right, 4 for middle. Shift is the sum of 1 for Shift, 2 for Ctrl and 4 for Alt.
    //
    // A handler of any event, including PropertyChanged, may load again, clear or delete the control. A timer
    // may do so while a dialog is open. The window that contains the control must outlive the event: close
    // it, or use deleteLater().

    // A mouse button was pressed on the grid or its headings. Raised before the grid reacts.
    void DataMouseDown(qint16 &Button, qint16 &Shift, float &x, float &y);
    // A mouse button was released on the grid. By then the current record has changed, and the popup menu is
    // closed.
    void DataMouseUp(qint16 &Button, qint16 &Shift, float &x, float &y);
    // The mouse moved over the grid. Button is the sum of the buttons that are pressed, or 0.
    void DataMouseMove(qint16 &Button, qint16 &Shift, float &x, float &y);
    // Never raised. It exists for hosts that have a handler for it.
    void Error(qint16 DataError, qint16 &Response);
    // A column heading was clicked; the column counts from 1. Nothing else happens on that click.
    void HeadClick(qint16 ColIndex);
    // A record was clicked and is now current. The picture file of PicField has been written.
    void DataClick();
    // The grid was double-clicked. Raised before DataDBLClickOneCell or DataDBLClickOneRow; outside the
    // records, only this event is raised.
    void DataDblClick();
    // A key was pressed in the grid. KeyCode is a virtual-key code: Enter 13, Esc 27, F1 112, letters as in
    // upper case. If a handler sets KeyCode to 0, the grid ignores the key.
    void DataKeyDown(qint16 &KeyCode, qint16 &Shift);
    // A mouse button was released on the panel around the grid. Positions are from the panel's top left
    // corner.
    void MouseUp(qint16 &Button, qint16 &Shift, float &x, float &y);
    // The user chose the fields to show. strSQL is the new statement.
    void ShowFieldsChange(const QString &strSQL);
    // The user asked for the filter. strLastFilter is the statement to be filtered. For the built-in dialog,
    // leave Cancel at 1. To filter with a condition of your own, set PassQurryFilter to it and Cancel to 0.
    // An empty condition changes nothing.
    void QurryFilter(qint32 &Cancel, const QString &strLastFilter);
    // Another record is current. ChangeReason is a number of ADODB::EventReasonEnum, or 3 from
    // LocateSelRecord. CurrPosition is the number of the record, from 1; from LocateSelRecord it is one less.
    void RecordChanged(qint32 ChangeReason, qint32 CurrPosition);
    // The result was replaced or closed. ChangeReason is a number of ADODB::EventReasonEnum.
    void RecordsetChanged(qint32 ChangeReason);
    // A cell was double-clicked. Col and Row are counted from 1.
    void DataDBLClickOneCell(qint32 Col, qint32 Row);
    // A row was double-clicked: on its number, or anywhere if whole rows are selected. Row is counted from 1.
    void DataDBLClickOneRow(qint32 Row);

    // The property `name` was written. Not raised for STR_SQLTEMP, Enabled, the properties of the toolbar and
    // of the grid, UseModel, ShowModel, PassQurryFilter and PicField.
    void PropertyChanged(const QString &name);
    // A host failed to read or write a property by name; see KOVAVSFDataGridLib::ControlError.
    void HostError(qint32 Number, const QString &Description);

protected:
    // Lays the parts out in the new size.
    void resizeEvent(QResizeEvent *event) override;
    // Lets BackColor follow the palette, and the texts the language.
    void changeEvent(QEvent *event) override;

private:
    UseModelChoose lateUseModel();
    void putLateUseModel(qint32 model);
    ShowModelChoose showModelChoice() const { return static_cast<ShowModelChoose>(ShowModel()); }
    TBLType tableTypeChoice() const { return static_cast<TBLType>(TableType()); }
    AllDBType dbTypeChoice() const { return static_cast<AllDBType>(DBType()); }

    const std::unique_ptr<Private> d;
};
