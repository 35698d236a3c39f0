#include "reports/document.h"

#include <algorithm>

#include "store/error.h"

namespace reports {
namespace {

constexpr double fed = 0.5; ///< the part of the work after which all reports are filled

/// Runs the chapters' reports one behind the other.
class Sections {
public:
    Sections(const DocumentPlan& plan, const store::Progress& progress) : m_plan(plan), m_progress(progress) {}

    std::vector<Section> made() {
        std::size_t beforeContents = 0;
        for (std::size_t chapter = 0; chapter < m_plan.chapters.size(); ++chapter) {
            m_done = fed * static_cast<double>(chapter) / static_cast<double>(m_plan.chapters.size());
            store::tell(m_progress, m_done);
            add(m_plan.chapters[chapter]);
            if (chapter == 0 && m_plan.chapters[chapter].title.isEmpty()) beforeContents = m_made.size();
        }
        if (m_made.empty())
            throw store::Error(store::Number::noCurrentRecord, m_plan.printDatabase.string(),
                               "No part of the document has anything to print.",
                               "Choose a part that was worked out for this client.");
        if (m_plan.hasContents) addContents(beforeContents);
        return std::move(m_made);
    }

private:
    void add(const Chapter& chapter) {
        const std::size_t before = m_made.size();
        try {
            chapter.print([&](const datastore::Printout& printout) {
                store::tell(m_progress, m_done);
                Section section{.heading = {},
                                .content = filledFrom(m_plan.definitions, QString::fromStdString(printout.definition),
                                                      m_plan.printDatabase, m_plan.date)};
                const bool first = m_made.size() == before;
                section.level = first ? 1 : 2;
                if (!chapter.title.isEmpty()) section.heading = first ? chapter.title : section.content.title;
                m_made.push_back(std::move(section));
            });
        } catch (const store::Error& error) {
            const std::string part =
                chapter.title.isEmpty() ? "The cover" : "The part \"" + chapter.title.toStdString() + "\"";
            throw store::Error(error.kind(), error.file(), part + " can't be printed: " + error.why(), error.advice());
        }
    }

    /// Inserts the contents, whose page numbers are written when the pages are known.
    void addContents(std::size_t at) {
        const bool any = std::any_of(m_made.begin(), m_made.end(),
                                     [](const Section& section) { return !section.heading.isEmpty(); });
        if (!any) return;
        Table lines{.widths = {0.04, 0.86, 0.1}, .heads = {}, .rows = {}};
        for (std::size_t section = 0; section < m_made.size(); ++section) {
            if (m_made[section].heading.isEmpty()) continue;
            lines.rows.push_back(lineOf(m_made[section]));
            lines.rows.back().leadsTo = static_cast<int>(section < at ? section : section + 1);
        }
        Section contents{.heading = "Contents", .content = m_made.front().content};
        contents.content.title = contents.heading;
        contents.content.client = m_plan.client;
        Block title, list;
        title.kind = Block::Kind::title;
        title.runs = {Run{contents.heading}};
        list.kind = Block::Kind::table;
        list.table = std::move(lines);
        contents.content.blocks = {std::move(title), std::move(list)};
        m_made.insert(m_made.begin() + static_cast<std::ptrdiff_t>(at), std::move(contents));
    }

    /// A chapter's line, with a further report of it indented.
    static Row lineOf(const Section& section) {
        const auto cell = [](const QString& text, Align align, int columns) {
            Cell made{.runs = {}, .align = align, .columns = columns, .number = {}, .mask = {}, .date = {}};
            if (!text.isEmpty()) made.runs = {Run{text}};
            return made;
        };
        Row row;
        if (section.level > 1) row.cells.push_back(cell({}, Align::left, 1));
        row.cells.push_back(cell(section.heading, Align::left, section.level > 1 ? 1 : 2));
        row.cells.push_back(cell({}, Align::right, 1));
        return row;
    }

    const DocumentPlan& m_plan;
    const store::Progress& m_progress;
    double m_done = 0;
    std::vector<Section> m_made;
};

} // namespace

Report makeDocument(const DocumentPlan& plan, const store::Progress& progress) {
    Report report;
    report.sections = Sections(plan, progress).made();
    const Content& first = report.sections.front().content;
    report.content = {.title = plan.title,
                      .client = plan.client,
                      .date = first.date,
                      .headerLines = first.headerLines,
                      .footerLines = first.footerLines,
                      .blocks = {}};
    report.windowTitle = documentTitle(report.content);
    report.fileClient = plan.fileClient;
    report.fileTitle = plan.fileTitle;
    report.layout = layOut(report.sections, [&](double done) { return !progress || progress(fed + (1 - fed) * done); });
    return report;
}

} // namespace reports
