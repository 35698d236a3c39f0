#pragma once

#include <string>
#include <vector>

#include "assessment/policy.h"

namespace client {

/// Tells the user that a value counts for nothing, or only in part, and why.
struct PolicyRemark {
    const char* column; ///< the value's own column in the schedule
    std::string text;
};

/// The remarks on one record, in the order of its columns. Values of 0 and values that count in full have none.
///
/// The rules of the needs analyses: only a benefit to estate or spouse counts as the client's capital, less what is
/// ceded or lent against. A value at an age needs that age and, where it has one, its tick. A value due after
/// retirement counts in the year of its age; an endowment does so even without its tick. An income over 0 years is paid
/// in the first year only. Surrender values and trauma benefits are not used by any analysis.
std::vector<PolicyRemark> policyRemarks(const assessment::Policy& policy, double ageOfRetirement);

/// How a user knows the record: type, institution and number, as far as entered; empty if none of them is.
std::string policyName(const assessment::Policy& policy);

} // namespace client
