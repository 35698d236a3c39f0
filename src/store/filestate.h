#pragma once

#include <cstdint>

namespace store {

/// By what a database file is known not to have been written to, nor to have been replaced by another, since it was
/// looked at: its place on the disk, its time and size, and the count of changes that each writer raises in its header.
/// A default one is that of no file and equals no state that was looked at.
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
