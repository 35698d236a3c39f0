#include "shell/datacare.h"

#include "assessment/assessment.h"
#include "datastore/backup.h"
#include "datastore/frmMedia.h"
#include "datastore/paths.h"
#include "datastore/workfiles.h"
#include "screenkit/desk.h"
#include "screenkit/longwork.h"
#include "screenkit/screen.h"
#include "screenkit/trouble.h"
#include "shell/mainwindow.h"
#include "shell/screens.h"
#include "store/filecopy.h"

namespace shell {

namespace fs = std::filesystem;
using screenkit::Answer;
using screenkit::BoxStyle;
using screenkit::Buttons;
using screenkit::Desk;
using screenkit::Workplace;

namespace {

constexpr const char* backupTitle = "BACKUP !";
constexpr const char* restoreTitle = "RESTORE !!";
constexpr const char* closeWindows =
    "Please ensure that all windows in Marlowbeck are closed and try the Backup data option again!";
constexpr const char* restoreWarning =
    "Performing this operation will copy a Marlowbeck database file from a 'Look in' source drive/path of your choice "
    "to the existing Marlowbeck program and will overwrite the database that is currently there without warning. "
    "Please ensure that this is your intention. ?";
constexpr const char* noMedium = "There is a problem Coping?\n"
                                 "Please ensure that the Device is available and correctly plugged in/inserted!";
constexpr const char* wrongPath =
    "There is a problem Restoring?\n"
    "The 'Look in' (copy from path) was not originally set correctly and Marlowbeck is confused!\n"
    "To reset path correctly the program needs to be exited and re-started.";

MDIForm1::Changes askAndSaveForNew(MDIForm1& window, const QString& title) {
    return window.askAboutChanges(title, [&window] {
        window.workplace().record.SaveThenNew = 1;
        window.mnuSave_Click();
    });
}

/// False if the user cancelled, or if the changes were saved: then he chooses the command again.
bool mayGoOn(MDIForm1& window, const QString& title) {
    const MDIForm1::Changes changes = askAndSaveForNew(window, title);
    return changes == MDIForm1::Changes::none || changes == MDIForm1::Changes::dropped;
}

enum class Which { own, inUse };

/// Backup and restore work on the program folder's file. While the clients are elsewhere the user says which file he
/// means; nothing if he cancels.
std::optional<Which> askWhichFile(Workplace& work, const QString& question, const QString& title, Answer byDefault) {
    if (!datastore::isElsewhere(work.paths)) return Which::own;
    const QString text = QObject::tr("The clients in use are in %1. %2")
                             .arg(QString::fromStdString(work.paths.DataDbPath.string()), question);
    switch (work.desk.box(BoxStyle::question, text, title, Buttons::yesNoCancel, byDefault)) {
    case Answer::yes: return Which::inUse;
    case Answer::no: return Which::own;
    default: return {};
    }
}

void closeScreensOfTheFile(MDIForm1& window) {
    for (const char* name : screensOfTheFile())
        if (auto* open = qobject_cast<screenkit::Screen*>(window.screen(name)); open != nullptr) open->drop();
}

} // namespace

bool startNewClient(MDIForm1& window) {
    switch (askAndSaveForNew(window, "NEW ?")) {
    case MDIForm1::Changes::kept: return false;
    case MDIForm1::Changes::saved: return window.workplace().record.ClientChanged == 0; // 1 after a failed save
    default: break;
    }
    if (!window.NEWUNLOAD()) return false;
    window.open("frmPersDet");
    return true;
}

void mnuBackup_Click(MDIForm1& window) {
    const screenkit::BusyCursor busy;
    Workplace& work = window.workplace();
    if (!mayGoOn(window, backupTitle)) return;
    const auto which = askWhichFile(work, QObject::tr("Do you want to back up that file ?"), backupTitle, Answer::yes);
    if (!which) return;
    const datastore::WorkFiles files(work.paths.programFolder);
    const bool inUse = *which == Which::inUse;
    const auto compact = [&](const store::Progress& progress) {
        if (inUse)
            datastore::compactFileInUse(work.paths, progress);
        else
            datastore::compactClientDb(work.paths, progress);
    };
    try {
        if (!screenkit::runLongWork(QObject::tr("Checking and compacting the file of clients"), compact))
            return datastore::tellCancelled(work.desk);
    } catch (const datastore::NotRepaired&) {
        return work.desk.tell(BoxStyle::warning, closeWindows, "Marlowbeck");
    }
    std::optional<store::WorkingCopy> temporary; // of a file elsewhere; the program folder's own is never one
    if (inUse) temporary.emplace(files.compacted);
    const fs::path& copy = inUse ? files.compacted : files.own;
    const auto destination =
        datastore::askDestination(work.desk, "Backup File Data.Mdb to 'Save In:' destination drive/path?", "Data.Mdb");
    if (!destination) return datastore::tellCancelled(work.desk);
    if (datastore::writeToMedium(work, copy, *destination, "There is a problem Writing to the Chosen Media?"))
        work.desk.tell(BoxStyle::information, "Backing up of Database completed !", "Marlowbeck");
}

void mnuRestore_Click(MDIForm1& window) {
    Workplace& work = window.workplace();
    Desk& desk = work.desk;
    if (desk.box(BoxStyle::warning, restoreWarning, restoreTitle, Buttons::yesNo, Answer::no) != Answer::yes) return;
    const auto which =
        askWhichFile(work, QObject::tr("Do you want to restore into that file ?"), restoreTitle, Answer::no);
    if (!which || !startNewClient(window)) return;
    const auto tellCancelled = [&desk] {
        desk.tell(BoxStyle::information, "User has cancelled the Restore operation!", "Marlowbeck");
    };
    const auto chosen =
        datastore::askSource(desk, QObject::tr("Restore File Data.Mdb from 'Look In:' source drive/path?"), "Data.Mdb");
    if (!chosen) return tellCancelled();
    const bool isInUse = *which == Which::inUse || !datastore::isElsewhere(work.paths);
    const fs::path target = isInUse ? work.paths.DataDbPath : datastore::WorkFiles(work.paths.programFolder).own;
    if (!isInUse && !store::isThere(target)) return desk.tell(BoxStyle::critical, wrongPath, "Path Error!");
    closeScreensOfTheFile(window); // they show keys of the old file
    try {
        if (!screenkit::runLongWork(QObject::tr("Checking and copying the backup"),
                                    [&](const store::Progress& progress) {
                                        datastore::restoreClientDb(work.paths, *chosen, target, progress);
                                    }))
            return tellCancelled();
    } catch (const store::Error&) {
        return desk.tell(BoxStyle::critical, noMedium, "Chosen Media Faulty!");
    }
    if (isInUse) {
        window.useClientDb(work.paths.DataDbPath);
        window.refillScreens(); // with the restored file's rate of inflation
    }
    desk.tell(BoxStyle::information, "Restoring of Database completed !", "Marlowbeck");
}

void mnuToA_Click(MDIForm1& window) {
    if (mayGoOn(window, backupTitle)) window.open("frmCOPYToA");
}

void mnuFromA_Click(MDIForm1& window) {
    if (mayGoOn(window, "Import Data ?")) window.open("frmREADFromA");
}

} // namespace shell
