#pragma once

#include <string>
#include <vector>

#include "assessment/policy.h"

namespace client {

/// What a user should know of a value that he has entered: that it counts for nothing, and why, or counts in part.
struct PolicyRemark {
    const char* column; ///< of the schedule, the value's own
    std::string text;
};

/// The remarks on one record, in the order of its columns; values of 0 and those that count in full have none.
///
/// They tell what the needs analyses do: only a benefit to estate or spouse is the client's capital, and only what is
/// neither ceded nor lent against; a value at an age needs that age, and the tick that takes it where it has one; one
/// that falls due after the age of retirement counts in the year of that age, an endowment even without its tick; an
/// income with a term of 0 years is paid in the first year only; no analysis reads surrender values and trauma
/// benefits.
std::vector<PolicyRemark> policyRemarks(const assessment::Policy& policy, double ageOfRetirement);

/// A record as a user knows it: type, institution and number, as far as they are entered; empty if none is.
std::string policyName(const assessment::Policy& policy);

} // namespace client
