#include "ado/providers/odbc/OdbcPool.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/connection/OdbcCatalogue.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/reading/OdbcLongValue.h"
#include "ado/providers/odbc/reading/OdbcReading.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace ADODB {

namespace {

constexpr std::size_t mostIdle = 1;
// Firewalls and NAT drop idle connections after five minutes at the earliest.
constexpr auto longestIdle = 4min;

struct Registry
{
    QMutex mutex;
    QHash<QString, std::weak_ptr<OdbcPool>> pools;
};

Registry &registry()
{
    static Registry theRegistry;
    return theRegistry;
}

// If the driver is missing, one driver manager reports that there is no such data source, another one warns
// that it can't open a file.
bool isFromManager(const Error &error)
{
    return error.SQLState().startsWith("IM"_L1) || error.SQLState().startsWith("01"_L1);
}

std::unique_ptr<OdbcConnection> connectTo(const OdbcLogin &login)
{
    login.checkFile();
    auto connection = std::make_unique<OdbcConnection>();
    try {
        connection->connect(login.text(), login.connectTimeout(), login.secrets());
    } catch (const Error &error) {
        // The driver manager's own text is English only, so it would not help every user.
        if (isFromManager(error))
            login.checkDriver();
        if (error.SQLState() != "IM002"_L1)
            throw;
        QStringList names;
        for (const OdbcDataSource &source : odbcDataSources())
            names += source.name;
        throw Error(dbErrFailed,
                    Texts::noOdbcSource().arg(login.dataSource(), names.isEmpty()
                                                                      ? Texts::noneInstalled()
                                                                      : names.join(Texts::betweenNames())),
                    error.Source(), error.SQLState(), error.NativeError());
    }
    return connection;
}

// Reads from the statement's current row.
QString textAt(const OdbcHandle &statement, int column)
{
    OdbcLongValue value;
    SQLLEN length = 0;
    statement.check(value.read(statement, column, OdbcTypes::Form::Text, length));
    return QString::fromUtf16(reinterpret_cast<const char16_t *>(value.data()),
                              std::max<SQLLEN>(length, 0) / qsizetype{sizeof(char16_t)});
}

} // namespace

OdbcPool::OdbcPool(OdbcLogin login) : m_login(std::move(login)) {}

OdbcPool::~OdbcPool() = default;

std::shared_ptr<OdbcPool> OdbcPool::open(OdbcLogin login)
{
    login.addDefaults(login.likelyEngine());
    const QString key = login.text() + QString::number(login.connectTimeout());
    std::shared_ptr<OdbcPool> pool;
    {
        const QMutexLocker lock(&registry().mutex);
        pool = registry().pools.value(key).lock();
    }
    if (pool) {
        pool->prepareIdle();
        return pool;
    }
    pool.reset(new OdbcPool(std::move(login)));
    pool->connectFirst();
    if (pool->m_isShared) {
        const QMutexLocker lock(&registry().mutex);
        registry().pools.removeIf([](const auto &known) { return known.value().expired(); });
        registry().pools.insert(key, pool);
    }
    return pool;
}

void OdbcPool::connectFirst()
{
    auto connection = connectTo(m_login);
    m_engine = OdbcEngine::of(*connection);
    // A driver can have any name, so the engine may be known only now.
    if (m_login.addDefaults(m_engine.kind)) {
        connection.reset();
        connection = connectTo(m_login);
    }
    if (m_engine.usesPortions)
        m_engine.portion = m_login.portion();
    m_isShared = m_engine.isServer();
    connection->setIdle();
    m_idle.push_back(std::move(connection));
    if (m_engine.dialect == SqlDialect::MySql)
        learnModes();
}

// The server, the account or the connection string can set the SQL mode and the character set of a session
// without the driver's knowledge. Statements are written and checked by the mode. The driver sends UTF-8; a
// server that decodes it as anything else reads other characters, possibly quotes.
void OdbcPool::learnModes()
{
    const auto connection = acquire(std::make_shared<std::atomic<bool>>(false));
    QStringList modes;
    {
        const OdbcHandle statement(connection);
        statement.execute(u"SELECT @@sql_mode, @@character_set_client"_s);
        statement.fetch();
        modes = textAt(statement, 0).split(u',');
        if (textAt(statement, 1) != "utf8mb4"_L1)
            m_newSession = u"SET character_set_client = utf8mb4, character_set_results = utf8mb4, "
                           "character_set_connection = utf8mb4"_s; // the driver refuses SET NAMES
    }
    setModes(connection);
    m_engine.quoting = {!modes.contains(u"NO_BACKSLASH_ESCAPES"_s), modes.contains(u"ANSI_QUOTES"_s),
                        modes.contains(u"MSSQL"_s)};
}

void OdbcPool::setModes(const std::shared_ptr<OdbcConnection> &connection) const
{
    if (m_newSession.isEmpty())
        return;
    try {
        OdbcHandle(connection).execute(m_newSession);
    } catch (const Error &) {
        connection->setUnfit();
        throw;
    }
}

void OdbcPool::prepareIdle()
{
    acquire(std::make_shared<std::atomic<bool>>(false)); // idle again at once
}

std::unique_ptr<OdbcConnection> OdbcPool::acquireIdle()
{
    // Sessions that are not reused are destroyed after the lock is released.
    std::vector<std::unique_ptr<OdbcConnection>> ended;
    const QMutexLocker lock(&m_mutex);
    while (!m_idle.empty()) {
        auto connection = std::move(m_idle.back());
        m_idle.pop_back();
        const bool isFit =
            !m_isShared || (connection->idleTime() < longestIdle &&
                            !(m_engine.reportsLossAtOnce && connection->isDead().value_or(false)));
        if (isFit)
            return connection;
        ended.push_back(std::move(connection));
    }
    return nullptr;
}

std::shared_ptr<OdbcConnection> OdbcPool::acquire(const std::shared_ptr<std::atomic<bool>> &isLost)
{
    if (std::unique_ptr<OdbcConnection> connection = acquireIdle())
        return lend(std::move(connection), isLost);
    return lendNew(isLost);
}

std::shared_ptr<OdbcConnection> OdbcPool::connectApart()
{
    auto connection = lendNew(std::make_shared<std::atomic<bool>>(false));
    connection->setUnfit();
    return connection;
}

std::shared_ptr<OdbcConnection> OdbcPool::lendNew(const std::shared_ptr<std::atomic<bool>> &isLost)
{
    auto connection = lend(connectTo(m_login), isLost);
    setModes(connection);
    return connection;
}

std::shared_ptr<OdbcConnection> OdbcPool::lend(std::unique_ptr<OdbcConnection> connection,
                                               const std::shared_ptr<std::atomic<bool>> &isLost)
{
    if (m_engine.cancelTakesRows)
        connection->makeCanceller();
    return {connection.release(), [pool = shared_from_this(), isLost](OdbcConnection *used) {
                std::unique_ptr<OdbcConnection> owned(used);
                if (owned->isLost() && !owned->isUntried())
                    *isLost = true;
                pool->returnConnection(std::move(owned));
            }};
}

void OdbcPool::returnConnection(std::unique_ptr<OdbcConnection> connection)
{
    if (m_isShared && !connection->isFit())
        return;
    if (!m_isShared && connection->isLost())
        return;
    connection->setIdle();
    const QMutexLocker lock(&m_mutex);
    if (m_idle.size() < mostIdle)
        m_idle.push_back(std::move(connection));
}

void OdbcPool::endKeptReading()
{
    if (auto connection = acquireIdle())
        OdbcReading::endKept(lend(std::move(connection), std::make_shared<std::atomic<bool>>(false)),
                             m_engine);
}

void OdbcPool::dropIdle()
{
    std::vector<std::unique_ptr<OdbcConnection>> ended;
    const QMutexLocker lock(&m_mutex);
    ended.swap(m_idle);
}

} // namespace ADODB
