#pragma once

#include <QtCore/QtGlobal>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace AdoTest {

// Accepts connections on the loopback interface but never sends anything, like a hanging server. Unix only.
class SilentServer
{
public:
    SilentServer()
    {
        m_address.sin_family = AF_INET;
        m_address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        auto *address = reinterpret_cast<sockaddr *>(&m_address);
        socklen_t size = sizeof m_address;
        if (bind(m_socket, address, size) != 0 || listen(m_socket, 5) != 0 ||
            getsockname(m_socket, address, &size) != 0)
            m_address.sin_port = 0;
    }
    ~SilentServer() { close(m_socket); }
    Q_DISABLE_COPY_MOVE(SilentServer)

    // 0 if it could not be opened.
    int port() const { return ntohs(m_address.sin_port); }

private:
    int m_socket = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in m_address{};
};

} // namespace AdoTest
