#pragma once

#include "session/ColumnView.h"

#include <functional>
#include <memory>

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

// The wait for a statement that is being opened.
class OpeningProgress
{
public:
    virtual ~OpeningProgress() = default;
    // To be called every few milliseconds; false once the user has cancelled. It doesn't throw.
    virtual bool goOn(qint64 rowsRead) = 0;
};

// What a session needs of the window that shows it. Rows count from 1, row 0 is the headings.
class SessionWindow : public ColumnView
{
public:
    // Shows `count` records from `first` (from 1) on and makes the first row current; without a recordset
    // the headings alone remain.
    virtual void showRecords(std::shared_ptr<ADODB::Recordset> recordset, qint64 first, int count) = 0;
    // The same records have other values.
    virtual void refreshRecords() = 0;
    // The page that is shown, 0 when none is, and how many there are.
    virtual void showPageNumber(int page, qint64 pageCount) = 0;
    // What the page box shall show instead of the number.
    virtual void showTypedPage(const QString &text) = 0;

    // The current row; 0 when none is. `Rows` counts the headings and all rows below them.
    virtual int Row() const = 0;
    virtual int Rows() const = 0;
    virtual void PutRow(int row) = 0;
    virtual void PutCol(int col) = 0;
    // The column of the cell that the user sees as current, whichever view shows it; 0 when none is.
    virtual int currentCol() const = 0;
    // Runs `change`; afterwards the same part of the grid is in view and the same column current.
    virtual void keepInView(const std::function<void()> &change) = 0;

    // Whether the current record is shown as a list in place of the grid, and the ways there and back.
    virtual bool isSingleRecordShown() const = 0;
    virtual void showSingleRecord() = 0;
    virtual void showAllRecords() = 0;
    // Lists the current record once more, where it is shown as a list.
    virtual void refreshSingleRecord() = 0;
    // Takes the value that is being typed into the record. False when that can't be done, which the user has
    // been told, or when the host has put something else in the result's place meanwhile.
    virtual bool commitEdit() = 0;
    // Forgets the value that is being typed.
    virtual void cancelEdit() = 0;

    // Shows a toggle button as pressed or not.
    virtual void setPressed(const QString &key, bool on) = 0;
    // Position, count or statement may have changed.
    virtual void refreshStatus() = 0;
    // A result is shown: what works on it can be used from now on.
    virtual void enableCommands() = 0;
    // The result is shown on the whole screen until the user comes back.
    virtual void showFullScreen() = 0;
    // Shows that a statement is being opened. Only one can live in a process.
    virtual std::unique_ptr<OpeningProgress> beginOpening() = 0;

protected:
    ~SessionWindow() = default;
};

} // namespace KOVAVSFDataGridLib
