#include "control/connection/ConnectionSettings.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;
using Kind = ConnectionTarget::Kind;

namespace {

ConnectionSettings settingsOf(const QString &text)
{
    return ConnectionSettings::read(ADODB::ConnectionString(text));
}

} // namespace

TEST(ConnectionSettings, FindTheTargetOfAString)
{
    const auto is = [](const QString &text, Kind kind, const QString &name = {}) {
        EXPECT_EQ(settingsOf(text).target, (ConnectionTarget{kind, name})) << qPrintable(text);
    };
    is(u""_s, Kind::File, u"SQLite"_s);
    is(u"Provider=SQLite;Data Source=a.db"_s, Kind::File, u"SQLite"_s);
    is(u"Data Source=a.db"_s, Kind::File, u"SQLite"_s);
    is(u"data source=A.MDB"_s, Kind::File, u"Microsoft.ACE.OLEDB.12.0"_s);
    is(u"Data Source=a.accdb"_s, Kind::File, u"Microsoft.ACE.OLEDB.12.0"_s);
    is(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=a"_s, Kind::File, u"Microsoft.ACE.OLEDB.12.0"_s);
    is(u"DSN=shop"_s, Kind::DataSource, u"shop"_s);
    is(u"Provider=MSDASQL;DSN=shop"_s, Kind::DataSource, u"shop"_s);
    is(u"Driver={PostgreSQL Unicode};Server=db"_s, Kind::Driver, u"PostgreSQL Unicode"_s);
}

TEST(ConnectionSettings, ReadTheFieldsUnderEitherKeyword)
{
    const ConnectionSettings settings =
        settingsOf(u"Driver=X;ServerName=db;Port=5432;Initial Catalog=shop;User ID=me;Password='a;b'"_s);
    EXPECT_EQ(settings.server, u"db"_s);
    EXPECT_EQ(settings.port, u"5432"_s);
    EXPECT_EQ(settings.database, u"shop"_s);
    EXPECT_EQ(settings.user, u"me"_s);
    EXPECT_EQ(settings.password, u"a;b"_s);
}

TEST(ConnectionSettings, WriteWhatTheTargetTakes)
{
    ConnectionSettings settings{
        {Kind::File, u"SQLite"_s}, u"/a b/shop.db"_s, u"db"_s, u"5432"_s, u"shop"_s, u"me"_s, u"a;b"_s};
    EXPECT_EQ(settings.write().text(), u"Provider=SQLite;Data Source=/a b/shop.db"_s);
    settings.target = {Kind::File, u"Microsoft.ACE.OLEDB.12.0"_s};
    EXPECT_EQ(settings.write().text(), u"Provider=Microsoft.ACE.OLEDB.12.0;Data Source=/a b/shop.db;"
                                       "Jet OLEDB:Database Password=\"a;b\""_s);
    settings.target = {Kind::DataSource, u"Shop"_s};
    EXPECT_EQ(settings.write().text(), u"DSN=Shop;UID=me;PWD=\"a;b\""_s);
    settings.target = {Kind::Driver, u"PostgreSQL Unicode"_s};
    EXPECT_EQ(settings.write().text(),
              u"Driver=PostgreSQL Unicode;Server=db;Port=5432;Database=shop;UID=me;PWD=\"a;b\""_s);
}

// The other password that Access knows is a user's, and no field shows it.
TEST(ConnectionSettings, TakeThePasswordOfAnAccessFileFromItsOwnKeyword)
{
    const ADODB::ConnectionString given(u"Data Source=a.mdb;Password=x;jet oledb:database password=secret"_s);
    ConnectionSettings settings = ConnectionSettings::read(given);
    EXPECT_EQ(settings.password, u"secret"_s);
    settings.password.clear();
    EXPECT_EQ(settings.write(given).text(),
              u"Password=x;Provider=Microsoft.ACE.OLEDB.12.0;Data Source=a.mdb"_s);
}

TEST(ConnectionSettings, EmptyFieldsLeaveNoKeyword)
{
    const ConnectionSettings settings{{Kind::Driver, u"X"_s}, {}, u"db"_s, {}, {}, {}, {}};
    EXPECT_EQ(settings.write().text(), u"Driver=X;Server=db"_s);
}

TEST(ConnectionSettings, KeepWhatNoFieldShowsAndSayNothingTwice)
{
    const ADODB::ConnectionString given(u"Driver=X;Server=old;Password=p;sslmode=require;User ID=me"_s);
    ConnectionSettings settings = ConnectionSettings::read(given);
    settings.server = u"new"_s;
    EXPECT_EQ(settings.write(given).text(), u"sslmode=require;Driver=X;Server=new;UID=me;PWD=p"_s);
}

// A data source may be given another database than its own; no field shows that.
TEST(ConnectionSettings, KeepWhatOverrulesADataSource)
{
    const ADODB::ConnectionString given(
        u"Provider=MSDASQL;DSN=shop;Server=db2;Port=1;Database=archive;UID=me"_s);
    ConnectionSettings settings = ConnectionSettings::read(given);
    settings.user = u"you"_s;
    EXPECT_EQ(settings.write(given).text(), u"Server=db2;Port=1;Database=archive;DSN=shop;UID=you"_s);
}

TEST(ConnectionSettings, ComeBackAsTheyWereWritten)
{
    for (const QString &value :
         {u"plain"_s, u"a b"_s, u"a;b"_s, u"\"q\""_s, u"{x}"_s, u" blank "_s, u"甲=乙"_s}) {
        const ConnectionSettings settings{{Kind::Driver, value}, {}, value, value, value, value, value};
        const ConnectionSettings again = settingsOf(settings.write().text());
        EXPECT_EQ(again.target.name, value);
        EXPECT_EQ(again.server, value);
        EXPECT_EQ(again.port, value);
        EXPECT_EQ(again.database, value);
        EXPECT_EQ(again.user, value);
        EXPECT_EQ(again.password, value);
    }
}
