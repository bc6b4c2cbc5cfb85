// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/editorconnection.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace {

constexpr int mostMilliseconds = 100;

/// Whether a connection that is being made comes about in time.
bool isMade(int socket)
{
    pollfd waiting{socket, POLLOUT, 0};
    int error = 0;
    socklen_t size = sizeof(error);
    return poll(&waiting, 1, mostMilliseconds) == 1 &&
           getsockopt(socket, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
}

} // namespace

EditorConnection::EditorConnection(quint16 port)
    : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const auto *generic = reinterpret_cast<const sockaddr *>(&address);
    if (isOpen() && connect(m_socket, generic, sizeof(address)) != 0 &&
        (errno != EINPROGRESS || !isMade(m_socket))) {
        close();
    }
}

EditorConnection::~EditorConnection()
{
    close();
}

bool EditorConnection::send(QByteArrayView bytes)
{
    // Without MSG_NOSIGNAL a listener that is gone would end this program.
    return isOpen() &&
           ::send(m_socket, bytes.data(), std::size_t(bytes.size()), MSG_NOSIGNAL) == bytes.size();
}

void EditorConnection::close()
{
    if (isOpen()) {
        ::close(std::exchange(m_socket, -1));
    }
}
