#include "tax/travel.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/rounding.h"

namespace tax {

using assessment::CarAll;

namespace {

constexpr double daysAYear = 365;
// A year's kilometres: above the first all further ones are private, and so are the second.
constexpr double countedKm = 32000;
constexpr double privateKmAYear = 18000;
constexpr double businessKmAYear = countedKm - privateKmAYear;

// Private use of a company car, 1 March 2026 to 28 February 2027: Income Tax Act, Seventh Schedule. Fractions of the
// car's value a month.
constexpr double companyCar = 0.025;
constexpr double ownFuel = 0.0022;        // if the employee pays for all fuel
constexpr double ownMaintenance = 0.0018; // if the employee pays for all maintenance
constexpr double monthsAYear = 12;
constexpr double shownFuel = 120, shownMaintenance = 85; // cents a kilometre, as shown beside them

constexpr double noAllowance = 9999999.97; // rand: counts as the allowance if there is none

double toCents(double figure) { return std::floor(figure * 100) / 100; }

/// All beyond the private part of the year.
Kilometres beyondPrivate(double total, double days) {
    const double privatePart = toCents(privateKmAYear * days / daysAYear);
    if (privatePart > total) return {total, 0, total, KilometreRule::privateAlone};
    return {total, total - privatePart, privatePart, KilometreRule::beyond18000};
}

Kilometres kilometresOf(const CarAll& car, double days) {
    return divideKilometres(car.closeKm - car.openKm, days, car.businessKm);
}

/// The fringe benefit of a company car for the period, rand.
double fringeBenefit(const CarAll& car, double days) {
    const double value = car.vehicleValue;
    double benefit = value * companyCar * monthsAYear * days / daysAYear;
    if (!(value > 0)) return benefit;
    if (car.includeFuel != 0) benefit -= ownFuel * value * days / daysAYear * monthsAYear;
    if (car.includeMaintenance != 0) benefit -= ownMaintenance * value * days / daysAYear * monthsAYear;
    return benefit;
}

} // namespace

const TravelCost& TravelCostTable(double value) {
    const auto row = std::find_if(std::begin(travelCosts2027), std::end(travelCosts2027),
                                  [value](const TravelCost& each) { return value <= each.upTo; });
    return row != std::end(travelCosts2027) ? *row : *std::rbegin(travelCosts2027);
}

Kilometres divideKilometres(double total, double days, double logged) {
    if (logged > 0) return {total, logged, total - logged, KilometreRule::logged};
    // A short period has rules of its own, also for few kilometres. What is cut to cents differs between the rules:
    // the business part here, the private part in the others.
    if (days < daysAYear && total < countedKm + 1) {
        const double counted = countedKm * days / daysAYear;
        if (total <= counted) return beyondPrivate(total, days);
        const double business = toCents(counted - privateKmAYear * days / daysAYear);
        return {total, business, total - business, KilometreRule::partOfAYear};
    }
    if (total > countedKm) {
        const double business = businessKmAYear * days / daysAYear;
        return {total, business, toCents(total - business), KilometreRule::above32000};
    }
    if (total < privateKmAYear) return {total, 0, total, KilometreRule::privateAlone};
    return beyondPrivate(total, days);
}

double TravelClaim::shownRate() const { return base::roundHalfEven(rate * 10) / 10; }

double travelDays(const CarAll& car) {
    if (!base::isShownOnScreen(car.startDate) || !base::isShownOnScreen(car.endDate)) return 0;
    return std::max(0.0, car.endDate - car.startDate + 1);
}

TravelClaim TravelDeemedCalc(const CarAll& car) {
    TravelClaim result;
    result.method = TravelMethod::deemed;
    result.days = travelDays(car);
    result.kilometres = kilometresOf(car, result.days);
    const TravelCost& cost = TravelCostTable(car.vehicleValue);
    result.fixedCost = cost.fixed;
    double fixed = result.kilometres.total < 1 ? 0 : cost.fixed / result.kilometres.total;
    if (result.days > 0 && result.days < daysAYear) fixed = fixed * result.days / daysAYear;
    fixed = std::floor(fixed * 1000000) / 1000000;
    result.fixed = fixed * 100;
    result.fuel = car.includeFuel != 0 ? cost.fuel * 100 : 0;
    result.maintenance = car.includeMaintenance != 0 ? cost.maintenance * 100 : 0;
    result.rate = result.fixed + result.fuel + result.maintenance;
    result.claim = result.kilometres.business * result.rate / 100;
    return result;
}

TravelClaim TravelActualCalc(const CarAll& car) {
    TravelClaim result;
    result.days = travelDays(car);
    result.kilometres = kilometresOf(car, result.days);
    result.totalCosts = car.fuel + car.repairs + car.insurance + car.otherCosts + car.wearAndTear + car.leasePayments;
    if (car.closeKm == 0 && car.openKm == 0 && car.businessKm == 0) {
        result.method = TravelMethod::withoutLog;
        const double benefit = fringeBenefit(car, result.days);
        if (car.vehicleValue > 0 && car.includeFuel != 0) result.fuel = shownFuel;
        if (car.vehicleValue > 0 && car.includeMaintenance != 0) result.maintenance = shownMaintenance;
        result.privateUse = benefit > result.totalCosts ? 0 : benefit;
        result.claim = std::max(0.0, result.totalCosts - benefit);
        if (car.allowance != 0) result.claim = std::min(result.claim, car.allowance);
        return result;
    }
    result.method = TravelMethod::actual;
    const Kilometres& driven = result.kilometres;
    result.claim = driven.total > 1 ? result.totalCosts * driven.business / driven.total : 0;
    result.privateUse = result.totalCosts - result.claim;
    result.claim = std::min(result.claim, car.allowance == 0 ? noAllowance : car.allowance);
    return result;
}

TravelClaim travelClaim(const CarAll& car) {
    if (car.vehicleValue == 0 || travelDays(car) == 0 || car.businessKm == 0) return {};
    return car.expensesKept == 1 ? TravelActualCalc(car) : TravelDeemedCalc(car);
}

} // namespace tax
