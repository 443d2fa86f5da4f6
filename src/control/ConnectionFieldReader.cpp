#include "control/ConnectionFieldReader.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "control/ResultSet.h"
#include "query/SharedValues.h"
#include "query/SqlText.h"

namespace KOVAVSFDataGridLib {

namespace {

std::vector<SourceField> describe(const ADODB::Connection &connection, const QString &statement)
{
    std::vector<SourceField> fields;
    for (const ADODB::FieldInfo &info : connection.Describe(statement))
        fields.push_back({info.name, info.type});
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
    if (!m_own || m_ownText != connectionString) {
        auto connection = ResultSet::newConnection(SharedValues::instance().dbType);
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
    } catch (const ADODB::Error &) {
        return false;
    }
}

std::optional<std::vector<SourceField>> ConnectionFieldReader::Read(const QString &connectionString,
                                                                    const QString &statement)
{
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
            fields = describe(connection, statement);
        }
        m_known.insert(key, fields);
        return fields;
    } catch (const ADODB::Error &) {
        return {};
    }
}

void ConnectionFieldReader::forget()
{
    closeOwn();
    m_known.clear();
}

void ConnectionFieldReader::closeOwn()
{
    m_own.reset();
    m_ownText.clear();
}

} // namespace KOVAVSFDataGridLib
