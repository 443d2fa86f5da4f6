#pragma once

#include "session/layout/ColumnView.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QMimeData;
class QUrl;

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

class CountedText;

// The progress display while a statement is being opened or records are being written.
class OpeningProgress
{
public:
    virtual ~OpeningProgress() = default;
    // Must be called every few milliseconds; false once the user has cancelled. It doesn't throw.
    virtual bool shouldContinue(qint64 rowsDone) = 0;
    // Call it before that while a recordset is being opened that has some records: the user can look at them
    // until this object is destroyed. See ADODB::recordsSoFar().
    virtual void showOpening(const ADODB::Recordset &) {}
    // About how many records there will be. May be called at any time.
    virtual void expect(qint64 /*records*/) {}
};

// The cells that the user has marked: some of the columns in consecutive rows, both from 1.
struct MarkedCells
{
    int firstRow = 1;
    int lastRow = 0; // included; 0 when nothing is marked
    std::vector<int> columns;
};

// The marked lines of the single-record list.
struct MarkedFields
{
    struct Field
    {
        QString name;
        QString text;
    };
    std::vector<Field> fields;
    bool hasNames = false; // whether the names are marked too
};

// One cell's value.
struct CellValue
{
    QString field;
    QString place; // which cell the value is from, as a text for the user
    bool isNull = false;
    bool isBinary = false; // if true, the value is `bytes`
    QString text = {};
    QByteArray bytes = {};
};

// What a session needs from the window that shows it. Rows are numbered from 1; row 0 contains the headings.
// The default implementation shows nothing.
class SessionWindow : public ColumnView
{
public:
    // Shows `count` records starting at `first` (from 1) and makes the first row current. Without a
    // recordset, only the headings remain.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): a window that shows them keeps them
    virtual void showRecords(std::shared_ptr<ADODB::Recordset>, qint64 /*first*/, int /*count*/) {}
    // The values of the same records have changed.
    virtual void refreshRecords() {}
    // The shown page, 0 if there is none, and the number of pages.
    virtual void showPageNumber(int /*page*/, qint64 /*pageCount*/) {}
    // The text in the page box instead of the number.
    virtual void showTypedPage(const QString &) {}

    // The current row; 0 if there is none. `Rows` is the number of rows including the headings.
    virtual int Row() const { return 0; }
    virtual int Rows() const { return 1; }
    virtual void PutRow(int) {}
    virtual void PutCol(int) {}
    // The column of the cell that is current for the user, in whichever view; 0 if there is none.
    virtual int currentCol() const { return 0; }
    // The marked cells, without hidden columns; the current cell if none are marked. Columns are in display
    // order. The single-record list marks fields of the current row.
    virtual MarkedCells markedCells() const { return {}; }
    virtual MarkedFields markedFields() const { return {}; }
    // The visible columns, in display order.
    virtual std::vector<int> shownColumns() const { return {}; }
    // Runs `change` and keeps the visible part of the grid and the current column.
    virtual void keepInView(const std::function<void()> &change) { change(); }

    // Whether the current record is shown as a list instead of the grid, and the ways there and back.
    virtual bool isSingleRecordShown() const { return false; }
    virtual void showSingleRecord() {}
    virtual void showAllRecords() {}
    // Updates the list of the current record, if it is shown.
    virtual void refreshSingleRecord() {}
    // Commits the value being typed to the record. If it doesn't fit, it stays, and the reason is returned,
    // as a text for the user.
    virtual std::optional<QString> commitEdit() { return {}; }
    // Returns the focus to a value that is being typed.
    virtual void focusEdit() {}
    // Discards the value being typed.
    virtual void cancelEdit() {}

    // Shows a toggle button as pressed or not.
    virtual void setPressed(const QString & /*key*/, bool) {}
    // The position, count or statement may have changed.
    virtual void refreshStatus() {}
    // Which commands can run, or why not, may have changed; see Session::whyNot.
    virtual void refreshCommands() {}
    // A result is shown: commands that work on it can be used from now on.
    virtual void enableCommands() {}
    // Shows a short note that needs no answer.
    virtual void showNote(const QString & /*text*/) {}
    // Shows the result in full screen until the user comes back.
    virtual void showFullScreen() {}
    // Lets the user search the shown records for a text.
    virtual void showFind() {}
    // Shows a complete value in addition to everything else.
    virtual void showValue(const CellValue &) {}
    // Opens a web or mail address with the user's program for it.
    virtual void openLink(const QUrl &) {}
    // Lists the statements that the user can go to.
    virtual void showHistory() {}
    // Shows that a statement is being opened. Only one can exist in a process. Null shows nothing.
    virtual std::unique_ptr<OpeningProgress> beginOpening() { return nullptr; }
    // Restores the scroll position that the user chose while the records were being read.
    virtual void scrollAsOpened() {}
    // Shows that `total` records are being written; `done` is the text for the number written. Only one of
    // these and beginOpening can exist in a process. Null shows nothing.
    virtual std::unique_ptr<OpeningProgress> beginWriting(const CountedText & /*done*/, qint64 /*total*/)
    {
        return nullptr;
    }
    virtual void putOnClipboard(std::unique_ptr<QMimeData>);
};

} // namespace KOVAVSFDataGridLib
