#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "assessment/assessment.h"
#include "datastore/paths.h"
#include "datastore/printfeed.h"
#include "tax/taxreports.h"

/// The client file: all that was worked out for a client as one document. Each part of it is a report, or a few, that a
/// screen also prints alone; here they are fed and chosen without any screen, with the same words and figures.
namespace clientfile {

/// What a part can include besides its report.
enum class Choice {
    notes,        ///< the notes of an analysis, of the personal details or of each policy
    amortisation, ///< the table by year, or by month where there is no other
    monthly,      ///< with `amortisation`: the table by month instead of that by year
    premium,      ///< the premium for the capital, if one is solved
    itemised,     ///< the lists behind the lines of an analysis
    commissions,  ///< the sentences on commissions
    charges,      ///< total interest and total repayments of a loan
    knownGains,   ///< gains from trusts and other sources
};
using Choices = std::set<Choice>;

/// Everything that the parts are made from.
struct Source {
    assessment::Assessment record; ///< a copy
    datastore::Paths paths;        ///< `PrintDbPath` is the document's own
    double today = 0;
    std::optional<tax::MonthShown> month; ///< the monthly tax on its screen, which is stored nowhere
};

/// Runs the report of a printout on the rows just fed.
using Print = std::function<void(const datastore::Printout&)>;

/// A part of the client file.
struct Part {
    const char* name;  ///< in the user's settings
    const char* title; ///< in the list of parts and in the contents
    std::vector<Choice> choices;
    /// Why it can't be printed, as a sentence; empty if it can. Fast enough for a screen that comes to the front.
    std::string (*whyNot)(const Source&);
    /// Works out on a copy of the record what its screen would show if it were opened today, feeds the reports one by
    /// one, and prints each, in the order of the screen. Prints nothing for figures that the screen would not print.
    void (*print)(const Source&, const Choices&, const Print&);
    /// A sentence that says that a stored result is not what the record gives today; empty if none differs. Null for a
    /// part without stored results.
    std::string (*remark)(const Source&) = nullptr;
};

/// All parts in the order of the document. The cover comes first; the contents follow it.
const std::vector<Part>& parts();

/// The part's remark, empty if it has none. For a part that can be printed: nobody asks for results that are not there.
std::string remarkOn(const Part& part, const Source& source);

} // namespace clientfile
