#pragma once

#include <QtCore/QByteArray>

#include <atomic>
#include <thread>

namespace AdoTest {

// Stands between one client and a server on the loopback interface, and goes away when the client sends a
// word that it waits for. Unix only.
class DroppingProxy
{
public:
    enum When { BeforeTheServerHears, AfterTheServerAnswered };

    explicit DroppingProxy(int serverPort);
    ~DroppingProxy();
    Q_DISABLE_COPY_MOVE(DroppingProxy)

    int port() const { return m_port; }
    // From now on it waits for COMMIT.
    void dropAtCommit(When when);
    bool hasDropped() const { return m_dropped; }

private:
    void run(const std::stop_token &stop);
    void serve(int client, int server, const std::stop_token &stop);

    int m_serverPort;
    int m_listener;
    int m_port = 0;
    std::atomic<bool> m_armed = false;
    std::atomic<When> m_when = BeforeTheServerHears;
    std::atomic<bool> m_dropped = false;
    std::jthread m_thread;
};

} // namespace AdoTest
