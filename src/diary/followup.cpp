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

/// Sorts by the text or the date; equal ones stay in the order in which they were found.
void sortByText(std::vector<FoundClient>& found, const std::vector<std::string>& texts) {
    std::vector<std::pair<base::SortKey, std::size_t>> order;
    order.reserve(found.size());
    for (const std::string& text : texts)
        order.emplace_back(text, order.size());
    std::ranges::stable_sort(order, [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<FoundClient> sorted;
    sorted.reserve(found.size());
    for (const auto& [key, at] : order)
        sorted.push_back(std::move(found[at]));
    found = std::move(sorted);
}

/// Reads `DBSearch`: name, spouse or dependant, ID number, both dates, and the text to sort by.
std::vector<FoundClient> readFound(store::Database& database, const std::string& other, const std::string& order,
                                   const std::string& rest) {
    store::Statement rows =
        database.prepare("SELECT [Client Name], " + other + ", [IDNumber], [BirthDate], " +
                         "coalesce([ReviewDate], -693959), " + order + " FROM [DBSearch]" + rest + " ORDER BY rowid");
    std::vector<FoundClient> found;
    std::vector<std::string> texts;
    while (rows.step()) {
        found.push_back({rows.text(0), rows.text(1), rows.text(2),
                         store::isNull(rows.column(3)) ? base::NoDate : rows.number(3), rows.number(4)});
        texts.push_back(rows.text(5));
    }
    sortByText(found, texts);
    return found;
}

/// True for a day number of this month, also before 1900, without a time of day or with one.
std::string isInMonth(const std::string& field, int month) {
    return "CAST(strftime('%m', " + field + " + 2415018.5) AS INTEGER) = " + std::to_string(month) + " AND " + field +
           " > " + digits(base::blankDate);
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
    const bool isRange = search.scope != ReviewScope::everyone;
    if (!isRange)
        database.execute("INSERT INTO [DBSearch] ([Client Name], [BirthDate], [IDNumber]) "
                         "SELECT [Name], [BirthDate], [IDNumber] FROM [Data] ORDER BY rowid");
    else if (search.start != base::NoDate && search.end != base::NoDate) {
        const std::string field = store::bracketed(
            reviewFields[static_cast<int>(search.analysis)][search.scope == ReviewScope::nextReview ? 1 : 0]);
        database.execute("INSERT INTO [DBSearch] ([Client Name], [BirthDate], [IDNumber], [ReviewDate]) "
                         "SELECT [Name], [BirthDate], [IDNumber], " +
                         field + " FROM [Data] WHERE " + field + " BETWEEN " + digits(search.start) + " AND " +
                         digits(search.end) + " ORDER BY rowid");
    }
    database.execute("UPDATE [DBSearch] SET [BirthDate] = " + digits(base::NoDate) +
                     " WHERE [BirthDate] = " + digits(base::blankDate));
    std::vector<FoundClient> found = readFound(database, "''", "[Client Name]", "");
    if (isRange && search.byDate) std::ranges::stable_sort(found, {}, &FoundClient::ReviewDate);
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
                  " WHERE [BirthDate] BETWEEN " + digits(range.from) + " AND " + digits(range.to));
    if (search.byDate) std::ranges::stable_sort(found, {}, &FoundClient::BirthDate);
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
