#include "cases/TextCases.h"

#include "cases/ScriptedSource.h"
#include "query/FilterTableName.h"
#include "query/clsFilterManagement.h"
#include "query/clsStringComFuncs.h"
#include "query/conditions/Conditions.h"
#include "query/conditions/FindText.h"
#include "query/conditions/SelectionText.h"
#include "query/derivation/SqlText.h"
#include "query/fields/FieldNames.h"
#include "query/modQNVSFHFDataMain.h"

namespace KovaTest {

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

using A = Arguments;

AllDBType DatabaseOf(const Arguments &arguments)
{
    return static_cast<AllDBType>(arguments.Number(0));
}

QJsonArray JsonOf(const QStringList &texts)
{
    return QJsonArray::fromStringList(texts);
}

QJsonValue ParseSQLFieldListCase(const Arguments &arguments)
{
    ParsedStatements parsed;
    parsed.strSQLTable = arguments.Text(2);
    parsed.colSQLFields = arguments.Texts(3);
    const bool isFailed = parsed.ParseSQLFieldList(arguments.Text(1), DatabaseOf(arguments)).has_value();
    return QJsonObject{{u"failed"_s, isFailed},
                       {u"strSQLTable"_s, parsed.strSQLTable},
                       {u"colSQLFields"_s, JsonOf(parsed.colSQLFields)}};
}

QJsonValue ParseSelFieldListCase(const Arguments &arguments)
{
    ParsedStatements parsed;
    parsed.colSelFields = arguments.Texts(1);
    bool isFailed = false;
    try {
        parsed.ParseSelFieldList(arguments.Text(0));
    } catch (const std::invalid_argument &) {
        isFailed = true;
    }
    return QJsonObject{{u"error"_s, isFailed}, {u"colSelFields"_s, JsonOf(parsed.colSelFields)}};
}

QJsonValue SplitByKeywordCase(const Arguments &arguments)
{
    const auto cut = SplitByKeyword(arguments.Text(0), arguments.Text(1));
    const KeywordCut pieces = cut.value_or(KeywordCut());
    return QJsonObject{
        {u"done"_s, cut.has_value()}, {u"before"_s, pieces.before}, {u"after"_s, pieces.after}};
}

QJsonValue SplitSQLSentenceCase(const Arguments &arguments)
{
    const auto sentence = SplitSQLSentence(arguments.Text(0));
    const auto shown = [&](QString SQLSentence::*part) {
        return sentence ? QJsonValue((*sentence).*part) : QJsonValue();
    };
    return QJsonObject{{u"done"_s, sentence.has_value()},
                       {u"fields"_s, shown(&SQLSentence::fields)},
                       {u"where"_s, shown(&SQLSentence::where)},
                       {u"order"_s, shown(&SQLSentence::order)}};
}

QJsonValue SeperateSQLCase(const Arguments &arguments)
{
    clsShowSQLSentence entry;
    entry.ShowSQL = arguments.Text(0);
    const bool isDone = entry.SeperateSQL();
    return QJsonObject{{u"result"_s, isDone},
                       {u"SQLFields"_s, entry.SQLFields},
                       {u"SQLWhere"_s, entry.SQLWhere},
                       {u"SQLOrder"_s, entry.SQLOrder}};
}

QJsonValue CompoundSQLCase(const Arguments &arguments)
{
    clsShowSQLSentence entry;
    entry.UpdateSQLCompoment(arguments.Text(0), arguments.Text(1), arguments.Text(2));
    const bool isDone = entry.CompoundSQL();
    return QJsonObject{{u"result"_s, isDone}, {u"NewSQL"_s, entry.NewSQL}};
}

QJsonValue UsePartFieldCase(const Arguments &arguments)
{
    clsShowSQLSentence entry;
    entry.PartFields = arguments.Text(0);
    entry.CurrPartFields = arguments.Text(1);
    QString statement;
    const bool isDone = entry.GetCurrUsePartFieldSQL(statement);
    return QJsonObject{{u"result"_s, isDone}, {u"strCurrSQL"_s, statement}};
}

QJsonValue UseOrderFieldCase(const Arguments &arguments)
{
    clsShowSQLSentence entry;
    entry.OrderFields = arguments.Text(0);
    entry.CurrOrderFields = arguments.Text(1);
    QString sort;
    const bool isDone = entry.GetCurrUseOrderFieldSQL(sort);
    return QJsonObject{{u"result"_s, isDone}, {u"strCurrOrder"_s, sort}};
}

QJsonValue SplitString1Case(const Arguments &arguments)
{
    QStringList pieces = arguments.Texts(1);
    const bool isDone = clsStringComFuncs().QNComSplitString1(arguments.Text(0), pieces, arguments.Text(2),
                                                              arguments.Text(3), arguments.Flag(4));
    return QJsonObject{{u"result"_s, isDone}, {u"RetStringCol"_s, JsonOf(pieces)}};
}

QJsonValue SplitString2Case(const Arguments &arguments)
{
    QStringList pieces = arguments.Texts(1);
    const bool isDone = clsStringComFuncs().QNComSplitString2(arguments.Text(0), pieces, arguments.Text(2),
                                                              arguments.Count() > 3 && arguments.Flag(3));
    return QJsonObject{{u"result"_s, isDone}, {u"RetStringCol"_s, JsonOf(pieces)}};
}

QJsonValue SplitString3Case(const Arguments &arguments)
{
    QString name;
    QString content;
    const bool isDone =
        clsStringComFuncs().QNComSplitString3(arguments.Text(0), name, content, arguments.Text(1));
    return QJsonObject{{u"result"_s, isDone}, {u"strPrptyName"_s, name}, {u"strPrptyContent"_s, content}};
}

QJsonValue AllFieldNameCase(const Arguments &arguments)
{
    std::optional<std::vector<SourceField>> fields;
    if (!arguments.At(2).isNull()) {
        fields.emplace();
        for (const QJsonValue &field : ListOf(arguments.At(2))) {
            const Arguments pair(ListOf(field));
            fields->push_back({pair.Text(0), pair.Number(1)});
        }
    }
    FixedReader reader(std::move(fields));
    QString statement;
    const bool isDone =
        colShowSQLSentences(&reader).GetAllFieldNameSQL(arguments.Text(0), arguments.Text(1), statement);
    return QJsonObject{{u"result"_s, isDone}, {u"strRetSQL"_s, statement}};
}

QJsonValue RequirePartCase(const Arguments &arguments)
{
    QString statement;
    const bool isDone = clsFilterManagement().GetRequirePartSQL(
        arguments.Text(0), static_cast<StatementParts>(arguments.Number(1)), statement);
    return QJsonObject{{u"result"_s, isDone}, {u"strRetSQL"_s, statement}};
}

QJsonValue TableOfSQLCase(const Arguments &arguments)
{
    const auto table = GetTableOfSQL(arguments.Text(0));
    QJsonObject answer{{u"ok"_s, table.has_value()}};
    if (table)
        answer.insert(u"strTable"_s, *table);
    return answer;
}

QJsonValue ConditionAnswer(bool isDone, const QString &condition)
{
    QJsonObject answer{{u"ok"_s, isDone}};
    if (isDone)
        answer.insert(u"strCondition"_s, condition);
    return answer;
}

QJsonValue LikeConditionCase(const Arguments &arguments)
{
    std::vector<TypedField> fields;
    for (const QJsonValue &field : ListOf(arguments.At(2))) {
        const Arguments pair(ListOf(field));
        fields.push_back({pair.Text(0), pair.NumberOrNull(1)});
    }
    QString condition;
    const bool isDone =
        BuildLikeCondition(arguments.Text(1), fields, arguments.Text(3), DatabaseOf(arguments), condition);
    return ConditionAnswer(isDone, condition);
}

QJsonValue LikeAllConditionCase(const Arguments &arguments)
{
    QString condition;
    const bool isDone =
        BuildLikeAllCondition(arguments.Text(1), {arguments.Text(2), arguments.NumberOrNull(3)},
                              arguments.Text(4), DatabaseOf(arguments), condition);
    return ConditionAnswer(isDone, condition);
}

QJsonValue CellFilterCase(const Arguments &arguments)
{
    const CellFilter filter =
        buildCellFilter(arguments.Text(0), arguments.NumberOrNull(1), arguments.TextOrNull(2));
    QJsonObject answer;
    if (!filter.condition.isEmpty())
        answer.insert(u"condition"_s, filter.condition);
    if (!filter.message.isEmpty())
        answer.insert(u"message"_s, filter.message);
    return answer;
}

QJsonValue ComposeFieldListCase(const Arguments &arguments)
{
    QList<ListedField> rows;
    for (const QJsonValue &row : ListOf(arguments.At(0))) {
        const Arguments pair(ListOf(row));
        rows.append({pair.Text(0), pair.Flag(1)});
    }
    return composeFieldList(rows);
}

QJsonValue ListFieldCheckCase(const Arguments &arguments)
{
    QJsonArray checks;
    for (const bool check : SetListFieldCheck(arguments.Texts(0), arguments.Texts(1)))
        checks.append(check);
    return checks;
}

QJsonValue SplitSortTermCase(const Arguments &arguments)
{
    const SortTerm term = splitSortTerm(arguments.Text(0));
    return QJsonArray{term.field, term.orderWord};
}

QJsonValue ComposeSortListCase(const Arguments &arguments)
{
    QList<SortTerm> terms;
    for (const QJsonValue &row : ListOf(arguments.At(0))) {
        const Arguments pair(ListOf(row));
        terms.append({pair.Text(0), pair.Text(1)});
    }
    return composeSortList(terms);
}

QJsonValue PrepareFindTextCase(const Arguments &arguments)
{
    const auto text = prepareFindText(arguments.Text(0));
    return text ? QJsonValue(*text) : QJsonValue();
}

QJsonValue PressFindCase(const Arguments &arguments)
{
    const FindAnswer answer = pressFind(arguments.Text(0), arguments.Text(1));
    return QJsonObject{{u"strFindText"_s, answer.strFindText},
                       {u"strFieldName"_s, answer.strFieldName},
                       {u"bIsAppointField"_s, answer.bIsAppointField},
                       {u"unloads"_s, answer.unloads}};
}

QJsonValue SplitFilterTableNameCase(const Arguments &arguments)
{
    const FilterTableName name = SplitFilterTableName(arguments.Text(0));
    return QJsonArray{name.owner, name.table};
}

QHash<QString, TextCase> MakeTextCases()
{
    return {
        {u"ParseSQLFieldList"_s, ParseSQLFieldListCase},
        {u"ParseSelFieldList"_s, ParseSelFieldListCase},
        {u"GetSQLTableName"_s, [](const A &a) { return GetSQLTableName(a.Text(0)); }},
        {u"CutStringEnds"_s,
         [](const A &a) { return CutStringEnds(a.Text(0), a.Text(1), static_cast<CutEnds>(a.Number(2))); }},
        {u"GetNoRowSQL"_s, [](const A &a) { return GetNoRowSQL(a.Text(0)); }},
        {u"AppendOrderWord"_s, [](const A &a) { return AppendOrderWord(a.Text(0), a.Text(1)); }},
        {u"ReplaceSQLFieldPart"_s, [](const A &a) { return ReplaceSQLFieldPart(a.Text(0), a.Text(1)); }},
        {u"ComposeSQL"_s, [](const A &a) { return ComposeSQL(a.Text(0), a.Text(1), a.Text(2)); }},
        {u"SplitByKeyword"_s, SplitByKeywordCase},
        {u"SplitSQLSentence"_s, SplitSQLSentenceCase},
        {u"SeperateSQL"_s, SeperateSQLCase},
        {u"CompoundSQL"_s, CompoundSQLCase},
        {u"GetCurrUsePartFieldSQL"_s, UsePartFieldCase},
        {u"GetCurrUseOrderFieldSQL"_s, UseOrderFieldCase},
        {u"QNComSplitString1"_s, SplitString1Case},
        {u"QNComSplitString2"_s, SplitString2Case},
        {u"QNComSplitString3"_s, SplitString3Case},
        {u"ShortFieldName"_s, [](const A &a) { return shortFieldName(a.Text(0)); }},
        {u"GetAllFieldNameSQL"_s, AllFieldNameCase},
        {u"GetRequirePartSQL"_s, RequirePartCase},
        {u"SplitText"_s, [](const A &a) { return JsonOf(splitText(a.Text(0), a.Text(1), a.Flag(2))); }},
        {u"ClassifyFieldType"_s, [](const A &a) { return classifyFieldType(a.Number(0)); }},
        {u"GetTableOfSQL"_s, TableOfSQLCase},
        {u"BuildLikeCondition"_s, LikeConditionCase},
        {u"BuildLikeAllCondition"_s, LikeAllConditionCase},
        {u"CellFilter"_s, CellFilterCase},
        {u"ComposeFieldList"_s, ComposeFieldListCase},
        {u"SetListFieldCheck"_s, ListFieldCheckCase},
        {u"SplitSortTerm"_s, SplitSortTermCase},
        {u"ComposeSortList"_s, ComposeSortListCase},
        {u"PrepareFindText"_s, PrepareFindTextCase},
        {u"PressFind"_s, PressFindCase},
        {u"SetFilterTableName"_s, [](const A &a) { return SetFilterTableName(a.Text(0)); }},
        {u"SplitFilterTableName"_s, SplitFilterTableNameCase},
    };
}

} // namespace

const QHash<QString, TextCase> &TextCases()
{
    static const QHash<QString, TextCase> cases = MakeTextCases();
    return cases;
}

} // namespace KovaTest
