#include "client/policyreport.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "assessment/tables.h"
#include "base/day.h"
#include "base/rounding.h"
#include "client/policyschedule.h"

namespace client {

namespace {

using assessment::Policy;
using Policies = std::vector<Policy>;

constexpr std::int16_t otherPerson = 3;

double total(const Policies& policies, double Policy::*figure) {
    return std::accumulate(policies.begin(), policies.end(), 0.0,
                           [figure](double sum, const Policy& policy) { return sum + policy.*figure; });
}

double total(const std::vector<ValuesAtRetirement>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0,
                           [](double sum, const ValuesAtRetirement& value) { return sum + value.capital(); });
}

/// Rounded as its cell is printed: otherwise cents that nobody sees would make the printed column and its total differ.
double toTheCent(const ValuesAtRetirement& value) { return base::roundHalfEven(total({value}), 2); }

double printedTotal(const std::vector<ValuesAtRetirement>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0,
                           [](double sum, const ValuesAtRetirement& value) { return sum + toTheCent(value); });
}

bool fallsDue(const Policy& policy) {
    return policy.DeathBenUseCashAtRet == 1 || policy.RBEMV != 0 || policy.RBPenLump != 0 || policy.RBProvFLump != 0 ||
           policy.EndowEMV != 0 || policy.InvBensMatValLS != 0;
}

/// What each kind of beneficiary receives. If more is ceded than the benefit, it is 0, not a debt.
std::array<double, beneficiaries.size()> benefits(const Policies& policies) {
    std::array<double, beneficiaries.size()> received{};
    for (const Policy& policy : policies) {
        const double benefit = policy.DeathBen - (policy.DeathBenAmtCeded + policy.DeathBenLoanAgainst);
        // An old file may hold a number without a beneficiary.
        const auto person = static_cast<std::size_t>(policy.DeathBenPerson);
        if (person < received.size() && benefit > 0) received[person] += benefit;
    }
    return received;
}

std::string noted(const std::string& text, const PolicyReportOptions& options) {
    return options.notes && !text.empty() ? "Note: " + text : std::string();
}

datastore::Row headerRow(const assessment::Assessment& record, const std::vector<ValuesAtRetirement>& values,
                         const PolicyReportOptions& options) {
    const Policies& policies = record.policies;
    const auto [estate, spouse, charity, other] = benefits(policies);
    const double all = estate + spouse + charity + other;
    const auto filled = std::count_if(policies.begin(), policies.end(), isFilled);
    const auto shown = static_cast<std::size_t>(record.CurPolicy - 1);
    return {{"Name", record.client.Name},
            {"BirthDate", base::reportDate(record.client.BirthDate)},
            {"IDNumber", record.client.IDNumber},
            {"LifeCoverTotal", total(policies, &Policy::DeathBen)},
            {"ContributionTotal", total(policies, &Policy::PremInvAmtMonthly)},
            {"DisabilityTotal", total(policies, &Policy::DisabilLumpSum)},
            {"DreadTotal", total(policies, &Policy::TraumlLumpSum)},
            {"RetirementTotal", total(values)},
            {"CashValueTotal", total(policies, &Policy::DeathBenCashVal)},
            {"IncomeProTotal", total(policies, &Policy::IncProMonthly)},
            {"MONLifeCoverTotal", total(policies, &Policy::DeathBenMonthly)},
            {"MONDisabilityTotal", total(policies, &Policy::DisabilMonthly)},
            {"MONDreadTotal", total(policies, &Policy::TraumMonthly)},
            {"MONIncomeProTotal", total(policies, &Policy::IncProMonthly)},
            {"MONIncomeRBTotal", total(policies, &Policy::RBMonAvaible)},
            {"CurrentCPI", record.CPI},
            {"DBenSpouse", spouse},
            {"DBenSpousePerc", all > 0 ? spouse / all * 100 : 0},
            {"DBenEstate", estate},
            {"DBenCharity", charity},
            {"DBenOther", other},
            {"DBenTotal", all},
            {"FilledPolicies", static_cast<double>(filled)},
            {"NoPolicies", filled > 0 ? "" : "No policies or investments are on record."},
            {"LumpSumsDue", static_cast<double>(std::count_if(policies.begin(), policies.end(), fallsDue))},
            {"CurrentValueTotal", total(policies, &Policy::InvBensCurVal)},
            {"WorthTotal", printedTotal(values)},
            // The header holds one note only: that of the record on the screen.
            {"PolIncAddNote", shown < policies.size() ? noted(policies[shown].PolIncAddNote, options) : std::string()}};
}

/// What the report words differently from the record.
store::Value printed(const Policy& policy, const std::string& field, store::Value stored,
                     const PolicyReportOptions& options) {
    if (field == "InceptionDate") return base::reportDate(policy.InceptionDate);
    if (field == "PolIncNote") return noted(policy.PolIncNote, options);
    if (field == "PolIncAddNote") return noted(policy.PolIncAddNote, options);
    if (field == "DeathBenOther" && policy.DeathBenPerson != otherPerson) return std::string();
    if (field == "DeathBenPerson") {
        const auto person = static_cast<std::size_t>(policy.DeathBenPerson);
        return std::string(person < beneficiaries.size() ? beneficiaries[person] : "");
    }
    return stored;
}

datastore::Row policyRow(Policy& policy, int number, const ValuesAtRetirement& values,
                         const PolicyReportOptions& options) {
    datastore::Row row;
    const auto& fields = assessment::polsInvestsTable().fields();
    row.reserve(fields.size() + 4);
    row.emplace_back("PolNum", number);
    for (const assessment::FieldLine& line : fields) {
        if (line.at == nullptr) continue;
        row.emplace_back(line.name, printed(policy, line.name, assessment::valueAt(line.at(&policy)), options));
    }
    row.emplace_back("PremInvAmtAnnualCPI", 0); // no field of the record feeds it
    row.emplace_back("IsFilled", isFilled(policy) ? 1 : 0);
    row.emplace_back("WorthAtRetirement", toTheCent(values));
    return row;
}

} // namespace

void feedPolicies(const std::filesystem::path& printDbPath, assessment::Assessment& record,
                  const PolicyReportOptions& options) {
    const std::vector<ValuesAtRetirement> values = CalculatePolInv(record);
    datastore::PrintFeed feed(printDbPath, record.client.Name);
    feed.replace("PolsInvests", headerRow(record, values, options));
    feed.clear("PolsInvestsAmorts");
    int number = 0;
    for (Policy& policy : record.policies) {
        const ValuesAtRetirement& worth = values[static_cast<std::size_t>(number)];
        feed.add("PolsInvestsAmorts", feed.printedOf("PolsInvestsAmorts", policyRow(policy, ++number, worth, options)));
    }
    feed.commit();
}

} // namespace client
