#pragma once

#include <QtCore/QtGlobal>

#include <memory>

namespace ADODB {

class OdbcConnection;
struct OdbcEngine;

// For as long as it lives, nothing that runs on a connection can change data, as far as the engine knows how
// to keep it from that. They can be nested.
class OdbcReading
{
public:
    // Whether the server is to fail after a moment, rather than wait, where somebody else's lock is in the
    // way; only engines that can't be stopped in each such wait.
    enum class Locks { Wait, FailSoon };
    OdbcReading(std::shared_ptr<OdbcConnection> connection, const OdbcEngine &engine,
                Locks locks = Locks::Wait);
    ~OdbcReading();
    Q_DISABLE_COPY_MOVE(OdbcReading)

    // Has the connection go on reading only when this ends, for the next OdbcReading with FailSoon, which
    // then needs not ask the server. Everybody else must call endKept() before.
    void keep() { m_isKept = true; }
    static void endKept(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine);

    // Lets a connection on which a statement failed read on, and wait for locks: until then an engine may
    // refuse all others. False when something else reads on it as well, which this would end.
    static bool renew(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine);

private:
    std::shared_ptr<OdbcConnection> m_connection;
    const OdbcEngine &m_engine;
    bool m_isKept = false;
};

} // namespace ADODB
