#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "datastore/printfeed.h"

/// The growth of unit trusts: a list to look at, to sort and to print. No calculation uses it.
namespace quotes {

/// Growth over 1, 2, 3, 5 and 7 years, as fractions a year; nothing where no figure is known.
using Growth = std::array<std::optional<double>, 5>;

struct FundGrowth {
    std::string name;
    Growth growth;

    bool operator==(const FundGrowth&) const = default;
};

struct FundHistory {
    std::vector<FundGrowth> funds;
    Growth inflation; ///< over the same periods
};

/// What the list is sorted by.
struct HistoryOrder {
    int column = 0;         ///< 0 the names, 1 to 5 the periods of growth
    bool ascending = false; ///< names: from A to Z

    int HistSort() const { return 2 * column + (ascending ? 2 : 1); } ///< 1 to 12
    const char* SortedBY() const;                                     ///< the order in words, for the report
};

/// Reads the funds from units.mdb. Throws store::Error if the file, its table or one of its columns is missing, or if
/// it lists no fund. Inflation is left out if the file has none.
FundHistory readFundHistory(const std::filesystem::path& unitsDbPath);

/// Sorts the funds. Names are compared without case and accents, and decide between equal figures, from A to Z in
/// either direction. A fund without a figure counts as the lowest.
void sortFunds(std::vector<FundGrowth>& funds, HistoryOrder order);

/// Writes the list into Print.mdb in the order of `history` and returns the report to run. If it throws store::Error,
/// nothing is written.
datastore::Printout feedFundHistory(const std::filesystem::path& printDbPath, const FundHistory& history,
                                    HistoryOrder order);

} // namespace quotes
