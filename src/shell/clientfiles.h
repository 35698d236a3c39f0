#pragma once

#include <QDate>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>

/// Client files made from the command line, without a window and beside a program that may be running.
namespace shell {

/// What the command line asks for: the file of one client, or those of the whole practice.
struct ClientFileOrder {
    std::optional<double> key; ///< `DCLNO`; nothing: all clients
    std::filesystem::path to;  ///< for one client the file, ending in .pdf or .odt; for all an existing folder
};

/// The order in the words behind the program's name: `--client-file KEY --to FILE.pdf` or `--all --to FOLDER`. Nothing
/// if they ask for no client file. Throws std::invalid_argument, which says in a line what is wrong with them.
std::optional<ClientFileOrder> clientFileOrder(std::span<const char* const> words);

/// Is told one line for each failure.
using TellFailure = std::function<void(const std::string& line)>;

/// Makes the ordered files with the parts and choices that this user has ticked on the screen. Each is written
/// completely or not at all; a client that fails does not stop the others. Files for all clients carry the key in their
/// names. Reads the practice's files only. Returns the number of files written; tells each failure.
int writeClientFiles(const ClientFileOrder& order, const std::filesystem::path& programFolder, const QDate& today,
                     const TellFailure& tell);

} // namespace shell
