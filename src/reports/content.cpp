#include "reports/content.h"

namespace reports {

QString textOf(const std::vector<Run>& runs) {
    QString text;
    for (const Run& run : runs)
        text += run.text;
    return text;
}

QString documentTitle(const QString& title, const QString& client) {
    return client.isEmpty() ? title : title + " - " + client;
}

QString documentTitle(const Content& content) { return documentTitle(content.title, content.client); }

QString practiceOf(const QStringList& headerLines) {
    for (const QString& line : headerLines)
        if (!line.isEmpty()) return line;
    return {};
}

QString Cell::text() const { return textOf(runs); }

} // namespace reports
