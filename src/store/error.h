#pragma once

#include <stdexcept>
#include <string>

namespace store {

/// The numbers that identify a failure of a database or a file. Every message ends with its number.
enum class Number {
    fileNotFound53 = 53,
    deviceError = 57,
    fileExists58 = 58,
    diskFull61 = 61,
    deviceUnavailable = 68,
    permissionDenied = 70,
    diskNotReady = 71,
    pathAccess = 75,
    pathNotFound = 76,
    null = 94,
    invalidFileFormat = 321,
    reserved = 3000,
    tableExists = 3010,
    noSuchTable = 3011,
    noCurrentRecord = 3021,
    fileNotFound = 3024,
    diskFull = 3026,
    readOnly = 3027,
    badPath = 3044,
    corrupt = 3049,
    heldByAnother = 3356,
    cannotOpen = 3051,
    noSuchTableInQuery = 3078,
    textTooLong = 3163,
    fieldDefined = 3191,
    changedByAnother = 3197,
    databaseExists = 3204,
    noSuchField = 3265,
    indexExists = 3284,
    notADatabase = 3343,
    wrongType = 3421,
};

/// Every failure of a database or a file: what failed, on which file, why, and what the user can do about it.
class Error : public std::runtime_error {
public:
    /// why: one sentence in plain words; advice: what the user can do, with {name} for the file's name and {folder} for
    /// its folder. If empty, the standard text for the number is used.
    Error(Number number, std::string file, const std::string& why = {}, std::string advice = {});

    int number() const { return static_cast<int>(m_number); }
    Number kind() const { return m_number; }
    bool is(Number number) const { return m_number == number; }
    const std::string& file() const { return m_file; }
    std::string why() const { return what(); }
    const std::string& advice() const { return m_advice; }

    /// The whole message: file, reason, advice and number in brackets, each on its own line.
    std::string message() const;

private:
    Number m_number;
    std::string m_file;
    std::string m_advice;
};

} // namespace store
