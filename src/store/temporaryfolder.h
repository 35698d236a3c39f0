#pragma once

#include <filesystem>

namespace store {

/// A folder for this user alone in the system's folder for temporary files, removed with the object and all that it
/// holds. Throws Error 57, 61, 70, 75 or 76.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

} // namespace store
