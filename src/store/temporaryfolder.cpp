#include "store/temporaryfolder.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

#include "store/posix.h"

namespace store {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::error_code failed;
    fs::path place = fs::temp_directory_path(failed);
    if (failed) place = "/tmp";
    std::string name = (place / "marlowbeck-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) posix::fail(place, errno == ENOENT ? ENOTDIR : errno);
    m_path = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored; // the system empties the place anyway
    fs::remove_all(m_path, ignored);
}

} // namespace store
