#pragma once

namespace KOVAVSFDataGridLib {

// In what the two windows over a session differ. Everything else is the same command.
struct WindowRules
{
    // Every command can run, not only those that say that the viewer has them.
    bool hasAllCommands;
    // Result and history belong to another session, which can take both away at any time.
    bool worksOnLentResult;
    // SQLFilter is written before its statement is opened, and its host may write another one then. The
    // viewer's host hears of the last statement when the user has come back.
    bool writesFilter;
    // The host is asked for a condition first, and the user only when the host leaves it to him.
    bool asksHostForCondition;
    // Blanks around a condition are left out of the statement.
    bool trimsCondition;
    // The last statement and condition are kept for the dialogs of the process.
    bool remembersForDialogs;
    // "SelField" also works on a result without records.
    bool choosesFieldsWithoutRecords;
    // The columns of another statement begin with the default width even when their headings are the same.
    bool alwaysResetsWidths;
    // "All" and "SelField" open their statement even when each field they need has a column.
    bool alwaysOpensFields;
    // A condition narrows what is shown, through the filter manager; else it is added to the history's entry.
    bool narrowsShown;
    // Turning a page makes its first record current. The viewer never moves its control's recordset.
    bool movesRecordset;
    // A page goes on to the end of the recordset, as far as the grid has rows for it.
    bool fillsToTheEnd;
    // A page box without a number is ignored, and one above the last keeps what was typed.
    bool keepsTypedPage;
    // "Sort" begins with the host's sort when the user has chosen none.
    bool beginsWithHostSort;
    // A statement that can't be opened is reported with the database's words; else only a filter's failure
    // is.
    bool reportsOpenErrors;
    // CompressView brings back columns that the user dragged to nothing while all fields are shown.
    bool compressShowsHidden;
    int (*roundWidth)(double twips);
};

extern const WindowRules controlRules;
extern const WindowRules viewerRules;

} // namespace KOVAVSFDataGridLib
