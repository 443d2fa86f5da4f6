// Each ODBC call of the data access layer fails in turn: not done, done but reported as failed, out of
// memory, or with the connection lost from then on. What is read must be complete or an error; a write must
// have the reported outcome.
#include "FaultyOdbc.h"

#include "ado/OdbcEngines.h"

#include "ado/Error.h"
#include "servers/OdbcSession.h"

#include <QtCore/QSet>

#include <functional>
#include <optional>

using namespace Qt::StringLiterals;
using namespace ADODB;
using namespace KovaTest;
using FaultyOdbc::Fault;

namespace {

class OdbcFaults : public AdoTest::OnOdbc
{
protected:
    void SetUp() override
    {
        OnOdbc::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        m_session.emplace(connectionString());
        // Rows that differ only in the part of the key that an incomplete read would not return.
        m_session->run(u"CREATE TABLE kova_a(k INTEGER NOT NULL, l INTEGER NOT NULL, a VARCHAR(20), b "
                       "VARCHAR(20), PRIMARY KEY (k, l))"_s);
        reset();
    }
    void TearDown() override
    {
        m_session.reset();
        OnOdbc::TearDown();
    }
    void reset()
    {
        m_session->run(
            {u"DELETE FROM kova_a"_s,
             u"INSERT INTO kova_a VALUES (1,1,'x','p'),(1,2,'x','q'),(1,3,'x','r'),(2,1,'y','s')"_s});
    }
    QString dump()
    {
        QString rows;
        for (const char *key :
             {"k = 1 AND l = 1", "k = 1 AND l = 2", "k = 1 AND l = 3", "k = 2 AND l = 1", "k = 9"}) {
            const QString where = u" FROM kova_a WHERE "_s + QString::fromLatin1(key);
            rows += m_session->ask(u"SELECT a"_s + where) + m_session->ask(u"SELECT b"_s + where) + u'/';
        }
        return rows + m_session->ask(u"SELECT count(*) FROM kova_a"_s);
    }

    struct Opened
    {
        std::shared_ptr<Connection> connection = std::make_shared<Connection>();
        std::shared_ptr<Recordset> recordset = std::make_shared<Recordset>();
    };
    void open(const Opened &to, const QString &columns) const
    {
        to.connection->Open(connectionString());
        to.recordset->Open(u"SELECT "_s + columns + u" FROM kova_a ORDER BY k, l"_s, to.connection,
                           adOpenKeyset, adLockOptimistic, adCmdText);
    }
    static QString textOf(const Recordset &recordset)
    {
        QString text;
        for (qint64 i = 1; i <= recordset.RecordCount(); ++i) {
            for (int column = 0; column < recordset.Fields().Count(); ++column)
                text += recordset.CellText(i, column) + u'/';
        }
        return text;
    }
    // Every way to fail, call by call, until `action` has no more calls: what `action` was interrupted by,
    // and the error that came of it.
    void forEachFault(const std::function<void(Fault, std::optional<Error> &)> &action)
    {
        for (const Fault fault : {Fault::NotDone, Fault::Done, Fault::Memory, Fault::Lost}) {
            for (int call = 1; call < 10'000 && !HasFailure(); ++call) {
                std::optional<Error> error;
                m_call = call;
                action(fault, error);
                if (FaultyOdbc::failed().isEmpty())
                    break;
                ++m_faults;
                m_calls += FaultyOdbc::failed();
                EXPECT_TRUE(!error || !error->Description().isEmpty());
            }
        }
        std::printf("%d faults in %d functions\n", m_faults, static_cast<int>(m_calls.size()));
    }
    void expectBeforeOrAfter(const QString &columns, const std::function<void(Recordset &)> &action)
    {
        // The next fault uses a session that this one has left fit, and a login costs more than what fails.
        const std::shared_ptr<Connection> keepingSessions = connect();
        const QString before = dump();
        {
            const Opened opened;
            open(opened, columns);
            action(*opened.recordset);
        }
        const QString after = dump();
        ASSERT_NE(before, after);
        forEachFault([&](Fault fault, std::optional<Error> &error) {
            reset();
            {
                const Opened opened;
                open(opened, columns);
                FaultyOdbc::failAt(m_call, fault);
                try {
                    action(*opened.recordset);
                } catch (const Error &thrown) {
                    error = thrown;
                }
                FaultyOdbc::stopFailing();
            }
            const QString now = dump();
            const bool mayBeBefore = error.has_value();
            const bool mayBeAfter = !error || error->is(dbErrInDoubt);
            EXPECT_TRUE((mayBeBefore && now == before) || (mayBeAfter && now == after))
                << FaultyOdbc::failed().toStdString() << ", call " << m_call << ", fault "
                << static_cast<int>(fault) << ": " << (error ? error->what() : "saved") << "\n"
                << now.toStdString();
        });
    }

    int m_call = 0;
    int m_faults = 0;
    QSet<QString> m_calls;

private:
    std::optional<OdbcSession> m_session;
};

KOVA_ON_ODBC_ENGINES(OdbcFaults);

TEST_P(OdbcFaults, LeaveAResultWholeOrAnError)
{
    Opened whole;
    open(whole, u"k, a, b"_s);
    const QString text = textOf(*whole.recordset);
    const QString before = dump();
    forEachFault([&](Fault fault, std::optional<Error> &error) {
        QString read = text;
        const Opened opened;
        FaultyOdbc::failAt(m_call, fault);
        try {
            open(opened, u"k, a, b"_s);
            FaultyOdbc::stopFailing();
            read = textOf(*opened.recordset);
        } catch (const Error &thrown) {
            FaultyOdbc::stopFailing();
            error = thrown;
        }
        EXPECT_EQ(read, text) << FaultyOdbc::failed().toStdString();
    });
    EXPECT_EQ(dump(), before);
    EXPECT_GT(m_faults, 60);
}

TEST_P(OdbcFaults, LeaveAChangeSavedOrNot)
{
    expectBeforeOrAfter(u"k, a"_s, [](Recordset &recordset) {
        recordset.MoveNext();
        recordset.Fields().Item(1).PutValue(u"new"_s);
        recordset.Update();
    });
    EXPECT_GT(m_faults, 60);
}

TEST_P(OdbcFaults, LeaveADeletionDoneOrNot)
{
    expectBeforeOrAfter(u"k, a"_s, [](Recordset &recordset) {
        recordset.MoveNext();
        recordset.Delete();
    });
    EXPECT_GT(m_faults, 60);
}

TEST_P(OdbcFaults, LeaveANewRecordSavedOrNot)
{
    expectBeforeOrAfter(u"k, l, a"_s, [](Recordset &recordset) {
        recordset.AddNew();
        recordset.Fields().Item(0).PutValue(9);
        recordset.Fields().Item(1).PutValue(9);
        recordset.Fields().Item(2).PutValue(u"new"_s);
        recordset.Update();
    });
    EXPECT_GT(m_faults, 40);
}

// The record is read again without a mistake, or not at all.
TEST_P(OdbcFaults, LeaveARecordReadAgainOrNot)
{
    const std::shared_ptr<Connection> keepingSessions = connect();
    forEachFault([&](Fault fault, std::optional<Error> &error) {
        const Opened opened;
        open(opened, u"k, a, b"_s);
        Recordset &recordset = *opened.recordset;
        recordset.MoveNext();
        recordset.Fields().Item(1).PutValue(u"mine"_s);
        FaultyOdbc::failAt(m_call, fault);
        try {
            recordset.Resync(adAffectCurrent, adResyncUnderlyingValues);
        } catch (const Error &thrown) {
            error = thrown;
        }
        FaultyOdbc::stopFailing();
        EXPECT_EQ(recordset.Fields().Item(1).Value(), QVariant(u"mine"_s));
        EXPECT_EQ(recordset.Fields().Item(2).UnderlyingValue(), QVariant(u"q"_s));
    });
    EXPECT_GT(m_faults, 20);
}

} // namespace
