#include "Throwing.h"

#include "ado/ConnectionString.h"

#include <vector>

using namespace Qt::Literals::StringLiterals;
using ADODB::ConnectionString;

namespace {

struct Case
{
    QString text;
    QString keyword;
    QString value;
};

TEST(ConnectionString, ReadsValues)
{
    const std::vector<Case> cases{
        {u"Provider=SQLite;Data Source=shop.db"_s, u"Provider"_s, u"SQLite"_s},
        {u"Provider=SQLite;Data Source=shop.db"_s, u"data source"_s, u"shop.db"_s},
        {u"PROVIDER=SQLite;dAtA sOuRcE=a.db;"_s, u"Data Source"_s, u"a.db"_s},
        {u"  Data Source  =   my shop.db  ; Provider = SQLite "_s, u"Data Source"_s, u"my shop.db"_s},
        {u"Data Source='a;b.db'"_s, u"Data Source"_s, u"a;b.db"_s},
        {u"Data Source=\"a;b.db\" ; x=1"_s, u"x"_s, u"1"_s},
        {u"Data Source='it''s.db'"_s, u"Data Source"_s, u"it's.db"_s},
        {u"Data Source=\"say \"\"hi\"\".db\""_s, u"Data Source"_s, u"say \"hi\".db"_s},
        {u"Data Source='  blanks kept  '"_s, u"Data Source"_s, u"  blanks kept  "_s},
        {u"Driver={SQLite3 ODBC; Driver};DSN=x"_s, u"driver"_s, u"SQLite3 ODBC; Driver"_s},
        {u"Driver={a}}b}"_s, u"Driver"_s, u"a}b"_s},
        {u"Data Source=it's.db"_s, u"Data Source"_s, u"it's.db"_s},
        {u"Data Source=a=b.db"_s, u"Data Source"_s, u"a=b.db"_s},
        {u"Password=;Data Source=a"_s, u"Data Source"_s, u"a"_s},
        {u"Password=;Data Source=a"_s, u"Password"_s, QString()},
        {u"Data Source=''"_s, u"Data Source"_s, QString()},
        {u";;Provider=SQLite;;;"_s, u"Provider"_s, u"SQLite"_s},
        {u"Data Source=a;Data Source=b"_s, u"Data Source"_s, u"b"_s},
        {u"Data Source=数据 库.db"_s, u"Data Source"_s, u"数据 库.db"_s},
        {QString(), u"Provider"_s, QString()},
        {u"   "_s, u"Provider"_s, QString()},
    };
    for (const Case &c : cases)
        EXPECT_EQ(ConnectionString(c.text).value(c.keyword), c.value) << c.text.toStdString();
}

TEST(ConnectionString, RefusesMalformedTextsWithoutQuotingThem)
{
    for (const QString &text :
         {u"Secret-marker"_s, u"Provider=SQLite;Secret-marker;x=1"_s, u"Password='Secret-marker"_s,
          u"Driver={Secret-marker"_s, u"Password='Secret-marker'tail;x=1"_s, u"=Secret-marker"_s}) {
        const ADODB::Error error = AdoTest::errorOf([&] { ConnectionString{text}; });
        EXPECT_TRUE(error.is(ADODB::adErrInvalidArgument)) << text.toStdString();
        EXPECT_FALSE(error.Description().contains(u"Secret-marker")) << error.what();
    }
    EXPECT_TRUE(AdoTest::errorOf([] { ConnectionString{u"a=1;b"_s}; }).Description().contains(u"第 2 段"));
}

TEST(ConnectionString, WritesWhatItReads)
{
    ConnectionString written;
    const std::vector<QString> values{u"plain"_s, u" blanks "_s, u"semi;colon"_s, u"'quoted'"_s,
                                      u"\"x\""_s, u"{braces}"_s, QString(),       u"a\"b;c"_s};
    for (std::size_t i = 0; i < values.size(); ++i)
        written.set(u"Key%1"_s.arg(i), values[i]);
    const ConnectionString read(written.text());
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(read.value(u"key%1"_s.arg(i)), values[i]);
}

// Between them there may be a synonym, and the later one of both must be used.
TEST(ConnectionString, PutsAKeywordWhereItOccursLast)
{
    EXPECT_EQ(ConnectionString(u"Server=a;Data Source=b;SERVER=c"_s).text(), u"Data Source=b;SERVER=c"_s);
}

TEST(ConnectionString, LeavesOutEveryPassword)
{
    const ConnectionString text(
        u"Data Source=a.mdb;PWD=marker;Password=marker;Jet OLEDB:Database Password=marker;User ID=me"_s);
    EXPECT_EQ(text.textWithoutPassword(), u"Data Source=a.mdb;User ID=me"_s);
}

TEST(ConnectionString, LeavesOutNestedPasswords)
{
    const ConnectionString text(
        u"Provider=MSDASQL;Extended Properties=\"DSN=shop;UID=me;PWD=marker;TlsKeyPwd=marker\""_s);
    EXPECT_EQ(text.textWithoutPassword(), u"Provider=MSDASQL;Extended Properties=\"DSN=shop;UID=me\""_s);
    const ConnectionString unreadable(u"Data Source=a.xls;Extended Properties=\"Excel 8.0;PWD=marker\""_s);
    EXPECT_FALSE(unreadable.textWithoutPassword().contains(u"marker"_s));
}

TEST(ConnectionString, ReplacesAndRemovesInAnyLetterCase)
{
    ConnectionString text(u"UID=a;Data Source=b"_s);
    text.set(u"DATA SOURCE"_s, u"c"_s);
    text.remove(u"uid"_s);
    EXPECT_EQ(text.text(), u"Data Source=c"_s);
    EXPECT_FALSE(text.contains(u"UID"_s));
}

} // namespace
