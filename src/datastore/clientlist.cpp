#include "datastore/clientlist.h"

#include <algorithm>

#include "base/day.h"
#include "base/fold.h"
#include "base/text.h"
#include "store/database.h"
#include "store/error.h"

namespace datastore {

namespace {

constexpr const char* table = "PersDetails";

/// The columns of the client list in this file; files of the first versions lack some.
class Columns {
public:
    explicit Columns(store::Database& database) : m_present(database.columns(table)) {}

    std::string one(const char* name) const { return has(name) ? store::bracketed(name) : "NULL"; }
    /// Several columns joined by line breaks into one: each column less makes a long list faster to read.
    std::string joined(std::initializer_list<const char*> names) const {
        std::string sql = "''";
        for (const char* name : names)
            if (has(name)) sql += "||coalesce(" + store::bracketed(name) + ",'')||char(10)";
        return sql;
    }

private:
    bool has(const char* name) const {
        return std::ranges::any_of(m_present, [&](const auto& column) { return base::sameName(column.name, name); });
    }
    std::vector<store::Column> m_present;
};

store::Statement select(store::Database& database, const std::string& which) {
    const Columns columns(database);
    const std::string firstNames =
        "coalesce(nullif(trim(" + columns.one("CFName") + "),'')," + columns.one("CInit") + ")";
    return database.prepare(
        "SELECT [DCLNO], [CLName], [Name], [BirthDate], " + columns.one("Description") + ", " + firstNames + ", " +
        columns.one("IDNumber") + ", " + columns.one("ReviewDate") + ", " +
        columns.joined({"CInit", "IDNumber", "CTelWork", "CTelHome", "CCell", "CFaxWork", "CFaxHome"}) + ", " +
        columns.joined({"CFName", "CEMail"}) + " FROM " + store::bracketed(table) + which);
}

std::vector<ClientLine> readRows(store::Statement rows) {
    std::vector<ClientLine> clients;
    while (rows.step())
        clients.push_back({rows.number(0), rows.text(1), rows.text(2), rows.number(3), rows.text(4), rows.text(5),
                           rows.text(6), rows.number(7), rows.text(8), rows.text(9)});
    return clients;
}

bool isBetween(char c) { return std::string_view(" -/.()+").find(c) != std::string_view::npos; }

/// Removes what stands between the digits of a number or the letters of initials.
std::string withoutSeparators(std::string_view text) {
    std::string closed;
    std::ranges::copy_if(text, std::back_inserter(closed), [](char c) { return !isBetween(c); });
    return closed;
}

bool holds(const std::string& text, const std::string& word) {
    if (text.find(word) != std::string::npos) return true;
    const std::string closed = withoutSeparators(word);
    return !closed.empty() && closed.size() < word.size() && text.find(closed) != std::string::npos;
}

std::vector<std::string> wordsOf(std::string_view text) {
    constexpr std::string_view blanks = " \t\n\r";
    std::vector<std::string> words;
    while (true) {
        const std::size_t start = text.find_first_not_of(blanks);
        if (start == std::string_view::npos) return words;
        const std::size_t end = std::min(text.find_first_of(blanks, start), text.size());
        words.push_back(base::folded(text.substr(start, end - start)));
        text.remove_prefix(end);
    }
}

} // namespace

std::vector<ClientLine> readClientList(const std::filesystem::path& dataDbPath) {
    store::Database database(dataDbPath);
    std::vector<ClientLine> clients = readRows(select(database, " ORDER BY rowid"));
    std::vector<std::pair<base::SortKey, std::size_t>> order;
    order.reserve(clients.size());
    for (const ClientLine& client : clients)
        order.emplace_back(client.CLName, order.size());
    std::ranges::stable_sort(order, [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<ClientLine> sorted;
    sorted.reserve(clients.size());
    for (const auto& [key, line] : order)
        sorted.push_back(std::move(clients[line]));
    return sorted;
}

std::optional<ClientLine> readClientLine(const std::filesystem::path& dataDbPath, double key) {
    store::Database database(dataDbPath);
    store::Statement row = select(database, " WHERE [DCLNO] = ?");
    row.bind(1, key);
    std::vector<ClientLine> found = readRows(std::move(row));
    if (found.empty()) return {};
    return std::move(found.front());
}

std::string lineText(const ClientLine& client) {
    std::string text = client.CLName + "  ";
    if (client.BirthDate > 0) text += base::formatDate(client.BirthDate) + "  ";
    return text + client.Description;
}

ClientSearch::ClientSearch(const std::vector<ClientLine>& clients) {
    m_texts.reserve(clients.size());
    for (const ClientLine& client : clients)
        m_texts.push_back(base::folded(client.CLName + '\n' + client.Name + '\n' + client.Description + '\n' +
                                       client.address + '\n' + client.numbers + '\n' +
                                       withoutSeparators(client.numbers)));
}

std::vector<std::size_t> ClientSearch::find(std::string_view words) const {
    const std::vector<std::string> wanted = wordsOf(words);
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < m_texts.size(); ++i)
        if (std::ranges::all_of(wanted, [&](const std::string& word) { return holds(m_texts[i], word); }))
            found.push_back(i);
    return found;
}

} // namespace datastore
