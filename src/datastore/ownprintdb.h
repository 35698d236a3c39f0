#pragma once

#include <filesystem>

#include "datastore/paths.h"
#include "store/openfiles.h"
#include "store/temporaryfolder.h"

namespace datastore {

/// A print database of one document's own, in a temporary folder that goes with the object: what is printed meanwhile
/// in the program or by another one neither disturbs it nor is disturbed.
///
/// It has the practice's header and footer lines: those of Print.mdb, or those of the client database if that file
/// can't be read. Throws store::Error if it can't be made.
class OwnPrintDb {
public:
    explicit OwnPrintDb(const Paths& paths);

    const std::filesystem::path& path() const { return m_path; }

private:
    store::TemporaryFolder m_folder;
    std::filesystem::path m_path;
    store::OpenedAs m_opened;
};

} // namespace datastore
