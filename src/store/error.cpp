#include "store/error.h"

#include <filesystem>
#include <string_view>
#include <utility>

namespace store {

namespace {

/// In the advice {name} stands for the file's name and {folder} for its folder.
struct Usual {
    Number number;
    const char* reason;
    const char* advice;
};

// The advice must be right both if the program goes on and if it ends after this message.
constexpr const char* copyBackup =
    "Close Marlowbeck, rename {name} in the folder {folder}, copy {name} from your last backup there, and start again. "
    "Keep the renamed file: it may help to recover your data.";
constexpr const char* reinstall =
    "The file {name} may be of another version. Install Marlowbeck again; clients and settings are kept.";
constexpr const char* makeRoom =
    "Delete what you no longer need from the disk that holds the folder {folder}, or empty "
    "the waste basket, then try again. The files on the disk are unchanged.";
constexpr const char* askOwner =
    "Allow the file {name} and the folder {folder} to be read and written (their "
    "properties, \"Permissions\"), or ask the person who looks after this computer, then try again.";
constexpr const char* checkPath =
    "Check that the disk or network share with the folder {folder} is connected, and that "
    "DataPath.txt in the program folder names the right file, then try again.";
constexpr const char* report = "Try again. If it happens a second time, note what you did and report this message.";

constexpr Usual usual[] = {
    {Number::fileNotFound53, "The file was not found.",
     "Check its name and its folder, then try again. If it belongs to Marlowbeck, install Marlowbeck again to restore "
     "it."},
    {Number::deviceError, "The disk could not be read or written.",
     "Check that the disk or network share with the folder {folder} is connected and has room, then try again."},
    {Number::fileExists58, "There is a file of this name already.", "Choose another name, or move that file away."},
    {Number::diskFull61, "The disk is full.", makeRoom},
    {Number::deviceUnavailable, "The disk or drive is not available.", "Connect it and try again."},
    {Number::permissionDenied, "You are not allowed to read or write this file.", askOwner},
    {Number::diskNotReady, "The disk is not ready.", "Put it in or connect it, wait a moment and try again."},
    {Number::pathAccess, "The file cannot be used at this place.",
     "Check that {name} in the folder {folder} is a file, not a folder, and that it can be changed, then try again."},
    {Number::pathNotFound, "The folder was not found.",
     "Check that the disk or network share is connected and that the name of the folder {folder} is right."},
    {Number::null, "A field that must have a value is empty.", copyBackup},
    {Number::invalidFileFormat, "The file is not what the program expects.", reinstall},
    {Number::reserved, "The database could not carry out the operation.", report},
    {Number::tableExists, "The table exists already.", "Nothing was changed; the table can be used as it is."},
    {Number::noSuchTable, "A table that the program needs is missing in this file.", reinstall},
    {Number::noCurrentRecord, "A table that must have a row is empty.", copyBackup},
    {Number::fileNotFound, "The database was not found.",
     "Check that the disk or network share with the folder {folder} is connected. If the file is lost, copy {name} "
     "from "
     "your last backup into that folder, then try again; you can also restore Marlowbeck's own files, such as "
     "Default.Mdb and Print.mdb, by installing it again."},
    {Number::diskFull, "The disk is full, or the database cannot grow any further.", makeRoom},
    {Number::readOnly, "The database is read-only, so nothing can be saved in it.",
     "Allow {name} in the folder {folder} to be written (its properties, \"Permissions\"), then try again."},
    {Number::badPath, "The folder of the database was not found.", checkPath},
    {Number::corrupt, "The database is damaged or incomplete.", copyBackup},
    {Number::heldByAnother, "Another program is using the database.",
     "Close the other program, or wait until it is done, and try again. Nothing was changed."},
    {Number::cannotOpen, "The database or its folder cannot be opened.", askOwner},
    {Number::noSuchTableInQuery, "A table that the program needs is missing in this file.", reinstall},
    {Number::textTooLong, "The field is too small to accept the amount of data you attempted to add.",
     "Shorten the text and try again."},
    {Number::fieldDefined, "The table has a field of this name already.",
     "Nothing was changed; the field can be used as it is."},
    {Number::changedByAnother, "Another program has changed the client in the file.",
     "Choose the client again in Browse, or use Save As to keep both."},
    {Number::databaseExists, "There is a database of this name already.",
     "Choose another name, or move that file away."},
    {Number::noSuchField, "A field that the program needs is missing in this file.", reinstall},
    {Number::indexExists, "The index exists already.", "Nothing was changed; the index can be used as it is."},
    {Number::notADatabase, "This file is not a database.", copyBackup},
    {Number::wrongType, "A value does not fit its field.", "Check the figures on the screen and try again."},
};

const Usual& usualFor(Number number) {
    for (const auto& entry : usual)
        if (entry.number == number) return entry;
    return usualFor(Number::reserved);
}

void put(std::string& text, std::string_view placeholder, const std::string& value) {
    for (auto at = text.find(placeholder); at != std::string::npos; at = text.find(placeholder, at + value.size()))
        text.replace(at, placeholder.size(), value);
}

std::string addressed(std::string advice, const std::string& file) {
    const std::filesystem::path path(file);
    put(advice, "{name}", file.empty() ? "the file" : path.filename().string());
    put(advice, "{folder}", path.has_parent_path() ? path.parent_path().string() : "of the program");
    return advice;
}

} // namespace

Error::Error(Number number, std::string file, const std::string& why, std::string advice)
    : std::runtime_error(why.empty() ? usualFor(number).reason : why), m_number(number), m_file(std::move(file)),
      m_advice(addressed(advice.empty() ? usualFor(number).advice : std::move(advice), m_file)) {}

std::string Error::message() const {
    std::string text;
    for (const std::string& part : {m_file, why(), m_advice})
        if (!part.empty()) text += part + "\n";
    return text + "Error (" + std::to_string(number()) + ")";
}

} // namespace store
