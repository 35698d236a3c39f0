#pragma once

#include <string>
#include <vector>

#include "assessment/assessment.h"
#include "store/value.h"

namespace assessment {

/// A field in which two records differ. In a row that only one of them has, the other's values are Null.
struct Difference {
    std::string table, field;
    int row = 1; ///< of its list, from 1
    store::Value one, other;

    bool operator==(const Difference&) const = default;
};

/// Every stored field, of every table of a client, in which two records differ, in the order of the tables. Keys and
/// working values are not compared.
std::vector<Difference> differences(Assessment one, Assessment other);

} // namespace assessment
