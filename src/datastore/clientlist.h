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
    std::string firstNames; ///< the initials where no first name is on file
    std::string IDNumber;
    double ReviewDate = 0;
    std::string
        numbers; ///< initials, ID number, telephone numbers: found with and without what is between their digits
    std::string address; ///< first names and e-mail
};

/// All clients by surname, without regard to case and accents, no surname first, equal ones in the order in which they
/// were added. What a file of an older version has no column for is empty.
std::vector<ClientLine> readClientList(const std::filesystem::path& dataDbPath);

/// The client under a key; nothing if there is none.
std::optional<ClientLine> readClientLine(const std::filesystem::path& dataDbPath, double key);

/// A line as the list says it: surname, birth date if it is after 30 December 1899, description, two blanks between.
std::string lineText(const ClientLine& client);

/// Finds clients by what is known of them: surname, names, initials, ID number, telephone numbers, e-mail, description.
class ClientSearch {
public:
    ClientSearch() = default;
    explicit ClientSearch(const std::vector<ClientLine>& clients);

    /// The places in the list of those that hold every one of these words, in any order and anywhere, without regard to
    /// case and accents. A number is found however its digits are spaced: 0825550101 and 082 555-0101 are one. No word:
    /// all.
    std::vector<std::size_t> find(std::string_view words) const;

private:
    std::vector<std::string> m_texts;
};

} // namespace datastore
