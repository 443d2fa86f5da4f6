#pragma once

#include "../../KovaExport.h"

#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QFont>

class QObject;

// The control's interface, its members in their fixed order. A property X is read by X() and, where it can be
// written, written by PutX(); one comment describes both. Enumerated values are passed as 32-bit numbers;
// their names are the enumerations of KOVAVSFDataGrid.
//
// Rows and columns of the grid count from 0; row 0 contains the headings, column 0 the row numbers. Call
// everything on the GUI thread. No member throws, except UseModel and PutUseModel; other errors are shown in
// message boxes.
class KOVA_EXPORT IKOVAVSFDataGrid
{
public:
    virtual ~IKOVAVSFDataGrid() = default;

    // A text for the host's own use. The control only stores it. Empty at first.
    virtual QString STR_SQLTEMP() const = 0;
    virtual void PutSTR_SQLTEMP(const QString &text) = 0;

    // Reading returns whether the control itself is enabled. Writing enables or disables the panel and the
    // grid on it, which does not change the value that is read.
    virtual bool Enabled() const = 0;
    virtual void PutEnabled(bool on) = 0;

    // The background of the panel around the grid. It is the system's button-face colour at first, and after
    // an invalid colour was written. A form file stores this property only.
    virtual QColor BackColor() const = 0;
    virtual void PutBackColor(const QColor &colour) = 0;

    // Whether the toolbar and the page button are enabled. False also disables each toolbar button. True does
    // not enable the buttons again; only a load does.
    virtual bool DisplayEable() const = 0;
    virtual void PutDisplayEable(bool on) = 0;

    // Whether the toolbar button "Filter" is enabled. A load enables it.
    virtual bool FilterEnable() const = 0;
    virtual void PutFilterEnable(bool on) = 0;

    // Whether the toolbar button "Sort" is enabled. A load enables it.
    virtual bool SortEnable() const = 0;
    virtual void PutSortEnable(bool on) = 0;

    // The background of the grid's cells.
    virtual QColor DataBackColor() const = 0;
    virtual void PutDataBackColor(const QColor &colour) = 0;

    // The font of the grid's cells and headings.
    virtual QFont DataFont() const = 0;
    virtual void PutDataFont(const QFont &font) = 0;

    // A number of UseModelChoose: ModelDefine hides the toolbar buttons "Filter" and "Sort". It can be used
    // at design time only: at run time, reading throws ControlError 393 and writing throws ControlError 382.
    virtual qint32 UseModel() const = 0;
    virtual void PutUseModel(qint32 model) = 0;

    // A number of ShowModelChoose: whether the next load shows all fields or those in SQLPartDisplay. The
    // user's "All", "Part" and field choice also set it.
    virtual qint32 ShowModel() const = 0;
    virtual void PutShowModel(qint32 model) = 0;

    // The connection string, as `Keyword=value;…`. Writing it, even with the same text, clears SQLShow,
    // SQLFilter, SQLSort, SQLPartDisplay and the history of statements, so write it first. Nothing is opened
    // until IsLoadData is called.
    virtual QString ConnectionString() const = 0;
    virtual void PutConnectionString(const QString &text) = 0;

    // The SELECT to show: a single statement that returns rows. Writing it also writes the same text to
    // SQLPartDisplay. Nothing is loaded until IsLoadData is called.
    virtual QString SQLShow() const = 0;
    virtual void PutSQLShow(const QString &statement) = 0;

    // The open result with ADO's member names, an ADODB::RecordsetObject; null when none is open. It is owned
    // by the control and valid until the next load or ClearObject, so don't keep it beyond one event.
    virtual QObject *RecordSet() const = 0;

    // The statement that the current load opened; empty before the first load.
    virtual QString RecordSource() const = 0;

    // A SELECT with the fields that the "Part" view shows. Write it after SQLShow, which replaces it. If the
    // field list can't be read, the text is stored nevertheless, and a message box reports the problem.
    virtual QString SQLPartDisplay() const = 0;
    virtual void PutSQLPartDisplay(const QString &statement) = 0;

    // The statement of the user's last filter or field choice, or the one that the user last went back to. It
    // is empty after a filter that ended without a condition. "Sort", "ToFullTable", "All" and "Part" don't
    // change it. The full-screen view sets it to the statement that it opened last. Writing it has no effect
    // on what is shown.
    virtual QString SQLFilter() const = 0;
    virtual void PutSQLFilter(const QString &statement) = 0;

    // The sort order of the next load: field names separated by commas, each followed by " DESC" for
    // descending order, as in "NAME DESC,AGE". Empty for the statement's own order.
    virtual QString SQLSort() const = 0;
    virtual void PutSQLSort(const QString &sort) = 0;

    // A number of TBLType: whether SQLShow shows a table, a view, or another query. With DefSQL, a load
    // leaves the button "ToFullTable" disabled, because there is no single table to show in full.
    virtual qint32 TableType() const = 0;
    virtual void PutTableType(qint32 type) = 0;

    // Whether Refresh shows the user what is missing. False at first.
    virtual bool ErrorHint() const = 0;
    virtual void PutErrorHint(bool on) = 0;

    // A number of AllDBType: the SQL dialect of derived statements. It is dbAccess at first, which is also
    // right for SQLite. All controls in the process share one value.
    virtual qint32 DBType() const = 0;
    virtual void PutDBType(qint32 type) = 0;

    // The connection string of the host's own system database. The control only stores it.
    virtual QString SysDBCnn() const = 0;
    virtual void PutSysDBCnn(const QString &text) = 0;

    // How the host uses that database. The control only stores it.
    virtual QString SysDBMode() const = 0;
    virtual void PutSysDBMode(const QString &text) = 0;

    // The condition, without the word WHERE, of a host that replaces the built-in filter dialog. The control
    // clears it before it raises QurryFilter; set it in a handler of that event.
    virtual QString PassQurryFilter() const = 0;
    virtual void PutPassQurryFilter(const QString &condition) = 0;

    // The number of the current record, from 1. It is 0 when nothing is open, and negative (a number of
    // ADODB::PositionEnum) when the open recordset has no current record.
    virtual qint32 CurrPosition() const = 0;

    // The first data column, from 1, whose heading is exactly `strFieldName` (case-sensitive); -1 when there
    // is none.
    virtual qint32 GetBindFieldIndex(const QString &strFieldName) const = 0;

    // The exact name of the field that contains a picture; empty for none. A click on a record writes that
    // field's bytes to "PicRecord.bmp" in the folder of the host's program, or no file if it is Null. A new
    // name takes effect when a page is next shown.
    virtual QString PicField() const = 0;
    virtual void PutPicField(const QString &field) = 0;

    // Checks whether there is something to load, but loads nothing; see IsLoadData. If ConnectionString or
    // RecordSource is empty and ErrorHint is True, it shows a message box.
    virtual void Refresh() = 0;

    // Makes a row of the first page and its record current. If another page is shown, it shows the first
    // page. Returns false if the row is below 1 or above the number of rows. For row 1, the last row and the
    // current row it returns true and changes nothing. Raises RecordChanged with reason 3 if it moved.
    virtual bool LocateSelRecord(qint32 lRecordRow) = 0;

    // Shows ConnectionString in a dialog, for reading and copying.
    virtual void ShowConnectionString() = 0;
    // Shows RecordSource in a dialog, for reading and copying.
    virtual void ShowRecordSource() = 0;
    // Shows SQLShow in a dialog, for reading and copying.
    virtual void ShowSQLShow() = 0;
    // Shows SQLPartDisplay in a dialog, for reading and copying.
    virtual void ShowPartDisplay() = 0;
    // Shows SQLFilter in a dialog, for reading and copying.
    virtual void ShowFilterCondtion() = 0;
    // Shows SQLSort in a dialog, for reading and copying.
    virtual void ShowSort() = 0;

    // Asks the user for a connection string, and optionally for SQLShow, and writes these properties, with
    // the usual effects. Nothing changes if the user cancels the dialog.
    virtual void GetConnection() = 0;
    // Lets the user choose the fields to show, like the toolbar button "SelField", but also for a result
    // without records. Does nothing if nothing was loaded.
    virtual void SetFieldName() = 0;
    // Lets the user edit SQLShow. Nothing changes if the user cancels the dialog.
    virtual void SetSQLShow() = 0;
    // Lets the user edit SQLFilter. Nothing changes if the user cancels the dialog.
    virtual void SetSQLFilter() = 0;
    // Lets the user choose the sort order, like the toolbar button "Sort", but also for a result without
    // records. Does nothing if nothing was loaded.
    virtual void SetSortFN() = 0;

    // Makes a column current. If the column is outside the grid, it shows a message box and changes nothing.
    virtual void SetGridCol(const qint32 &Col) = 0;
    // The text of a cell; row 0 contains the headings. If the cell is outside the grid, it shows a message
    // box and returns "". For rows above 32767 use CellTextL.
    virtual QString CellText(const qint16 &n_row, const qint16 &n_col) = 0;

    // Closes the result, empties the grid, leaves the single-record view and disables the grid and the
    // toolbar.
    virtual void Clear() = 0;
    // Closes the result of a load, if there is one, and empties the grid. Disables the grid and the toolbar
    // in any case.
    virtual void ClearAll() = 0;

    // The data control that the grid uses, an ADODB::Adodc. Owned by the control and never null.
    virtual QObject *GetBond() = 0;

    // The current column; 0 when there is none.
    virtual qint16 GetGridCol() = 0;
    // Makes a row current. If the row is outside the grid, it shows a message box and changes nothing.
    virtual void SetGridRow(const qint32 &Row) = 0;
    // The current row; 0 when there is none. For rows above 32767 it returns 32767: use GetGridRowL.
    virtual qint16 GetGridRow() = 0;

    // Disables the grid, the page button, the toolbar and every button on it. The grid keeps its content.
    virtual void CloseAllAction() = 0;

    // Opens SQLShow with ConnectionString, sorted by SQLSort, and shows the first page of at most 999,999
    // records. Starts a new history of statements. Returns false if the result can't be opened or the user
    // cancels, after showing a message to the user. Also returns false if another load is running. The grid
    // then keeps the previous result.
    virtual bool IsLoadData() = 0;

    // Fits the shown columns into the width of the grid. Does nothing in the single-record view.
    virtual void SeeCompressView() = 0;

    // Call it before the host's form closes. It saves the user's settings, closes the result, and releases
    // the database and the process's connection factory. IsLoadData may be called again afterwards.
    virtual void ClearObject() = 0;

    // Like CellText, for any row.
    virtual QString CellTextL(const qint32 &n_row, const qint32 &n_col) = 0;
    // Like GetGridRow, for any row.
    virtual qint32 GetGridRowL() = 0;

    // True if the user cannot add, change or delete records. False at first. A change made before stays
    // visible, and can be discarded; it can be saved only when this is False again.
    virtual bool ReadOnly() const = 0;
    virtual void PutReadOnly(bool on) = 0;
    // Writes the open result to a file. The file name's extension determines the format: .csv, .xlsx (not on
    // Windows), .jsonl or .html. An existing file is replaced when the new one is complete. `strOptions` is
    // empty or `Keyword=value;…`: Records All or Marked; Columns Shown or All; Headings Yes or No; and for
    // CSV Encoding UTF-8, UTF-8 without mark or GB18030, Formulas Guard or Keep (whether texts that a
    // spreadsheet would evaluate get an apostrophe). The first of each is the default. Returns false if the
    // user cancels, or after a message box if it fails.
    virtual bool ExportData(const QString &strFile, const QString &strOptions) = 0;
    // The layout of the columns as a short JSON text: the fields from left to right, each with its width in
    // twips, whether it is hidden and its display format, and how many columns are frozen. Empty while
    // nothing is open.
    virtual QString SaveLayout() = 0;
    // Applies a layout that SaveLayout() returned, also to another result. Fields that only one of them has
    // are ignored. Columns are hidden and shown as by a choice of fields. If nothing is open or the text is
    // not a layout, it shows a message box, changes nothing and returns false.
    virtual bool RestoreLayout(const QString &strLayout) = 0;
    // The name under which layouts are stored for the user, one for each table. A changed layout is saved,
    // and restored by the next load of its table in any control with the same key. If a table has none yet,
    // its columns are fitted to their contents. Empty at first: nothing is stored.
    virtual QString LayoutKey() const = 0;
    virtual void PutLayoutKey(const QString &strKey) = 0;
    // Prints the shown columns of the open result to a PDF file, reduced to the width of the page if they are
    // wider, with the headings on each page. An existing file is replaced when the new one is complete.
    // `strOptions` is empty or `Keyword=value;…`: Records All or Marked; Orientation Auto, Portrait or
    // Landscape (the first of each is the default); Title and the text above each page, which is the table's
    // name otherwise. Returns false if the user cancels, or after a message box if it fails.
    virtual bool PrintData(const QString &strFile, const QString &strOptions) = 0;
    // The filters that the user has saved for the table of the open result and the LayoutKey, and those used
    // last, as a short JSON text. Relative days in them stay relative. Empty while nothing is open.
    virtual QString SaveFilters() = 0;
    // Replaces the user's filters for the table by those in such a text. If nothing is open or the text is
    // not valid, it shows a message box, changes nothing and returns false.
    virtual bool RestoreFilters(const QString &strFilters) = 0;

    // The language of the texts that users read: "zh-CN" (the default) or "en". There is one for all controls
    // of an application. All change when their next events are processed, or when an open filter dialog is
    // closed; other open dialogs keep theirs. Forms such as "en_GB" are also accepted, an empty text is the
    // default, and one without a translation changes nothing. Messages to developers are always in English.
    virtual QString Language() const = 0;
    virtual void PutLanguage(const QString &strName) = 0;
};
