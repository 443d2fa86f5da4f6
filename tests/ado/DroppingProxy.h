#pragma once

#include "servers/LoopbackProxy.h"

#include <QtCore/QByteArray>

#include <atomic>

namespace AdoTest {

// Stands between one client and a server on the loopback interface, and goes away when the client sends a
// word that it waits for. Unix only.
class DroppingProxy
{
public:
    enum When { BeforeTheServerHears, AfterTheServerAnswered };

    explicit DroppingProxy(int serverPort);
    Q_DISABLE_COPY_MOVE(DroppingProxy)

    int port() const { return m_proxy.port(); }
    // From now on it waits for COMMIT.
    void dropAtCommit(When when);
    bool hasDropped() const { return m_dropped; }

private:
    bool passes(KovaTest::LoopbackProxy::From from, const QByteArray &said);

    std::atomic<bool> m_armed = false;
    std::atomic<When> m_when = BeforeTheServerHears;
    std::atomic<bool> m_dropped = false;
    std::atomic<bool> m_dropsAnswer = false;
    KovaTest::LoopbackProxy m_proxy;
};

} // namespace AdoTest
