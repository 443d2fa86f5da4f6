#include "session/ConnectionFieldReader.h"

#include "ado/Connection.h"
#include "ado/ConnectionFactory.h"
#include "ado/Error.h"
#include "ado/Fields.h"
#include "ado/connection/EngineOf.h"
#include "query/SharedValues.h"
#include "query/derivation/SqlText.h"
#include "session/ResultSet.h"

#include <exception>

namespace KOVAVSFDataGridLib {

namespace {

std::vector<SourceField> describe(const ADODB::Connection &connection, const QString &statement)
{
    std::vector<SourceField> fields;
    for (const ADODB::FieldInfo &info : connection.Describe(statement))
        fields.push_back({info.name, info.type, info.baseTable});
    return fields;
}

} // namespace

ConnectionFieldReader::ConnectionFieldReader(const ResultSet &result) : m_result(result) {}

ConnectionFieldReader::~ConnectionFieldReader() = default;

ADODB::Connection &ConnectionFieldReader::connect(const QString &connectionString)
{
    if (m_result.isConnectedTo(connectionString)) {
        closeOwn();
        return *m_result.connection();
    }
    if (!m_own || m_own->State() != ADODB::adStateOpen || m_ownText != connectionString) {
        auto connection = ADODB::ConnectionFactory::connectionFor(SharedValues::instance().dbType);
        connection->PutConnectionString(connectionString);
        connection->Open();
        m_own = std::move(connection);
        m_ownText = connectionString;
    }
    return *m_own;
}

bool ConnectionFieldReader::Open(const QString &connectionString)
{
    try {
        connect(connectionString);
        return true;
    } catch (const std::exception &error) { // a connection factory of the host's may throw anything
        m_failure = QString::fromUtf8(error.what());
        return false;
    }
}

std::optional<std::vector<SourceField>> ConnectionFieldReader::Read(const QString &connectionString,
                                                                    const QString &statement)
{
    m_failure.clear();
    const std::pair key(connectionString, statement);
    if (const auto known = m_known.constFind(key); known != m_known.constEnd())
        return *known;
    try {
        const ADODB::Connection &connection = connect(connectionString);
        std::vector<SourceField> fields;
        try {
            fields = describe(connection, GetNoRowSQL(statement));
        } catch (const ADODB::Error &) {
            // Grouped or united statements, say, have no such form; the statement itself is only prepared.
            // It goes over another connection where this one turned out to be lost.
            fields = describe(connect(connectionString), statement);
        }
        m_known.insert(key, fields);
        return fields;
    } catch (const std::exception &error) {
        m_failure = QString::fromUtf8(error.what());
        return {};
    }
}

void ConnectionFieldReader::remember(const QString &connectionString, const QString &statement,
                                     const ADODB::Fields &fields)
{
    std::vector<SourceField> known;
    for (int i = 0; i < fields.Count(); ++i) {
        const ADODB::Field &field = fields.Item(i);
        known.push_back({field.Name(), field.Type(), field.BaseTableName()});
    }
    m_known.insert({connectionString, statement}, known);
}

Engine ConnectionFieldReader::engineOf(const QString &connectionString)
{
    if (m_result.isConnectedTo(connectionString))
        return m_result.engine();
    return m_ownText == connectionString ? KOVAVSFDataGridLib::engineOf(m_own) : Engine::Other;
}

void ConnectionFieldReader::forget()
{
    closeOwn();
    m_known.clear();
    m_failure.clear();
}

void ConnectionFieldReader::closeOwn()
{
    m_own.reset();
    m_ownText.clear();
}

} // namespace KOVAVSFDataGridLib
