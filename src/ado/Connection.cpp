#include "ado/Connection.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/connection/Waiting.h"
#include "ado/providers/Provider.h"

#include <new>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

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

} // namespace ADODB
