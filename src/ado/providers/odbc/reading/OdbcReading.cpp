#include "ado/providers/odbc/reading/OdbcReading.h"

#include "ado/Error.h"
#include "ado/providers/odbc/OdbcEngine.h"
#include "ado/providers/odbc/OdbcHandle.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

constexpr int soon = 200; // milliseconds

void begin(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
           OdbcReading::Locks locks)
{
    const OdbcHandle statement(connection);
    QString first = engine.beginReading;
    if (locks == OdbcReading::Locks::FailSoon && !engine.explain.isEmpty())
        first += "; "_L1 + engine.limitLocks.arg(soon);
    if (!engine.planForAllRows.isEmpty() && connection->plansForAllRows()) {
        try {
            statement.execute(first + "; "_L1 + engine.planForAllRows);
            return;
        } catch (const Error &) {
            if (connection->isLost())
                throw;
            connection->setPlansForAllRows(false);
        }
        statement.execute(engine.endReading);
    }
    statement.execute(first);
}

void end(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine)
{
    if (engine.endReading.isEmpty() || connection->isLost())
        return;
    try {
        OdbcHandle(connection).execute(engine.endReading);
    } catch (const Error &) {
        // This fails only if the connection is gone, and the next statement reports that.
        connection->setLost();
    }
}

} // namespace

OdbcReading::OdbcReading(std::shared_ptr<OdbcConnection> connection, const OdbcEngine &engine, Locks locks)
    : m_connection(std::move(connection)), m_engine(engine)
{
    if (m_connection->isReadingKept())
        m_connection->setReadingKept(false);
    else if (m_connection->readings() == 0 && !m_engine.beginReading.isEmpty())
        begin(m_connection, m_engine, locks);
    m_connection->setReadings(m_connection->readings() + 1);
}

bool OdbcReading::renew(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine)
{
    if (connection->readings() != 1)
        return false;
    if (!engine.beginReading.isEmpty()) {
        OdbcHandle(connection).execute(engine.endReading);
        begin(connection, engine, Locks::Wait);
    }
    return true;
}

OdbcReading::~OdbcReading()
{
    m_connection->setReadings(m_connection->readings() - 1);
    if (m_connection->readings() > 0)
        return;
    if (m_isKept)
        m_connection->setReadingKept(true);
    else
        end(m_connection, m_engine);
}

void OdbcReading::endKept(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine)
{
    if (!connection->isReadingKept())
        return;
    connection->setReadingKept(false);
    end(connection, engine);
}

} // namespace ADODB
