#pragma once

#include <QStringList>
#include <vector>

#include "reports/layout.h"
#include "reports/paragraph.h"

namespace reports {

struct Content;

/// A horizontal position and width, in page units.
struct Measure {
    double x = 0;
    double width = 0;
};

/// The frame around the text of each page: the practice's lines at top and bottom, the page number, the date, and the
/// client, so that a single sheet still shows which report it belongs to.
///
/// A line wider than the page wraps over further lines; nothing is cut.
class PageFrame {
public:
    explicit PageFrame(const Content& content);

    /// The horizontal extent of the text.
    static Measure flow();
    /// Where the text of a page (from 0) begins, and where it must end.
    double top(std::size_t page) const;
    double bottom() const { return m_bottom; }

    /// Draws the frame of a page (from 0) of the report, which is page `number` (from 1) of the `count` pages of all.
    void add(Page& page, std::size_t index, std::size_t number, std::size_t count) const;

private:
    double headTop() const;
    void addHead(Page& page, std::size_t index) const;
    void addFooter(Page& page, const QString& number) const;

    std::vector<Paragraph> m_header, m_footer;
    Paragraph m_client;  ///< on the first page
    Paragraph m_running; ///< client and title, on later pages
    QString m_date;
    double m_bottom = 0;
};

/// Adds a line of text to a page, its top left corner at (x, y).
void addLine(Page& page, const Line& line, const Face& face, double x, double y);

} // namespace reports
