#pragma once

#include <cstdint>

namespace store {

/// Shows whether a database file was written to or replaced since it was examined: its place on the disk, its time and
/// size, and the change counter that each writer raises in its header. A default one means no file and equals no
/// examined state.
struct FileState {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;
    std::int64_t size = 0;
    std::uint32_t changes = 0;

    bool operator==(const FileState&) const = default;
};

} // namespace store
