#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "assessment/assessment.h"

/// Arithmetic of money over time that several subjects use.
namespace finance {

/// The course of a capital that pays a rising income, by year, rand. Element 0 is unused, and so are the years after
/// `lookedAt`.
struct CapitalYears {
    static constexpr std::size_t lastYear = 50;
    using Column = std::array<double, lastYear + 1>;

    Column capital{};
    Column earnings{}; ///< after tax
    Column need{};
    int lookedAt = 0; ///< the last year calculated: the first that is not covered, or 50; 0 if there is none
};

/// How long a capital provides an income, for the client's own life of capital.
///
/// Reads CAPI (rand), MINC (rand a month), GRTE (percent a year, before tax), TXRTE (percent of the earnings) and
/// EXCLife (percent a year by which the income rises). If CAPI, MINC or GRTE is exactly 0, no year is calculated; all
/// other figures, also negative ones, are used as they are. The first year counts as covered whatever the income, since
/// the test begins with year 2.
CapitalYears FINDTERMLIFE(const assessment::LifeOfCapital& of);

/// The same with an income that rises at another rate, that of a quotation's payments (percent a year).
CapitalYears FINDTERM(const assessment::LifeOfCapital& of, double PaymentEscalation);

/// From which result on the screen says "more than" so many years. The two screens differ on purpose; both end at year
/// 50, so that 49 is the highest result.
struct MoreThan {
    int from;
    int shown;
};
inline constexpr MoreThan moreThanInQuotes{48, 45}; ///< shows 45 although it begins at 48
inline constexpr MoreThan moreThanInLifeOfCapital{49, 50};

/// The result of a life of capital.
struct CapitalLife {
    CapitalYears years;
    int result = 0; ///< whole years covered, 0 to 49
    bool isMore = false;
    int shown = 0;        ///< the years on the screen; with "more than" not the result
    std::string caption;  ///< the text before the years
    bool isFinite = true; ///< false if the figures are too large to calculate with

    /// Lines of its table and points of its graph: the years shown, at least one.
    int rows() const { return shown > 1 ? shown : 1; }
    /// The sentence in the report.
    std::string sentence() const;
};

CapitalLife LCCalculate(const assessment::LifeOfCapital& of, const MoreThan& more);

} // namespace finance
