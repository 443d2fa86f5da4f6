#include "session/statement/ShownConditions.h"

#include "query/clsFilterManagement.h"
#include "query/conditions/ConditionParts.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/editing/EditedRecord.h"
#include "session/history/SharedHistory.h"
#include "session/statement/ShowStatement.h"
#include "session/statement/ShownStatement.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <optional>
#include <ranges>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// A statement and the parts of its condition.
class Conditions
{
public:
    Conditions(Session &session, const QString &statement)
        : dialect(dialectOf(session.filterManager().DBType(), session.result().engine())),
          sql(statement, dialect),
          where(SelectParts::of(sql).where)
    {
        if (!where.isEmpty())
            parts = conditionParts(sql, {where.begin + 1, where.end});
    }

    QString textOfPart(std::size_t part) const { return textOf(sql, parts[part]); }
    QString comparable(std::size_t part) const { return comparableText(textOfPart(part), dialect); }

    Dialect dialect;
    SqlScanner sql;
    TextRange where;
    std::vector<TextRange> parts;
};

QString firstStatement(Session &session)
{
    const clsShowSQLSentence *const first = session.history().Item(1);
    return first ? first->ShowSQL : QString();
}

// The indexes of those parts that the first statement doesn't have.
std::vector<std::size_t> ownParts(Session &session, const Conditions &latest)
{
    const Conditions first(session, firstStatement(session));
    QStringList given;
    for (std::size_t i = 0; i < first.parts.size(); ++i)
        given.append(first.comparable(i));
    std::vector<std::size_t> own;
    for (std::size_t i = 0; i < latest.parts.size(); ++i) {
        if (!given.removeOne(latest.comparable(i)))
            own.push_back(i);
    }
    return own;
}

// Takes the parts of a condition out of those that are left; nothing when one isn't there.
std::optional<std::vector<std::size_t>> takeParts(std::vector<std::size_t> &left,
                                                  const std::vector<ShownCondition> &shown,
                                                  const QStringList &parts, const Dialect &dialect)
{
    std::vector<std::size_t> rest = left;
    std::vector<std::size_t> taken;
    for (const QString &part : parts) {
        const QString wanted = comparableText(part, dialect);
        const auto found = std::ranges::find_if(
            rest, [&](std::size_t at) { return comparableText(shown[at].text, dialect) == wanted; });
        if (found == rest.end())
            return std::nullopt;
        taken.push_back(*found);
        rest.erase(found);
    }
    left = std::move(rest);
    return taken;
}

} // namespace

std::vector<ShownCondition> shownConditions(Session &session)
{
    QString statement;
    if (!session.result().isOpen() || session.sharedHistory().isManager(nullptr) ||
        !session.history().GetLatestSQL(statement))
        return {};
    const Conditions latest(session, statement);
    if (latest.parts.empty())
        return {};
    std::vector<ShownCondition> conditions;
    for (const std::size_t part : ownParts(session, latest)) {
        const TextRange range = latest.parts[part];
        conditions.push_back({conditionInWords(latest.sql, range), latest.textOfPart(part),
                              fieldsOfCondition(latest.sql, range), textsSought(latest.sql, range)});
    }
    return conditions;
}

std::vector<ConditionInForce> conditionsInForce(Session &session)
{
    const std::vector<ShownCondition> shown = shownConditions(session);
    std::vector<std::size_t> left(shown.size());
    std::iota(left.begin(), left.end(), std::size_t{0});
    std::map<std::size_t, ConditionInForce> byPlace; // by the place of the first part
    // What was chosen by values is that still, because what is built afterwards is removed from it.
    std::erase_if(left, [&](std::size_t place) {
        const auto chosen =
            std::ranges::find(session.shown().chosenValues(), shown[place].text, &ChosenValues::condition);
        if (chosen == session.shown().chosenValues().end())
            return false;
        byPlace.emplace(place, ConditionInForce{shown[place].text, chosen->built, chosen->field});
        return true;
    });
    const Dialect dialect = dialectOf(session.filterManager().DBType(), session.result().engine());
    for (const BuiltCondition &built : session.shown().builtConditions() | std::views::reverse) {
        const auto taken = left.empty()
                               ? std::nullopt
                               : takeParts(left, shown, textsOfParts(built.condition, dialect), dialect);
        if (taken && !taken->empty())
            byPlace.emplace(std::ranges::min(*taken), ConditionInForce{built.condition, built.built});
    }
    for (const std::size_t place : left)
        byPlace.emplace(place, ConditionInForce{shown[place].text});
    std::vector<ConditionInForce> ordered;
    ordered.reserve(byPlace.size());
    for (const auto &[place, condition] : byPlace)
        ordered.push_back(condition);
    return ordered;
}

QString statementWithout(Session &session, std::size_t condition)
{
    return statementWith(session, condition, {});
}

QString statementWith(Session &session, std::size_t condition, const QString &replacement)
{
    QString statement;
    if (!session.history().GetLatestSQL(statement))
        return {};
    const Conditions latest(session, statement);
    const std::vector<std::size_t> own = ownParts(session, latest);
    if (condition >= own.size())
        return {};
    QStringList kept;
    for (std::size_t i = 0; i < latest.parts.size(); ++i) {
        if (i != own[condition])
            kept.append(latest.textOfPart(i));
        else if (!replacement.isEmpty())
            kept.append(replacement);
    }
    SQLSentence sentence;
    const SqlToken &word = latest.sql.at(latest.where.begin);
    sentence.fields = statement.first(word.start);
    const qsizetype end = latest.sql.at(latest.where.end - 1).end();
    sentence.order = statement.sliced(end);
    while (sentence.fields.endsWith(u' '))
        sentence.fields.chop(1);
    for (const QString &part : std::as_const(kept))
        addCondition(sentence, part, session.history().UsedDialect());
    return ComposeSQL(sentence.fields, sentence.where.trimmed(), sentence.order.trimmed());
}

void removeCondition(Session &session, std::size_t condition)
{
    if (!session.record().save())
        return;
    const QString statement = statementWithout(session, condition);
    if (!statement.isEmpty())
        showStatement(session, statement, [&] { session.shown().addToHistory(statement); });
}

} // namespace KOVAVSFDataGridLib
