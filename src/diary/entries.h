#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "diary/daykinds.h"
#include "store/value.h"

/// The diary's entries, in Diary.mdb. Each function opens the file for itself. All throw store::Error: 3024 for a
/// missing file, which is never created here, 3343 for one that is no database.
namespace diary {

/// The columns of an entry in the order in which a day's list holds them.
enum class Column { time, date, name, details, day, timeOrder, client, type };

/// One row of `DiaryDates`. It keeps each value as the file holds it, Null too, so that a day that is written again
/// leaves the entries that nobody touched as they were.
struct Entry {
    std::array<store::Value, 8> values;

    std::string text(Column column) const; ///< empty for Null
    double number(Column column) const;    ///< 0 for Null
    store::Value& operator[](Column column) { return values[static_cast<std::size_t>(column)]; }
    bool operator==(const Entry&) const = default;
};

inline constexpr const char* appointment = "Appointment";
inline constexpr const char* birthday = "Birthday";
inline constexpr const char* toDo = "To Do";

/// The times that can be picked: quarter hours from "08:00 AM", number 101, to "06:00 PM", number 141.
const std::vector<std::string>& times();
/// The number of the time in this row of `times()`.
inline double timeNumber(std::size_t row) { return 101 + static_cast<double>(row); }

/// A new entry on this day.
Entry makeEntry(double day, std::size_t time, const std::string& name, double client, const std::string& details,
                const std::string& type);

/// The entries of a day by the number of their time; those of one time in the order in which they were added.
std::vector<Entry> readDay(const std::filesystem::path& diaryDb, double day);
/// The entries from a day on, by day and time.
std::vector<Entry> readFrom(const std::filesystem::path& diaryDb, double firstDay);
/// Sorts the entries of a day like `readDay`.
void sortByTime(std::vector<Entry>& entries);

/// Replaces the whole day by these entries, in one transaction (a day is saved, an entry is cut or deleted).
void SaveDiaryAppoints(const std::filesystem::path& diaryDb, double day, const std::vector<Entry>& entries);
/// Adds an entry to its own day (an entry that was cut from another day).
void SaveMovedDiaryAppoint(const std::filesystem::path& diaryDb, const Entry& entry);
/// Replaces a day by the entries that stay there, and adds one that moves to its own day, in one transaction.
void moveEntry(const std::filesystem::path& diaryDb, double from, const std::vector<Entry>& staying,
               const Entry& moved);

/// The kinds of a month's days with its entries marked: 4 for an appointment, 5 for a birthday; of several on a day the
/// last by time. Other types mark nothing.
std::vector<DayKind> ColorAppDates(const std::filesystem::path& diaryDb, Month month);

/// A type of entry that the user has set up, in place 1 to 3.
struct UserType {
    std::string caption;
    bool isInUse = false;
    bool operator==(const UserType&) const = default;
};
/// The three types; a place without a row is "U.D.D.E. n", not in use.
std::array<UserType, 3> LoadDiaryTypes(const std::filesystem::path& diaryDb);
/// The caption of a place that is not in use.
std::string unusedCaption(int which);
/// Sets up the type in a place, 1 to 3; a blank caption removes it: its row stays, as "U.D.D.E. n", not in use. Entries
/// of that type are left as they are. The caption is cut at the 50 characters of its column.
void SaveDiaryType(const std::filesystem::path& diaryDb, int which, const std::string& caption);

} // namespace diary
