#pragma once

#include "filter/saved/SavedFilterMenu.h"
#include "query/FilterTableName.h"
#include "query/StatementSource.h"
#include "query/conditions/ConditionInForce.h"
#include "query/derivation/Derivation.h"
#include "sql/AllDBType.h"

#include <QtCore/QPointer>
#include <QtGui/QIcon>

#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace ADODB {
class Connection;
}

namespace KOVAVSFDataGridLib {

class frm_Filter;

// What a filter dialog is prepared from.
struct FilterRequest
{
    QString connectionString;
    AllDBType dbType = dbAccess;
    StatementSource tableType = FromTable;
    QString sqlShow; // the statement whose table is filtered
    // For table type 2, where the connection string alone may not lead to the same data; may be null. See
    // isConnectionNeeded().
    std::shared_ptr<ADODB::Connection> connection;
    // Where the statement isn't the plain rows of a table: what it is filtered by instead.
    std::optional<FilteredResult> result = {};
    QIcon picture = {};     // of the command that asks; may be null
    QString condition = {}; // that the filtered records meet already
    // What to begin with: a field, empty for any, and a value of it.
    QString field = {};
    QString value = {};
    std::vector<ConditionInForce> replaced =
        {};                   // conditions to begin with; a field is then asked for besides
    QString built = {};       // of ticked values: what an earlier choice answered
    FilterShelf shelf = {};   // of the filters that the user keeps for the table
    bool isSqlWanted = false; // to see the condition as SQL
};

// Whether only the request's own connection leads to the data. Elsewhere it is left to the control: a
// connection that nobody else uses can read in the background.
bool isConnectionNeeded(const FilterRequest &request);

// Runs the filter dialog and keeps what it left. One object can run any number of dialogs, one after another.
class mod_Filter
{
public:
    explicit mod_Filter(QWidget *parent = nullptr);
    ~mod_Filter();
    Q_DISABLE_COPY_MOVE(mod_Filter)

    // Forgets the last condition and makes the dialog ready.
    void PrepareFilterDialog(const FilterRequest &request);
    // Shows it modally; answers strFilterCondition(). It can be shown again as it was left, with what the
    // database says against the condition.
    QString ShowFilterDialog(const QString &refusal = {});

    // The condition without those in force that the user keeps; empty where he kept them alone. And what it
    // was built from, as a text for a later request.
    QString BuiltCondition() const;
    QString Built() const;

    // Whether the user wanted to see the condition as SQL when the dialog closed.
    bool IsSqlWanted() const;

    // The condition was used: it becomes the first of the shelf's recent ones.
    void NoteUsed();

    // Empty when the dialog was cancelled.
    const QString &strFilterCondition() const { return m_strFilterCondition; }

    // The current table's name, and what is made of it.
    const QString &strTableName() const { return m_strTableName; }
    void PutStrTableName(const QString &name) { m_strTableName = name; }
    // Removes the brackets around the name and counts the table as known.
    void SetFilterTableName();
    // Takes owner and table apart where the name has a ".".
    void SplitFilterTableName();
    const FilterTableName &NameParts() const { return m_nameParts; }
    bool IsTableKnown() const { return m_isTableKnown; }

private:
    QPointer<QWidget> m_parent;
    std::unique_ptr<frm_Filter> m_dialog;
    FilterShelf m_shelf;
    QString m_strFilterCondition;
    QString m_strTableName;
    FilterTableName m_nameParts;
    bool m_isTableKnown = false;
};

} // namespace KOVAVSFDataGridLib
