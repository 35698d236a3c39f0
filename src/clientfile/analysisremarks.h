#pragma once

#include <string>

#include "clientfile/parts.h"

/// Where the results stored with an analysis are not what the record gives today: its capital line from the schedule of
/// policies, figures from itemised lists, ages, and rates above their limits, which the calculation reduces without a
/// word. Each remark is a sentence or several, empty if nothing differs. A difference in the last bit is one; a figure
/// that is not a number is the same as another such. All is worked out on a copy of the record.
namespace clientfile {

std::string deathRemark(const Source& source);
std::string disabilityRemark(const Source& source);
/// Also about the premium for its capital, which is printed only while it is that of the analysis.
std::string retirementRemark(const Source& source);
std::string educationRemark(const Source& source);

} // namespace clientfile
