#include "cases/Sequences.h"
#include "query/fields/colDataFields.h"

#include <functional>

namespace KovaTest {

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

using CatalogueOperation = std::function<QJsonValue(colDataFields &, const Arguments &)>;

QJsonValue KeyAdded(bool isDone, const QString &key)
{
    return QJsonObject{{u"ok"_s, isDone}, {u"PassKey"_s, key}};
}

QJsonValue AddAllFields(colDataFields &fields, const Arguments &a)
{
    QString key = a.OptionalText(6);
    const bool isDone = fields.AddAllFieldMess(a.Text(0), a.Number(1), a.Number(2), a.Number(3), a.Number(4),
                                               a.Number(5), &key);
    return KeyAdded(isDone, key);
}

QJsonValue AddSimpleField(colDataFields &fields, const Arguments &a)
{
    QString key = a.OptionalText(4);
    const bool isDone = fields.AddSimpleFieldMess(a.Text(0), a.Number(1), a.Number(2), a.Number(3), &key);
    return KeyAdded(isDone, key);
}

QJsonValue AddName(colDataFields &fields, const Arguments &a)
{
    QString key = a.OptionalText(2);
    const bool isDone = fields.AddFieldNameMess(a.Text(0), a.OptionalText(1), &key);
    return KeyAdded(isDone, key);
}

QJsonValue SelFieldKey(colDataFields &fields, const Arguments &a)
{
    QString key;
    const bool isDone = fields.GetSelFieldKey(a.Text(0), key);
    return QJsonObject{{u"ok"_s, isDone}, {u"strRetKey"_s, key}};
}

QJsonValue FieldsShown(colDataFields &fields, const Arguments &)
{
    qint32 count = 0;
    fields.GetCurrShowFieldsCount(count);
    return count;
}

QJsonValue RemoveField(colDataFields &fields, const Arguments &a)
{
    RemoveItem(fields, a.At(0));
    return {};
}

const QHash<QString, CatalogueOperation> &CatalogueOperations()
{
    using F = colDataFields;
    using A = Arguments;
    static const QHash<QString, CatalogueOperation> operations{
        {u"AddAllFieldMess"_s, AddAllFields},
        {u"AddSimpleFieldMess"_s, AddSimpleField},
        {u"AddFieldNameMess"_s, AddName},
        {u"AddFieldsByCol"_s, [](F &f, const A &a) { return f.AddFieldsByCol(a.Texts(0)); }},
        {u"AppendFieldRealNameByCol"_s,
         [](F &f, const A &a) { return f.AppendFieldRealNameByCol(a.Texts(0)); }},
        {u"SetPartFieldStatusByCol"_s,
         [](F &f, const A &a) { return f.SetPartFieldStatusByCol(a.Texts(0)); }},
        {u"GetSelFieldKey"_s, SelFieldKey},
        {u"GetSelFieldRealName"_s, [](F &f, const A &a) { return f.GetSelFieldRealName(a.Text(0)); }},
        {u"IsSelFieldPartField"_s, [](F &f, const A &a) { return f.IsSelFieldPartField(a.Text(0)); }},
        {u"GetCurrShowFieldsCount"_s, FieldsShown},
        {u"Clear"_s, [](F &f, const A &) { return f.Clear(); }},
        {u"Count"_s, [](F &f, const A &) { return f.Count(); }},
        {u"Remove"_s, RemoveField},
    };
    return operations;
}

QJsonObject StateOf(const colDataFields &catalogue)
{
    QJsonArray fields;
    for (const clsDataField &field : catalogue) {
        fields.append(QJsonObject{{u"FieldName"_s, field.FieldName},
                                  {u"FieldWholeName"_s, field.FieldWholeName},
                                  {u"FieldOrder"_s, field.FieldOrder},
                                  {u"FieldWidth"_s, field.FieldWidth},
                                  {u"IsPartField"_s, field.IsPartField},
                                  {u"FieldColour"_s, field.FieldColour},
                                  {u"FieldType"_s, field.FieldType},
                                  {u"FieldKey"_s, field.FieldKey},
                                  {u"IsHideField"_s, field.IsHideField}});
    }
    return {{u"fields"_s, fields}};
}

} // namespace

QJsonValue RunCatalogue(const Arguments &arguments)
{
    colDataFields catalogue;
    return RunOperations(
        ObjectOf(arguments.At(0)),
        [&](const QJsonObject &step) {
            const auto operation = CatalogueOperations().value(textOf(step.value(u"op")));
            if (!operation)
                throw std::invalid_argument("unknown operation");
            return operation(catalogue, Arguments(ListOf(step.value(u"args"))));
        },
        [&] { return StateOf(catalogue); });
}

} // namespace KovaTest
