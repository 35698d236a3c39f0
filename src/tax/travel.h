#pragma once

#include <optional>

#include "assessment/assessment.h"

namespace tax {

/// What a vehicle of one value costs: section 8(1)(b) of the Income Tax Act, schedule of deemed costs per kilometre.
struct TravelCost {
    double upTo;        ///< value of the vehicle, rand
    double fixed;       ///< rand a year
    double fuel;        ///< rand a kilometre
    double maintenance; ///< rand a kilometre
};

/// 1 March 2026 to 28 February 2027.
inline constexpr TravelCost travelCosts2027[] = {
    {100000, 33940, 1.467, 0.474},  {200000, 60688, 1.638, 0.593},  {300000, 87497, 1.779, 0.654},
    {400000, 111273, 1.914, 0.714}, {500000, 135048, 2.048, 0.839}, {600000, 159934, 2.349, 0.985},
    {700000, 184867, 2.389, 1.105}, {800000, 211121, 2.429, 1.225},
};

/// The row for a vehicle's value; the last one applies to all values above it too.
const TravelCost& TravelCostTable(double value);

/// Where the business kilometres come from.
enum class KilometreRule {
    logged,       ///< the log book
    above32000,   ///< more than 32 000 km: 14 000 km a year
    beyond18000,  ///< what is driven beyond 18 000 km a year
    partOfAYear,  ///< a short period with more than its part of 32 000 km: its part of 14 000 km
    privateAlone, ///< all is private
};

struct Kilometres {
    double total = 0;
    double business = 0;
    double privateKm = 0;
    KilometreRule rule = KilometreRule::privateAlone;
};

/// Divides the kilometres of the period. total: between the readings. days: of the period, in a year of 365 days.
/// logged: business kilometres by the log book; above 0 they override every rule.
Kilometres divideKilometres(double total, double days, double logged);

/// How a claim against a travel allowance came about.
enum class TravelMethod {
    none,       ///< a vehicle without value, a period without days or no business kilometres: nothing is claimed
    deemed,     ///< by deemed costs
    actual,     ///< by actual costs and kilometres
    withoutLog, ///< by actual costs, less private use as for a company car
};

/// Figures that the method does not use are 0.
struct TravelClaim {
    TravelMethod method = TravelMethod::none;
    double days = 0;
    Kilometres kilometres;
    double claim = 0; ///< rand
    // Deemed costs. For a vehicle without a log book `fuel` and `maintenance` are the cents that reports show there.
    double fixedCost = 0; ///< rand a year
    double fixed = 0;     ///< cents a kilometre, as are the next three
    double fuel = 0;
    double maintenance = 0;
    double rate = 0; ///< their sum, not rounded
    // Actual costs, rand.
    double totalCosts = 0;
    double privateUse = 0; ///< worked out before the claim is limited to the allowance

    double shownRate() const; ///< to one place
};

/// Days from the first to the last, both included; 0 without both dates, or if they are the wrong way round.
double travelDays(const assessment::CarAll& car);

/// The claim by deemed costs; the allowance is no limit.
TravelClaim TravelDeemedCalc(const assessment::CarAll& car);

/// The claim by actual costs, at most the allowance if there is one. Without readings and log book, private use is
/// taxed as the fringe benefit of a company car.
TravelClaim TravelActualCalc(const assessment::CarAll& car);

/// The claim by the method chosen. Nothing without a value, a period and logged business kilometres.
TravelClaim travelClaim(const assessment::CarAll& car);

} // namespace tax
