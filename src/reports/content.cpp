#include "reports/content.h"

#include "reports/definition.h"
#include "reports/snapshot.h"
#include "store/files.h"

namespace reports {

QString textOf(const std::vector<Run>& runs) {
    QString text;
    for (const Run& run : runs)
        text += run.text;
    return text;
}

QString printable(QString text) {
    text.replace("\r\n", "\n").replace('\r', '\n');
    text.removeIf([](QChar letter) {
        const bool control = letter < ' ' && letter != '\n' && letter != '\t';
        return control || letter == QChar(0xfffe) || letter == QChar(0xffff);
    });
    return text;
}

QStringList printable(QStringList lines) {
    for (QString& line : lines)
        line = printable(line).replace('\n', ' ');
    return lines;
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

QString Content::headOf(bool firstPage) const {
    if (!firstPage) return client.isEmpty() ? title : client + " – " + title;
    const bool isHeading =
        !blocks.empty() && (blocks.front().kind == Block::Kind::title || blocks.front().kind == Block::Kind::cover);
    return isHeading && textOf(blocks.front().runs).simplified() == client ? QString() : client;
}

QString Cell::text() const { return textOf(runs); }

Content filledFrom(const std::filesystem::path& folder, const QString& name, const std::filesystem::path& printDatabase,
                   const QDate& day) {
    // Leading separators are removed, since screens write "\Lonrepa.rpt".
    const std::filesystem::path inside = store::nativePath(name.toStdString()).relative_path();
    const Definition definition = readDefinition(store::existingSpelling(folder / inside));
    Content content =
        fill(definition, Snapshot(printDatabase, tablesOf(definition)), QString::fromStdString(printDatabase.string()));
    content.date = day.toString("dd/MM/yyyy");
    return content;
}

} // namespace reports
