#pragma once

#include <optional>
#include <string>
#include <vector>

#include "assessment/tables.h"

/// Money lines of the three big analyses that a list may take the place of: each property with its value where the
/// line would hold one sum. A list also says when each amount falls, by age or by year.
namespace analyses {

/// What a list asks for behind the text: amount, escalation, from and to; the amount alone; amount and when.
enum class ItemKind { income, capital, timed };

/// A column of a list. The first is the text, the others are figures.
struct ItemColumn {
    const char* head;
    const char* mask;                              ///< see base::formatNumber; null: the text
    double most = 0;                               ///< figures go from 0 to this; of the text the characters at most
    const char* complaint = nullptr;               ///< the box for a cell beyond that
    double assessment::ItemRow::*figure = nullptr; ///< where a figure lies; null: the text
};

/// One line that may be itemised.
struct ItemLine {
    int index;         ///< of its button `cmdItemise` on the screen
    std::string title; ///< of its grid
    ItemKind kind;
    const assessment::ItemTable* table; ///< its flag, its rows and where they are stored
    /// The plain amount, rand, that the list's sum goes into. Null for the two income lines: a list of incomes has no
    /// one sum, since each row has its own span.
    double& (*amount)(assessment::Assessment&) = nullptr;
    /// Works out what an income line shows instead of a sum; null: it shows nothing of its list.
    void (*derive)(assessment::Assessment&) = nullptr;

    /// Its columns, 5 for incomes, 2 for capital, 3 for timed amounts; retirement counts ages, the others years.
    const std::vector<ItemColumn>& columns() const;
    assessment::ItemList& list(assessment::Assessment& record) const { return table->list(record.itemised); }
};

/// The lines of an analysis that have a list, in the order of screen and printout: incomes, capital, expenses. The line
/// that the policies feed is not among them.
const std::vector<ItemLine>& itemLines(assessment::Analysis analysis);

/// Sum of the amounts, rand.
double sumOfItems(const std::vector<assessment::ItemRow>& rows);

/// Makes the rows the line's list; none count as one blank row. The list is in use (flag 1) if its amounts sum to more
/// than 0, otherwise the plain amount counts again (flag 0). The sum goes into the plain amount; an income line is
/// derived instead.
void takeItems(assessment::Assessment& record, const ItemLine& line, std::vector<assessment::ItemRow> rows);

/// What a list of the income required asks for.
struct IncomeAsked {
    double monthly =
        0; ///< rand: the rows that start in the first year, or if none does exactly then, all that start later
    double years = 0; ///< from the lowest From to the highest To of the rows with an amount, 0 to 50
};

/// What a list asks for, `first` being the age or year that the analysis begins with; what starts earlier counts
/// nothing. Rows that all end before they begin last no time. Nothing if the list sums to 0 or less.
std::optional<IncomeAsked> incomeAsked(const std::vector<assessment::ItemRow>& rows, double first);

/// What the income lines of an analysis show, out of those of their lists that are in use. To be done again where it
/// depends on more than the lists: retirement's on the age.
void deriveItemised(assessment::Assessment& record, assessment::Analysis analysis);

} // namespace analyses
