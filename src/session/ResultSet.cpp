#include "session/ResultSet.h"

#include "ado/Adodc.h"
#include "ado/Connection.h"
#include "ado/ConnectionFactory.h"
#include "ado/Recordset.h"
#include "ado/connection/EngineOf.h"
#include "ado/connection/Waiting.h"
#include "query/SharedValues.h"

#include <QtCore/QCoreApplication>

#include <utility>

namespace KOVAVSFDataGridLib {

namespace {

// A pointer that closes the recordset as soon as its last owner releases it. The object itself is destroyed
// when the event loop runs again, because a host's handler may release a recordset while that is reporting a
// move.
std::shared_ptr<ADODB::Recordset> closedByLastHolder(std::shared_ptr<ADODB::Recordset> recordset)
{
    ADODB::Recordset *const held = recordset.get();
    return {held, [recordset = std::move(recordset)](ADODB::Recordset *) mutable {
                if (recordset->State() == ADODB::adStateOpen)
                    recordset->Close();
                QMetaObject::invokeMethod(
                    QCoreApplication::instance(), [last = std::move(recordset)] {}, Qt::QueuedConnection);
            }};
}

} // namespace

ResultSet::ResultSet(ADODB::Adodc *adodc) : m_adodc(adodc) {}

ResultSet::~ResultSet() = default;

ResultSet::Opened ResultSet::open(const QString &connectionString, const QString &statement, qint32 dbType,
                                  const Progress &progress)
{
    auto connection = ADODB::ConnectionFactory::connectionFor(dbType);
    auto recordset = ADODB::ConnectionFactory::recordsetFor(dbType);

    recordset->PutCursorLocation(ADODB::adUseClient);
    connection->PutConnectionString(connectionString);
    const auto report = [&progress, &opening = *recordset](qint64 rowsRead) {
        return !progress || progress(rowsRead, opening);
    };
    const ADODB::Waiting waiting([&] { return report(0); });
    connection->Open();
    recordset->SetProgress(report);
    recordset->Open(statement, connection, ADODB::adOpenKeyset, ADODB::adLockOptimistic, ADODB::adCmdText);
    recordset->SetProgress({});
    recordset->PutPageSize(SharedValues::recordCap);
    return {connectionString, std::move(connection), closedByLastHolder(std::move(recordset))};
}

void ResultSet::replaceBy(Opened opened)
{
    close();
    borrow(std::move(opened));
    if (m_adodc)
        m_adodc->PutRecordset(m_recordset);
}

void ResultSet::borrow(Opened opened)
{
    m_connectionString = std::move(opened.connectionString);
    m_connection = std::move(opened.connection);
    m_recordset = std::move(opened.recordset);
    m_engine = engineOf(m_connection);
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
    borrow({});
    if (m_adodc)
        m_adodc->PutRecordset(nullptr);
}

bool ResultSet::hasRecords() const
{
    return isOpen() && m_recordset->RecordCount() != 0;
}

bool ResultSet::isOpen() const
{
    return m_recordset && m_recordset->State() == ADODB::adStateOpen;
}

} // namespace KOVAVSFDataGridLib
