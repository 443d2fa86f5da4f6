#include "DroppingProxy.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

namespace AdoTest {

namespace {

sockaddr_in loopback(int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

// True when there is something to read, or the end.
bool waits(int socket)
{
    pollfd wanted{socket, POLLIN, 0};
    return poll(&wanted, 1, 20) > 0;
}

QByteArray receive(int socket)
{
    std::array<char, 65536> bytes{};
    const ssize_t size = recv(socket, bytes.data(), bytes.size(), 0);
    return size > 0 ? QByteArray(bytes.data(), size) : QByteArray();
}

bool sendAll(int socket, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t sent = send(socket, bytes.data(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
        if (sent <= 0)
            return false;
        bytes = bytes.sliced(sent);
    }
    return true;
}

} // namespace

DroppingProxy::DroppingProxy(int serverPort)
    : m_serverPort(serverPort), m_listener(socket(AF_INET, SOCK_STREAM, 0))
{
    sockaddr_in address = loopback(0);
    auto *const generic = reinterpret_cast<sockaddr *>(&address);
    socklen_t size = sizeof address;
    if (bind(m_listener, generic, size) == 0 && listen(m_listener, 5) == 0 &&
        getsockname(m_listener, generic, &size) == 0)
        m_port = ntohs(address.sin_port);
    m_thread = std::jthread([this](const std::stop_token &stop) { run(stop); });
}

DroppingProxy::~DroppingProxy()
{
    m_thread.request_stop();
    m_thread.join();
    close(m_listener);
}

void DroppingProxy::dropAtCommit(When when)
{
    m_when = when;
    m_armed = true;
}

void DroppingProxy::run(const std::stop_token &stop)
{
    while (!stop.stop_requested()) {
        if (!waits(m_listener))
            continue;
        const int client = accept(m_listener, nullptr, nullptr);
        const int server = socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address = loopback(m_serverPort);
        if (connect(server, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0)
            serve(client, server, stop);
        close(client);
        close(server);
    }
}

void DroppingProxy::serve(int client, int server, const std::stop_token &stop)
{
    bool dropAfterAnswer = false;
    while (!stop.stop_requested()) {
        std::array<pollfd, 2> wanted{pollfd{client, POLLIN, 0}, pollfd{server, POLLIN, 0}};
        if (poll(wanted.data(), wanted.size(), 20) <= 0)
            continue;
        if (wanted[0].revents != 0) {
            const QByteArray said = receive(client);
            if (said.isEmpty())
                return;
            const QByteArray words = said.toUpper();
            if (m_armed && words.contains("COMMIT") && !words.contains("AUTOCOMMIT")) {
                m_armed = false;
                m_dropped = true;
                if (m_when == BeforeTheServerHears)
                    return;
                dropAfterAnswer = true;
            }
            if (!sendAll(server, said))
                return;
        }
        if (wanted[1].revents != 0) {
            const QByteArray answer = receive(server);
            if (answer.isEmpty() || dropAfterAnswer || !sendAll(client, answer))
                return;
        }
    }
}

} // namespace AdoTest
