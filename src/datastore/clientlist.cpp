#include "datastore/clientlist.h"

#include <algorithm>
#include <cstdint>

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

/// The start of a sort key as one number, which settles most comparisons.
std::uint64_t startOf(const std::string& key) {
    std::uint64_t start = 0;
    for (std::size_t i = 0; i < sizeof start; ++i)
        start = start << 8U | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
    return start;
}

/// The lines' numbers in the order of the list.
std::vector<std::size_t> sortedOrder(const std::vector<ClientLine>& clients) {
    struct Entry {
        std::uint64_t start;
        std::size_t line;
    };
    std::vector<std::string> keys;
    std::vector<Entry> entries;
    keys.reserve(clients.size());
    entries.reserve(clients.size());
    for (const ClientLine& client : clients) {
        keys.push_back(base::folded(client.CLName));
        entries.push_back({startOf(keys.back()), entries.size()});
    }
    std::sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) {
        if (a.start != b.start) return a.start < b.start;
        const int order = keys[a.line].compare(keys[b.line]);
        return order != 0 ? order < 0 : a.line < b.line;
    });
    std::vector<std::size_t> order;
    order.reserve(entries.size());
    for (const Entry& entry : entries)
        order.push_back(entry.line);
    return order;
}

} // namespace

std::vector<ClientLine> readClientList(const std::filesystem::path& dataDbPath) {
    store::Database database(dataDbPath);
    std::vector<ClientLine> clients = readUnsorted(database);
    std::vector<ClientLine> sorted;
    sorted.reserve(clients.size());
    for (const std::size_t line : sortedOrder(clients))
        sorted.push_back(std::move(clients[line]));
    return sorted;
}

std::string lineText(const ClientLine& client) {
    std::string text = client.CLName + "  ";
    if (client.BirthDate > 0) text += base::formatDate(client.BirthDate) + "  ";
    return text + client.Description;
}

} // namespace datastore
