#pragma once

#include "analyses/yearrun.h"
#include "assessment/itemised.h"

/// Itemised lists as amounts by year. `first` is what a list counts from: the age of retirement where it holds ages, 1
/// where it holds years.
namespace analyses {

/// True from the row's From to its To, both counted.
bool isInForce(const assessment::ItemRow& row, double now);

/// Monthly income from a list of sources, rand by year; nothing while the list is not in use.
///
/// In the first year every source in force counts at its amount. From the second on a source counts from its From, so
/// that one which started before the first year is paid in that year and never again.
Yearly itemisedIncome(const assessment::ItemList& list, double first);

/// Adds the amounts that fall due after the first year, each in its year, while the list is in use.
void addDue(Yearly& amounts, const assessment::ItemList& list, double first);

/// The year from the second on that an age or year lies in; 0 if none does.
std::size_t laterYearAt(double when, double first);

} // namespace analyses
