#pragma once

#include "query/colShowSQLSentences.h"
#include "session/ResultSet.h"

#include <QtCore/QString>

#include <optional>
#include <vector>

namespace KOVAVSFDataGridLib {

struct ConditionRequest;
class Session;

// A condition that the user built, and what it was built from; see ConditionRequest.
struct BuiltCondition
{
    QString condition;
    QString built;
};

// A condition that the user made by choosing values of a column.
struct ChosenValues
{
    QString field;     // as statements write it
    QString condition; // as the statement that is shown has it
    QString built;     // see ValuesAnswer
};

// The statement whose records a session shows, and how another one takes its place.
class ShownStatement
{
public:
    explicit ShownStatement(Session &session);

    const QString &text() const { return m_text; }
    // Shows nothing by itself.
    void setText(const QString &statement) { m_text = statement; }
    // Leaves the statement for the dialogs of the process to find.
    void remember() const;
    // Writes SQLFilter.
    void writeFilter(const QString &statement);

    // Reads a statement to be shown after keeping column widths, and the statement in SQLFilter.
    // `isRemembered` as in remember(); else as StatementReader::read.
    std::optional<ResultSet::Opened> readForReload(const QString &statement, bool isRemembered,
                                                   QString *refusal = nullptr);
    // Shows what was read in place of what is shown, from its first page on.
    void show(const ResultSet::Opened &opened);
    // Both for a statement with one more condition, which becomes the latest entry of the history.
    bool reloadFiltered(const QString &statement, bool isRemembered, QString *refusal = nullptr);
    // Makes the statement the latest entry of the history and lays its columns out as all or part fields.
    void addToHistory(const QString &statement,
                      const QString &partFields = colShowSQLSentences::NoPartField(),
                      const QString &orderFields = colShowSQLSentences::NoSort());
    // Puts a result that was read for it in place of the one that is open and shows its first page. False
    // when the host, which hears of it at once, has put something else there.
    bool replaceResult(const ResultSet::Opened &opened);
    // Takes over a result that another session has opened, without owning it.
    void borrow(const ResultSet::Opened &opened, const QString &statement, int page);
    // Whether another statement has been opened since then.
    bool isRequeried() const { return m_isRequeried; }

    // What a user has to know to build a condition for it.
    ConditionRequest conditionRequest() const;
    // The statement with one more condition, which chosenValues has no more; false when none can be derived.
    bool addCondition(const QString &condition, QString &statement);
    // Keeps a filter's condition for the dialogs of the process; an empty one empties SQLFilter as well.
    void setLastFilter(const QString &condition);
    // Whether the next filter is added to this statement and not to the first one.
    bool isFromResult() const { return m_isFromResult; }
    void toggleFromResult();

    // Of all statements so far, the latest last.
    std::vector<BuiltCondition> builtConditions;
    std::vector<ChosenValues> chosenValues;

private:
    Session &m_session;
    QString m_text;
    bool m_isFromResult = false;
    bool m_isRequeried = false;
};

} // namespace KOVAVSFDataGridLib
