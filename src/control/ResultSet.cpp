#include "control/ResultSet.h"

#include "ado/Adodc.h"
#include "ado/Connection.h"
#include "ado/ConnectionFactory.h"
#include "ado/Recordset.h"
#include "filter/EngineOf.h"
#include "query/AllDBType.h"
#include "query/SharedValues.h"

namespace KOVAVSFDataGridLib {

ResultSet::ResultSet(ADODB::Adodc &adodc) : m_adodc(adodc) {}

ResultSet::~ResultSet() = default;

ResultSet::Opened ResultSet::open(const QString &connectionString, const QString &statement, qint32 dbType,
                                  const std::function<bool(qint64)> &progress)
{
    auto connection = newConnection(dbType);
    auto recordset = dbType == dbAccess ? std::make_shared<ADODB::Recordset>()
                                        : ADODB::ConnectionFactory::instance().newRecordset(dbType);

    recordset->PutCursorLocation(ADODB::adUseClient);
    connection->PutConnectionString(connectionString);
    connection->Open();
    recordset->SetProgress(progress);
    recordset->Open(statement, connection, ADODB::adOpenKeyset, ADODB::adLockOptimistic, ADODB::adCmdText);
    recordset->SetProgress({});
    recordset->PutPageSize(SharedValues::RecordCap);
    return {connectionString, std::move(connection), std::move(recordset)};
}

void ResultSet::replaceBy(Opened opened)
{
    close();
    m_connectionString = std::move(opened.connectionString);
    m_connection = std::move(opened.connection);
    m_recordset = std::move(opened.recordset);
    m_engine = EngineOf(m_connection);
    m_adodc.PutRecordset(m_recordset);
}

std::shared_ptr<ADODB::Connection> ResultSet::newConnection(qint32 dbType)
{
    return dbType == dbAccess ? std::make_shared<ADODB::Connection>()
                              : ADODB::ConnectionFactory::instance().newConnection(dbType);
}

bool ResultSet::isConnectedTo(const QString &connectionString) const
{
    return m_connection && m_connection->State() == ADODB::adStateOpen &&
           m_connectionString == connectionString;
}

void ResultSet::close()
{
    if (isOpen())
        m_recordset->Close();
    if (m_connection && m_connection->State() != ADODB::adStateClosed)
        m_connection->Close();
}

void ResultSet::release()
{
    close();
    m_connectionString.clear();
    m_connection.reset();
    m_recordset.reset();
    m_adodc.PutRecordset(nullptr);
}

bool ResultSet::isOpen() const
{
    return m_recordset && m_recordset->State() == ADODB::adStateOpen;
}

} // namespace KOVAVSFDataGridLib
