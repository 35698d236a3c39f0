#include "datastore/ownprintdb.h"

#include <optional>

#include "datastore/headfoot.h"
#include "datastore/shipped.h"
#include "store/error.h"

namespace datastore {

namespace {

std::optional<assessment::HeadFootLines> practiceLines(const Paths& paths) {
    for (const std::filesystem::path& file : {paths.PrintDbPath, paths.DataDbPath}) {
        try {
            store::Database database(file);
            return readHeadFoot(database);
        } catch (const store::Error&) {
            // The other file has them too. Without either the reports have no such lines, as in the program.
        }
    }
    return {};
}

} // namespace

OwnPrintDb::OwnPrintDb(const Paths& paths)
    : m_path(m_folder.path() / "Print.mdb"), m_opened(m_path, store::Opening::temporary) {
    createPrintDb(m_path, practiceLines(paths));
}

} // namespace datastore
