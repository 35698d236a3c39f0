#pragma once

#include <filesystem>
#include <vector>

#include "datastore/paths.h"
#include "store/progress.h"

/// Takes clients from one installation to another in a transfer file, `CopyData.Mdb`: the tables of a client database
/// with these clients alone, numbered from 20001, and one row of `DataSetup` for each. Capital gains and lump sums do
/// not travel. Progress may cancel; then every file is as it was, and store::Cancelled is thrown.
namespace datastore {

/// Clients in a transfer file are numbered from this plus 1.
inline constexpr double transferKeyBase = 20000;

/// Has an empty or older transfer file in the program folder, with all tables. Nothing happens if that fails:
/// `copyClients` makes the file anew.
void MakeCopyDb(const Paths& paths);

/// Makes the program folder's `CopyData.Mdb` anew with the clients of these keys, in this order, and keeps an
/// uncompacted one as `Data.bak`. Error 3021 if one of them is no longer in the file; after any error `CopyData.Mdb`
/// and `Data.bak` are as they were.
void copyClients(const Paths& paths, const std::vector<double>& keys, const store::Progress& progress = {});

/// Removes the program folder's transfer file, which is only a working copy. Silent if it can't be removed.
void removeTransferFile(const Paths& paths);

/// Copies the chosen transfer file into the program folder and checks every page of the copy. The chosen file is only
/// read, together with its journal. Throws store::Error for a file that can't be read, is damaged or no database.
void fetchTransferFile(const Paths& paths, const std::filesystem::path& chosen, const store::Progress& progress = {});

/// The version of the database that the fetched clients come from. Error 3021 if it has none, 3011 if it is no file of
/// clients.
double transferVersion(const Paths& paths);

/// Adds all clients of the fetched file to the file in use, under the keys above its highest one, in one transaction.
/// What a deleted client left under such a key is removed. Returns the number of clients.
///
/// Error 321 if the clients are not numbered from 20001, 3163 if a text is longer than its field; nothing is read then.
/// A field that the file lacks is read as Null, one that this version does not know is ignored.
int readClients(const Paths& paths, const store::Progress& progress = {});

} // namespace datastore
