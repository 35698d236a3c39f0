#include "datastore/frmMedia.h"

#include <QDir>

#include "datastore/backup.h"
#include "screenkit/desk.h"
#include "screenkit/longwork.h"
#include "screenkit/savefile.h"
#include "screenkit/trouble.h"
#include "store/files.h"

namespace datastore {

namespace fs = std::filesystem;
using namespace screenkit;

namespace {

// Some desktops' dialogs tell capitals from small letters.
const QStringList& filters() {
    static const QStringList all{"Access Database (.mdb) (*.mdb *.Mdb *.MDB)"};
    return all;
}

std::optional<fs::path> pathOf(const std::optional<QString>& chosen) {
    if (!chosen || chosen->isEmpty()) return {};
    return store::existingSpelling(fs::path(chosen->toStdString()));
}

} // namespace

std::optional<fs::path> askDestination(Desk& desk, const QString& title, const QString& name) {
    return pathOf(askWhereToSave(desk, title, QDir::home().filePath(name), filters()));
}

std::optional<fs::path> askSource(Desk& desk, const QString& title, const QString& suggested) {
    return pathOf(desk.fileToOpen(title, QDir::home().filePath(suggested), filters()));
}

bool untilMediumWorks(Desk& desk, const QString& problem, const QString& title, const std::function<void()>& work) {
    for (;;) {
        try {
            work();
            return true;
        } catch (const store::Error&) {
            if (desk.box(BoxStyle::critical, problem, title, Buttons::okCancel) != Answer::ok) return false;
        }
    }
}

bool writeToMedium(Workplace& work, const fs::path& file, const fs::path& destination, const QString& problem) {
    bool written = false;
    const auto write = [&] {
        written =
            runLongWork(QObject::tr("Copying to %1").arg(QString::fromStdString(destination.string())),
                        [&](const store::Progress& progress) { copyToMedia(work.paths, file, destination, progress); });
    };
    const QString text =
        problem + "\nPlease ensure that the Device is available and has sufficient space for the file.";
    if (!untilMediumWorks(work.desk, text, "Chosen Media Faulty!", write)) return false;
    if (!written) tellCancelled(work.desk);
    return written;
}

void tellCancelled(Desk& desk) { desk.tell(BoxStyle::information, "User has cancelled the operation!", "Marlowbeck"); }

} // namespace datastore
