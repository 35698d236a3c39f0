#include "datastore/programfolder.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "datastore/paths.h"
#include "store/error.h"
#include "store/files.h"

namespace datastore {
namespace {

namespace fs = std::filesystem;

constexpr auto marker = "installed-for-all-users";
constexpr auto userFolder = "marlowbeck";
constexpr const char* databases[] = {"Default.Mdb", "Print.mdb", "units.mdb", "Diary.mdb"};

bool isInstalledForAll(const fs::path& realExecutable) {
    std::error_code ignored;
    return fs::exists(realExecutable.parent_path() / marker, ignored);
}

fs::path homeFolder() {
    if (const char* home = std::getenv("HOME"); home && *home == '/') return home;
    if (const passwd* user = ::getpwuid(::getuid()); user && user->pw_dir) return user->pw_dir;
    throw store::Error(store::Number::pathNotFound, "~", "This user has no home folder to keep the databases in.");
}

fs::path userDataFolder() {
    // A relative path counts as not set: it would depend on the folder that the program is started from.
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data == '/') return fs::path(data) / userFolder;
    return homeFolder() / ".local" / "share" / userFolder;
}

/// Creates the folder and its missing parents, each accessible to its owner only from the start.
void makePrivateFolder(const fs::path& folder) {
    std::error_code ignored;
    if (fs::is_directory(folder, ignored)) return;
    if (folder.has_parent_path() && folder.parent_path() != folder) makePrivateFolder(folder.parent_path());
    if (::mkdir(folder.c_str(), 0700) == 0 || (errno == EEXIST && fs::is_directory(folder, ignored))) return;
    const bool denied = errno == EACCES || errno == EPERM || errno == EROFS;
    throw store::Error(denied ? store::Number::permissionDenied : store::Number::pathNotFound, folder.string(),
                       std::string("This folder for your databases cannot be created: ") + std::strerror(errno) + ".");
}

void seedDatabase(const fs::path& installed, const fs::path& folder) {
    const fs::path own = store::existingSpelling(folder / installed.filename());
    if (!fs::exists(own)) store::writeFile(own, store::readFile(installed));
}

void refresh(const fs::path& installed, const fs::path& folder) {
    const fs::path own = store::existingSpelling(folder / installed.filename());
    const std::string bytes = store::readFile(installed);
    if (!fs::exists(own) || store::readFile(own) != bytes) store::writeFile(own, bytes);
}

/// True for report definitions and help pages, which every upgrade replaces.
bool belongsToPackage(const fs::path& file) { return file.extension() == ".rpt" || file.extension() == ".md"; }

void seed(const fs::path& installed, const fs::path& folder) {
    makePrivateFolder(folder);
    for (const char* database : databases)
        seedDatabase(installed / database, folder);
    for (const auto& entry : fs::directory_iterator(installed))
        if (belongsToPackage(entry.path())) refresh(entry.path(), folder);
}

} // namespace

fs::path programFolder(const fs::path& realExecutable) {
    return isInstalledForAll(realExecutable) ? userDataFolder() : realExecutable.parent_path();
}

void seedProgramFolder(const fs::path& realExecutable, const fs::path& folder) {
    if (!isInstalledForAll(realExecutable)) return;
    requireUsableName(folder);
    try {
        seed(realExecutable.parent_path(), folder);
    } catch (const fs::filesystem_error& error) {
        throw store::Error(store::Number::deviceError, error.path1().string(), error.code().message() + ".");
    }
}

} // namespace datastore
