#pragma once

#include <QtCore/QString>

#include <memory>

namespace ADODB {

class OdbcConnection;
class OdbcSession;

// A command of a session that changes data; undone unless it is committed.
class OdbcTransaction
{
public:
    // Runs the statement `first`, if there is one.
    OdbcTransaction(OdbcSession &session, const QString &first);
    ~OdbcTransaction();
    Q_DISABLE_COPY_MOVE(OdbcTransaction)

    // Throws what the server says when it refuses, and has then undone everything; dbErrInDoubt when there is
    // no such answer.
    void commit();

private:
    std::shared_ptr<OdbcConnection> m_connection;
    bool m_isCommitted = false;
};

} // namespace ADODB
