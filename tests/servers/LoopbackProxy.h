#pragma once

#include <QtCore/QByteArray>

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

namespace KovaTest {

// Stands between clients and a server on the loopback interface, counts what they say to each other, and can
// be as slow as a long way. Unix only.
class LoopbackProxy
{
public:
    enum class From { Client, Server };
    // Sees all bytes before they are passed on, in a thread of the proxy's. When it answers false, both ends
    // of that connection go away instead.
    using Filter = std::function<bool(From, const QByteArray &)>;

    explicit LoopbackProxy(int serverPort, Filter filter = {});
    ~LoopbackProxy();
    Q_DISABLE_COPY_MOVE(LoopbackProxy)

    int port() const { return m_port; }
    // `connectionString` with this proxy's port.
    QString in(const QString &connectionString) const;
    // The port that a connection string names.
    static int portOf(const QString &connectionString);

    // How often a client waited for an answer, and how many connections were made, since forget().
    int trips() const { return m_trips; }
    int connections() const { return m_connections; }
    void forget();
    // How long an answer takes on the way there and back.
    void setDelay(std::chrono::milliseconds delay) { m_delay = delay; }

private:
    void run(const std::stop_token &stop);

    const int m_serverPort;
    const Filter m_filter;
    const int m_listener;
    int m_port = 0;
    std::atomic<int> m_trips = 0;
    std::atomic<int> m_connections = 0;
    std::atomic<std::chrono::milliseconds> m_delay{};
    std::jthread m_thread;
};

} // namespace KovaTest
