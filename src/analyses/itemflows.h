#pragma once

#include "analyses/yearrun.h"
#include "assessment/itemised.h"

/// Itemised lists as amounts by year. `first` is the age or year that year 1 stands for: the age of retirement if the
/// list holds ages, 1 if it holds years.
namespace analyses {

/// True from the row's From to its To, both included.
bool isInForce(const assessment::ItemRow& row, double now);

/// Monthly income from a list of sources, rand by year; 0 if the list is not in use.
///
/// In the first year every source in force counts with its full amount. From the second year on a source counts only
/// from its From: one that started before the first year is paid in that year only. This is deliberate.
Yearly itemisedIncome(const assessment::ItemList& list, double first);

/// Adds the amounts that fall due after the first year, each in its year, if the list is in use.
void addDue(Yearly& amounts, const assessment::ItemList& list, double first);

/// The year, 2 or later, that an age or year falls in; 0 if there is none.
std::size_t laterYearAt(double when, double first);

} // namespace analyses
