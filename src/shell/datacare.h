#pragma once

namespace shell {

class MDIForm1;

/// The menu's commands that care for the whole file of clients, and those that open the screens of the transfer.
void mnuBackup_Click(MDIForm1& window);
void mnuRestore_Click(MDIForm1& window);
/// Each asks about unsaved changes first: Yes saves them, blanks the client and stops there.
void mnuToA_Click(MDIForm1& window);
void mnuFromA_Click(MDIForm1& window);

/// Settles unsaved changes, blanks the record and opens Personal Details on the new client, or leaves no screen open if
/// the changes were saved. False if the user cancelled or the save failed; the client is still there then.
bool startNewClient(MDIForm1& window);

} // namespace shell
