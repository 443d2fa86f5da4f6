#pragma once

#include <QtCore/QByteArray>

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

namespace KovaTest {

// A proxy between clients and a server on the loopback interface. Counts their round trips, and can simulate
// network latency. Unix only.
class LoopbackProxy
{
public:
    enum class From { Client, Server };
    // Called with all bytes before they are forwarded, in a thread of the proxy. If it returns false, both
    // ends of that connection are closed.
    using Filter = std::function<bool(From, const QByteArray &)>;

    explicit LoopbackProxy(int serverPort, Filter filter = {});
    ~LoopbackProxy();
    Q_DISABLE_COPY_MOVE(LoopbackProxy)

    int port() const { return m_port; }
    // `connectionString` with this proxy's port.
    QString in(const QString &connectionString) const;
    // The port that a connection string names.
    static int portOf(const QString &connectionString);

    // The number of waits for an answer and of connections since forget().
    int trips() const { return m_trips; }
    int connections() const { return m_connections; }
    void forget();
    // The latency of a round trip.
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
