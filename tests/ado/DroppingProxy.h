#pragma once

#include "servers/LoopbackProxy.h"

#include <QtCore/QByteArray>

#include <atomic>

namespace AdoTest {

// A proxy between clients and a server on the loopback interface, which drops a connection when its client
// sends a certain word. Unix only.
class DroppingProxy
{
public:
    enum When { BeforeTheServerHears, AfterTheServerAnswered };

    explicit DroppingProxy(int serverPort);
    Q_DISABLE_COPY_MOVE(DroppingProxy)

    int port() const { return m_proxy.port(); }
    // From now on it waits for these words, in upper case.
    void dropAt(const QByteArray &words, When when);
    void dropAtCommit(When when) { dropAt("COMMIT", when); }
    bool hasDropped() const { return m_dropped; }
    // Whether it also refuses new connections after it has next dropped one.
    void setStaysAway(bool stays);

private:
    bool passes(KovaTest::LoopbackProxy::From from, const QByteArray &said);

    QByteArray m_words; // read only while it is armed
    std::atomic<bool> m_armed = false;
    std::atomic<bool> m_staysAway = false;
    std::atomic<When> m_when = BeforeTheServerHears;
    std::atomic<bool> m_dropped = false;
    std::atomic<bool> m_dropsAnswer = false;
    KovaTest::LoopbackProxy m_proxy;
};

} // namespace AdoTest
