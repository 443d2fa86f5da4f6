#include "query/fields/colDataFields.h"

#include "CaseFile.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

QStringList NamesOf(const colDataFields &fields)
{
    QStringList names;
    for (const clsDataField &field : fields)
        names.append(field.FieldName);
    return names;
}

} // namespace

TEST(Catalogue, FieldsAreAddedWithWhatIsKnownOfThem)
{
    colDataFields fields;
    QString key;
    ASSERT_TRUE(fields.AddAllFieldMess(u"A"_s, 1, 2, 3, 4, 5, &key));
    const clsDataField *field = fields.Item(key);
    ASSERT_TRUE(field);
    EXPECT_EQ(field->FieldName, u"A"_s);
    EXPECT_EQ(field->FieldWholeName, QString());
    EXPECT_EQ(field->FieldOrder, 1);
    EXPECT_EQ(field->FieldWidth, 2);
    EXPECT_EQ(field->IsPartField, 3);
    EXPECT_EQ(field->FieldColour, 4);
    EXPECT_EQ(field->FieldType, 5);
    EXPECT_EQ(field->FieldKey, u"0FieldDel"_s);
    EXPECT_EQ(field->IsHideField, 0);

    ASSERT_TRUE(fields.AddSimpleFieldMess(u"B"_s, 2, 1, 202));
    field = fields.Item(2);
    ASSERT_TRUE(field);
    EXPECT_EQ(field->FieldWidth, 2);
    EXPECT_EQ(field->IsPartField, 1);
    EXPECT_EQ(field->FieldType, 202);
    EXPECT_EQ(field->FieldKey, u"1FieldDel"_s);

    ASSERT_TRUE(fields.AddFieldNameMess(u"C"_s, u"T.C"_s));
    EXPECT_EQ(fields.GetSelFieldRealName(u"C"_s), u"T.C"_s);
}

TEST(Catalogue, GivenKeysAreUsedAndTakenKeysRefused)
{
    colDataFields fields;
    QString key = u"mine"_s;
    EXPECT_TRUE(fields.AddFieldNameMess(u"A"_s, {}, &key));
    EXPECT_EQ(key, u"mine"_s);
    EXPECT_FALSE(fields.AddFieldNameMess(u"B"_s, {}, &key));
    EXPECT_EQ(fields.Count(), 1);
    QString made;
    EXPECT_TRUE(fields.AddFieldNameMess(u"B"_s, {}, &made));
    EXPECT_EQ(made, u"0FieldDel"_s) << "given keys use up no number";
}

TEST(Catalogue, RefusedMadeKeyIsUsedUp)
{
    colDataFields fields;
    QString key = u"0FieldDel"_s;
    ASSERT_TRUE(fields.AddFieldNameMess(u"A"_s, {}, &key));
    QString refused;
    EXPECT_FALSE(fields.AddFieldNameMess(u"B"_s, {}, &refused));
    EXPECT_EQ(refused, u"0FieldDel"_s);
    QString next;
    EXPECT_TRUE(fields.AddFieldNameMess(u"B"_s, {}, &next));
    EXPECT_EQ(next, u"1FieldDel"_s);
}

TEST(Catalogue, KeysGoOnAfterRemovalsUntilCleared)
{
    colDataFields fields;
    fields.AddFieldsByCol({u"A"_s, u"B"_s, u"C"_s});
    fields.Remove(2);
    fields.Remove(u"2FieldDel"_s);
    EXPECT_EQ(NamesOf(fields), QStringList{u"A"_s});
    QString key;
    fields.AddFieldNameMess(u"D"_s, {}, &key);
    EXPECT_EQ(key, u"3FieldDel"_s);
    EXPECT_TRUE(fields.Clear());
    key.clear();
    fields.AddFieldNameMess(u"E"_s, {}, &key);
    EXPECT_EQ(key, u"0FieldDel"_s);
}

TEST(Catalogue, RemovingWhatIsNotThereDoesNothing)
{
    colDataFields fields;
    fields.AddFieldsByCol({u"A"_s});
    fields.Remove(0);
    fields.Remove(2);
    fields.Remove(u"none"_s);
    EXPECT_EQ(fields.Count(), 1);
    EXPECT_FALSE(fields.Item(0));
    EXPECT_FALSE(fields.Item(2));
    EXPECT_FALSE(fields.Item(u"none"_s));
}

TEST(Catalogue, ListReplacesTheFieldsAndSkipsEmptyNames)
{
    colDataFields fields;
    fields.AddFieldsByCol({u"Old"_s});
    EXPECT_TRUE(fields.AddFieldsByCol({u"A"_s, QString(), u"B"_s}));
    EXPECT_EQ(NamesOf(fields), (QStringList{u"A"_s, u"B"_s}));
    EXPECT_EQ(fields.GetSelFieldRealName(u"B"_s), u"B"_s);
    EXPECT_EQ(fields.Item(2)->FieldKey, u"1FieldDel"_s);
}

TEST(Catalogue, EmptyListLeavesNoFieldAndIsAFailure)
{
    colDataFields fields;
    fields.AddFieldsByCol({u"Old"_s});
    EXPECT_FALSE(fields.AddFieldsByCol({}));
    EXPECT_EQ(fields.Count(), 0);
}

TEST(Catalogue, WrittenNamesBecomeWholeNamesByTheirShortName)
{
    colDataFields fields;
    fields.AddFieldsByCol({u"Order Date"_s, u"Name"_s, u"T.Name"_s, u"Age"_s});
    EXPECT_TRUE(fields.AppendFieldRealNameByCol(
        {u"T.[Order Date]"_s, u"[Name]"_s, u"dbo.T.Name"_s, u"[]"_s, u"nobody"_s}));
    EXPECT_EQ(fields.GetSelFieldRealName(u"Order Date"_s), u"T.[Order Date]"_s);
    EXPECT_EQ(fields.GetSelFieldRealName(u"Name"_s), u"[Name]"_s);
    EXPECT_EQ(fields.GetSelFieldRealName(u"T.Name"_s), u"dbo.T.Name"_s);
    EXPECT_EQ(fields.GetSelFieldRealName(u"Age"_s), u"Age"_s);
    EXPECT_FALSE(fields.AppendFieldRealNameByCol({}));
}

TEST(Catalogue, MarksExactlyTheListedPartFields)
{
    colDataFields fields;
    fields.AddFieldsByCol({u"A"_s, u"B"_s, u"C"_s});
    EXPECT_TRUE(fields.SetPartFieldStatusByCol({u"A"_s, u"B"_s}));
    EXPECT_TRUE(fields.SetPartFieldStatusByCol({QString(), u"C"_s, u"[B]"_s, u"a"_s}));
    EXPECT_FALSE(fields.IsSelFieldPartField(u"A"_s));
    EXPECT_FALSE(fields.IsSelFieldPartField(u"B"_s));
    EXPECT_TRUE(fields.IsSelFieldPartField(u"C"_s));
}

TEST(Catalogue, EmptyPartListChangesNoMark)
{
    colDataFields fields;
    fields.AddFieldsByCol({u"A"_s});
    fields.SetPartFieldStatusByCol({u"A"_s});
    EXPECT_FALSE(fields.SetPartFieldStatusByCol({}));
    EXPECT_TRUE(fields.IsSelFieldPartField(u"A"_s));
}

TEST(Catalogue, CountsFieldsMarkedWithExactlyOne)
{
    colDataFields fields;
    qint32 count = -1;
    EXPECT_TRUE(fields.GetCurrShowFieldsCount(count));
    EXPECT_EQ(count, 0);
    fields.AddSimpleFieldMess(u"A"_s, 0, 1, 0);
    fields.AddSimpleFieldMess(u"B"_s, 0, 2, 0);
    fields.AddSimpleFieldMess(u"C"_s, 0, 0, 0);
    EXPECT_TRUE(fields.GetCurrShowFieldsCount(count));
    EXPECT_EQ(count, 1);
    EXPECT_TRUE(fields.IsSelFieldPartField(u"B"_s)) << "any mark but 0 is a part field";
    EXPECT_FALSE(fields.IsSelFieldPartField(QString()));
}

TEST(Catalogue, FirstOfTwoFieldsWithOneNameIsFound)
{
    colDataFields fields;
    fields.AddFieldsByCol({u"A"_s, u"B"_s, u"A"_s});
    QString key = u"old"_s;
    EXPECT_TRUE(fields.GetSelFieldKey(u"A"_s, key));
    EXPECT_EQ(key, u"0FieldDel"_s);
    fields.Remove(1);
    EXPECT_TRUE(fields.GetSelFieldKey(u"A"_s, key));
    EXPECT_EQ(key, u"2FieldDel"_s);
}

TEST(Catalogue, NamesAreComparedLetterForLetter)
{
    colDataFields fields;
    fields.AddFieldsByCol({u"Name"_s});
    QString key = u"old"_s;
    EXPECT_FALSE(fields.GetSelFieldKey(u"NAME"_s, key));
    EXPECT_EQ(key, QString());
    EXPECT_EQ(fields.GetSelFieldRealName(u"name"_s), QString());
}

TEST(Catalogue, RenamedFieldIsFoundByItsNewName)
{
    colDataFields fields;
    fields.AddFieldsByCol({u"A"_s, u"B"_s});
    EXPECT_TRUE(fields.Update(u"0FieldDel"_s, [](clsDataField &field) { field.FieldName = u"B"_s; }));
    EXPECT_FALSE(fields.Find(u"A"_s));
    QString key;
    EXPECT_TRUE(fields.GetSelFieldKey(u"B"_s, key));
    EXPECT_EQ(key, u"0FieldDel"_s);
    EXPECT_FALSE(fields.Update(u"none"_s, [](clsDataField &) { FAIL(); }));
}

TEST(Catalogue, InitFieldDataForgetsNamesAndHidingButNotTheDisplay)
{
    clsDataField field;
    field.FieldName = field.FieldWholeName = field.FieldKey = u"A"_s;
    field.IsHideField = 1;
    field.FieldWidth = 960;
    field.InitFieldData();
    EXPECT_EQ(field.FieldName + field.FieldWholeName + field.FieldKey, QString());
    EXPECT_EQ(field.IsHideField, 0);
    EXPECT_EQ(field.FieldWidth, 960);
}
