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

bool Content::isHeadedByClient() const {
    return !blocks.empty() && blocks.front().kind == Block::Kind::title &&
           textOf(blocks.front().runs).trimmed() == client;
}

QString Cell::text() const { return textOf(runs); }

} // namespace reports
