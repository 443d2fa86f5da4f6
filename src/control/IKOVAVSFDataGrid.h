#pragma once

#include "KovaExport.h"

#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QFont>

class QObject;

// The control's interface, its members in their fixed order. A property X is read by X() and, where it
// can be written, written by PutX(). Enumerated values travel as 32-bit numbers; their names are the
// enumerations of KOVAVSFDataGrid.
//
// Rows and columns count from 0 with the headings as row 0 and column 0. No member throws, except
// UseModel and PutUseModel.
class KOVA_EXPORT IKOVAVSFDataGrid
{
public:
    virtual ~IKOVAVSFDataGrid() = default;

    // A text field for the host's own use.
    virtual QString STR_SQLTEMP() const = 0;
    virtual void PutSTR_SQLTEMP(const QString &text) = 0;
    // Reads the control's own state; writes that of the panel and the grid on it.
    virtual bool Enabled() const = 0;
    virtual void PutEnabled(bool on) = 0;
    // Background of the panel. The only value that a form file stores.
    virtual QColor BackColor() const = 0;
    virtual void PutBackColor(const QColor &colour) = 0;
    // The toolbar with the page button. False also disables every toolbar button by itself; True leaves
    // the buttons as they are.
    virtual bool DisplayEable() const = 0;
    virtual void PutDisplayEable(bool on) = 0;
    // The toolbar buttons "Filter" and "Sort".
    virtual bool FilterEnable() const = 0;
    virtual void PutFilterEnable(bool on) = 0;
    virtual bool SortEnable() const = 0;
    virtual void PutSortEnable(bool on) = 0;
    // Background and font of the grid's cells.
    virtual QColor DataBackColor() const = 0;
    virtual void PutDataBackColor(const QColor &colour) = 0;
    virtual QFont DataFont() const = 0;
    virtual void PutDataFont(const QFont &font) = 0;
    // UseModelChoose, at design time only: while the host runs, reading throws ControlError 393 and
    // writing ControlError 382.
    virtual qint32 UseModel() const = 0;
    virtual void PutUseModel(qint32 model) = 0;
    // ShowModelChoose.
    virtual qint32 ShowModel() const = 0;
    virtual void PutShowModel(qint32 model) = 0;
    // Writing it, even unchanged, empties SQLShow, SQLFilter, SQLSort and SQLPartDisplay.
    virtual QString ConnectionString() const = 0;
    virtual void PutConnectionString(const QString &text) = 0;
    // The SELECT to show; also becomes SQLPartDisplay. Nothing is loaded before IsLoadData.
    virtual QString SQLShow() const = 0;
    virtual void PutSQLShow(const QString &statement) = 0;
    // The open recordset by ADO's member names, null when none is open. Owned by the control and valid
    // until the next load or ClearObject.
    virtual QObject *RecordSet() const = 0;
    // The statement that the current load opened; empty before the first.
    virtual QString RecordSource() const = 0;
    // A SELECT of the fields that the "Part" view shows. Reads back as it was written.
    virtual QString SQLPartDisplay() const = 0;
    virtual void PutSQLPartDisplay(const QString &statement) = 0;
    virtual QString SQLFilter() const = 0;
    virtual void PutSQLFilter(const QString &statement) = 0;
    // A sort list such as "NAME DESC,AGE".
    virtual QString SQLSort() const = 0;
    virtual void PutSQLSort(const QString &sort) = 0;
    // TBLType.
    virtual qint32 TableType() const = 0;
    virtual void PutTableType(qint32 type) = 0;
    // Whether Refresh tells the user what is missing.
    virtual bool ErrorHint() const = 0;
    virtual void PutErrorHint(bool on) = 0;
    // AllDBType; one value for all controls of the process.
    virtual qint32 DBType() const = 0;
    virtual void PutDBType(qint32 type) = 0;
    virtual QString SysDBCnn() const = 0;
    virtual void PutSysDBCnn(const QString &text) = 0;
    virtual QString SysDBMode() const = 0;
    virtual void PutSysDBMode(const QString &text) = 0;
    // The condition of a host that filters in place of the built-in dialog; set it inside QurryFilter.
    virtual QString PassQurryFilter() const = 0;
    virtual void PutPassQurryFilter(const QString &condition) = 0;
    // The current record's number, from 1; 0 when nothing is open, and below 0 when the open recordset stands
    // on no record (ADO's PositionEnum).
    virtual qint32 CurrPosition() const = 0;
    // The first data column whose heading is exactly `strFieldName`, or -1.
    virtual qint32 GetBindFieldIndex(const QString &strFieldName) const = 0;
    // The field that holds a picture, by its exact name.
    virtual QString PicField() const = 0;
    virtual void PutPicField(const QString &field) = 0;

    // Checks that there is something to load, and loads nothing; see IsLoadData.
    virtual void Refresh() = 0;
    // Makes a row of the first page and its record current; another page gives way to the first. False when
    // the row is below 1 or above the number of rows. Row 1, a row that equals the number of rows and the
    // current row give True and change nothing.
    virtual bool LocateSelRecord(qint32 lRecordRow) = 0;
    // Show one of the texts in a dialog, to be read and copied.
    virtual void ShowConnectionString() = 0;
    virtual void ShowRecordSource() = 0;
    virtual void ShowSQLShow() = 0;
    virtual void ShowPartDisplay() = 0;
    virtual void ShowFilterCondtion() = 0;
    virtual void ShowSort() = 0;
    // Let the user enter the connection string, the fields, the statement, the filter or the sort.
    virtual void GetConnection() = 0;
    virtual void SetFieldName() = 0;
    virtual void SetSQLShow() = 0;
    virtual void SetSQLFilter() = 0;
    virtual void SetSortFN() = 0;
    // A row or column outside the grid is told in a message box and changes nothing; the text is then "".
    virtual void SetGridCol(const qint32 &Col) = 0;
    virtual QString CellText(const qint16 &n_row, const qint16 &n_col) = 0;
    // Close the result and empty the grid; the buttons are disabled afterwards.
    virtual void Clear() = 0;
    virtual void ClearAll() = 0;
    // The data control behind the grid. Owned by the control.
    virtual QObject *GetBond() = 0;
    virtual qint16 GetGridCol() = 0;
    virtual void SetGridRow(const qint32 &Row) = 0;
    // Rows above 32767 don't fit: see GetGridRowL.
    virtual qint16 GetGridRow() = 0;
    virtual void CloseAllAction() = 0;
    // Opens SQLShow through ConnectionString and shows it. False when it could not be opened; the grid
    // then keeps what it showed.
    virtual bool IsLoadData() = 0;
    // Fits the shown columns into the grid's width.
    virtual void SeeCompressView() = 0;
    // To be called before the host's form closes: saves the user's setting and lets go of the database.
    virtual void ClearObject() = 0;
    virtual QString CellTextL(const qint32 &n_row, const qint32 &n_col) = 0;
    virtual qint32 GetGridRowL() = 0;
};
