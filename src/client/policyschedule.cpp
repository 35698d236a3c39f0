#include "client/policyschedule.h"

#include <cmath>

#include "base/finite.h"
#include "client/years.h"

namespace client {

namespace {

using assessment::Policy;

/// True if the benefit is paid at or before the age of retirement.
bool isPaidBy(double retirement, double age) { return age > 0 && age <= retirement; }

/// A value at an age, escalated once for each year strictly between that age and the age of retirement.
double escalated(double value, double percent, double age, double retirement) {
    const double rate = percent / 100;
    for (int year = yearsFromTo(age + 1, retirement - 1); year > 0; --year)
        value = rate * value + value;
    return value;
}

/// The worth at retirement of a value that falls due later. At an escalation of -100 percent the discount is undefined,
/// so the value is not discounted.
double discounted(double value, double percent, double age, double retirement) {
    if (100 + percent == 0) return value;
    const double cut = percent / (100 + percent);
    for (int year = yearsFromTo(retirement + 1, age); year > 0; --year)
        value = value - cut * value;
    return value;
}

double cashValue(const Policy& policy, double retirement) {
    const double age = policy.DeathBenCashValAge;
    if (policy.DeathBenUseCashAtRet != 1 || !isPaidBy(retirement, age)) return 0;
    if (!(policy.DeathBen - policy.DeathBenCashVal > 0)) return 0; // only one below the death benefit counts
    return escalated(policy.DeathBenCashVal, policy.DeathBenCashValEscFor, age, retirement);
}

double lumpSum(double value, double age, double percent, double retirement) {
    return value > 0 && isPaidBy(retirement, age) ? escalated(value, percent, age, retirement) : 0;
}

double maturityValue(const Policy& policy, double retirement) {
    if (policy.InvBensTakeFinValAtRet != 1) return 0;
    const double age = policy.InvBensMatValLSAtAge; // an empty age is 0: it escalates from the first year of life
    const double percent = policy.InvBensMatValLSEscAt;
    if (age < retirement) return escalated(policy.InvBensMatValLS, percent, age, retirement);
    return discounted(policy.InvBensMatValLS, percent, age, retirement);
}

/// The pension of this record is added to those of the records before it.
double runningPensions(const Policy& policy, double& pensions) {
    if (!(policy.RBMonAvaible > 0)) return 0;
    return pensions += policy.RBMonAvaible;
}

ValuesAtRetirement atAge(const Policy& policy, double retirement, double& pensions) {
    return {cashValue(policy, retirement),
            lumpSum(policy.RBEMV, policy.RBEMVAge, policy.RBEMVEscFor, retirement),
            lumpSum(policy.RBPenLump, policy.RBPenLumpAge, policy.RBPenLumpEscFor, retirement),
            lumpSum(policy.RBProvFLump, policy.RBProvFLumpAge, policy.RBProvFLumpEscFor, retirement),
            runningPensions(policy, pensions),
            policy.UseEndowEMVAtRet == 1
                ? lumpSum(policy.EndowEMV, policy.EndowEMVAge, policy.EndowEMVEscFwd, retirement)
                : 0,
            maturityValue(policy, retirement)};
}

/// True for what locks the policy line of the retirement analysis: a tick, or a lump sum paid by retirement.
bool isTakenAtRetirement(const Policy& policy, double retirement) {
    const auto isPaid = [&](double value, double age) { return value > 0 && isPaidBy(retirement, age); };
    return policy.DeathBenUseCashAtRet == 1 || policy.UseEndowEMVAtRet == 1 || policy.InvBensTakeFinValAtRet == 1 ||
           policy.RBMonAvaible > 0 || isPaid(policy.RBEMV, policy.RBEMVAge) ||
           isPaid(policy.RBPenLump, policy.RBPenLumpAge) || isPaid(policy.RBProvFLump, policy.RBProvFLumpAge);
}

/// The capital at retirement with these values added, in their order.
double addTo(double capital, const ValuesAtRetirement& value) {
    for (const double part :
         {value.cashValue, value.raMaturity, value.pensionLump, value.providentLump, value.endowment, value.investment})
        capital += part;
    return capital;
}

double shownMonthlyOnDeath(const assessment::Assessment& record) {
    const auto shown = static_cast<std::size_t>(record.CurPolicy - 1);
    return shown < record.policies.size() ? record.policies[shown].DeathBenMonthly : 0;
}

/// Sets a flag on or off; it stays unchanged if neither is asked for.
void setFlag(std::int16_t& flag, bool on, bool off) {
    if (on) flag = 1;
    if (!on && off) flag = 0;
}

} // namespace

ValuesAtRetirement valuesAtRetirement(const Policy& policy, double ageOfRetirement) {
    double pensions = 0;
    return atAge(policy, ageOfRetirement, pensions);
}

double capitalOnDeath(const std::vector<Policy>& policies) {
    double capital = 0;
    for (const Policy& policy : policies) {
        // Only what the estate or the spouse receives counts as the client's capital.
        const double benefit = policy.DeathBen - (policy.DeathBenAmtCeded + policy.DeathBenLoanAgainst);
        if ((policy.DeathBenPerson == 0 || policy.DeathBenPerson == 1) && benefit > 0) capital += benefit;
        capital += policy.InvBensCurVal;
    }
    return capital;
}

double capitalOnDisability(const std::vector<Policy>& policies) {
    double capital = 0;
    for (const Policy& policy : policies) {
        capital += policy.DisabilLumpSum;
        if (policy.InvBensTakeAtDisa == 1) capital += policy.InvBensCurVal - policy.InvBensCurValLoanAgainst;
    }
    return capital;
}

std::vector<ValuesAtRetirement> CalculatePolInv(assessment::Assessment& record) {
    const double retirement = record.retirement.AgeRetiment;
    const double death = capitalOnDeath(record.policies), disability = capitalOnDisability(record.policies);
    double deathMonthly = 0, disabilityMonthly = 0, capital = 0, pensions = 0;
    bool atRetirement = false;
    std::vector<ValuesAtRetirement> values;
    values.reserve(record.policies.size());
    for (const Policy& policy : record.policies) {
        deathMonthly += shownMonthlyOnDeath(record); // always that of the policy shown: it only decides a flag
        disabilityMonthly += policy.DisabilMonthly + policy.IncProMonthly;

        const ValuesAtRetirement value = atAge(policy, retirement, pensions);
        capital = addTo(capital, value);
        atRetirement = atRetirement || isTakenAtRetirement(policy, retirement);
        values.push_back(value);
    }
    assessment::Itemised& flags = record.itemised;
    flags.RNAPoliciesItemise = atRetirement ? 1 : 0;
    setFlag(flags.DTHLifeAssItemise, death > 0 || deathMonthly > 0, death == 0 && deathMonthly == 0);
    setFlag(flags.DISALifeAssItemise, disability > 0 || disabilityMonthly > 0,
            !(disability > 0) && disabilityMonthly == 0);
    flags.NARAPolicyIncomeItemise = pensions > 0 ? 1 : 0;
    base::keepFinite(record.PolicyMonthlyIncome, pensions);
    base::keepFinite(record.death.ANSAss5, std::floor(death));
    base::keepFinite(record.disability.DisaASS5, std::floor(disability));
    base::keepFinite(record.retirement.ANSLAss4, std::floor(capital));
    return values;
}

bool isFinite(const std::vector<ValuesAtRetirement>& values) {
    double sum = 0;
    for (const ValuesAtRetirement& value : values)
        sum = addTo(sum, value) + value.monthlyIncome;
    return std::isfinite(sum);
}

} // namespace client
