#include <QAbstractItemView>

#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// Backup, transfer to another computer and back, deletion, and the restoring of the backup.
namespace tour {

using screenkit::Answer;

namespace {

constexpr const char* backup = "backup.mdb";
constexpr const char* transfer = "clients for the other office.mdb";

int clientsFound(Hands& hands, const QString& words) {
    hands.type("txtSearch", words, Qt::Key_End);
    return hands.control<QAbstractItemView>("List1")->model()->rowCount();
}

/// A command that asks for a file and ends with its message.
template <class Command>
void withFile(Hands& hands, const QString& file, Command command) {
    hands.desk().expectFile(file);
    hands.desk().expect("Marlowbeck", Answer::ok);
    command();
}

} // namespace

void careForClients(Hands& hands) {
    say("The clients are backed up.");
    withFile(hands, backup, [&] { hands.menu({"mnuFile", "mnuBackup"}); });

    say("The client is copied for another office, and read back: he is now there twice.");
    hands.menu({"mnuFile", "mnuToFromA", "mnuToA"});
    hands.expectFront("frmCOPYToA");
    clientsFound(hands, "ndou");
    hands.key(Qt::Key_Down);
    hands.key(Qt::Key_Space);
    picture(&hands.window(), "copy-to-media");
    withFile(hands, transfer, [&] { hands.click("cmdCopyToA"); });
    hands.click("cmdCancel");
    hands.menu({"mnuFile", "mnuToFromA", "mnuFromA"});
    hands.expectFront("frmREADFromA");
    picture(&hands.window(), "read-from-media");
    withFile(hands, transfer, [&] { hands.click("cmdCopyFromA"); });

    say("One of the two is deleted, with care; then the backup is restored.");
    hands.menu({"mnuFile", "mnuDelete"});
    hands.expectFront("frmDelete");
    check(clientsFound(hands, "ndou") == 2, "the client was not read from the medium");
    hands.key(Qt::Key_Down);
    picture(&hands.window(), "delete");
    hands.desk().expect("Confirm Delete !", Answer::yes, "confirm-delete");
    hands.click("cmdDelete");
    check(clientsFound(hands, "ndou") == 1, "the client was not deleted");
    hands.click("cmdOK");
    hands.desk().expect("RESTORE !!", Answer::yes, "restore");
    withFile(hands, backup, [&] { hands.menu({"mnuFile", "mnuRestore"}); });
    hands.menu({"mnuFile", "mnuRemotePath"});
    hands.expectFront("frmMasterDBLocator");
    picture(&hands.window(), "remote-path");
    hands.click("cmdOK");
}

} // namespace tour
