#include "ado/providers/odbc/reading/OdbcReading.h"

#include "ado/Error.h"
#include "ado/providers/odbc/OdbcEngine.h"
#include "ado/providers/odbc/OdbcHandle.h"

namespace ADODB {

OdbcReading::OdbcReading(std::shared_ptr<OdbcConnection> connection, const OdbcEngine &engine)
    : m_connection(std::move(connection)), m_engine(engine)
{
    if (m_connection->readings() == 0 && !m_engine.beginReading.isEmpty())
        OdbcHandle(m_connection).execute(m_engine.beginReading);
    m_connection->setReadings(m_connection->readings() + 1);
}

OdbcReading::~OdbcReading()
{
    m_connection->setReadings(m_connection->readings() - 1);
    if (m_connection->readings() > 0 || m_engine.endReading.isEmpty() || m_connection->isLost())
        return;
    try {
        OdbcHandle(m_connection).execute(m_engine.endReading);
    } catch (const Error &) {
        // Only a connection that is gone fails here, and the next statement tells that.
        m_connection->setLost();
    }
}

} // namespace ADODB
