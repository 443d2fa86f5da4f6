// A database refuses a record because a field has no value: the user is told which one.
#include "TestDatabase.h"
#include "Throwing.h"

#include "ado/rows/MissingValue.h"

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::errorOf;
using AdoTest::TestDatabase;

namespace {

FieldInfo column(const QString &name, bool isRequired, const QString &baseColumn = {})
{
    FieldInfo field;
    field.name = name;
    field.baseColumn = baseColumn;
    field.attributes = isRequired ? 0 : adFldIsNullable;
    return field;
}

TEST(MissingValue, IsNamedAsItsFieldIsShown)
{
    const TestDatabase database(u"CREATE TABLE 订货(ID INTEGER PRIMARY KEY, 名称 TEXT NOT NULL, 备注 TEXT);"
                                "INSERT INTO 订货 VALUES (1, '茶', NULL)"_s);
    const auto recordset = database.open(u"SELECT ID, 名称 AS 品名, 备注 FROM 订货"_s);
    recordset->Fields().Item(u"品名"_s).PutValue({});
    const Error changed = errorOf([&] { recordset->Update(); });
    EXPECT_TRUE(changed.is(dbErrIntegrity));
    EXPECT_EQ(changed.SQLState(), u"23502"_s);
    EXPECT_EQ(changed.Description(),
              u"字段“品名”不能为空。\n操作违反了数据库的约束：NOT NULL constraint failed: 订货.名称"_s);
    recordset->CancelUpdate();
    recordset->AddNew();
    recordset->Fields().Item(u"备注"_s).PutValue(u"x"_s);
    EXPECT_EQ(errorOf([&] { recordset->Update(); }).Description(), changed.Description());
}

TEST(MissingValue, OfAnotherTableIsNotMistakenForAField)
{
    const TestDatabase database(u"CREATE TABLE a(id INTEGER PRIMARY KEY, v TEXT);"
                                "CREATE TABLE log(id INTEGER PRIMARY KEY, text TEXT NOT NULL);"
                                "CREATE TRIGGER t AFTER UPDATE ON a BEGIN"
                                " INSERT INTO log(text) VALUES (NULL); END;"
                                "INSERT INTO a VALUES (1, 'x')"_s);
    const auto recordset = database.open(u"SELECT * FROM a"_s);
    recordset->Fields().Item(u"v"_s).PutValue({});
    EXPECT_EQ(errorOf([&] { recordset->Update(); }).Description(),
              u"操作违反了数据库的约束：NOT NULL constraint failed: log.text"_s);
}

TEST(MissingValue, IsFoundInTheWordsOfAnyEngine)
{
    const std::vector<FieldInfo> fields{column(u"名"_s, false), column(u"名称"_s, true),
                                        column(u"Customer"_s, true, u"CUST_NO"_s)};
    EXPECT_EQ(missingField(u"null value in column \"名称\" of relation \"商品\" violates …"_s, fields),
              u"名称"_s);
    EXPECT_EQ(missingField(u"关系 \"商品\" 中列 \"名称\" 的空值违反了非空约束"_s, fields), u"名称"_s);
    EXPECT_EQ(missingField(u"Column '名称' cannot be null"_s, fields), u"名称"_s);
    EXPECT_EQ(missingField(u"Field '名称' doesn't have a default value"_s, fields), u"名称"_s);
    EXPECT_EQ(missingField(u"Cannot insert the value NULL into column 'CUST_NO', table 'a.dbo.b'"_s, fields),
              u"Customer"_s);
    EXPECT_EQ(missingField(u"ORA-01400: cannot insert NULL into (\"S\".\"T\".\"CUST_NO\")"_s, fields),
              u"Customer"_s);
    EXPECT_EQ(missingField(u"a value is missing"_s, fields), QString()) << "it could be two";
    EXPECT_EQ(missingField(u"a value is missing"_s, {fields[0], fields[1]}), u"名称"_s)
        << "only one has to be there";
    EXPECT_EQ(missingField(u"a value is missing"_s, {fields[0]}), QString());
}

} // namespace
