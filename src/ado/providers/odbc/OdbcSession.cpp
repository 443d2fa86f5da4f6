#include "ado/providers/odbc/OdbcSession.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/connection/Waiting.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/OdbcPool.h"
#include "ado/providers/odbc/reading/OdbcReading.h"
#include "ado/providers/odbc/reading/OdbcReferences.h"
#include "ado/providers/odbc/reading/OdbcStatement.h"
#include "ado/providers/odbc/waiting/OdbcOperation.h"
#include "ado/providers/odbc/waiting/OdbcWaiting.h"
#include "ado/providers/odbc/writing/OdbcFilledColumns.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

// The time limit in seconds of calls that can't be cancelled; ADO's default.
constexpr int limitOfUnwatched = 30;

} // namespace

OdbcSession::OdbcSession(std::shared_ptr<OdbcPool> pool, int commandTimeout)
    : m_pool(std::move(pool)), m_engine(m_pool->engine()), m_commandTimeout(commandTimeout)
{
}

OdbcSession::~OdbcSession() = default;

std::unique_ptr<Statement> OdbcSession::prepare(const QString &sql, Access access,
                                                const std::function<bool()> &shouldContinue)
{
    const auto made = std::make_shared<std::shared_ptr<OdbcStatement>>();
    const int limit = Waiting::isWatched() || access == Access::ReadWrite ? 0 : limitOfUnwatched;
    OdbcOperation::run([session = shared_from_this(), sql, access,
                        made] { *made = std::make_shared<OdbcStatement>(session, sql, access); },
                       {[&](qint64) { return shouldContinue(); }, limit});
    return std::make_unique<OdbcWaitingStatement>(shared_from_this(), std::move(*made), sql);
}

std::optional<TableColumn> OdbcSession::reference(const TableColumn &column,
                                                  const std::function<bool()> &shouldContinue)
{
    const auto found = std::make_shared<std::optional<TableColumn>>();
    OdbcOperation::run(
        [session = shared_from_this(), column, found] {
            session->begin([&](const std::shared_ptr<OdbcConnection> &connection) {
                *found = odbcReference(connection, session->engine(), column);
            });
        },
        {[&](qint64) { return shouldContinue(); }, Waiting::isWatched() ? 0 : limitOfUnwatched});
    return *found;
}

QStringList OdbcSession::filledColumns(const TableColumn &table, const std::function<bool()> &shouldContinue)
{
    const auto found = std::make_shared<QStringList>();
    OdbcOperation::run(
        [session = shared_from_this(), table, found] {
            session->begin([&](const std::shared_ptr<OdbcConnection> &connection) {
                *found = odbcFilledColumns(connection, session->engine(), table);
            });
        },
        {[&](qint64) { return shouldContinue(); }, Waiting::isWatched() ? 0 : limitOfUnwatched});
    return *found;
}

QString OdbcSession::tableStatement(const QString &table) const
{
    return "SELECT * FROM "_L1 + m_engine.quoted(table);
}

void OdbcSession::close()
{
    // Destroyed after the lock is released.
    std::shared_ptr<OdbcConnection> kept;
    std::shared_ptr<OdbcPool> pool;
    const QMutexLocker lock(&m_mutex);
    kept.swap(m_kept);
    pool.swap(m_pool);
}

bool OdbcSession::isOpen() const
{
    return pool() && !*m_isLost;
}

std::shared_ptr<OdbcPool> OdbcSession::pool() const
{
    const QMutexLocker lock(&m_mutex);
    return m_pool;
}

std::shared_ptr<OdbcConnection> OdbcSession::connection(KeptReading kept)
{
    OdbcOperation *const operation = OdbcOperation::current();
    auto connection = operation ? operation->lease(this) : nullptr;
    if (connection)
        return connection;
    const auto pool = this->pool();
    if (!pool || (*m_isLost && !m_engine.isServer()))
        throw Error(adErrInvalidConnection, Texts::connectionClosed());
    {
        const QMutexLocker lock(&m_mutex);
        connection = m_kept;
    }
    if (!connection) {
        connection = pool->acquire(m_isLost);
        *m_isLost = false;
    }
    if (kept == KeptReading::End)
        OdbcReading::endKept(connection, m_engine);
    if (operation)
        operation->setLease(this, connection);
    const QMutexLocker lock(&m_mutex);
    if (!m_engine.isServer() && m_pool)
        m_kept = connection;
    return connection;
}

std::shared_ptr<OdbcConnection>
OdbcSession::begin(const std::function<void(const std::shared_ptr<OdbcConnection> &)> &first,
                   KeptReading kept)
{
    for (bool isAgain = false;; isAgain = true) {
        auto connection = this->connection(kept);
        try {
            first(connection);
            connection->setTried();
            return connection;
        } catch (const Error &) {
            if (isAgain || !connection->isLost() || !connection->isUntried())
                throw;
        }
        if (const auto pool = this->pool())
            pool->dropIdle();
    }
}

} // namespace ADODB
