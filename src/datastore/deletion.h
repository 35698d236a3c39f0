#pragma once

#include <filesystem>

#include "datastore/clientlist.h"

namespace datastore {

/// Deletes a client of the list with his itemised amounts, policies, investments and texts, in one transaction. His
/// capital gains and lump sums stay in the file, without an owner.
///
/// Error 3021 if the client is no longer in the file, 3197 if his key now belongs to another one; nothing is deleted
/// then. A record in memory is not touched.
void deleteClient(const std::filesystem::path& dataDbPath, const ClientLine& client);

} // namespace datastore
