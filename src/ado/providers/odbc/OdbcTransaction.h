#pragma once

#include <QtCore/QtGlobal>

#include <memory>

namespace ADODB {

class OdbcConnection;

// All that is done on a connection while it lives; undone unless it is committed.
class OdbcTransaction
{
public:
    explicit OdbcTransaction(std::shared_ptr<OdbcConnection> connection);
    ~OdbcTransaction();
    Q_DISABLE_COPY_MOVE(OdbcTransaction)

    void commit();

private:
    std::shared_ptr<OdbcConnection> m_connection;
};

} // namespace ADODB
