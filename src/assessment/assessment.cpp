#include "assessment/assessment.h"

#include "base/text.h"

namespace assessment {

std::string displayName(const PersonalDetails& client) {
    return base::trim(client.CTitle) + " " + base::trim(client.CInit) + " " + base::trim(client.CLName);
}

void CheckChanges(Assessment& record) {
    if (record.changed.any()) record.ClientChanged = 1;
}

} // namespace assessment
