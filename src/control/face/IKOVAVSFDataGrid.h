#pragma once

#include "../../KovaExport.h"

#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QFont>

class QObject;

// The control's interface, its members in their fixed order. A property X is read by X() and, where it can be
// written, written by PutX(); one comment stands for both. Enumerated values travel as 32-bit numbers; their
// names are the enumerations of KOVAVSFDataGrid.
//
// Rows and columns of the grid count from 0, with the headings as row 0 and the row numbers as column 0.
// Everything must be called on the GUI thread. No member throws, except UseModel and PutUseModel; what goes
// wrong is told in message boxes.
class KOVA_EXPORT IKOVAVSFDataGrid
{
public:
    virtual ~IKOVAVSFDataGrid() = default;

    // A text of the host's own, which the control only keeps. Empty at first.
    virtual QString STR_SQLTEMP() const = 0;
    virtual void PutSTR_SQLTEMP(const QString &text) = 0;

    // Reading answers whether the control itself is enabled; writing enables or disables the panel and the
    // grid on it, which does not change what is read.
    virtual bool Enabled() const = 0;
    virtual void PutEnabled(bool on) = 0;

    // Background of the panel around the grid; the system's button-face colour at first and after an invalid
    // colour is written. The only value that a form file stores.
    virtual QColor BackColor() const = 0;
    virtual void PutBackColor(const QColor &colour) = 0;

    // Whether the toolbar is enabled; the page button goes with it. False also disables every toolbar button
    // by itself; True leaves the buttons as they are, so only a load brings them all back.
    virtual bool DisplayEable() const = 0;
    virtual void PutDisplayEable(bool on) = 0;

    // Whether the toolbar button "Filter" is enabled. A load enables it.
    virtual bool FilterEnable() const = 0;
    virtual void PutFilterEnable(bool on) = 0;

    // Whether the toolbar button "Sort" is enabled. A load enables it.
    virtual bool SortEnable() const = 0;
    virtual void PutSortEnable(bool on) = 0;

    // Background of the grid's cells.
    virtual QColor DataBackColor() const = 0;
    virtual void PutDataBackColor(const QColor &colour) = 0;

    // Font of the grid's cells and headings.
    virtual QFont DataFont() const = 0;
    virtual void PutDataFont(const QFont &font) = 0;

    // A number of UseModelChoose: ModelDefine hides the toolbar buttons "Filter" and "Sort". At design time
    // only: while the host runs, reading throws ControlError 393 and writing ControlError 382.
    virtual qint32 UseModel() const = 0;
    virtual void PutUseModel(qint32 model) = 0;

    // A number of ShowModelChoose: whether the next load shows all fields or those of SQLPartDisplay. The
    // user's "All", "Part" and field choice write it too.
    virtual qint32 ShowModel() const = 0;
    virtual void PutShowModel(qint32 model) = 0;

    // The database, as `Keyword=value;…`. Writing it, even unchanged, empties SQLShow, SQLFilter, SQLSort and
    // SQLPartDisplay and forgets the history of statements, so write it first. Nothing is opened before
    // IsLoadData.
    virtual QString ConnectionString() const = 0;
    virtual void PutConnectionString(const QString &text) = 0;

    // The SELECT to show: one statement that returns rows. Writing it writes SQLPartDisplay as well. Nothing
    // is loaded before IsLoadData.
    virtual QString SQLShow() const = 0;
    virtual void PutSQLShow(const QString &statement) = 0;

    // The open result by ADO's member names, an ADODB::RecordsetObject; null when none is open. Owned by the
    // control and valid until the next load or ClearObject: keep it no longer than one event.
    virtual QObject *RecordSet() const = 0;

    // The statement that the current load opened; empty before the first load.
    virtual QString RecordSource() const = 0;

    // A SELECT of the fields that the "Part" view shows. Reads back as it was written. Write it after
    // SQLShow, which replaces it. A text whose field list can't be read is kept, and told in a message box.
    virtual QString SQLPartDisplay() const = 0;
    virtual void PutSQLPartDisplay(const QString &statement) = 0;

    // The statement that the user's last filter or choice of fields made or that the user last went back to,
    // for the host to read; empty when a filter ended without a condition. "Sort", "ToFullTable", "All" and
    // "Part" leave it as it was; the full-screen view writes the statement that it opened last. What a host
    // writes is kept and changes nothing that is shown.
    virtual QString SQLFilter() const = 0;
    virtual void PutSQLFilter(const QString &statement) = 0;

    // The sort of the next load: field names separated by commas, each with " DESC" behind it when it
    // descends, as in "NAME DESC,AGE". Empty for the statement's own order.
    virtual QString SQLSort() const = 0;
    virtual void PutSQLSort(const QString &sort) = 0;

    // A number of TBLType: what SQLShow stands for. With DefSQL a load leaves the button "ToFullTable"
    // disabled, because there is no one table to show in full.
    virtual qint32 TableType() const = 0;
    virtual void PutTableType(qint32 type) = 0;

    // Whether Refresh tells the user what is missing. False at first.
    virtual bool ErrorHint() const = 0;
    virtual void PutErrorHint(bool on) = 0;

    // A number of AllDBType: whose form of SQL the derived statements take; dbAccess at first, which also
    // fits SQLite. One value for all controls of the process.
    virtual qint32 DBType() const = 0;
    virtual void PutDBType(qint32 type) = 0;

    // The connection string of the host's own system database. The control only keeps it.
    virtual QString SysDBCnn() const = 0;
    virtual void PutSysDBCnn(const QString &text) = 0;

    // How the host uses that database. The control only keeps it.
    virtual QString SysDBMode() const = 0;
    virtual void PutSysDBMode(const QString &text) = 0;

    // The condition of a host that filters in place of the built-in dialog, without the word WHERE. Emptied
    // before QurryFilter is raised; set it inside that event.
    virtual QString PassQurryFilter() const = 0;
    virtual void PutPassQurryFilter(const QString &condition) = 0;

    // The current record's number, from 1; 0 when nothing is open, and below 0 when the open recordset stands
    // on no record (ADODB::PositionEnum).
    virtual qint32 CurrPosition() const = 0;

    // The first data column, from 1, whose heading is exactly `strFieldName`, letter case included; -1 when
    // there is none.
    virtual qint32 GetBindFieldIndex(const QString &strFieldName) const = 0;

    // The field that holds a picture, by its exact name; empty for none. A click on a record writes that
    // field's bytes to "PicRecord.bmp" in the folder of the host's program, and no file when it is Null.
    // Takes effect when a page is next shown.
    virtual QString PicField() const = 0;
    virtual void PutPicField(const QString &field) = 0;

    // Checks that there is something to load, and loads nothing; see IsLoadData. When ConnectionString or
    // RecordSource is empty and ErrorHint is True, it says so in a message box.
    virtual void Refresh() = 0;

    // Makes a row of the first page and its record current; another page gives way to the first. False when
    // the row is below 1 or above the number of rows. Row 1, a row that equals the number of rows and the
    // current row give True and change nothing. Raises RecordChanged with reason 3 when it moved.
    virtual bool LocateSelRecord(qint32 lRecordRow) = 0;

    // Shows ConnectionString in a dialog, to be read and copied.
    virtual void ShowConnectionString() = 0;
    // Shows RecordSource in a dialog, to be read and copied.
    virtual void ShowRecordSource() = 0;
    // Shows SQLShow in a dialog, to be read and copied.
    virtual void ShowSQLShow() = 0;
    // Shows SQLPartDisplay in a dialog, to be read and copied.
    virtual void ShowPartDisplay() = 0;
    // Shows SQLFilter in a dialog, to be read and copied.
    virtual void ShowFilterCondtion() = 0;
    // Shows SQLSort in a dialog, to be read and copied.
    virtual void ShowSort() = 0;

    // Asks for a connection string, and on request for SQLShow; what is entered is written to the properties
    // with all that follows from that. Nothing changes when the dialog is cancelled.
    virtual void GetConnection() = 0;
    // Lets the user choose the fields to show, as the toolbar button "SelField" does, also over a result
    // without records. Does nothing where nothing was loaded.
    virtual void SetFieldName() = 0;
    // Lets the user edit SQLShow; nothing changes when the dialog is cancelled.
    virtual void SetSQLShow() = 0;
    // Lets the user edit SQLFilter; nothing changes when the dialog is cancelled.
    virtual void SetSQLFilter() = 0;
    // Lets the user choose the sort, as the toolbar button "Sort" does, also over a result without records.
    // Does nothing where nothing was loaded.
    virtual void SetSortFN() = 0;

    // Makes a column current. One outside the grid is told in a message box and changes nothing.
    virtual void SetGridCol(const qint32 &Col) = 0;
    // The text of a cell, row 0 being the headings. A cell outside the grid is told in a message box; the
    // text is then "". For rows above 32767 see CellTextL.
    virtual QString CellText(const qint16 &n_row, const qint16 &n_col) = 0;

    // Closes the result, empties the grid, leaves the view of one record and disables grid and toolbar.
    virtual void Clear() = 0;
    // Closes the result of a load and empties the grid; disables grid and toolbar in any case.
    virtual void ClearAll() = 0;

    // The data control behind the grid, an ADODB::Adodc. Owned by the control and never null.
    virtual QObject *GetBond() = 0;

    // The current column; 0 when there is none.
    virtual qint16 GetGridCol() = 0;
    // Makes a row current. One outside the grid is told in a message box and changes nothing.
    virtual void SetGridRow(const qint32 &Row) = 0;
    // The current row; 0 when there is none. Rows above 32767 answer 32767: use GetGridRowL.
    virtual qint16 GetGridRow() = 0;

    // Disables the grid, the page button, the toolbar and every button on it; what is shown stays.
    virtual void CloseAllAction() = 0;

    // Opens SQLShow through ConnectionString, sorted by SQLSort, and shows its first page of at most 999,999
    // records. Begins a new history of statements. False when it could not be opened or the user cancelled,
    // which the user has then been told, and when another load is running; the grid keeps what it showed.
    virtual bool IsLoadData() = 0;

    // Fits the shown columns into the grid's width. Does nothing in the view of one record.
    virtual void SeeCompressView() = 0;

    // To be called before the host's form closes: saves the user's setting, closes the result, lets go of the
    // database and of the process's connection factory. IsLoadData may be called again afterwards.
    virtual void ClearObject() = 0;

    // As CellText, for any row.
    virtual QString CellTextL(const qint32 &n_row, const qint32 &n_col) = 0;
    // As GetGridRow, for any row.
    virtual qint32 GetGridRowL() = 0;

    // Whether the user can neither add, change nor delete records; False at first. A change that is not saved
    // yet still can be.
    virtual bool ReadOnly() const = 0;
    virtual void PutReadOnly(bool on) = 0;
    // Writes the open result to a file, whose ending says how: .csv, .xlsx (not on Windows), .jsonl, .html. A
    // file of this name is replaced once the new one is whole. `strOptions` is empty or `Keyword=value;…`:
    // Records All or Marked; Columns Shown or All; Headings Yes or No; and for CSV Encoding UTF-8, UTF-8
    // without mark or GB18030, Formulas Guard or Keep (whether texts that a spreadsheet would compute get an
    // apostrophe). The first of each is the default. False when the user cancelled and when it failed, which
    // is told in a message box.
    virtual bool ExportData(const QString &strFile, const QString &strOptions) = 0;
};
