#pragma once

#include "query/conditions/ConditionInForce.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

namespace KOVAVSFDataGridLib {

class Session;

// One of the conditions that the user has added; all of them must be met.
struct ShownCondition
{
    QString words;      // for the user to read
    QString text;       // as in the statement
    QStringList fields; // those it uses, without tables and quotes
    QStringList sought; // texts that it searches for in them
};

// The conditions of the latest statement that the first one of the history doesn't have.
std::vector<ShownCondition> shownConditions(Session &session);

// The same as they were made: parts that were built together are one.
std::vector<ConditionInForce> conditionsInForce(Session &session);

// The latest statement with one of them replaced, or removed if `replacement` is empty. Empty if there is no
// such condition.
QString statementWith(Session &session, std::size_t condition, const QString &replacement);
QString statementWithout(Session &session, std::size_t condition);

// Saves the current record and shows the latest statement without one of them, as a new entry of the history.
void removeCondition(Session &session, std::size_t condition);

} // namespace KOVAVSFDataGridLib
