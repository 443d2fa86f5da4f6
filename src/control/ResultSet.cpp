#include "control/ResultSet.h"

#include "ado/Adodc.h"
#include "ado/Connection.h"
#include "ado/ConnectionFactory.h"
#include "ado/Recordset.h"
#include "control/SharedValues.h"

namespace KOVAVSFDataGridLib {

namespace {

constexpr qint32 Access = 1;

} // namespace

ResultSet::ResultSet(ADODB::Adodc &adodc) : m_adodc(adodc) {}

ResultSet::~ResultSet() = default;

void ResultSet::open(const QString &connectionString, const QString &statement, qint32 dbType)
{
    auto &factory = ADODB::ConnectionFactory::instance();
    auto connection =
        dbType == Access ? std::make_shared<ADODB::Connection>() : factory.newConnection(dbType);
    auto recordset = dbType == Access ? std::make_shared<ADODB::Recordset>() : factory.newRecordset(dbType);

    recordset->PutCursorLocation(ADODB::adUseClient);
    connection->PutConnectionString(connectionString);
    connection->Open();
    recordset->Open(statement, connection, ADODB::adOpenKeyset, ADODB::adLockOptimistic, ADODB::adCmdText);
    recordset->PutPageSize(SharedValues::RecordCap);

    close();
    m_connection = std::move(connection);
    m_recordset = std::move(recordset);
    m_adodc.PutRecordset(m_recordset);
}

void ResultSet::close()
{
    if (isOpen())
        m_recordset->Close();
    if (m_connection && m_connection->State() != ADODB::adStateClosed)
        m_connection->Close();
}

bool ResultSet::isOpen() const
{
    return m_recordset && m_recordset->State() == ADODB::adStateOpen;
}

} // namespace KOVAVSFDataGridLib
