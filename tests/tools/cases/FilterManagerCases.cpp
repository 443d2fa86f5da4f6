#include "cases/ScriptedSource.h"
#include "cases/Sequences.h"
#include "query/clsFilterManagement.h"

#include <functional>

namespace KovaTest {

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

using M = clsFilterManagement;
using A = Arguments;
using ManagerOperation = std::function<QJsonValue(M &, const A &)>;

QJsonValue Chosen(bool isDone, const QString &name, const QString &text)
{
    return QJsonObject{{u"ok"_s, isDone}, {name, text}};
}

QJsonValue NewFilter(M &m, const A &a)
{
    QString statement;
    const bool isDone = m.LetNewFilter(a.Text(0), statement);
    return Chosen(isDone, u"strCurrentFilter"_s, statement);
}

// A function of the manager whose only argument is its output.
ManagerOperation Answering(bool (M::*function)(QString &), const QString &name)
{
    return [function, name](M &m, const A &) {
        QString text;
        const bool isDone = (m.*function)(text);
        return Chosen(isDone, name, text);
    };
}

// A function of the manager without result.
ManagerOperation Silent(void (M::*function)())
{
    return [function](M &m, const A &) {
        (m.*function)();
        return QJsonValue();
    };
}

QJsonValue ShowSelFields(M &m, const A &a)
{
    QString statement;
    const bool isDone = m.GetPartShowSelFields(a.Text(0), a.Text(1), a.Text(2), statement);
    return Chosen(isDone, u"strRetFields"_s, statement);
}

QJsonValue SortSelFields(M &m, const A &a)
{
    QString sort;
    const bool isDone = m.GetPartSortSelFields(a.Text(0), a.Text(1), sort);
    return Chosen(isDone, u"strRetFields"_s, sort);
}

QJsonValue RequirePart(M &m, const A &a)
{
    QString statement;
    const bool isDone = m.GetRequirePartSQL(a.Text(0), static_cast<StatementParts>(a.Number(1)), statement);
    return Chosen(isDone, u"strRetSQL"_s, statement);
}

QJsonValue LetProperty(M &m, const A &a)
{
    static const QHash<QString, void (M::*)(const QString &)> textSetters{
        {u"AllFields"_s, &M::SetAllFields},
        {u"ShowFields"_s, &M::SetShowFields},
        {u"OrderFields"_s, &M::SetOrderFields},
        {u"OriginFilter"_s, &M::SetOriginFilter},
        {u"DBConnString"_s, &M::SetDBConnString}};
    const QString name = a.Text(0);
    if (const auto setText = textSetters.value(name))
        (m.*setText)(a.Text(1));
    else if (name == u"TBLType")
        m.SetTBLType(static_cast<StatementSource>(a.Number(1)));
    else if (name == u"FieldStatus")
        m.SetFieldStatus(a.Number(1));
    else if (name == u"DBType")
        m.SetDBType(static_cast<AllDBType>(a.Number(1)));
    else
        throw std::invalid_argument("unknown property");
    return {};
}

const QHash<QString, ManagerOperation> &ManagerOperations()
{
    static const QHash<QString, ManagerOperation> operations{
        {u"Let"_s, LetProperty},
        {u"SetSQLInitData"_s, [](M &m, const A &) { return m.SetSQLInitData(); }},
        {u"LetNewFilter"_s, NewFilter},
        {u"LetNewSQLStr"_s, [](M &m, const A &a) { return m.LetNewSQLStr(a.Text(0)); }},
        {u"GetPreviewFilter"_s, Answering(&M::GetPreviewFilter, u"PassFilter"_s)},
        {u"IsCanPreviewFilter"_s, Answering(&M::IsCanPreviewFilter, u"PassFilter"_s)},
        {u"GetAllFieldSQL"_s, [](M &m, const A &) { return m.GetAllFieldSQL(); }},
        {u"GetPartFieldSQL"_s, [](M &m, const A &) { return m.GetPartFieldSQL(); }},
        {u"GetCurrentSQL"_s,
         [](M &m, const A &a) { return m.GetCurrentSQL(static_cast<StatementType>(a.Number(0))); }},
        {u"GetCurrentSQL20"_s,
         [](M &m, const A &a) { return m.GetCurrentSQL20(static_cast<StatementType>(a.Number(0))); }},
        {u"GetPartShowSelFields"_s, ShowSelFields},
        {u"GetPartSortSelFields"_s, SortSelFields},
        {u"GetPartShowFields"_s, Answering(&M::GetPartShowFields, u"strRetSelFields"_s)},
        {u"GetPartSortFields"_s, Answering(&M::GetPartSortFields, u"strRetSelFields"_s)},
        {u"GetRequirePartSQL"_s, RequirePart},
        {u"GetSelFieldRealName"_s,
         [](M &m, const A &a) { return m.GetSelFieldRealName(a.Text(0), a.Number(1)); }},
        {u"GotoOrignState"_s, Silent(&M::GotoOrignState)},
        {u"ClearFilter"_s, Silent(&M::ClearFilter)},
        {u"ClearCurrMess"_s, Silent(&M::ClearCurrMess)},
        {u"ClearCurrStatus"_s, Silent(&M::ClearCurrStatus)},
        {u"ClearObject"_s, Silent(&M::ClearObject)},
    };
    return operations;
}

QJsonObject StateOf(const M &manager)
{
    const M::Memory &memory = manager.Remembered();
    return {{u"AllFields"_s, manager.AllFields()},
            {u"ShowFields"_s, manager.ShowFields()},
            {u"OrderFields"_s, manager.OrderFields()},
            {u"OriginFilter"_s, manager.OriginFilter()},
            {u"LastUseFilter"_s, manager.LastUseFilter()},
            {u"previousFilter"_s, memory.previousFilter},
            {u"filterStack"_s, QJsonArray::fromStringList(memory.filterStack)},
            {u"firstUse"_s, memory.isFirstUsed ? 1 : 0},
            {u"currentStatement"_s, memory.currentStatement},
            {u"currentPartFields"_s, memory.currentPartFields},
            {u"currentSortFields"_s, memory.currentSortFields},
            {u"historyConnString"_s, manager.SQLManager().ConnString()},
            {u"historyOrderWord"_s, manager.SQLManager().OrderWord()},
            {u"historyEntries"_s, HistoryEntries(manager.SQLManager())}};
}

QJsonValue RunManagerOperation(M &manager, const QString &name, const Arguments &arguments)
{
    const QString historyPrefix = u"SQLManager."_s;
    if (name.startsWith(historyPrefix))
        return RunHistoryOperation(manager.SQLManager(), name.mid(historyPrefix.size()), arguments);
    const auto operation = ManagerOperations().value(name);
    if (!operation)
        throw std::invalid_argument("unknown operation");
    return operation(manager, arguments);
}

} // namespace

QJsonValue RunFilterManager(const Arguments &arguments)
{
    const QJsonObject sequence = ObjectOf(arguments.At(0));
    ScriptedReader reader;
    reader.Load(ObjectOf(sequence.value(u"reader")));
    ScriptedChooser chooser;
    M manager(&reader, &chooser);
    return RunOperations(
        sequence,
        [&](const QJsonObject &step) {
            const QString name = textOf(step.value(u"op"));
            const Arguments stepArguments(ListOf(step.value(u"args")));
            const QJsonValue dialog = step.value(u"dialog");
            chooser.choice = dialog.isString() ? std::optional(dialog.toString()) : std::nullopt;
            if (name == u"SetReader") {
                reader.Load(ObjectOf(stepArguments.At(0)));
                return QJsonValue();
            }
            if (name == u"SetConnString") {
                manager.SetDBConnString(stepArguments.Text(0));
                return QJsonValue();
            }
            return RunManagerOperation(manager, name, stepArguments);
        },
        [&] { return StateOf(manager); });
}

} // namespace KovaTest
