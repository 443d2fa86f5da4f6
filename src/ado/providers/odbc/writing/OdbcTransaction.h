#pragma once

#include <QtCore/QString>

#include <memory>

namespace ADODB {

class OdbcConnection;

// All that is done on a connection while it lives; undone unless it is committed.
class OdbcTransaction
{
public:
    // Runs the statement `first`, if there is one.
    OdbcTransaction(std::shared_ptr<OdbcConnection> connection, const QString &first);
    ~OdbcTransaction();
    Q_DISABLE_COPY_MOVE(OdbcTransaction)

    // Throws what the server says when it refuses, and has then undone everything; dbErrInDoubt when there is
    // no such answer.
    void commit();

private:
    explicit OdbcTransaction(std::shared_ptr<OdbcConnection> connection);

    std::shared_ptr<OdbcConnection> m_connection;
};

} // namespace ADODB
