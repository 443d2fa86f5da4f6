#pragma once

#include "control/IKOVAVSFDataGrid.h"

#include <QtWidgets/QWidget>

#include <memory>

namespace KOVAVSFDataGridLib {
class PropertyBag;
}

// The SQL result grid. Give it a ConnectionString, a DBType and a SELECT in SQLShow, then call IsLoadData;
// from then on the user reshapes what is shown, and every step is a statement that runs on the database.
//
// Every member of IKOVAVSFDataGrid can also be reached by its name through the meta-object, for a host
// that knows only a QWidget. Everything runs on the GUI thread. Failures are told in message boxes;
// nothing here throws, except UseModel and PutUseModel when called from C++.
class KOVA_EXPORT KOVAVSFDataGrid : public QWidget, public IKOVAVSFDataGrid
{
    Q_OBJECT
    // Only BackColor is kept in a form file: a host sets everything else in code before IsLoadData.
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
    Q_PROPERTY(bool UserMode READ UserMode WRITE PutUserMode STORED false DESIGNABLE false)

public:
    enum UseModelChoose : qint32 { ModelUsing = 0, ModelDefine = 1 };
    Q_ENUM(UseModelChoose)
    enum ShowModelChoose : qint32 { ModelAll = 0, ModelPart = 1 };
    Q_ENUM(ShowModelChoose)
    enum backstyleChoose : qint32 { Transparent = 0, Opaque = 1 };
    Q_ENUM(backstyleChoose)
    enum AppearanceChoose : qint32 { Flat = 0, Cascade = 1 };
    Q_ENUM(AppearanceChoose)
    enum AllDBType : qint32 { dbAccess = 1, dbOracle = 2, dbSQLServer = 3 };
    Q_ENUM(AllDBType)
    enum TBLType : qint32 { DataTable = 0, DataView = 1, DefSQL = 2 };
    Q_ENUM(TBLType)

    explicit KOVAVSFDataGrid(QWidget *parent = nullptr);
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

    // False while the control is being designed: True at run time. The control finds out for itself
    // whether it sits in a form editor; a host can say otherwise.
    bool UserMode() const;
    void PutUserMode(bool on);

    // The system's button-face colour, which follows the palette.
    void ResetBackColor();

    // Called by the container: for a new control on a form, and to restore and keep one.
    void InitProperties();
    void ReadProperties(const KOVAVSFDataGridLib::PropertyBag &bag);
    void WriteProperties(KOVAVSFDataGridLib::PropertyBag &bag) const;

    QSize sizeHint() const override;

    // What is behind the face; only the control's own sources know more of it.
    class Private;

Q_SIGNALS:
    // The events, in their fixed order. What comes by reference may be changed by a directly connected
    // handler. Positions are twips; Button is 1 left, 2 right, 4 middle; Shift is the sum of 1 Shift,
    // 2 Ctrl, 4 Alt.
    void DataMouseDown(qint16 &Button, qint16 &Shift, float &x, float &y);
    void DataMouseUp(qint16 &Button, qint16 &Shift, float &x, float &y);
    void DataMouseMove(qint16 &Button, qint16 &Shift, float &x, float &y);
    void Error(qint16 DataError, qint16 &Response); // never raised
    void HeadClick(qint16 ColIndex);
    void DataClick();
    void DataDblClick();
    void DataKeyDown(qint16 &KeyCode, qint16 &Shift);
    void MouseUp(qint16 &Button, qint16 &Shift, float &x, float &y);
    void ShowFieldsChange(const QString &strSQL);
    // Before a filter is applied: leave Cancel at 1 for the built-in dialog, or set PassQurryFilter and
    // change Cancel.
    void QurryFilter(qint32 &Cancel, const QString &strLastFilter);
    void RecordChanged(qint32 ChangeReason, qint32 CurrPosition);
    void RecordsetChanged(qint32 ChangeReason);
    void DataDBLClickOneCell(qint32 Col, qint32 Row);
    void DataDBLClickOneRow(qint32 Row);

    // A property was written; carries its name.
    void PropertyChanged(const QString &name);
    // An error of a property that a late-bound host read or wrote; see ControlError.
    void HostError(qint32 Number, const QString &Description);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    UseModelChoose lateUseModel();
    void putLateUseModel(qint32 model);
    ShowModelChoose showModelChoice() const { return static_cast<ShowModelChoose>(ShowModel()); }
    TBLType tableTypeChoice() const { return static_cast<TBLType>(TableType()); }
    AllDBType dbTypeChoice() const { return static_cast<AllDBType>(DBType()); }

    const std::unique_ptr<Private> d;
};
