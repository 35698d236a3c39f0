#include "datastore/clientlist.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

#include "base/day.h"
#include "base/fold.h"
#include "store/database.h"
#include "store/error.h"

namespace datastore {

namespace {

store::Statement select(store::Database& database) {
    const std::string known = "SELECT [DCLNO], [CLName], [Name], [BirthDate], ";
    const std::string from = " FROM [PersDetails] ORDER BY rowid";
    try {
        return database.prepare(known + "[Description]" + from);
    } catch (const store::Error& error) {
        // Files of the first versions have no descriptions.
        if (!error.is(store::Number::noSuchField)) throw;
        return database.prepare(known + "NULL" + from);
    }
}

std::vector<ClientLine> readUnsorted(store::Database& database) {
    std::vector<ClientLine> clients;
    store::Statement rows = select(database);
    while (rows.step())
        clients.push_back({rows.number(0), rows.text(1), rows.text(2), rows.number(3), rows.text(4)});
    return clients;
}

/// A line's place in the order. The first bytes of the key as one number settle most comparisons.
struct SortKey {
    std::uint64_t start;
    std::string key;
    std::size_t line;

    bool operator<(const SortKey& other) const {
        if (start != other.start) return start < other.start;
        if (const int order = key.compare(other.key); order != 0) return order < 0;
        return line < other.line;
    }
};

SortKey keyOf(const ClientLine& client, std::size_t line) {
    SortKey key{0, base::folded(client.CLName), line};
    for (std::size_t i = 0; i < sizeof key.start; ++i)
        key.start = key.start << 8U | (i < key.key.size() ? static_cast<unsigned char>(key.key[i]) : 0U);
    return key;
}

} // namespace

std::vector<ClientLine> readClientList(const std::filesystem::path& dataDbPath) {
    store::Database database(dataDbPath);
    std::vector<ClientLine> clients = readUnsorted(database);
    std::vector<SortKey> keys;
    keys.reserve(clients.size());
    for (std::size_t i = 0; i < clients.size(); ++i)
        keys.push_back(keyOf(clients[i], i));
    std::sort(keys.begin(), keys.end());
    std::vector<ClientLine> sorted;
    sorted.reserve(clients.size());
    for (const SortKey& key : keys)
        sorted.push_back(std::move(clients[key.line]));
    return sorted;
}

std::string lineText(const ClientLine& client) {
    std::string text = client.CLName + "  ";
    if (client.BirthDate > 0) text += base::formatDate(client.BirthDate) + "  ";
    return text + client.Description;
}

} // namespace datastore
