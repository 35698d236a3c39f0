#include <algorithm>

#include "client/persdetreport.h"
#include "client/policyreport.h"
#include "clientfile/partlists.h"

namespace clientfile {

namespace {

std::string whyNoDetails(const Source& source) {
    const assessment::Assessment& record = source.record;
    const bool isBlank = record.details == assessment::PersonalDetails{} && record.client == assessment::Client{};
    return isBlank ? nothingEntered : "";
}

void printDetails(const Source& source, const Choices& choices, const Print& print) {
    assessment::Assessment record = source.record;
    print(client::feedPersonalDetails(source.paths.PrintDbPath, record, choices.contains(Choice::notes)));
}

std::string whyNoPolicies(const Source& source) {
    const bool any = std::ranges::any_of(source.record.policies, client::isFilled);
    return any ? "" : "No policies or investments are on record.";
}

template <const datastore::Printout& report>
void printPolicies(const Source& source, const Choices& choices, const Print& print) {
    assessment::Assessment record = source.record; // the feed totals the schedule into the analyses
    client::feedPolicies(source.paths.PrintDbPath, record, {.notes = choices.contains(Choice::notes)});
    print(report);
}

/// The screen of the policies would clear both figures.
std::string policiesRemark(const Source& source) {
    const auto isBoth = [](const assessment::Policy& policy) {
        return policy.DeathBenLoanAgainst > 0 && policy.DeathBenAmtCeded > 0;
    };
    const bool any = std::ranges::any_of(source.record.policies, isBoth);
    return any ? "A policy has both a loan against it and an amount ceded. It can have only one of them." : "";
}

} // namespace

std::vector<Part> clientParts() {
    return {{"personalDetails", "Personal Details", {Choice::notes}, whyNoDetails, printDetails},
            {"policiesSchedule",
             "Policies and Investments: Schedule",
             {Choice::notes},
             whyNoPolicies,
             printPolicies<client::policiesSchedule>,
             policiesRemark},
            {"policiesDetails",
             "Policies and Investments: Details",
             {Choice::notes},
             whyNoPolicies,
             printPolicies<client::policiesDetails>}};
}

} // namespace clientfile
