#include "servers/LoopbackProxy.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QString>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <deque>
#include <list>
#include <vector>

using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

using Clock = std::chrono::steady_clock;

const QRegularExpression &portPattern()
{
    static const QRegularExpression pattern(u"Port=(\\d+)"_s);
    return pattern;
}

sockaddr_in loopback(int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

void answerAtOnce(int socket)
{
    const int on = 1;
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
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

// A client and its way to the server. Index 0 is the client.
struct Link
{
    struct Piece
    {
        Clock::time_point due;
        QByteArray bytes;
    };

    explicit Link(int client, int server) : sockets{client, server} {}
    ~Link()
    {
        for (const int socket : sockets)
            close(socket);
    }
    Q_DISABLE_COPY_MOVE(Link)

    // Forwards what has been delayed long enough; false if nobody receives it.
    bool deliver()
    {
        for (std::size_t to : {0U, 1U}) {
            auto &pieces = underWay[to];
            for (; !pieces.empty() && pieces.front().due <= Clock::now(); pieces.pop_front()) {
                if (!sendAll(sockets[to], pieces.front().bytes))
                    return false;
            }
        }
        return true;
    }

    std::array<int, 2> sockets;
    std::array<std::deque<Piece>, 2> underWay; // by receiver
    bool isAsked = false;                      // the latest to speak was the client
};

} // namespace

LoopbackProxy::LoopbackProxy(int serverPort, Filter filter)
    : m_serverPort(serverPort), m_filter(std::move(filter)), m_listener(socket(AF_INET, SOCK_STREAM, 0))
{
    sockaddr_in address = loopback(0);
    auto *const generic = reinterpret_cast<sockaddr *>(&address);
    socklen_t size = sizeof address;
    if (bind(m_listener, generic, size) == 0 && listen(m_listener, 20) == 0 &&
        getsockname(m_listener, generic, &size) == 0)
        m_port = ntohs(address.sin_port);
    m_thread = std::jthread([this](const std::stop_token &stop) { run(stop); });
}

LoopbackProxy::~LoopbackProxy()
{
    m_thread.request_stop();
    m_thread.join();
    close(m_listener);
}

QString LoopbackProxy::in(const QString &connectionString) const
{
    return QString(connectionString).replace(portPattern(), u"Port=%1"_s.arg(m_port));
}

int LoopbackProxy::portOf(const QString &connectionString)
{
    return portPattern().match(connectionString).captured(1).toInt();
}

void LoopbackProxy::forget()
{
    m_trips = 0;
    m_connections = 0;
}

void LoopbackProxy::run(const std::stop_token &stop)
{
    std::list<Link> links;
    while (!stop.stop_requested()) {
        std::vector<pollfd> wanted{{m_listener, POLLIN, 0}};
        bool isDelayed = false;
        for (const Link &link : links) {
            for (const int socket : link.sockets)
                wanted.push_back({socket, POLLIN, 0});
            isDelayed |= !link.underWay[0].empty() || !link.underWay[1].empty();
        }
        poll(wanted.data(), wanted.size(), isDelayed ? 1 : 20);
        std::size_t place = 1;
        for (auto link = links.begin(); link != links.end();) {
            bool isAlive = link->deliver();
            for (std::size_t from = 0; from < 2 && isAlive; ++from) {
                if (wanted[place + from].revents == 0)
                    continue;
                const QByteArray said = receive(link->sockets[from]);
                isAlive =
                    !said.isEmpty() && (!m_filter || m_filter(from == 0 ? From::Client : From::Server, said));
                m_trips += from == 1 && link->isAsked ? 1 : 0;
                link->isAsked = from == 0;
                link->underWay[1 - from].push_back({Clock::now() + m_delay.load() / 2, said});
            }
            isAlive = isAlive && link->deliver();
            place += 2;
            link = isAlive ? std::next(link) : links.erase(link);
        }
        if (wanted[0].revents == 0)
            continue;
        const int client = accept(m_listener, nullptr, nullptr);
        const int server = socket(AF_INET, SOCK_STREAM, 0);
        answerAtOnce(client);
        answerAtOnce(server);
        sockaddr_in address = loopback(m_serverPort);
        links.emplace_back(client, server);
        if (connect(server, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0)
            ++m_connections;
        else
            links.pop_back();
    }
}

} // namespace KovaTest
