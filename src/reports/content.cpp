#include "reports/content.h"

namespace reports {

QString textOf(const std::vector<Run>& runs) {
    QString text;
    for (const Run& run : runs)
        text += run.text;
    return text;
}

QString documentTitle(const Content& content) {
    return content.client.isEmpty() ? content.title : content.title + " - " + content.client;
}

QString practiceOf(const Content& content) {
    for (const QString& line : content.headerLines)
        if (!line.isEmpty()) return line;
    return {};
}

QString Cell::text() const { return textOf(runs); }

} // namespace reports
