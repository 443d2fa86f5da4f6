#include "query/clsFilterManagement.h"
#include "query/conditions/ConditionParts.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/columns/ColumnCommand.h"
#include "session/commands/rows/FilterByDialog.h"
#include "session/history/SharedHistory.h"
#include "session/statement/FilterManagerRollback.h"
#include "session/statement/ShownConditions.h"
#include "session/statement/ShownOrder.h"
#include "session/statement/ShownStatement.h"

#include <algorithm>

// Shows the records with certain values in a column. Adds a condition, or replaces the one made in the same
// way before.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// An active condition that was made by choosing values of a field.
struct Choice
{
    std::size_t place; // index in the shown conditions
    QString built;
};

std::optional<Choice> choiceInForce(Session &session, const QString &field)
{
    const std::vector<ShownCondition> shown = shownConditions(session);
    for (std::size_t place = 0; place < shown.size(); ++place) {
        const auto chosen =
            std::ranges::find_if(session.shown().chosenValues(), [&](const ChosenValues &values) {
                return values.field == field && values.condition == shown[place].text;
            });
        if (chosen != session.shown().chosenValues().end())
            return Choice{place, chosen->built};
    }
    return std::nullopt;
}

// Remembers the condition as it is in the shown statement, to recognize it later.
void remember(Session &session, const QString &field, const ValuesAnswer &answer)
{
    const Dialect dialect = dialectOf(session.filterManager().DBType(), session.result().engine());
    QStringList parts = textsOfParts(answer.condition, dialect);
    for (QString &part : parts)
        part = comparableText(part, dialect);
    for (const ShownCondition &shown : shownConditions(session)) {
        if (parts.contains(comparableText(shown.text, dialect)))
            session.shown().noteChosen({field, shown.text, answer.built});
    }
}

void show(Session &session, const QString &field, const std::optional<Choice> &current,
          const ValuesAnswer &answer)
{
    if (answer.condition.isEmpty()) {
        if (current)
            removeCondition(session, current->place);
        return;
    }
    FilterManagerRollback rollback(session);
    QString statement;
    if (current)
        statement = statementWith(session, current->place, answer.condition);
    else if (!session.shown().addCondition(answer.condition, statement))
        return;
    if (!session.shown().reloadFiltered(statement, true))
        return;
    rollback.keepChanges();
    remember(session, field, answer);
}

void filterByColumn(Session &session, int col)
{
    const ResultWatch watch(session);
    const QString heading = session.window().Headings().value(col - 1);
    const QString field = writtenColumn(session, col);
    const std::optional<Choice> current = choiceInForce(session, field);
    ValuesRequest request{session.shown().conditionRequest(), field};
    request.records.field = heading;
    if (current) {
        // The values that the condition excludes are offered too.
        request.records.condition =
            session.history().GetConditionOf(statementWithout(session, current->place));
        request.records.built = current->built;
    }
    const std::optional<ValuesAnswer> answer = session.questions().askValues(request);
    if (!answer || !watch.isUntouched())
        return;
    if (answer->wantsBuilder)
        filterByDialog(session, heading);
    else
        show(session, field, current, *answer);
}

const ColumnCommand::Registration filterByColumnCommand({
    .key = u"FilterByColumn"_s,
    .place = 200,
    .caption = ColumnCommand::tr("按此列筛选(&F)…"),
    .record = Record::IsLeft,
    .run = filterByColumn,
    .step = DerivationStep::Condition,
    // A filter that excludes all records can still be changed here.
    .canRun =
        [](Session &session, int col) {
            return session.result().hasRecords() || choiceInForce(session, writtenColumn(session, col));
        },
    .whyNot = whyNotSorted, // the list of values is in their order
});

} // namespace

} // namespace KOVAVSFDataGridLib
