#pragma once

#include "assessment/checksum.h"
#include "assessment/filetexts.h"
#include "store/database.h"

/// The adviser's texts on a client in the file of clients. The caller has a transaction open.
///
/// Their table and the mark of each client exist only from the first text on. Other programs delete clients without
/// their texts and give the key to somebody else, so the key alone does not tell whose a text is: it is the client's
/// only if it has the random mark of his row of personal details.
namespace datastore {

/// Reads the client's texts; unchanged if there are none. `sum` is updated with what is read.
void readFileTexts(assessment::FileTexts& texts, store::Database& database, double key,
                   assessment::Checksum* sum = nullptr);

/// Writes the texts of a client who has his row of personal details, in the place of all under his key, and adds to the
/// file what it lacks for them. Without a text his row goes, and the file gets nothing. `sum` as above.
void writeFileTexts(assessment::FileTexts& texts, store::Database& database, double key,
                    assessment::Checksum* sum = nullptr);

/// Deletes all texts under these keys, both included.
void deleteFileTexts(store::Database& database, double firstKey, double lastKey);

} // namespace datastore
