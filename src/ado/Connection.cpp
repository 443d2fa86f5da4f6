#include "ado/Connection.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/connection/Waiting.h"
#include "ado/providers/Provider.h"
#include "ado/rows/Snapshot.h"
#include "sql/Names.h"
#include "sql/Tables.h"

#include <new>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using KOVAVSFDataGridLib::Engine;
using KOVAVSFDataGridLib::engineNamed;

namespace {

// The keyword has synonyms; an argument must replace them all.
void replaceKeyword(ADODB::ConnectionString &text, const QString &keyword, const QString &synonym,
                    const QString &value)
{
    if (value.isEmpty())
        return;
    text.remove(synonym);
    text.set(keyword, value);
}

} // namespace

Connection::Connection() = default;

// The session stays open while a recordset needs it for writing, as in ADO.
Connection::~Connection() = default;

QString Connection::ConnectionString() const
{
    return State() == adStateOpen ? ADODB::ConnectionString(m_text).textWithoutPassword() : m_text;
}

void Connection::PutConnectionString(const QString &text)
{
    if (State() == adStateOpen)
        throw Error(adErrObjectOpen, Texts::connectionOpen());
    m_text = text;
}

void Connection::Open(const QString &connectionString, const QString &user, const QString &password, qint32)
{
    if (State() == adStateOpen)
        throw Error(adErrObjectOpen, Texts::connectionOpen());
    const QString text = connectionString.isEmpty() ? m_text : connectionString;
    try {
        ADODB::ConnectionString parsed(text);
        replaceKeyword(parsed, u"User ID"_s, u"UID"_s, user);
        replaceKeyword(parsed, u"Password"_s, u"PWD"_s, password);
        m_session = openSession(m_middleTier.rewritten(parsed));
    } catch (const std::bad_alloc &) {
        throw Error(dbErrFailed, Texts::outOfMemory());
    }
    m_text = text;
}

void Connection::Close()
{
    session()->close();
    m_session.reset();
}

ObjectStateEnum Connection::State() const
{
    return m_session && m_session->isOpen() ? adStateOpen : adStateClosed;
}

QString Connection::EngineName() const
{
    return session()->engineName();
}

std::vector<FieldInfo> Connection::Describe(const QString &sql) const
{
    // A copy, because the host may close this connection during the wait.
    const std::shared_ptr<Session> session = this->session();
    Watched watched;
    return session->prepare(sql, Access::ReadOnly, [&] { return watched.shouldContinue(); })->fields();
}

const std::shared_ptr<Session> &Connection::session() const
{
    if (State() == adStateClosed)
        throw Error(adErrObjectClosed, Texts::connectionClosed());
    return m_session;
}

QString Connection::WrittenName(const QString &name) const
{
    KOVAVSFDataGridLib::EngineMode mode(engineNamed(session()->engineName()), session()->quoting());
    if (!mode.isKnown())
        mode.engine = Engine::Standard;
    return writtenName(dialectOf(KOVAVSFDataGridLib::dbAccess, mode), name);
}

std::vector<Connection::Table> Connection::Tables() const
{
    // A copy, because whoever watches the wait can let the host close this connection.
    const std::shared_ptr<Session> session = this->session();
    const Engine engine = engineNamed(session->engineName());
    Watched watched;
    const auto statement = session->prepare(KOVAVSFDataGridLib::statementOfTables(engine), Access::ReadOnly,
                                            [&] { return watched.shouldContinue(); });
    RowStore rows(statement->columns());
    statement->fetch(rows, [&](qint64) { return watched.shouldContinue(); });
    const Snapshot found(statement->fields(), std::move(rows));
    std::vector<Table> tables;
    for (qint64 record = 1; record <= found.records(); ++record) {
        const QString name = found.text(record, 1);
        if (!isTableOfSystem(engine, name))
            tables.push_back({found.text(record, 0), name, found.text(record, 2) == "view"_L1});
    }
    return tables;
}

} // namespace ADODB
