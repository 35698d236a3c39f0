#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace datastore {

/// One client in the list.
struct ClientLine {
    double DCLNO = 0;
    std::string CLName;
    std::string Name;
    double BirthDate = 0;
    std::string Description;
    std::string firstNames; ///< the initials if no first name is stored
    std::string IDNumber;
    double ReviewDate = 0;
    std::string numbers; ///< initials, ID number, telephone numbers: found with and without separators
    std::string address; ///< first names and e-mail
};

/// All clients sorted by surname, ignoring case and accents; clients without a surname first, equal surnames in the
/// order in which they were added. Columns that an older file lacks are read as empty.
std::vector<ClientLine> readClientList(const std::filesystem::path& dataDbPath);

/// The client with this key; nothing if there is none.
std::optional<ClientLine> readClientLine(const std::filesystem::path& dataDbPath, double key);

/// A line's text in the list: surname, birth date if it is after 30 December 1899, description, separated by two
/// blanks.
std::string lineText(const ClientLine& client);

/// Finds clients by surname, names, initials, ID number, telephone numbers, e-mail and description.
class ClientSearch {
public:
    ClientSearch() = default;
    explicit ClientSearch(const std::vector<ClientLine>& clients);

    /// The positions in the list of all clients that match every one of these words, in any order and anywhere,
    /// ignoring case and accents. Spaces in numbers do not matter: 0825550101 and 082 555-0101 are the same. Without
    /// words: all.
    std::vector<std::size_t> find(std::string_view words) const;

private:
    std::vector<std::string> m_texts;
};

} // namespace datastore
