#pragma once

namespace KOVAVSFDataGridLib {

// How the two windows over a session differ. Everything else is the same for both.
struct WindowRules
{
    // All commands can run, not only those marked for the viewer.
    bool hasAllCommands;
    // Result and history belong to another session, which can take both away at any time.
    bool worksOnLentResult;
    // SQLFilter is set before its statement is opened, and its host may then set another one. The viewer's
    // host is notified of the last statement when the user has come back.
    bool writesFilter;
    // The host is asked for a condition first, and the user only if the host leaves it to him.
    bool asksHostForCondition;
    // Spaces around a condition are removed.
    bool trimsCondition;
    // The last statement and condition are stored for the dialogs of the process.
    bool remembersForDialogs;
    // "SelField" also works on a result without records.
    bool choosesFieldsWithoutRecords;
    // The columns of another statement get the default width, even if their headings are the same.
    bool alwaysResetsWidths;
    // "All" and "SelField" always open their statement, even if each field they need has a column.
    bool alwaysOpensFields;
    // A condition narrows what is shown, by the filter manager; else it is added to the history's entry.
    bool narrowsShown;
    // Turning a page makes its first record current. The viewer never moves its control's recordset.
    bool movesRecordset;
    // A page extends to the end of the recordset, as far as the grid has rows for it.
    bool fillsToTheEnd;
    // Text that is not a number is ignored in the page box, and one above the last page is kept.
    bool keepsTypedPage;
    // "Sort" starts with the host's sort if the user has not chosen any.
    bool beginsWithHostSort;
    // If a statement can't be opened, the database's message is shown; if this is false, only for a filter
    // that can't be applied.
    bool reportsOpenErrors;
    // While all fields are shown, CompressView also shows columns that the user dragged to zero width.
    bool compressShowsHidden;
    int (*roundWidth)(double twips);
};

extern const WindowRules controlRules;
extern const WindowRules viewerRules;

} // namespace KOVAVSFDataGridLib
