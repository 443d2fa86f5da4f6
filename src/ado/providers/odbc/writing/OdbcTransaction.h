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

    void commit();

private:
    explicit OdbcTransaction(std::shared_ptr<OdbcConnection> connection);

    std::shared_ptr<OdbcConnection> m_connection;
};

} // namespace ADODB
