#include "reports/content.h"

namespace reports {

QString textOf(const std::vector<Run>& runs) {
    QString text;
    for (const Run& run : runs)
        text += run.text;
    return text;
}

QString Cell::text() const { return textOf(runs); }

} // namespace reports
