#pragma once

#include "filter/saved/SavedFilterMenu.h"
#include "language/Language.h"
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

// The input for a filter dialog.
struct FilterRequest
{
    QString connectionString;
    AllDBType dbType = dbAccess;
    StatementSource tableType = FromTable;
    QString sqlShow; // the statement whose table is filtered
    // For table type 2, if the connection string alone may not lead to the same data; may be null. See
    // isConnectionNeeded().
    std::shared_ptr<ADODB::Connection> connection;
    // What to filter instead if the statement isn't the plain rows of a table.
    std::optional<FilteredResult> result = {};
    QIcon picture = {};     // of the calling command; may be null
    QString condition = {}; // already met by the filtered records
    // The initial content: a field (empty for any) and a value of it.
    QString field = {};
    QString value = {};
    std::vector<ConditionInForce> replaced =
        {};                   // conditions to begin with; a field is then asked for besides
    QString built = {};       // of ticked values: what an earlier choice answered
    FilterShelf shelf = {};   // of the filters that the user keeps for the table
    bool isSqlWanted = false; // to see the condition as SQL
};

// Whether only the request's own connection leads to the data. If not, the connection is not passed on: a
// separate connection can be used for reading in the background.
bool isConnectionNeeded(const FilterRequest &request);

// Runs the filter dialog and stores its result. One object can run any number of dialogs in succession. The
// language is held from the first one on, while the object exists.
class mod_Filter
{
public:
    explicit mod_Filter(QWidget *parent = nullptr);
    ~mod_Filter();
    Q_DISABLE_COPY_MOVE(mod_Filter)

    // Clears the last condition and prepares the dialog.
    void PrepareFilterDialog(const FilterRequest &request);
    // Shows it modally and returns strFilterCondition(). It can be shown again with the same contents,
    // together with the reason why the database rejected the condition.
    QString ShowFilterDialog(const QString &refusal = {});

    // The condition without those in force that the user keeps; empty where he kept them alone. And what it
    // was built from, as a text for a later request.
    QString BuiltCondition() const;
    QString Built() const;

    // Whether the condition was shown as SQL when the dialog closed.
    bool IsSqlWanted() const;

    // The condition was used: adds it to the start of the shelf's recent ones.
    void NoteUsed();

    // Empty if the dialog was cancelled.
    const QString &strFilterCondition() const { return m_strFilterCondition; }

    // The current table's name, and its parts.
    const QString &strTableName() const { return m_strTableName; }
    void PutStrTableName(const QString &name) { m_strTableName = name; }
    // Removes the brackets around the name, and marks the table as known.
    void SetFilterTableName();
    // Splits a name with a "." into owner and table.
    void SplitFilterTableName();
    const FilterTableName &NameParts() const { return m_nameParts; }
    bool IsTableKnown() const { return m_isTableKnown; }

private:
    QPointer<QWidget> m_parent;
    std::optional<Language::Hold> m_language; // of the dialog
    std::unique_ptr<frm_Filter> m_dialog;
    FilterShelf m_shelf;
    QString m_strFilterCondition;
    QString m_strTableName;
    FilterTableName m_nameParts;
    bool m_isTableKnown = false;
};

} // namespace KOVAVSFDataGridLib
