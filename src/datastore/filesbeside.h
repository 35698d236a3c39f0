#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "assessment/assessment.h"
#include "datastore/clientlist.h"
#include "datastore/ownprintdb.h"
#include "datastore/paths.h"
#include "store/database.h"
#include "store/openfiles.h"
#include "store/temporaryfolder.h"

namespace datastore {

/// The files of a program folder for work without a window, beside a running program or without one.
///
/// Writes nothing there and nothing in the file of clients, and locks it only while one client is read. What would need
/// a change first is copied to a temporary folder and changed there: settings that lack a field, a file of clients of
/// an older version, a file whose last writer crashed. During the object's lifetime this whole program opens the
/// originals for reading only, whoever opens them.
///
/// Throws store::Error for a missing or damaged file, and 321 for clients of a newer version.
class FilesBeside {
public:
    explicit FilesBeside(const std::filesystem::path& programFolder);

    /// The files to use, copies among them; the print database is one of its own.
    const Paths& paths() const { return m_paths; }

    /// All clients, in the order of the list on the screen.
    std::vector<ClientLine> clients();

    /// The client with this key as a load in the program gives him, with the practice's present rates. Error 3021 if
    /// there is none, 3356 if another program holds the file for longer than a second.
    assessment::Assessment read(double key);

private:
    void prepare();
    void useCopy(std::filesystem::path& file);
    void useCopyUnless(const std::function<bool(store::Database&)>& isUsable, std::filesystem::path& file);
    template <class Work>
    auto namingOriginals(Work work) const;
    template <class Read>
    auto reading(Read read);

    struct Copy {
        std::filesystem::path original, file;
    };
    Paths m_paths;
    store::TemporaryFolder m_folder;
    std::deque<store::OpenedAs> m_opened;
    std::vector<Copy> m_copies;
    std::optional<OwnPrintDb> m_print;
};

} // namespace datastore
