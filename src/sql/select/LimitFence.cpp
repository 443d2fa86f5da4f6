#include "sql/select/LimitFence.h"

#include "sql/select/SqlWalk.h"

#include <vector>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// What is known about a SELECT, and about those nested in it.
struct Level
{
    bool isLimited = false;
    bool isSorted = false;
    bool isCompound = false;
    bool isGrouped = false;
    bool isInGroup = false;
    bool isGroupedByMany = false;
    bool hasJson = false; // a field that compares without the quotes that it is shown with
    bool isFence = false;
    bool holdsUnfenced = false;

    bool needsFence(Engine engine) const
    {
        const bool isOwn = engine == Engine::SQLite ? isLimited && !isSorted
                           : isLimited              ? isCompound
                                       : isGroupedByMany || (hasJson && (isGrouped || isCompound));
        return !isFence && (isOwn || holdsUnfenced);
    }
};

// A limit that includes all records.
QString limitOfAll(Engine engine)
{
    return engine == Engine::SQLite ? u"-1"_s : u"18446744073709551615"_s;
}

bool limitsToAll(const SqlScanner &statement, qsizetype limit, Engine engine)
{
    return limit + 1 < statement.count() &&
           QStringView(statement.sql()).sliced(statement.at(limit + 1).start).startsWith(limitOfAll(engine));
}

bool isLimitWord(const SqlScanner &statement, qsizetype index, Engine engine)
{
    return statement.isWord(index, u"LIMIT") ||
           (engine == Engine::MySQL && statement.isWord(index, u"FETCH"));
}

} // namespace

bool needsFence(const SqlScanner &statement, TextRange tokens, Engine engine)
{
    if (engine != Engine::SQLite && engine != Engine::MySQL)
        return false;
    std::vector<Level> levels(1);
    const auto closeLevel = [&] {
        const bool isUnfenced = levels.back().needsFence(engine);
        levels.pop_back();
        levels.back().holdsUnfenced = levels.back().holdsUnfenced || isUnfenced;
    };
    for (qsizetype i = tokens.begin; i < tokens.end; ++i) {
        Level &level = levels.back();
        if (statement.isSymbol(i, u'('))
            levels.emplace_back();
        else if (statement.isSymbol(i, u')') && levels.size() > 1)
            closeLevel();
        else if (statement.isSymbol(i, u','))
            level.isGroupedByMany = level.isGroupedByMany || level.isInGroup;
        else if (statement.isSymbol(i - 1, u'.'))
            continue;
        else if (statement.isWord(i, u"GROUP") && statement.isWord(i + 1, u"BY"))
            level.isGrouped = level.isInGroup = true;
        else if (statement.isWord(i, u"JSON_EXTRACT"))
            level.hasJson = true;
        else if (statement.isWord(i, u"HAVING"))
            level.isInGroup = false;
        else if (isLimitWord(statement, i, engine)) {
            level.isInGroup = false;
            level.isLimited = true;
            level.isFence = limitsToAll(statement, i, engine);
        } else if (statement.isWord(i, u"ORDER") && statement.isWord(i + 1, u"BY")) {
            level.isInGroup = false;
            level.isSorted = true;
        } else if (isOneOf(statement, i, {u"UNION", u"EXCEPT", u"INTERSECT"})) {
            level.isInGroup = false;
            level.isCompound = true;
        }
    }
    while (levels.size() > 1)
        closeLevel();
    return levels.back().needsFence(engine);
}

bool isFenced(const SqlScanner &statement, TextRange source, Engine engine)
{
    const int depth = statement.at(source.begin).depth + 1;
    const qsizetype end = afterBrackets(statement, source.begin);
    for (qsizetype i = source.begin + 1; i < end; ++i) {
        if (statement.at(i).depth == depth && isLimitWord(statement, i, engine) &&
            limitsToAll(statement, i, engine))
            return true;
    }
    return false;
}

QString fenced(const QString &select, Engine engine)
{
    const QString name = engine == Engine::MySQL ? u" AS L"_s : QString();
    return u"SELECT *\nFROM (\n"_s + select + u"\n)"_s + name + u" LIMIT "_s + limitOfAll(engine);
}

} // namespace KOVAVSFDataGridLib
