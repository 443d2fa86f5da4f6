#include "cases/ScriptedSource.h"
#include "cases/Sequences.h"

#include <functional>

namespace KovaTest {

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

using H = colShowSQLSentences;
using A = Arguments;
using HistoryOperation = std::function<QJsonValue(H &, const A &)>;
using NextStatement = bool (H::*)(const QString &, QString &) const;
using StepBack = bool (H::*)(QString &, QString *);

QJsonValue EntryAdded(bool isDone, const QString &key)
{
    return QJsonObject{{u"ok"_s, isDone}, {u"PassKey"_s, key}};
}

QJsonValue Init(H &h, const A &a)
{
    return h.SetSQLInitData(a.Text(0), a.Text(1), a.Text(2), a.Text(3), a.Text(4));
}

QJsonValue AddSimple(H &h, const A &a)
{
    QString key = a.OptionalText(3);
    const bool isDone = h.AddSimpleSQLMess(a.Text(0), a.Text(1), static_cast<ShownFields>(a.Number(2)), &key);
    return EntryAdded(isDone, key);
}

QJsonValue AddSQL(H &h, const A &a)
{
    QString key = a.OptionalText(8);
    const bool isDone = h.AddSQLMess(a.Text(0), a.Text(1), static_cast<ShownFields>(a.Number(2)), a.Text(3),
                                     a.Text(4), a.Text(5), a.OptionalText(6), a.OptionalText(7), &key);
    return EntryAdded(isDone, key);
}

QJsonValue AddAll(H &h, const A &a)
{
    QString key = a.OptionalText(11);
    const bool isDone = h.AddAllSQLMess(a.Text(0), a.Text(1), a.Text(2), a.Text(3), a.Text(4),
                                        static_cast<ShownFields>(a.Number(5)), a.Text(6), a.Text(7),
                                        a.Text(8), a.OptionalText(9), a.OptionalText(10), &key);
    return EntryAdded(isDone, key);
}

QJsonValue AddCurrent(H &h, const A &a)
{
    QString key = a.OptionalText(4);
    const bool isDone = h.AddCurrentSQL(a.Text(0), static_cast<ShownFields>(a.Number(1)), a.OptionalText(2),
                                        a.OptionalText(3), &key);
    return EntryAdded(isDone, key);
}

QJsonValue Latest(H &h, const A &)
{
    QString statement;
    QString key;
    const bool isDone = h.GetLatestSQL(statement, &key);
    return QJsonObject{{u"ok"_s, isDone}, {u"PassFilter"_s, statement}, {u"PassKey"_s, key}};
}

HistoryOperation Back(StepBack step)
{
    return [step](H &h, const A &) -> QJsonValue {
        QString statement;
        QString key;
        const bool isDone = (h.*step)(statement, &key);
        return QJsonObject{{u"ok"_s, isDone}, {u"PassFilter"_s, statement}, {u"PassKey"_s, key}};
    };
}

HistoryOperation Next(NextStatement next)
{
    return [next](H &h, const A &a) -> QJsonValue {
        QString statement;
        const bool isDone = (h.*next)(a.Text(0), statement);
        return QJsonObject{{u"ok"_s, isDone}, {u"strCurrentFilter"_s, statement}};
    };
}

QJsonValue NextShow(H &h, const A &a)
{
    QString statement;
    const bool isDone = h.GetNextShowSQL(static_cast<StatementType>(a.Number(0)), statement);
    return QJsonObject{{u"ok"_s, isDone}, {u"PassSQL"_s, statement}};
}

QJsonValue AllFieldNames(H &h, const A &a)
{
    QString statement;
    const bool isDone = h.GetAllFieldNameSQL(a.Text(0), a.Text(1), statement);
    return QJsonObject{{u"ok"_s, isDone}, {u"strRetSQL"_s, statement}};
}

QJsonValue ShowFieldsCount(H &h, const A &)
{
    qint32 count = 0;
    const bool isDone = h.GetCurrShowFieldsCount(count);
    return QJsonObject{{u"ok"_s, isDone}, {u"PassCount"_s, count}};
}

QJsonValue LetConnString(H &h, const A &a)
{
    h.SetConnString(a.Text(0));
    return {};
}

QJsonValue Let(H &h, const A &a)
{
    static const QHash<QString, void (H::*)(const QString &)> setters{
        {u"ConnString"_s, &H::SetConnString},    {u"AllFields"_s, &H::SetAllFields},
        {u"ShowFieds"_s, &H::SetShowFieds},      {u"CurrFieds"_s, &H::SetCurrFieds},
        {u"FilterWord"_s, &H::SetFilterWord},    {u"OrderWord"_s, &H::SetOrderWord},
        {u"OriginFilter"_s, &H::SetOriginFilter}};
    const auto setter = setters.value(a.Text(0));
    if (!setter)
        throw std::invalid_argument("unknown property");
    (h.*setter)(a.Text(1));
    return {};
}

QJsonValue RemoveEntry(H &h, const A &a)
{
    RemoveItem(h, a.At(0));
    return {};
}

const QHash<QString, HistoryOperation> &HistoryOperations()
{
    static const QHash<QString, HistoryOperation> operations{
        {u"SetSQLInitData"_s, Init},
        {u"AddSimpleSQLMess"_s, AddSimple},
        {u"AddSQLMess"_s, AddSQL},
        {u"AddAllSQLMess"_s, AddAll},
        {u"AddCurrentSQL"_s, AddCurrent},
        {u"GetLatestSQL"_s, Latest},
        {u"RemoveLatestSQL"_s, [](H &h, const A &) { return h.RemoveLatestSQL(); }},
        {u"GetPreviewSQL"_s, Back(&H::GetPreviewSQL)},
        {u"GetFirstSQL"_s, Back(&H::GetFirstSQL)},
        {u"GetNextSQLByFilter"_s, Next(&H::GetNextSQLByFilter)},
        {u"GetNextSQLBySort"_s, Next(&H::GetNextSQLBySort)},
        {u"GetNextShowSQL"_s, NextShow},
        {u"GetAllFieldNameSQL"_s, AllFieldNames},
        {u"GetCurrSQLFieldsStatus"_s,
         [](H &h, const A &a) { return h.GetCurrSQLFieldsStatus(a.OptionalText(0)); }},
        {u"UpdateSelPartFields"_s, [](H &h, const A &a) { return h.UpdateSelPartFields(a.Text(0)); }},
        {u"UpdateSelSortFields"_s, [](H &h, const A &a) { return h.UpdateSelSortFields(a.Text(0)); }},
        {u"GetSelFieldRealName"_s, [](H &h, const A &a) { return h.GetSelFieldRealName(a.Text(0)); }},
        {u"IsSelFieldPartField"_s, [](H &h, const A &a) { return h.IsSelFieldPartField(a.Text(0)); }},
        {u"GetCurrShowFieldsCount"_s, ShowFieldsCount},
        {u"Clear"_s, [](H &h, const A &) { return h.Clear(); }},
        {u"Count"_s, [](H &h, const A &) { return h.Count(); }},
        {u"Remove"_s, RemoveEntry},
        {u"Let"_s, Let},
        {u"SetConnString"_s, LetConnString},
    };
    return operations;
}

QJsonObject StateOf(const H &history)
{
    QJsonArray catalogue;
    for (const clsDataField &field : history.DataFields()) {
        catalogue.append(QJsonObject{{u"FieldName"_s, field.FieldName},
                                     {u"FieldWholeName"_s, field.FieldWholeName},
                                     {u"FieldKey"_s, field.FieldKey},
                                     {u"IsPartField"_s, field.IsPartField}});
    }
    return {{u"ConnString"_s, history.ConnString()}, {u"AllFields"_s, history.AllFields()},
            {u"ShowFieds"_s, history.ShowFieds()},   {u"FilterWord"_s, history.FilterWord()},
            {u"OrderWord"_s, history.OrderWord()},   {u"OriginFilter"_s, history.OriginFilter()},
            {u"entries"_s, HistoryEntries(history)}, {u"catalogue"_s, catalogue}};
}

} // namespace

QJsonValue RunHistoryOperation(H &history, const QString &name, const Arguments &arguments)
{
    const auto operation = HistoryOperations().value(name);
    if (!operation)
        throw std::invalid_argument("unknown operation");
    return operation(history, arguments);
}

QJsonArray HistoryEntries(const H &history)
{
    QJsonArray entries;
    for (const clsShowSQLSentence &entry : history) {
        entries.append(QJsonObject{{u"SQLFields"_s, entry.SQLFields},
                                   {u"SQLWhere"_s, entry.SQLWhere},
                                   {u"SQLOrder"_s, entry.SQLOrder},
                                   {u"SQLKey"_s, entry.SQLKey},
                                   {u"IsShowAllFields"_s, entry.IsShowAllFields},
                                   {u"AllFields"_s, entry.AllFields},
                                   {u"PartFields"_s, entry.PartFields},
                                   {u"OrderFields"_s, entry.OrderFields},
                                   {u"CurrPartFields"_s, entry.CurrPartFields},
                                   {u"CurrOrderFields"_s, entry.CurrOrderFields},
                                   {u"OrgSQL"_s, entry.OrgSQL},
                                   {u"ShowSQL"_s, entry.ShowSQL}});
    }
    return entries;
}

QJsonValue RunHistory(const Arguments &arguments)
{
    const QJsonObject sequence = ObjectOf(arguments.At(0));
    ScriptedReader reader;
    reader.Load(ObjectOf(sequence.value(u"reader")));
    H history(&reader);
    return RunOperations(
        sequence,
        [&](const QJsonObject &step) {
            const QString name = textOf(step.value(u"op"));
            const Arguments stepArguments(ListOf(step.value(u"args")));
            if (name != u"SetReader")
                return RunHistoryOperation(history, name, stepArguments);
            reader.Load(ObjectOf(stepArguments.At(0)));
            return QJsonValue();
        },
        [&] { return StateOf(history); });
}

} // namespace KovaTest
