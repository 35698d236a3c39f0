#include "assessment/assessment.h"

#include "base/text.h"

namespace assessment {

std::string displayName(const std::string& title, const std::string& initials, const std::string& surname) {
    return base::trim(title) + " " + base::trim(initials) + " " + base::trim(surname);
}

void CheckChanges(Assessment& record) {
    if (record.changed.any()) record.ClientChanged = 1;
}

} // namespace assessment
