#pragma once

#include <QtCore/QString>

#include <memory>

namespace ADODB {

class OdbcConnection;
class OdbcSession;

// A command that changes data. It is rolled back unless it is committed.
class OdbcTransaction
{
public:
    // Runs the statement `first`, unless it is empty.
    OdbcTransaction(OdbcSession &session, const QString &first);
    ~OdbcTransaction();
    Q_DISABLE_COPY_MOVE(OdbcTransaction)

    // Throws the server's error if the server refused and rolled back; throws dbErrInDoubt if there is no
    // such answer.
    void commit();

private:
    std::shared_ptr<OdbcConnection> m_connection;
    bool m_isCommitted = false;
};

} // namespace ADODB
