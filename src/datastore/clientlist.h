#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace datastore {

/// One client in the list.
struct ClientLine {
    double DCLNO = 0;
    std::string CLName;
    std::string Name;
    double BirthDate = 0;
    std::string Description;
};

/// All clients by surname, without regard to case and accents, no surname first, equal ones in the order in which they
/// were added.
std::vector<ClientLine> readClientList(const std::filesystem::path& dataDbPath);

/// A line as the list shows it: surname, birth date if it is after 30 December 1899, description, two blanks between.
std::string lineText(const ClientLine& client);

} // namespace datastore
