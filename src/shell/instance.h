#pragma once

#include <string>

namespace shell {

/// The right to be the only running Marlowbeck of this user on this machine.
///
/// Held as a socket name that the kernel frees when the process ends in any way, so that a start after a crash works at
/// once. Another user's Marlowbeck does not count.
class Instance {
public:
    /// name: the part before the user's number; only tests pass another one.
    explicit Instance(const std::string& name = "marlowbeck");
    ~Instance();
    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;

    /// False if another process of this user holds it.
    bool isFirst() const { return m_first; }

private:
    int m_socket = -1;
    bool m_first = true;
};

} // namespace shell
