#include "diary/entries.h"

#include <algorithm>
#include <cstdio>

#include "base/day.h"
#include "base/text.h"
#include "datastore/row.h"
#include "store/database.h"

namespace diary {

namespace {

constexpr const char* types = "Type_Diary_Apps";
constexpr std::array columns{
    "Time",       "Diary Date",         "Name", "Appointment details", "Real Sort Order", "Real Sort Order Time",
    "DiaryDCLNO", "Type of Diary Entry"};

std::vector<Entry> read(store::Database& database, const std::string& which, std::initializer_list<double> values) {
    std::string sql = "SELECT ";
    for (const char* column : columns)
        sql += (column == columns.front() ? "" : ", ") + store::bracketed(column);
    store::Statement rows = database.prepare(sql + " FROM [DiaryDates] WHERE " + which);
    for (int index = 0; const double value : values)
        rows.bind(++index, value);
    std::vector<Entry> entries;
    while (rows.step()) {
        Entry& entry = entries.emplace_back();
        for (std::size_t i = 0; i < columns.size(); ++i)
            entry.values[i] = rows.column(static_cast<int>(i));
    }
    return entries;
}

/// Binds the values as they are: a row of which another program wrote more than its column declares is kept whole too.
void insert(store::Database& database, const std::vector<Entry>& entries) {
    std::string names, places;
    for (const char* column : columns) {
        names += (names.empty() ? "" : ", ") + store::bracketed(column);
        places += places.empty() ? "?" : ", ?";
    }
    store::Statement insertion = database.prepare("INSERT INTO [DiaryDates] (" + names + ") VALUES (" + places + ")");
    for (const Entry& entry : entries) {
        for (std::size_t i = 0; i < columns.size(); ++i)
            insertion.bind(static_cast<int>(i) + 1, entry.values[i]);
        insertion.run();
    }
}

void replaceDay(store::Database& database, double day, const std::vector<Entry>& entries) {
    database.prepare("DELETE FROM [DiaryDates] WHERE [Real Sort Order] = ?").bind(1, day).run();
    insert(database, entries);
}

} // namespace

std::string Entry::text(Column column) const {
    const auto* words = std::get_if<std::string>(&values[static_cast<std::size_t>(column)]);
    return words != nullptr ? *words : std::string();
}

double Entry::number(Column column) const {
    const auto* figure = std::get_if<double>(&values[static_cast<std::size_t>(column)]);
    return figure != nullptr ? *figure : 0;
}

const std::vector<std::string>& times() {
    static const std::vector<std::string> all = [] {
        std::vector<std::string> texts;
        for (int minutes = 8 * 60; minutes <= 18 * 60; minutes += 15) {
            char text[16];
            std::snprintf(text, sizeof text, "%02d:%02d %s", (minutes / 60 + 11) % 12 + 1, minutes % 60,
                          minutes < 12 * 60 ? "AM" : "PM");
            texts.emplace_back(text);
        }
        return texts;
    }();
    return all;
}

Entry makeEntry(double day, std::size_t time, const std::string& name, double client, const std::string& details,
                const std::string& type) {
    return {{times().at(time), base::formatDate(day), name, details, day, timeNumber(time), client, type}};
}

void sortByTime(std::vector<Entry>& entries) {
    std::ranges::stable_sort(entries, {}, [](const Entry& entry) { return entry.number(Column::timeOrder); });
}

std::vector<Entry> readDay(const std::filesystem::path& diaryDb, double day) {
    store::Database database(diaryDb);
    return read(database, "[Real Sort Order] = ? ORDER BY [Real Sort Order Time], rowid", {day});
}

std::vector<Entry> readFrom(const std::filesystem::path& diaryDb, double firstDay) {
    store::Database database(diaryDb);
    return read(database, "[Real Sort Order] >= ? ORDER BY [Real Sort Order], [Real Sort Order Time], rowid",
                {firstDay});
}

void SaveDiaryAppoints(const std::filesystem::path& diaryDb, double day, const std::vector<Entry>& entries) {
    store::Database database(diaryDb);
    store::Transaction transaction(database);
    replaceDay(database, day, entries);
    transaction.commit();
}

void SaveMovedDiaryAppoint(const std::filesystem::path& diaryDb, const Entry& entry) {
    store::Database database(diaryDb);
    store::Transaction transaction(database);
    insert(database, {entry});
    transaction.commit();
}

void moveEntry(const std::filesystem::path& diaryDb, double from, const std::vector<Entry>& staying,
               const Entry& moved) {
    store::Database database(diaryDb);
    store::Transaction transaction(database);
    replaceDay(database, from, staying);
    insert(database, {moved});
    transaction.commit();
}

std::vector<DayKind> ColorAppDates(const std::filesystem::path& diaryDb, Month month) {
    std::vector<DayKind> kinds = dayKinds(month.year, month.month);
    const MonthDays days = daysOf(month);
    store::Database database(diaryDb);
    const auto entries =
        read(database, "[Real Sort Order] BETWEEN ? AND ? ORDER BY [Real Sort Order], [Real Sort Order Time], rowid",
             {days.first, days.last});
    for (const Entry& entry : entries) {
        DayKind& kind = kinds[static_cast<std::size_t>(entry.number(Column::day) - days.first)];
        const std::string type = entry.text(Column::type);
        if (type == appointment) kind = DayKind::appointment;
        if (type == birthday) kind = DayKind::birthday;
    }
    return kinds;
}

// ---- the user's own types

std::string unusedCaption(int which) { return "U.D.D.E. " + std::to_string(which); }

std::array<UserType, 3> LoadDiaryTypes(const std::filesystem::path& diaryDb) {
    std::array<UserType, 3> loaded;
    for (int which = 1; UserType & type : loaded)
        type.caption = unusedCaption(which++);
    store::Database database(diaryDb);
    store::Statement rows =
        database.prepare("SELECT [Type of Diary Appointments], [WhichUDDE], [UDDEYesNo] FROM [Type_Diary_Apps]");
    while (rows.step())
        for (int which = 1; UserType & type : loaded)
            if (rows.number(1) == which++ && rows.number(2) != 0 && !base::trim(rows.text(0)).empty())
                type = {rows.text(0), true};
    return loaded;
}

void SaveDiaryType(const std::filesystem::path& diaryDb, int which, const std::string& caption) {
    const bool isInUse = !base::trim(caption).empty();
    const std::string stored = isInUse ? base::firstCharacters(caption, 50) : unusedCaption(which);
    const datastore::Row row{
        {"Type of Diary Appointments", stored}, {"WhichUDDE", which}, {"UDDEYesNo", isInUse ? 1 : 0}};
    store::Database database(diaryDb);
    store::Transaction transaction(database);
    store::Statement present = database.prepare("SELECT rowid FROM [Type_Diary_Apps] WHERE [WhichUDDE] = ?");
    const bool isThere = present.bind(1, static_cast<double>(which)).step();
    const double rowid = isThere ? present.number(0) : 0;
    present.reset();
    store::Statement writing =
        isThere ? datastore::prepareUpdate(database, types, row) : datastore::insertion(database, types, row);
    datastore::bindRow(writing, row, database, types, datastore::requiredColumns(database, types));
    if (isThere) writing.bind(static_cast<int>(row.size()) + 1, rowid);
    writing.run();
    transaction.commit();
}

} // namespace diary
