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

// The wait for a statement that is being opened, or for records that are being written.
class OpeningProgress
{
public:
    virtual ~OpeningProgress() = default;
    // To be called every few milliseconds; false once the user has cancelled. It doesn't throw.
    virtual bool shouldContinue(qint64 rowsDone) = 0;
    // To be called before it while a recordset is being opened that has records already: they can be looked
    // at until this object goes. See ADODB::recordsSoFar().
    virtual void showOpening(const ADODB::Recordset &) {}
};

// The cells that the user has marked: some of the columns over some rows in sequence, both from 1.
struct MarkedCells
{
    int firstRow = 1;
    int lastRow = 0; // included; 0 when nothing is marked
    std::vector<int> columns;
};

// The marked lines of the list of a single record.
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
    QString place; // whose value it is, for the user to read
    bool isNull = false;
    bool isBinary = false; // then it is `bytes`
    QString text = {};
    QByteArray bytes = {};
};

// What a session needs of the window that shows it. Rows count from 1, row 0 is the headings. This one shows
// nothing.
class SessionWindow : public ColumnView
{
public:
    // Shows `count` records from `first` (from 1) on and makes the first row current; without a recordset
    // the headings alone remain.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): a window that shows them keeps them
    virtual void showRecords(std::shared_ptr<ADODB::Recordset>, qint64 /*first*/, int /*count*/) {}
    // The same records have other values.
    virtual void refreshRecords() {}
    // The page that is shown, 0 when none is, and how many there are.
    virtual void showPageNumber(int /*page*/, qint64 /*pageCount*/) {}
    // What the page box shall show instead of the number.
    virtual void showTypedPage(const QString &) {}

    // The current row; 0 when none is. `Rows` counts the headings and all rows below them.
    virtual int Row() const { return 0; }
    virtual int Rows() const { return 1; }
    virtual void PutRow(int) {}
    virtual void PutCol(int) {}
    // The column of the cell that the user sees as current, whichever view shows it; 0 when none is.
    virtual int currentCol() const { return 0; }
    // What is marked, without hidden columns; the current cell when nothing is. Columns are in the order in
    // which they are shown. The list of a single record marks fields of the current row.
    virtual MarkedCells markedCells() const { return {}; }
    virtual MarkedFields markedFields() const { return {}; }
    // The columns that can be seen, in the order in which they are shown.
    virtual std::vector<int> shownColumns() const { return {}; }
    // Runs `change`; afterwards the same part of the grid is in view and the same column current.
    virtual void keepInView(const std::function<void()> &change) { change(); }

    // Whether the current record is shown as a list in place of the grid, and the ways there and back.
    virtual bool isSingleRecordShown() const { return false; }
    virtual void showSingleRecord() {}
    virtual void showAllRecords() {}
    // Lists the current record once more, where it is shown as a list.
    virtual void refreshSingleRecord() {}
    // Takes the value that is being typed into the record. When it doesn't fit it stays, and the answer is
    // why, for the user to read.
    virtual std::optional<QString> commitEdit() { return {}; }
    // Gives the keyboard back to a value that is being typed.
    virtual void focusEdit() {}
    // Forgets the value that is being typed.
    virtual void cancelEdit() {}

    // Shows a toggle button as pressed or not.
    virtual void setPressed(const QString & /*key*/, bool) {}
    // Position, count or statement may have changed.
    virtual void refreshStatus() {}
    // Which commands can run, and why others can't, may have changed; see Session::whyNot.
    virtual void refreshCommands() {}
    // A result is shown: what works on it can be used from now on.
    virtual void enableCommands() {}
    // Says something in passing that needs no answer.
    virtual void showNote(const QString & /*text*/) {}
    // The result is shown on the whole screen until the user comes back.
    virtual void showFullScreen() {}
    // Lets the user look for a text in what is shown.
    virtual void showFind() {}
    // Shows a value whole, beside everything else.
    virtual void showValue(const CellValue &) {}
    // Opens the address of a page or a mailbox with the program that the user has for it.
    virtual void openLink(const QUrl &) {}
    // Lists the statements that the user can go to.
    virtual void showHistory() {}
    // Shows that a statement is being opened. Only one can live in a process. Null shows nothing.
    virtual std::unique_ptr<OpeningProgress> beginOpening() { return nullptr; }
    // Scrolls to where the user has scrolled the records while they were being read.
    virtual void scrollAsOpened() {}
    // Shows that `total` records are being written; `done` says so with %1 for the number. Only one of these
    // and beginOpening can live in a process. Null shows nothing.
    virtual std::unique_ptr<OpeningProgress> beginWriting(const QString & /*done*/, qint64 /*total*/)
    {
        return nullptr;
    }
    virtual void putOnClipboard(std::unique_ptr<QMimeData>);
};

} // namespace KOVAVSFDataGridLib
