// Characters sent to a server must arrive unchanged.
#include "OdbcEngines.h"

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;

namespace {

class CharacterSet : public AdoTest::OnOdbc
{
};

INSTANTIATE_TEST_SUITE_P(Servers, CharacterSet, testing::Values(AdoTest::odbcEngines[2]),
                         [](const auto &engine) { return std::string(engine.param.name); });

TEST_P(CharacterSet, IsUnicodeWhateverTheConnectionStringOrTheSessionSays)
{
    execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY, a VARCHAR(40) CHARACTER SET utf8mb4)"_s);
    execute(u"INSERT INTO kova_a VALUES (1, 'a')"_s);
    const QString inString = u"charset=%1"_s;
    const QString behindTheDriver = u"Charset=utf8mb4;InitStmt={SET NAMES %1}"_s;
    for (const QString &charset :
         {inString.arg(u"big5"_s), inString.arg(u"sjis"_s), inString.arg(u"latin1"_s),
          inString.arg(u"cp1251"_s), inString.arg(u"ascii"_s), inString.arg(u"gbk"_s),
          behindTheDriver.arg(u"gbk"_s), behindTheDriver.arg(u"latin1"_s)}) {
        const auto connection = std::make_shared<Connection>();
        connection->Open(connectionString().replace(u"Charset=utf8mb4"_s, charset));
        const auto text = open(u"SELECT '＇ AS b, a AS c FROM kova_a -- ' AS a"_s, connection);
        ASSERT_EQ(text->Fields().Count(), 1) << qPrintable(charset);
        EXPECT_EQ(text->CellText(1, 0), u"＇ AS b, a AS c FROM kova_a -- "_s) << qPrintable(charset);

        const QString typed = u"＇é\U0001F600\u02BC\uFF3C"_s;
        const auto recordset = open(u"SELECT id, a FROM kova_a"_s, connection);
        recordset->Fields().Item(1).PutValue(typed);
        recordset->Update();
        EXPECT_EQ(open(u"SELECT a FROM kova_a"_s, connection)->CellText(1, 0), typed) << qPrintable(charset);
        recordset->Fields().Item(1).PutValue(u"a"_s);
        recordset->Update();
    }
}

// In all sessions of a login, not only in the first one.
TEST_P(CharacterSet, IsUnicodeInTheSessionThatReplacesALostOne)
{
    const auto connection = std::make_shared<Connection>();
    connection->Open(connectionString() + u";InitStmt={SET NAMES gbk}"_s);
    const QString statement = u"SELECT connection_id() AS id, @@character_set_client AS sent, '甲' AS text"_s;
    const auto first = open(statement, connection);
    EXPECT_EQ(first->CellText(1, 1), u"utf8mb4"_s);
    execute(u"KILL "_s + first->CellText(1, 0));
    const auto second = open(statement, connection);
    EXPECT_NE(second->CellText(1, 0), first->CellText(1, 0));
    EXPECT_EQ(second->CellText(1, 1), u"utf8mb4"_s);
    EXPECT_EQ(second->CellText(1, 2), u"甲"_s);
}

} // namespace
