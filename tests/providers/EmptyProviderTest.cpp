// The template of a provider, reached as hosts reach every provider: through Connection and Recordset.
#include "providers/empty/EmptyProvider.h"
#include "ado/Connection.h"
#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Recordset.h"

#include <gtest/gtest.h>

#include <set>

using namespace ADODB;
using namespace Qt::StringLiterals;

namespace {

template<typename Action>
Error errorOf(Action &&action)
{
    try {
        action();
    } catch (const Error &error) {
        return error;
    }
    ADD_FAILURE() << "nothing was thrown";
    return Error(dbErrFailed, {});
}

std::shared_ptr<Connection> opened(const QString &text)
{
    auto connection = std::make_shared<Connection>();
    connection->Open(text);
    return connection;
}

struct EmptyProviderTest : testing::Test
{
    EmptyProvider provider;
    ProviderRegistration registration{provider};
};

} // namespace

TEST_F(EmptyProviderTest, ServesItsRows)
{
    const auto connection = opened(u"provider=EMPTY;Rows=2500"_s);
    Recordset recordset;
    recordset.Open(u"select *  from numbers"_s, connection);
    ASSERT_EQ(recordset.Fields().Count(), 2);
    EXPECT_EQ(recordset.Fields().Item(0).Name(), u"number"_s);
    EXPECT_EQ(recordset.Fields().Item(1).Type(), adVarWChar);
    EXPECT_EQ(recordset.RecordCount(), 2500);
    recordset.MoveLast();
    EXPECT_EQ(recordset.Fields().Item(u"number"_s).Value(), QVariant(2500));
    EXPECT_EQ(recordset.Fields().Item(u"text"_s).Value(), QVariant(u"2500"_s));
}

// Standard SQL reads them so, and nobody knows better.
TEST_F(EmptyProviderTest, HasNamesWrittenAsInStandardSql)
{
    const auto connection = opened(u"provider=EMPTY"_s);
    EXPECT_EQ(connection->WrittenName(u"plain"_s), u"plain"_s);
    EXPECT_EQ(connection->WrittenName(u"a \"b"_s), u"\"a \"\"b\""_s);
    EXPECT_EQ(connection->WrittenName(u"Order"_s), u"\"Order\""_s);
}

TEST_F(EmptyProviderTest, ServesATableByItsName)
{
    Recordset recordset;
    recordset.Open(u"Numbers"_s, opened(u"Provider=Empty"_s), adOpenStatic, adLockReadOnly, adCmdTable);
    EXPECT_EQ(recordset.RecordCount(), 0);
    EXPECT_EQ(recordset.Fields().Count(), 2);
}

TEST_F(EmptyProviderTest, RefusesWhatItDoesNotKnow)
{
    const auto connection = opened(u"Provider=Empty"_s);
    for (const QString &sql : {u"delete from numbers"_s, u"select * from numbers; select 1"_s, u""_s}) {
        Recordset recordset;
        EXPECT_TRUE(errorOf([&] { recordset.Open(sql, connection); }).is(dbErrInCommand)) << qPrintable(sql);
        EXPECT_EQ(recordset.State(), adStateClosed);
    }
    EXPECT_TRUE(errorOf([] { opened(u"Provider=Empty;Rows=many"_s); }).is(adErrInvalidArgument));
}

TEST_F(EmptyProviderTest, IsCancelledByItsReader)
{
    Recordset recordset;
    recordset.SetProgress([](qint64 rows) { return rows < 1000; });
    const auto connection = opened(u"Provider=Empty;Rows=1000000"_s);
    EXPECT_TRUE(errorOf([&] { recordset.Open(u"select * from numbers"_s, connection); }).is(dbErrCancelled));
    EXPECT_EQ(recordset.State(), adStateClosed);
}

TEST_F(EmptyProviderTest, WritesNothingBack)
{
    Recordset recordset;
    recordset.Open(u"select * from numbers"_s, opened(u"Provider=Empty;Rows=1"_s), adOpenKeyset,
                   adLockOptimistic);
    EXPECT_TRUE(errorOf([&] { recordset.Delete(); }).is(adErrFeatureNotAvailable));
    EXPECT_EQ(recordset.RecordCount(), 1);
}

TEST_F(EmptyProviderTest, EndsWithItsConnection)
{
    const auto connection = opened(u"Provider=Empty"_s);
    const std::shared_ptr<Session> session = connection->session();
    connection->Close();
    EXPECT_TRUE(errorOf([&] {
                    session->prepare(u"select * from numbers"_s, Access::ReadOnly, {});
                }).is(adErrInvalidConnection));
}

TEST(Providers, AreKnownForAsLongAsTheyAreRegistered)
{
    {
        const EmptyProvider provider;
        const ProviderRegistration registration(provider);
        EXPECT_EQ(providerOf(ConnectionString(u"Provider=Empty"_s)), &provider);
    }
    EXPECT_EQ(providerOf(ConnectionString(u"Provider=Empty"_s)), nullptr);
    const Error error = errorOf([] { opened(u"Provider=Empty"_s); });
    EXPECT_TRUE(error.is(adErrProviderNotFound));
    for (const Provider *known : providers())
        EXPECT_TRUE(error.Description().contains(known->name())) << qPrintable(known->name());
}

TEST(Providers, HaveNamesOfTheirOwn)
{
    std::set<QString> names;
    for (const Provider *provider : providers()) {
        EXPECT_TRUE(names.insert(provider->name().toLower()).second) << qPrintable(provider->name());
        ConnectionString named;
        named.set(u"Provider"_s, provider->name());
        EXPECT_EQ(providerOf(named), provider) << qPrintable(provider->name());
    }
    EXPECT_GE(names.size(), 2u);
}
