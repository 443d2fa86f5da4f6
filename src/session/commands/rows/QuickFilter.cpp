#include "ado/Recordset.h"
#include "query/QueryTexts.h"
#include "query/conditions/Conditions.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/history/SharedHistory.h"
#include "session/statement/FilterManagerRollback.h"
#include "session/statement/ShownStatement.h"

// Asks for words and searches all fields, or one, for them.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// The type from the result, or else the one that the catalogue read from the source: the result may have been
// opened with fewer fields.
std::optional<qint32> typeOf(const clsDataField &field, const ADODB::Fields &fields)
{
    const int index = fields.IndexOf(field.FieldName);
    if (index >= 0)
        return fields.Item(index).Type();
    return field.FieldType != 0 ? std::optional(field.FieldType) : std::nullopt;
}

std::vector<TypedField> searchedFields(const FindAnswer &answer, const colShowSQLSentences &history,
                                       const ADODB::Fields &fields)
{
    std::vector<TypedField> searched;
    for (const clsDataField &field : history.DataFields()) {
        if ((!answer.isOneField || field.FieldName == answer.field) && history.CanName(field))
            searched.push_back({field.FieldName, typeOf(field, fields), history.GetConditionName(field)});
    }
    return searched;
}

// No value if the words can't be searched for.
std::optional<QString> askUser(Session &session, const FilterManagerRollback &rollback, const QString &latest)
{
    const colShowSQLSentences &history = rollback.manager().SQLManager();
    colDataFields catalogue = history.DataFields();
    for (const clsDataField &field : history.DataFields()) {
        if (!history.CanName(field))
            catalogue.Remove(field.FieldKey);
    }
    const std::optional<FindAnswer> answer = session.questions().askWords(catalogue);
    if (!answer || !rollback.isResultUntouched())
        return {};
    const auto fields = searchedFields(*answer, history, session.result().recordset()->Fields());
    QString condition;
    if (BuildLikeCondition(answer->text, fields, history.LineOf(latest), rollback.manager().DBType(),
                           condition, session.result().engine()))
        return condition;
    if (answer->isOneField) // the remaining records don't show the reason
        session.questions().show(QueryTexts::TypeNotFiltered);
    return {};
}

void quickFilter(Session &session)
{
    FilterManagerRollback rollback(session);
    QString latest;
    if (!rollback.manager().SQLManager().GetLatestSQL(latest))
        return;
    const std::optional<QString> condition = askUser(session, rollback, latest);
    if (!condition)
        return;
    session.shown().setLastFilter(*condition);
    QString statement;
    if (!condition->trimmed().isEmpty() && session.shown().addCondition(*condition, statement) &&
        session.shown().reloadFiltered(statement, true))
        rollback.keepChanges();
}

const Command::Registration quickFilterCommand({
    .key = u"QuickFilter"_s,
    .shortcut = u"Ctrl+F"_s,
    .button = {{.place = 301,
                .caption = Command::tr("快速筛选"),
                .toolTip = Command::tr("在所有字段中查找"),
                .isCaptioned = true}},
    .needs = Needs::Records,
    .run = quickFilter,
    .whyNot = [](Session &session) { return session.sharedHistory().whyNot(DerivationStep::Condition); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
