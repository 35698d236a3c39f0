#pragma once

#include <optional>
#include <string>
#include <vector>

#include "assessment/tables.h"

/// Money lines of the three needs analyses that a list may replace: each property with its value instead of one sum. A
/// list may also say when each amount falls due, by age or by year.
namespace analyses {

/// The columns after the text: amount, escalation, from and to; the amount only; amount and time.
enum class ItemKind { income, capital, timed };

/// A column of a list. The first is the text, the others are figures.
struct ItemColumn {
    const char* head;
    const char* mask;                              ///< see base::formatNumber; null for the text
    double most = 0;                               ///< highest figure (the lowest is 0), or longest text in characters
    const char* complaint = nullptr;               ///< the message for a cell beyond that
    double assessment::ItemRow::*figure = nullptr; ///< where a figure is stored; null for the text
};

/// One line that may be itemised.
struct ItemLine {
    int index;         ///< of its button `cmdItemise` on the screen
    std::string title; ///< of its grid
    ItemKind kind;
    const assessment::ItemTable* table; ///< its flag, its rows and where they are stored
    /// The plain amount, rand, that receives the list's sum. Null for the two income lines: incomes of different years
    /// have no useful sum.
    double& (*amount)(assessment::Assessment&) = nullptr;
    /// Calculates what an income line shows instead of a sum; null if it shows nothing of its list.
    void (*derive)(assessment::Assessment&) = nullptr;

    /// Its columns, 5 for incomes, 2 for capital, 3 for timed amounts; retirement counts ages, the others years.
    const std::vector<ItemColumn>& columns() const;
    assessment::ItemList& list(assessment::Assessment& record) const { return table->list(record.itemised); }
};

/// The lines of an analysis that have a list, in the order of screen and printout: incomes, capital, expenses. Does not
/// include the line that the policies fill.
const std::vector<ItemLine>& itemLines(assessment::Analysis analysis);

/// Sum of the amounts, rand.
double sumOfItems(const std::vector<assessment::ItemRow>& rows);

/// Stores the rows as the line's list; without rows, one blank row. The list is in use (flag 1) if its amounts sum to
/// more than 0, otherwise the plain amount counts again (flag 0). The sum goes into the plain amount; for an income
/// line `derive` runs instead.
void takeItems(assessment::Assessment& record, const ItemLine& line, std::vector<assessment::ItemRow> rows);

/// The income and period that a list of required incomes amounts to.
struct IncomeAsked {
    double monthly =
        0; ///< rand: the rows that start in the first year, or if none does exactly then, all that start later
    double years = 0; ///< from the lowest From to the highest To of the rows with an amount, 0 to 50
};

/// `first` is the age or year in which the analysis begins; rows that start earlier do not count. If all rows end
/// before they begin, the period is 0. Nothing if the list sums to 0 or less.
std::optional<IncomeAsked> incomeAsked(const std::vector<assessment::ItemRow>& rows, double first);

/// Sets what the income lines of an analysis show, from their lists in use. Call it again when another input changes:
/// retirement also depends on the age.
void deriveItemised(assessment::Assessment& record, assessment::Analysis analysis);

} // namespace analyses
