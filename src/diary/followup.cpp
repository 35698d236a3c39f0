#include "diary/followup.h"

#include <algorithm>
#include <cmath>

#include "base/day.h"
#include "base/fold.h"
#include "store/database.h"

namespace diary {

namespace {

/// The fields of `Data` with the last and the next review of each needs analysis.
constexpr const char* reviewFields[][2] = {{"DTHLastReview", "DTHNextReview"},
                                           {"DISALastReview", "DISANextReview"},
                                           {"NaraLastReview", "NaraNextReview"},
                                           {"EducLastReview", "EducNextReview"}};
constexpr int dependants = 8;

std::string digits(double wholeNumber) { return std::to_string(std::llround(wholeNumber)); }

/// Reads `DBSearch`: name, spouse or dependant, ID number and both dates, ordered by a text column, or first by a date.
std::vector<FoundClient> readFound(store::Database& database, const std::string& other, const std::string& order,
                                   double FoundClient::*date, const std::string& rest = {}) {
    store::Statement rows =
        database.prepare("SELECT [Client Name], " + other + ", [IDNumber], [BirthDate], " +
                         "coalesce([ReviewDate], -693959), " + order + " FROM [DBSearch]" + rest + " ORDER BY rowid");
    struct Place {
        base::SortKey text;
        double date;
        std::size_t at; ///< equal ones stay in the order in which they were found
    };
    std::vector<FoundClient> found;
    std::vector<Place> places;
    while (rows.step()) {
        found.push_back({rows.text(0), rows.text(1), rows.text(2),
                         store::isNull(rows.column(3)) ? base::NoDate : rows.number(3), rows.number(4)});
        places.push_back({base::SortKey(rows.text(5)), date != nullptr ? found.back().*date : 0, places.size()});
    }
    std::ranges::sort(places, [](const Place& a, const Place& b) {
        if (a.date != b.date) return a.date < b.date;
        if (a.text < b.text) return true;
        return !(b.text < a.text) && a.at < b.at;
    });
    std::vector<FoundClient> sorted;
    sorted.reserve(found.size());
    for (const Place& place : places)
        sorted.push_back(std::move(found[place.at]));
    return sorted;
}

/// True for a day number of this month, also before 1900, without a time of day or with one.
std::string isInMonth(const std::string& field, int month) {
    return field + " > " + digits(base::blankDate) + " AND CAST(strftime('%m', " + field +
           " + 2415018.5) AS INTEGER) = " + std::to_string(month);
}

void insertBirthdays(store::Database& database, const BirthdaySearch& search) {
    const auto insert = [&](const std::string& into, const std::string& from, const std::string& date) {
        database.execute("INSERT INTO [DBSearch] ([Client Name], [IDNumber], [NameOrder], [BirthDate]" + into +
                         ") SELECT [Name], [IDNumber], [CLName], " + date + from + " FROM [PersDetails] WHERE " +
                         isInMonth(date, search.month) + " ORDER BY rowid");
    };
    switch (search.who) {
    case Born::clients: return insert("", "", "[BirthDate]");
    case Born::spouses:
        return insert(", [Spouse]",
                      ", coalesce([STitle], '') || ' ' || coalesce([SInit], '') || ' ' || coalesce([SLName], '')",
                      "[SDOB]");
    case Born::dependants:
        for (int slot = 1; slot <= dependants; ++slot) {
            const std::string number = std::to_string(slot);
            insert(", [Dependant]", ", [DEP" + number + "]", "[DEPDOB" + number + "]");
        }
    }
}

std::string dateText(double day) { return base::isShownOnScreen(day) ? base::formatDate(day) : " "; }

} // namespace

std::vector<FoundClient> searchReviews(const std::filesystem::path& dataDb, const ReviewSearch& search) {
    store::Database database(dataDb);
    store::Transaction transaction(database);
    database.execute("DELETE FROM [DBSearch]");
    // No date in the file becomes what an empty date field holds.
    const std::string birthDate =
        "CASE [BirthDate] WHEN " + digits(base::blankDate) + " THEN " + digits(base::NoDate) + " ELSE [BirthDate] END";
    const bool isRange = search.scope != ReviewScope::everyone;
    if (!isRange)
        database.execute("INSERT INTO [DBSearch] ([Client Name], [BirthDate], [IDNumber]) SELECT [Name], " + birthDate +
                         ", [IDNumber] FROM [Data] ORDER BY rowid");
    else if (search.start != base::NoDate && search.end != base::NoDate) {
        const std::string field = store::bracketed(
            reviewFields[static_cast<int>(search.analysis)][search.scope == ReviewScope::nextReview ? 1 : 0]);
        database.execute(
            "INSERT INTO [DBSearch] ([Client Name], [BirthDate], [IDNumber], [ReviewDate]) SELECT [Name], " +
            birthDate + ", [IDNumber], " + field + " FROM [Data] WHERE " + field + " BETWEEN " + digits(search.start) +
            " AND " + digits(search.end) + " ORDER BY rowid");
    }
    std::vector<FoundClient> found =
        readFound(database, "''", "[Client Name]", isRange && search.byDate ? &FoundClient::ReviewDate : nullptr);
    transaction.commit();
    return found;
}

BirthRange birthRange(double today, double startAge, double endAge) {
    return {today - std::floor(365.25 * endAge), today - std::floor(365.25 * startAge)};
}

std::vector<FoundClient> searchBirthdays(const std::filesystem::path& dataDb, const BirthdaySearch& search,
                                         double today) {
    store::Database database(dataDb);
    store::Transaction transaction(database);
    database.execute("DELETE FROM [DBSearch]");
    insertBirthdays(database, search);
    const BirthRange range = birthRange(today, search.startAge, search.endAge);
    constexpr const char* others[] = {"''", "[Spouse]", "[Dependant]"};
    std::vector<FoundClient> found =
        readFound(database, others[static_cast<int>(search.who)], "[NameOrder]",
                  search.byDate ? &FoundClient::BirthDate : nullptr,
                  " WHERE [BirthDate] BETWEEN " + digits(range.from) + " AND " + digits(range.to));
    transaction.commit();
    return found;
}

// ---- printing

std::string reviewHeading(const ReviewSearch& search) {
    const std::string dates = base::formatDate(search.start) + " and " + base::formatDate(search.end);
    switch (search.scope) {
    case ReviewScope::lastReviewed: return "Schedule of Customers Last Reviewed between " + dates;
    case ReviewScope::nextReview: return "Schedule of Customers To Be Reviewed Next between " + dates;
    case ReviewScope::everyone: break;
    }
    return "Schedule of entire database.";
}

datastore::Printout feedReviews(const std::filesystem::path& printDb, const ReviewSearch& search,
                                const std::vector<FoundClient>& found) {
    datastore::PrintFeed feed(printDb, "");
    const bool isRange = search.scope != ReviewScope::everyone;
    feed.replace("AllDetailsHeader", {{"Name", reviewHeading(search)},
                                      {"NameA", "Client Name"},
                                      {"BirthDate", "Date Of Birth"},
                                      {"IDNumber", "ID Number"},
                                      {"ReviewDate", isRange ? "Review Date" : ""}});
    feed.clear("AllDetails");
    for (int number = 0; const FoundClient& client : found)
        feed.add("AllDetails", {{"NewGrid", ++number},
                                {"Client Name", client.ClientName},
                                {"BirthDate", dateText(client.BirthDate)},
                                {"IDNumber", client.IDNumber},
                                {"ReviewDate", dateText(client.ReviewDate)}});
    feed.commit();
    return {"\\FindCust.rpt", "Schedule of Customers Needs Analysis Review Dates - To export printout click on the "
                              "suitcase button or goto Marlowbeck Help"};
}

datastore::Printout feedBirthdays(const std::filesystem::path& printDb, const BirthdaySearch& search,
                                  const std::vector<FoundClient>& found) {
    constexpr const char* headings[] = {"Schedule of Client Birthdays.", "Schedule of Spouses Birthdays.",
                                        "Schedule of Dependants Birthdays."};
    constexpr const char* names[] = {"Client Name", "Spouse", "Dependant"};
    const auto who = static_cast<std::size_t>(search.who);
    const bool isClients = search.who == Born::clients;
    datastore::PrintFeed feed(printDb, "");
    feed.replace("AllDetailsHeader", {{"Name", headings[who]},
                                      {"NameA", names[who]},
                                      {"BirthDate", "Date Of Birth"},
                                      {"IDNumber", isClients ? "ID Number" : "Client Name"},
                                      {"ReviewDate", ""}});
    feed.clear("AllDetails");
    for (int number = 0; const FoundClient& one : found)
        feed.add("AllDetails", {{"NewGrid", ++number},
                                {"Client Name", isClients ? one.ClientName : one.other},
                                {"BirthDate", dateText(one.BirthDate)},
                                {"IDNumber", isClients ? one.IDNumber : one.ClientName}});
    feed.commit();
    return {"\\FndBirth.rpt",
            "Schedule of Birthdays - To export printout click on the suitcase button or goto Marlowbeck Help"};
}

} // namespace diary
