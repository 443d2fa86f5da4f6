// The statements of statements.cases that database servers accept: what is derived from them must return the
// rows of a loop over the statement's own rows.
#include "query/derivation/Derivation.h"

#include "CaseFile.h"
#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/connection/EngineOf.h"
#include "query/conditions/Conditions.h"
#include "servers/OdbcSession.h"
#include "servers/Servers.h"
#include "sql/Literals.h"
#include "sql/StatementLines.h"

#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Server
{
    const char *variable;
    AllDBType database;
    int atLeast; // how many of the statements it accepts
};

struct Result
{
    QStringList names;
    std::vector<qint32> types;
    std::vector<QStringList> rows; // "N" before a null, "V" before a value
};

const QStringList tables{
    u"CREATE TABLE Cust(ID INTEGER PRIMARY KEY, Name VARCHAR(40), City VARCHAR(40))"_s,
    u"INSERT INTO Cust VALUES (1,'anna','B'),(2,'bob','A'),(3,'cid','B'),(4,'b order by c','A')"_s,
    u"CREATE VIEW AllCust AS SELECT ID, Name, City FROM Cust"_s,
    u"CREATE TABLE Ord(ID INTEGER PRIMARY KEY, Name VARCHAR(40), Qty INTEGER, Price DECIMAL(8,2), Cust INTEGER)"_s,
    u"INSERT INTO Ord VALUES (1,'bob',5,1.5,1),(2,'anna',2,2.25,2),(3,'zoe',1,9,1),(4,'a order by b',3,4,3),"
    "(5,'x where y',2,0.5,2),(6,' FROM x',NULL,3,1),(7,'anna',4,2.25,3),(8,NULL,1,8,4)"_s,
    u"CREATE TABLE Item(Ord INTEGER, Item VARCHAR(40), N INTEGER)"_s,
    u"INSERT INTO Item VALUES (1,'tea',3),(1,'cup',0),(2,'tea',1),(3,'pot',2),(7,'jug',5),(7,'tea',4)"_s};

class DerivationServers : public testing::TestWithParam<Server>
{
protected:
    DerivationServers()
    {
        const QString text = serverConnection(GetParam().variable);
        if (text.isEmpty())
            return;
        session = std::make_unique<OdbcSession>(text);
        drop();
        session->run(tables);
        connection = std::make_shared<ADODB::Connection>();
        connection->Open(text);
        dialect = dialectOf(GetParam().database, engineOf(connection));
    }
    ~DerivationServers() override
    {
        connection.reset();
        if (session)
            drop();
    }
    void drop()
    {
        session->run({u"DROP VIEW IF EXISTS AllCust"_s, u"DROP TABLE IF EXISTS Page"_s,
                      u"DROP TABLE IF EXISTS Item"_s, u"DROP TABLE IF EXISTS Ord"_s,
                      u"DROP TABLE IF EXISTS Cust"_s});
    }

    Result read(const QString &statement) const
    {
        ADODB::Recordset records;
        records.Open(statement, connection);
        Result result;
        for (int field = 0; field < records.Fields().Count(); ++field) {
            result.names.append(records.Fields().Item(field).Name());
            result.types.push_back(records.Fields().Item(field).Type());
        }
        for (qint64 record = 1; record <= records.RecordCount(); ++record) {
            QStringList row;
            for (int field = 0; field < result.names.size(); ++field)
                row.append(records.IsNull(record, field) ? u"N"_s : u'V' + records.CellText(record, field));
            result.rows.push_back(row);
        }
        return result;
    }

    // A failure fails the test.
    Result mustRead(const QString &statement) const
    {
        try {
            return read(statement);
        } catch (const ADODB::Error &error) {
            ADD_FAILURE() << qPrintable(statement) << "\n" << qPrintable(error.Description());
            return {};
        }
    }

    Derivation derivationOf(const QString &statement) const
    {
        const Derivation derivation(statement, fieldsOf(statement), dialect);
        StarSizes sizes;
        for (const QString &star : derivation.starsToMeasure())
            sizes.insert(star, std::ssize(fieldsOf(derivation.statementOfStar(star))));
        for (const QString &alias : derivation.aliasesToTell()) {
            if (!isReadable(derivation.statementOfStar(alias)))
                sizes.insert(alias, 0);
        }
        return sizes.isEmpty() ? derivation : Derivation(statement, fieldsOf(statement), dialect, sizes);
    }

    bool isReadable(const QString &statement) const
    {
        try {
            connection->Describe(statement);
            return true;
        } catch (const ADODB::Error &) {
            return false;
        }
    }

    std::vector<SourceField> fieldsOf(const QString &statement) const
    {
        std::vector<SourceField> fields;
        for (const ADODB::FieldInfo &info : connection->Describe(statement))
            fields.push_back({info.name, info.type, info.baseTable});
        return fields;
    }

    QString equals(const QString &written, qint32 type, const QString &value) const
    {
        if (value == u"N")
            return written + u" IS NULL"_s;
        const QString text = value.mid(1);
        return written + u" = "_s + (classifyFieldType(type) == u"1" ? text : textLiteral(dialect, text));
    }

    static void expectRows(Result actual, std::vector<QStringList> expected, const QString &statement)
    {
        std::sort(actual.rows.begin(), actual.rows.end());
        std::sort(expected.begin(), expected.end());
        EXPECT_TRUE(actual.rows == expected) << qPrintable(statement) << "\n"
                                             << actual.rows.size() << " instead of " << expected.size();
    }

    std::unique_ptr<OdbcSession> session;
    std::shared_ptr<ADODB::Connection> connection;
    Dialect dialect;
};

} // namespace

TEST_P(DerivationServers, DerivedStatementsHaveTheRowsOfALoop)
{
    if (!connection)
        GTEST_SKIP() << GetParam().variable << " names no server";
    int taken = 0;
    for (const Case &c : ReadCases({u"statements.cases"_s, u"server_statements.cases"_s})) {
        SCOPED_TRACE(c.place.toStdString());
        const QString statement = joinStatementLines(c[u"statement"_s]);
        Result all;
        try {
            all = read(statement);
        } catch (const ADODB::Error &) {
            continue; // syntax of SQLite
        }
        ++taken;
        const Derivation derivation = derivationOf(statement);
        for (const auto step : {DerivationStep::Condition, DerivationStep::Sort, DerivationStep::Fields})
            EXPECT_EQ(derivation.whyNot(step), QString());
        ASSERT_EQ(derivation.written().size(), all.names.size());
        for (int column = 0; column < all.names.size(); ++column) {
            const QString written = derivation.written().at(column);
            if (written.isEmpty())
                continue;
            const qint32 type = all.types.at(static_cast<std::size_t>(column));
            constexpr qint32 boolean = 11;
            for (const QStringList &row : all.rows) {
                if (type == boolean)
                    break;
                auto expected = all.rows;
                std::erase_if(expected,
                              [&](const QStringList &other) { return other.at(column) != row.at(column); });
                const QString once = derivation.withCondition(equals(written, type, row.at(column)));
                const Result filtered = mustRead(once);
                EXPECT_EQ(filtered.names, all.names) << qPrintable(once);
                expectRows(filtered, expected, once);
            }
            const QString sorted = derivation.withSort(written + u" DESC"_s);
            expectRows(mustRead(sorted), all.rows, sorted);
            const QString chosen = derivation.withFields({derivation.listed().at(column)});
            EXPECT_EQ(mustRead(chosen).names, QStringList{all.names.at(column)}) << qPrintable(chosen);
        }
        if (c.Has(u"whole"_s)) {
            EXPECT_EQ(mustRead(derivation.withoutConditions()).rows.size(),
                      mustRead(c[u"whole"_s]).rows.size());
        }
    }
    EXPECT_GE(taken, GetParam().atLeast);
    RecordProperty("taken", taken);
}

// MariaDB keeps what is long in pages of a table, where it has no order.
TEST_P(DerivationServers, ASortByWhatTheResultLacksIsKept)
{
    if (!connection)
        GTEST_SKIP() << GetParam().variable << " names no server";
    session->run({u"CREATE TABLE Page(ID INTEGER PRIMARY KEY, Cust INTEGER, Words TEXT)"_s});
    for (int id = 1; id <= 40; ++id)
        session->run({u"INSERT INTO Page VALUES (%1,%2,'%3')"_s.arg(id)
                          .arg(1 + id % 3)
                          .arg(QString(id * 1931 % 5000, u'x'))});
    const QString join = u"from Page p join Cust c on c.ID = p.Cust"_s;
    const QStringList statements{
        u"select p.*, row_number() over (order by p.ID) as N %1 order by c.Name desc, p.ID"_s,
        u"select p.ID, p.Words, count(*) as N %1 group by p.ID, p.Words, c.Name order by max(c.Name) desc, p.ID"_s,
        u"select p.ID, p.Words %1 order by c.Name desc, abs(p.ID - 20), p.ID limit 30"_s,
        u"select p.ID, p.Words, count(*) over () as N from Page p order by "
        "(select c.Name from Cust c where c.ID = p.Cust) desc, p.ID"_s,
        u"select extract(year from date '2024-05-01'), p.ID, count(*) over () as N %1 order by c.Name, p.ID"_s,
        u"with P as (select * from Page) select p.ID, p.Words, count(*) over () as N from P p join Cust c on "
        "c.ID = p.Cust order by c.City, -p.ID"_s};
    for (const QString &pattern : statements) {
        const QString statement = pattern.contains(u"%1"_s) ? pattern.arg(join) : pattern;
        SCOPED_TRACE(qPrintable(statement));
        Result expected = mustRead(statement);
        const auto key =
            expected.names.indexOf(QRegularExpression(u"^id$"_s, QRegularExpression::CaseInsensitiveOption));
        std::erase_if(expected.rows, [&](const QStringList &row) { return row.at(key) == u"V7"_s; });
        const Derivation origin = derivationOf(statement);
        const QString id = origin.written().at(key);
        const QString filtered = origin.withCondition(id + u" <> 7"_s);
        const Result actual = mustRead(filtered);
        EXPECT_EQ(actual.names, expected.names) << qPrintable(filtered);
        EXPECT_TRUE(actual.rows == expected.rows) << qPrintable(filtered);
        const QString chosen = derivationOf(filtered).withFields({derivationOf(filtered).listed().at(key)});
        const Result ids = mustRead(chosen);
        ASSERT_EQ(ids.rows.size(), expected.rows.size());
        for (std::size_t row = 0; row < ids.rows.size(); ++row)
            EXPECT_EQ(ids.rows[row], QStringList{expected.rows[row].at(key)}) << qPrintable(chosen);
    }
}

INSTANTIATE_TEST_SUITE_P(, DerivationServers,
                         testing::Values(Server{"KOVA_TEST_POSTGRESQL", dbOracle, 30},
                                         Server{"KOVA_TEST_MARIADB", dbSQLServer, 30},
                                         Server{"KOVA_TEST_MARIADB_ORACLE", dbOracle, 30},
                                         Server{"KOVA_TEST_MARIADB_MSSQL", dbSQLServer, 30}),
                         [](const auto &parameter) { return std::string(parameter.param.variable + 10); });
