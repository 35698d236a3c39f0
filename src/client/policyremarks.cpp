#include "client/policyremarks.h"

#include "base/numberformat.h"
#include "base/text.h"

namespace client {

namespace {

using assessment::Policy;

// Short, to fit beside the values in the space that the fields leave.
constexpr const char* noAge = "Not counted: no age";
constexpr const char* noTick = "Not counted: no tick";
constexpr const char* reportsOnly = "Not counted: reports only";

std::string atAge(double age) { return "Counts at " + base::formatNumber(age, "0") + ", after retirement"; }

std::string onDeathBenefit(const Policy& policy) {
    if (policy.DeathBenPerson != 0 && policy.DeathBenPerson != 1) return "Not counted: not for estate or spouse";
    if (!(policy.DeathBen - (policy.DeathBenAmtCeded + policy.DeathBenLoanAgainst) > 0))
        return "Not counted: all ceded or lent against";
    return {};
}

std::string onCashValue(const Policy& policy, double retirement) {
    if (policy.DeathBenUseCashAtRet != 1) return noTick;
    if (policy.DeathBenCashValAge <= 0) return noAge;
    if (policy.DeathBenCashValAge > retirement) return atAge(policy.DeathBenCashValAge);
    if (!(policy.DeathBen - policy.DeathBenCashVal > 0)) return "Not counted: not below the death benefit";
    return {};
}

std::string onLumpSum(double age, double retirement) {
    if (age <= 0) return noAge;
    return age > retirement ? atAge(age) : std::string();
}

std::string onEndowment(const Policy& policy, double retirement) {
    const std::string remark = onLumpSum(policy.EndowEMVAge, retirement);
    return remark.empty() && policy.UseEndowEMVAtRet != 1 ? noTick : remark;
}

std::string onTerm(double years) { return years < 1 ? "0 years: counts in the first year only" : ""; }

} // namespace

std::vector<PolicyRemark> policyRemarks(const Policy& policy, double ageOfRetirement) {
    std::vector<PolicyRemark> remarks;
    const auto add = [&](const char* column, double value, const std::string& remark) {
        if (value > 0 && !remark.empty()) remarks.push_back({column, remark});
    };
    const bool takenOnDisability = policy.InvBensTakeAtDisa == 1;
    add("DeathBen", policy.DeathBen, onDeathBenefit(policy));
    add("DeathBenSurrVal", policy.DeathBenSurrVal, reportsOnly);
    add("DeathBenMonthly", policy.DeathBenMonthly, onTerm(policy.DeathBenYears));
    add("DeathBenCashVal", policy.DeathBenCashVal, onCashValue(policy, ageOfRetirement));
    add("TraumlLumpSum", policy.TraumlLumpSum, reportsOnly);
    add("TraumMonthly", policy.TraumMonthly, reportsOnly);
    add("IncProMonthly", policy.IncProMonthly, onTerm(policy.IncProYears));
    add("RBEMV", policy.RBEMV, onLumpSum(policy.RBEMVAge, ageOfRetirement));
    add("RBPenLump", policy.RBPenLump, onLumpSum(policy.RBPenLumpAge, ageOfRetirement));
    add("RBProvFLump", policy.RBProvFLump, onLumpSum(policy.RBProvFLumpAge, ageOfRetirement));
    add("EndowEMV", policy.EndowEMV, onEndowment(policy, ageOfRetirement));
    add("InvBensCurVal", policy.InvBensCurVal, takenOnDisability ? "" : "No tick: counts on death only");
    add("InvBensCurValLoanAgainst", policy.InvBensCurValLoanAgainst,
        takenOnDisability ? "" : "Loan not counted: no tick");
    add("InvBensMatValLS", policy.InvBensMatValLS, policy.InvBensTakeFinValAtRet == 1 ? "" : noTick);
    return remarks;
}

std::string policyName(const Policy& policy) {
    std::string name;
    for (const std::string& part : {policy.PolInvType, policy.UnderInst, policy.PolRefNum}) {
        const std::string text = base::trim(part);
        if (!text.empty()) name += (name.empty() ? "" : ", ") + text;
    }
    return name;
}

} // namespace client
