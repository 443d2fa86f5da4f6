#pragma once

#include "cases/Arguments.h"
#include "query/colShowSQLSentences.h"

namespace KovaTest {

// Each runs the operations of {"reader": ..., "ops": [{"op", "args", "dialog"?}...]} on a new object and
// returns a list with each operation's result and the state after it.
QJsonValue RunCatalogue(const Arguments &arguments);
QJsonValue RunHistory(const Arguments &arguments);
QJsonValue RunFilterManager(const Arguments &arguments);

// One operation of the history by name, without those that belong to the sequence (SetReader).
QJsonValue RunHistoryOperation(KOVAVSFDataGridLib::colShowSQLSentences &history, const QString &name,
                               const Arguments &arguments);
QJsonArray HistoryEntries(const KOVAVSFDataGridLib::colShowSQLSentences &history);

// Removes by position or by key.
template<typename Collection>
void RemoveItem(Collection &collection, const QJsonValue &positionOrKey)
{
    if (positionOrKey.isString())
        collection.Remove(positionOrKey.toString());
    else
        collection.Remove(NumberOf(positionOrKey));
}

// Runs `operation` (which takes the operation's object and returns its result) on each and adds `state`.
template<typename Operation, typename State>
QJsonArray RunOperations(const QJsonObject &sequence, Operation operation, State state)
{
    QJsonArray answers;
    for (const QJsonValue &value : ListOf(sequence.value(u"ops"))) {
        const QJsonObject step = ObjectOf(value);
        const QJsonValue result = operation(step);
        QJsonObject answer = state();
        answer.insert(u"result", result);
        answers.append(answer);
    }
    return answers;
}

} // namespace KovaTest
