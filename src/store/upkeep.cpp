#include "store/upkeep.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>

#include "store/database.h"
#include "store/error.h"
#include "store/filecopy.h"
#include "store/files.h"
#include "store/openfiles.h"
#include "store/posix.h"
#include "store/sqlitecall.h"

namespace store {

namespace fs = std::filesystem;

namespace {

constexpr int stepsBetweenTellings = 20000; // of SQLite's virtual machine: about a millisecond

void createEmpty(const fs::path& path) {
    const posix::Handle file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file.ok()) posix::fail(path, errno == ENOENT ? ENOTDIR : errno);
}

void flush(const fs::path& path) {
    const posix::Handle file(::open(path.c_str(), O_RDWR | O_CLOEXEC));
    if (!file.ok() || ::fsync(file.get()) != 0) posix::fail(path, errno);
}

} // namespace

UpkeepDatabase::UpkeepDatabase(const fs::path& path, Lock lock, Progress progress)
    : m_path(existingSpelling(path)), m_progress(std::move(progress)) {
    if (lock == Lock::exclusive && isOpenHere(m_path))
        throw Error(Number::heldByAnother, m_path.string(), "A window of this program is using the file.",
                    "Close all windows in Marlowbeck, then try again.");
    { const Database checked(m_path); } // undoes an interrupted write, and tells every other fault of the file
    m_connection = connect(m_path, SQLite::OPEN_READWRITE);
    // In this mode the connection keeps the lock after the transaction.
    if (lock == Lock::exclusive)
        run(m_path, [this] { m_connection->exec("PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT"); });
    if (!m_progress) return;
    const auto tellIt = [](void* self) {
        const auto* upkeep = static_cast<const UpkeepDatabase*>(self);
        return upkeep->m_progress(upkeep->partDone()) ? 0 : 1;
    };
    sqlite3_progress_handler(m_connection->getHandle(), stepsBetweenTellings, tellIt, this);
}

UpkeepDatabase::~UpkeepDatabase() = default;

double UpkeepDatabase::partDone() const {
    if (m_growing.empty()) return -1;
    std::error_code failed;
    const auto size = [&](const fs::path& file) {
        const auto bytes = fs::file_size(file, failed);
        return failed ? 0.0 : static_cast<double>(bytes);
    };
    return std::min(1.0, size(m_growing) / std::max(1.0, size(m_path)));
}

void UpkeepDatabase::run(const fs::path& blamed, const std::function<void()>& work) {
    try {
        work();
    } catch (const SQLite::Exception& error) {
        if (error.getErrorCode() == SQLITE_INTERRUPT) throw Cancelled();
        failWith(blamed, error.getExtendedErrorCode(), error.what());
    }
}

void UpkeepDatabase::checkIntegrity() {
    run(m_path, [this] {
        SQLite::Statement check(*m_connection, "PRAGMA integrity_check(1)");
        if (!check.executeStep() || check.getColumn(0).getString() != "ok")
            throw Error(Number::corrupt, m_path.string());
    });
}

double UpkeepDatabase::figure(const std::string& sql) {
    double found = 0;
    run(m_path, [&] {
        SQLite::Statement query(*m_connection, sql);
        if (query.executeStep()) found = query.getColumn(0).getDouble();
    });
    return found;
}

void UpkeepDatabase::compactInto(const fs::path& target) {
    removeDatabase(target);
    createEmpty(target); // SQLite would create it for everybody to read
    m_growing = target;
    try {
        run(target, [&] {
            SQLite::Statement vacuum(*m_connection, "VACUUM INTO ?");
            vacuum.bind(1, target.string());
            vacuum.exec();
        });
        flush(target);
    } catch (...) {
        m_growing.clear();
        removeDatabase(target);
        throw;
    }
    m_growing.clear();
}

} // namespace store
