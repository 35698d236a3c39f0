#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "datastore/printfeed.h"

/// Lists for following clients up: those due for a review, and birthdays. A search fills the working table `DBSearch`
/// of the client database; the search and the emptying before it are one transaction. All functions throw store::Error;
/// nothing is changed then.
namespace diary {

enum class ReviewScope { everyone, lastReviewed, nextReview };
enum class NeedsAnalysis { death, disability, retirement, education };

/// What to look for. Dates are day numbers, both ends included; base::NoDate for an empty one.
struct ReviewSearch {
    ReviewScope scope = ReviewScope::everyone;
    NeedsAnalysis analysis = NeedsAnalysis::death;
    double start = -693959, end = -693959; ///< of the scope's own dates
    bool byDate = false; ///< order by review date instead of by name; everyone is always listed by name
    bool operator==(const ReviewSearch&) const = default;
};

enum class Born { clients, spouses, dependants };

struct BirthdaySearch {
    Born who = Born::clients;
    int month = 0;                     ///< 1 to 12
    double startAge = 0, endAge = 120; ///< whole years, start not above end
    bool byDate = false;               ///< order by birth date, its year first, instead of by surname
    bool operator==(const BirthdaySearch&) const = default;
};

/// One line of a list. Dates are day numbers; base::NoDate is none.
struct FoundClient {
    std::string ClientName; ///< title, initials and surname
    std::string other;      ///< the spouse or dependant
    std::string IDNumber;
    double BirthDate = 0;
    double ReviewDate = 0;
    bool operator==(const FoundClient&) const = default;
};

/// The clients whose chosen analysis was last reviewed, or is to be reviewed next, in the range; or everyone. Without
/// both dates of a range there is nobody.
std::vector<FoundClient> searchReviews(const std::filesystem::path& dataDb, const ReviewSearch& search);

/// The dates of birth to which an age range belongs, as day numbers: today less the whole part of 365.25 days for each
/// year of age.
struct BirthRange {
    double from = 0, to = 0;
};
BirthRange birthRange(double today, double startAge, double endAge);

/// The birthdays in a month of the people in the age range. Nobody without a date of birth (1 January 1800) is listed.
std::vector<FoundClient> searchBirthdays(const std::filesystem::path& dataDb, const BirthdaySearch& search,
                                         double today);

/// What is printed above a list of reviews; the dates are those of the search.
std::string reviewHeading(const ReviewSearch& search);

/// Write a list into Print.mdb and return the report to run.
datastore::Printout feedReviews(const std::filesystem::path& printDb, const ReviewSearch& search,
                                const std::vector<FoundClient>& found);
datastore::Printout feedBirthdays(const std::filesystem::path& printDb, const BirthdaySearch& search,
                                  const std::vector<FoundClient>& found);

} // namespace diary
