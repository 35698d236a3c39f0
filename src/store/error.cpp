#include "store/error.h"

#include <utility>

namespace store {

namespace {

struct Usual {
    Number number;
    const char* reason;
    const char* advice;
};

constexpr const char* seekRestore =
    "Put back the last backup (Restore), or copy the file from your own backup, and try again.";
constexpr const char* reinstall = "The file may be of another version. Install the program again; clients are kept.";
constexpr const char* makeRoom = "Delete what you no longer need or empty the waste basket, then try again. What was "
                                 "on the disk before is unchanged.";
constexpr const char* askOwner =
    "Ask whoever looks after this computer for the right to read and write the file and its folder, then try again.";
constexpr const char* checkPath =
    "Check that the disk or network share is connected and that the path in DataPath.txt is right, then try again.";
constexpr const char* report = "Try again. If it happens a second time, note what you did and report this message.";

constexpr Usual usual[] = {
    {Number::fileNotFound53, "The file was not found.", "Check its name and its folder, then try again."},
    {Number::deviceError, "The disk could not be read or written.",
     "Check that the disk or network share is connected, make a backup elsewhere and try again."},
    {Number::fileExists58, "There is a file of this name already.", "Choose another name, or move that file away."},
    {Number::diskFull61, "The disk is full.", makeRoom},
    {Number::deviceUnavailable, "The disk or drive is not available.", "Connect it and try again."},
    {Number::permissionDenied, "You are not allowed to read or write this file.", askOwner},
    {Number::diskNotReady, "The disk is not ready.", "Put it in or connect it, wait a moment and try again."},
    {Number::pathAccess, "The file cannot be used at this place.",
     "Check that the name is that of a file, not of a folder, and that the file can be changed."},
    {Number::pathNotFound, "The folder was not found.",
     "Check that the disk or network share is connected and that the folder's name is right."},
    {Number::null, "A field that must have a value is empty.", seekRestore},
    {Number::reserved, "The database could not do what was asked of it.", report},
    {Number::tableExists, "The table exists already.", "Nothing was changed; the table can be used as it is."},
    {Number::noSuchTable, "A table that the program needs is missing in this file.", reinstall},
    {Number::noCurrentRecord, "A table that must have a row is empty.", reinstall},
    {Number::fileNotFound, "The database was not found.", checkPath},
    {Number::diskFull, "The disk is full, or the database may grow no further.", makeRoom},
    {Number::readOnly, "The database is read-only, so nothing can be saved in it.",
     "Allow the file to be written (its properties, \"Permissions\"), or work on a copy that you may write."},
    {Number::badPath, "The folder of the database was not found.", checkPath},
    {Number::corrupt, "The database is damaged or was cut short.", seekRestore},
    {Number::heldByAnother, "Another program is using the database.",
     "Close the other program, or wait until it is done, and try again. Nothing was changed."},
    {Number::cannotOpen, "The database, or the folder that it lies in, cannot be opened for this.", askOwner},
    {Number::noSuchTableInQuery, "A table that the program needs is missing in this file.", reinstall},
    {Number::textTooLong, "The field is too small to accept the amount of data you attempted to add.",
     "Shorten the text and try again."},
    {Number::fieldDefined, "The table has a field of this name already.",
     "Nothing was changed; the field can be used as it is."},
    {Number::databaseExists, "There is a database of this name already.",
     "Choose another name, or move that file away."},
    {Number::noSuchField, "A field that the program needs is missing in this file.", reinstall},
    {Number::indexExists, "The index exists already.", "Nothing was changed; the index can be used as it is."},
    {Number::notADatabase, "This file is not a database.", seekRestore},
    {Number::wrongType, "A value does not fit the kind of field that it is meant for.",
     "Check the figures on the screen and try again."},
};

const Usual& usualFor(Number number) {
    for (const auto& entry : usual)
        if (entry.number == number) return entry;
    return usualFor(Number::reserved);
}

} // namespace

Error::Error(Number number, std::string file, const std::string& why, std::string advice)
    : std::runtime_error(why.empty() ? usualReason(number) : why), m_number(number), m_file(std::move(file)),
      m_advice(advice.empty() ? usualAdvice(number) : std::move(advice)) {}

std::string Error::message() const {
    std::string text;
    for (const std::string& part : {m_file, why(), m_advice})
        if (!part.empty()) text += part + "\n";
    return text + "Error (" + std::to_string(number()) + ")";
}

std::string usualReason(Number number) { return usualFor(number).reason; }
std::string usualAdvice(Number number) { return usualFor(number).advice; }

} // namespace store
