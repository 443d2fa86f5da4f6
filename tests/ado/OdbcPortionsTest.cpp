// Results with more rows than are fetched at a time: all rows arrive, in order, and nothing that happens
// between two fetches does any harm.
#include "OdbcEngines.h"
#include "Throwing.h"

#include "ado/Error.h"

#ifdef Q_OS_UNIX
#include "servers/LoopbackProxy.h"
#endif

using namespace Qt::StringLiterals;
using namespace ADODB;
using AdoTest::errorOf;

namespace {

class OdbcPortions : public AdoTest::OnOdbc
{
protected:
    // The numbers from 1 on, with a text; `more` is a further field, of the number g.
    QString numbersTo(int last, const QString &more = u"0"_s) const
    {
        const QString from = is("PostgreSQL") ? u"(SELECT generate_series(1, %1) AS g) AS s"_s
                                              : u"(SELECT seq AS g FROM seq_1_to_%1) AS s"_s;
        return u"SELECT g, 'name of a number' AS n, %1 AS x FROM "_s.arg(more) + from.arg(last);
    }
    static void expectNumbersTo(qint64 last, const Recordset &records)
    {
        ASSERT_EQ(records.RecordCount(), last);
        for (qint64 record = 1; record <= last; ++record)
            ASSERT_EQ(records.CellText(record, 0), QString::number(record));
    }
};

KOVA_ON_ODBC_SERVERS(OdbcPortions);

} // namespace

TEST_P(OdbcPortions, ComeWhole)
{
    const auto connection = connect();
    for (const int last : {0, 1, 4999, 5000, 5001, 10'000, 12'345}) {
        const QString statement = last > 0 ? numbersTo(last) : numbersTo(1) + u" WHERE g < 0"_s;
        expectNumbersTo(last, *open(statement, connection));
    }
    expectNumbersTo(5002, *open(numbersTo(5002) + u" -- and no more;"_s, connection));
}

// By the keyword of PostgreSQL's driver.
TEST_P(OdbcPortions, HaveTheSizeThatTheConnectionStringSays)
{
    if (!is("PostgreSQL"))
        GTEST_SKIP() << "words of another driver";
    for (const char *words : {"Fetch=1", "A7=7", "UseDeclareFetch=1;Fetch=100", "UseDeclareFetch=0",
                              "B6=0;Fetch=10", "UseDeclareFetch=1", "Fetch=much"}) {
        SCOPED_TRACE(words);
        const auto connection = std::make_shared<Connection>();
        connection->Open(connectionString() + u';' + QString::fromLatin1(words));
        expectNumbersTo(205, *open(numbersTo(205), connection));
    }
}

TEST_P(OdbcPortions, FailWithoutHarmInALaterOne)
{
    if (!is("PostgreSQL"))
        GTEST_SKIP() << "divides by zero";
    const auto connection = connect();
    for (const int row : {1, 4999, 5000, 5001, 7000, 10'000, 10'001}) {
        const Error error = errorOf([&] { open(numbersTo(12'000, u"1 / (%1 - g)"_s.arg(row)), connection); });
        EXPECT_EQ(error.SQLState(), u"22012"_s) << row << error.what();
        expectNumbersTo(3, *open(numbersTo(3), connection));
    }
}

#ifdef Q_OS_UNIX
TEST_P(OdbcPortions, AreAnErrorWhenTheServerGoesAwayAmidAnyOfThem)
{
    using KovaTest::LoopbackProxy;
    for (int last = 20'000; last < 700'000; last += 40'000) { // bytes of 20,000 rows
        int passed = 0;
        const auto amid = [&](LoopbackProxy::From from, const QByteArray &bytes) {
            passed += from == LoopbackProxy::From::Server ? static_cast<int>(bytes.size()) : 0;
            return passed < last;
        };
        LoopbackProxy proxy(LoopbackProxy::portOf(connectionString()), amid);
        const auto connection = std::make_shared<Connection>();
        connection->Open(proxy.in(connectionString()));
        const Error error = errorOf([&] { open(numbersTo(20'000), connection); });
        EXPECT_TRUE(error.Description().contains(u"连接已断开"_s)) << last << error.what();
    }
}
#endif
