#include "shell/instance.h"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace shell {

namespace {

/// True if the process that listens there belongs to this user. Another user's process must not lock this user out.
bool heldByThisUser(const sockaddr_un& address, socklen_t length) {
    const int client = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (client < 0) return false;
    bool same = false;
    if (connect(client, reinterpret_cast<const sockaddr*>(&address), length) == 0) {
        ucred owner{};
        socklen_t size = sizeof owner;
        same = getsockopt(client, SOL_SOCKET, SO_PEERCRED, &owner, &size) != 0 || owner.uid == getuid();
    } else {
        same = errno == EAGAIN; // nobody accepts connections, so earlier refused starts can fill the queue
    }
    close(client);
    return same;
}

} // namespace

Instance::Instance(const std::string& name) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string label = name + "-" + std::to_string(getuid());
    std::memcpy(address.sun_path + 1, label.data(), label.size()); // the leading NUL keeps it out of the file system
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + label.size());
    m_socket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0); // a calculator started from here must not inherit it
    if (m_socket < 0) return;
    if (bind(m_socket, reinterpret_cast<const sockaddr*>(&address), length) == 0)
        listen(m_socket, SOMAXCONN);
    else
        m_first = errno != EADDRINUSE || !heldByThisUser(address, length);
}

Instance::~Instance() {
    if (m_socket >= 0) close(m_socket);
}

} // namespace shell
