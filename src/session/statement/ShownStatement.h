#pragma once

#include "query/clsFilterManagement.h"
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
    QString field;     // its form in SQL
    QString condition; // as in the shown statement
    QString built;     // see ValuesAnswer
};

// The statement that a session shows, and how it is replaced.
class ShownStatement
{
public:
    explicit ShownStatement(Session &session);

    const QString &text() const { return m_text; }
    // Does not show the statement.
    void setText(const QString &statement) { m_text = statement; }
    // Stores the statement for the dialogs of the process.
    void remember() const;
    // Sets SQLFilter.
    void writeFilter(const QString &statement);

    // Saves the column widths and reads a statement that will be shown, using the statement in SQLFilter.
    // `isRemembered`: see remember(); otherwise like StatementReader::read.
    std::optional<ResultSet::Opened> readForReload(const QString &statement, bool isRemembered,
                                                   QString *refusal = nullptr);
    // Replaces what is shown with the opened result, from its first page on.
    void show(const ResultSet::Opened &opened);
    // Both for a statement with an added condition, which becomes the latest entry of the history.
    bool reloadFiltered(const QString &statement, bool isRemembered, QString *refusal = nullptr);
    // The history keeps its first entry and the last ones; so many altogether.
    static constexpr qsizetype statementsKept = clsFilterManagement::statementsKept;
    // Makes the statement the latest entry of the history and arranges its columns for all or part fields.
    void addToHistory(const QString &statement,
                      const QString &partFields = colShowSQLSentences::NoPartField(),
                      const QString &orderFields = colShowSQLSentences::NoSort());
    // Replaces the open result with one that was read for it and shows its first page. Returns false if the
    // host, which is notified immediately, has replaced it again.
    bool replaceResult(const ResultSet::Opened &opened);
    // Uses a result that another session has opened, without owning it.
    void borrow(const ResultSet::Opened &opened, const QString &statement, int page);
    // Whether another statement has been opened since borrow().
    bool isRequeried() const { return m_isRequeried; }

    // The input for building a condition for it.
    ConditionRequest conditionRequest() const;
    // The statement with one more condition; false when none can be derived. What of it is `made` now, all of
    // it by default, is no more in chosenValues().
    bool addCondition(const QString &condition, QString &statement,
                      const std::optional<QString> &made = std::nullopt);
    // Stores a filter's condition for the dialogs of the process; an empty one clears SQLFilter too.
    void setLastFilter(const QString &condition);
    // Whether the next filter is added to this statement instead of the first one.
    bool isFromResult() const { return m_isFromResult; }
    void toggleFromResult();

    // What the user's conditions were made from, the latest last; each condition is there once. These are the
    // last conditionsKept, also from before a load, because a condition can be typed again. Older ones are
    // kept if a statement that the user can go to has them.
    static constexpr std::size_t conditionsKept = 1000;
    const std::vector<BuiltCondition> &builtConditions() const { return m_builtConditions; }
    const std::vector<ChosenValues> &chosenValues() const { return m_chosenValues; }
    void noteBuilt(BuiltCondition condition);
    void noteChosen(ChosenValues values);

private:
    std::vector<BuiltCondition> m_builtConditions;
    std::vector<ChosenValues> m_chosenValues;
    Session &m_session;
    QString m_text;
    bool m_isFromResult = false;
    bool m_isRequeried = false;
};

} // namespace KOVAVSFDataGridLib
