#include "datastore/frmMasterDBLocator.h"

#include <QDir>
#include <QLineEdit>
#include <QTimer>

#include "datastore/frmMedia.h"
#include "datastore/paths.h"
#include "datastore/upgrade.h"
#include "datastore/workfiles.h"
#include "screenkit/trouble.h"
#include "store/error.h"
#include "store/filecopy.h"
#include "store/files.h"

namespace datastore {

namespace fs = std::filesystem;
using namespace screenkit;
using store::Number;

namespace {

/// Opens a file and reads its version. Error 3011 also for a file that backup and transfer overwrite.
void requireClientFile(const Paths& paths, const fs::path& file) {
    if (isWorkingCopy(paths, file)) throw store::Error(Number::noSuchTable, file.string());
    store::Database database(file);
    readVersion(database);
}

void changeTo(Workplace& work, const fs::path& file) {
    const fs::path former = work.paths.DataDbPath;
    writeDataPath(work.paths.programFolder, file);
    try {
        work.shell.useClientDb(file);
    } catch (...) {
        writeDataPath(work.paths.programFolder, former);
        throw;
    }
    work.shell.refillScreens(); // the other file has its own rate of inflation
}

QString shownPath(const fs::path& path) { return QDir::toNativeSeparators(QString::fromStdString(path.string())); }

} // namespace

bool isNotFound(const store::Error& error) { return error.is(Number::fileNotFound) || error.is(Number::badPath); }

bool isNoClientFile(const store::Error& error) {
    for (const Number number : {Number::noSuchTable, Number::noSuchTableInQuery, Number::notADatabase, Number::corrupt,
                                Number::noCurrentRecord, Number::null, Number::wrongType})
        if (error.is(number)) return true;
    return false;
}

bool locateClientDb(Workplace& work) {
    for (;;) {
        const auto file =
            askSource(work.desk, "Locate File Name : Data.mdb", QString::fromStdString(work.paths.DataDbPath.string()));
        if (!file || store::isSameFile(*file, work.paths.DataDbPath)) return false;
        try {
            requireClientFile(work.paths, *file);
        } catch (const store::Error& error) {
            if (!isNoClientFile(error)) throw;
            if (work.desk.box(BoxStyle::question, "Incorrect File Selected!\nDo you want to locate correct file?",
                              " Data.mdb Database not found!", Buttons::yesNo) != Answer::yes)
                return false;
            continue;
        }
        changeTo(work, *file);
        return true;
    }
}

frmMasterDBLocator::frmMasterDBLocator(Workplace& workplace)
    : Screen(workplace, "frmMasterDBLocator", "Remote Database Path", untracked()) {
    m_path = shown("txtUserSysAdDB", 60);
    auto* locate = button("cmdLocateSysAdmin", "&Locate", [this] { cmdLocateSysAdmin(); });
    body(
        column({form({{"Your clients are in", m_path}}),
                note(tr("Locate chooses another file of clients, for example on the computer of your practice. From "
                        "then on Marlowbeck works with that file, also after the next start. No file is moved or "
                        "copied. A client on the screens belongs to the former file; saving adds him to the new one.")),
                spring(), row({spring(), locate, okButton()})}));
}

void frmMasterDBLocator::filled() { m_path->setText(shownPath(m_work.paths.DataDbPath)); }

/// Looks at the path once, when the screen opens.
void frmMasterDBLocator::cameToFront() {
    if (std::exchange(m_looked, true)) return;
    const fs::path location = store::existingSpelling(m_work.paths.programFolder / "DataPath.txt");
    std::error_code ignored;
    const auto named = fs::exists(location, ignored) ? parseDataPath(store::readFile(location)) : std::nullopt;
    if (!named) {
        m_path->clear();
        return offerToSetPath("No path has been set.\nDo you want to continue setting the path?",
                              "Main Database not found!");
    }
    try {
        store::Database database(store::nativePath(*named, m_work.paths.programFolder));
        readVersion(database);
    } catch (const store::Error& error) {
        if (!isNotFound(error)) throw;
        offerToSetPath("Database can not be found in the default folder!\nDo you want to set the search path?",
                       "Main Client Database not found!");
    }
}

/// Asked when the window stands.
void frmMasterDBLocator::offerToSetPath(const QString& text, const QString& title) {
    QTimer::singleShot(0, this, [this, text, title] {
        if (m_work.desk.box(BoxStyle::question, text, title, Buttons::yesNo) != Answer::yes) return drop();
        guarded(m_work.desk, tr("change the path"), [this] { cmdLocateSysAdmin(); });
    });
}

void frmMasterDBLocator::cmdLocateSysAdmin() {
    if (locateClientDb(m_work)) filled();
}

} // namespace datastore
