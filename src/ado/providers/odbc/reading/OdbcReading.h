#pragma once

#include <QtCore/QtGlobal>

#include <memory>

namespace ADODB {

class OdbcConnection;
struct OdbcEngine;

// While it exists, nothing that runs on the connection can change data, as far as the engine can prevent it.
// Can be nested.
class OdbcReading
{
public:
    // Whether the server fails after a moment instead of waiting for somebody else's lock. Only for engines
    // whose waits can't all be cancelled.
    enum class Locks { Wait, FailSoon };
    OdbcReading(std::shared_ptr<OdbcConnection> connection, const OdbcEngine &engine,
                Locks locks = Locks::Wait);
    ~OdbcReading();
    Q_DISABLE_COPY_MOVE(OdbcReading)

    // Keeps the read transaction open after this object's end. The next OdbcReading with FailSoon then
    // continues it without a round trip. All other users of the connection must call endKept() first.
    void keep() { m_isKept = true; }
    static void endKept(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine);

    // After an error, an engine may reject all further statements in the transaction. This starts a new one
    // that waits for locks. Returns false if another OdbcReading uses the connection, as that would end too.
    static bool renew(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine);

private:
    std::shared_ptr<OdbcConnection> m_connection;
    const OdbcEngine &m_engine;
    bool m_isKept = false;
};

} // namespace ADODB
