#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "assessment/assessment.h"

/// Arithmetic of money over time that several subjects use.
namespace finance {

/// A capital that pays a rising income, year by year: rand at the start of the year, in the year, in the year. Element
/// 0 is unused, as are the years after the last one looked at.
struct CapitalYears {
    static constexpr std::size_t lastYear = 50;
    using Column = std::array<double, lastYear + 1>;

    Column capital{};
    Column earnings{}; ///< after tax
    Column need{};
    int lookedAt = 0; ///< the last year worked out: the first that is not carried, or 50; 0 where nothing is asked
};

/// How long a capital carries an income; the years of the client's own life of capital.
///
/// Reads CAPI (rand), MINC (rand a month), GRTE (percent a year, before tax), TXRTE (percent of the earnings) and
/// EXCLife (percent a year by which the income rises). With CAPI, MINC or GRTE exactly 0 no year is looked at; other
/// figures, negative too, are reckoned with as they stand. The first year is taken as carried whatever the income: the
/// test begins with year 2.
CapitalYears FINDTERMLIFE(const assessment::LifeOfCapital& of);

/// The same with an income that rises by another rate, that of a quotation's payments (percent a year).
CapitalYears FINDTERM(const assessment::LifeOfCapital& of, double PaymentEscalation);

/// From how many years on a capital is said to last "more than" so many. The two screens that say it differ, and that
/// is meant: both stop looking at year 50, so that a result of 49 is all there can be.
struct MoreThan {
    int from;
    int shown;
};
inline constexpr MoreThan moreThanInQuotes{48, 45}; ///< shows 45 though it begins at 48
inline constexpr MoreThan moreThanInLifeOfCapital{49, 50};

/// What a life of capital comes to.
struct CapitalLife {
    CapitalYears years;
    int result = 0; ///< whole years carried, 0 to 49
    bool isMore = false;
    int shown = 0;        ///< the years that the screen gives, which with "more than" are not the result
    std::string caption;  ///< before the years
    bool isFinite = true; ///< false where the figures are too large to reckon with

    /// Lines of its table, points of its graph: as many as the years shown, at least one.
    int rows() const { return shown > 1 ? shown : 1; }
    /// What the report says.
    std::string sentence() const;
};

CapitalLife LCCalculate(const assessment::LifeOfCapital& of, const MoreThan& more);

} // namespace finance
