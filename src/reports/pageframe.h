#pragma once

#include <QStringList>
#include <vector>

#include "reports/layout.h"
#include "reports/paragraph.h"

namespace reports {

struct Content;

/// Where something stands across the page, in its units.
struct Measure {
    double x = 0;
    double width = 0;
};

/// What stands around the text of each page: the practice's lines above and below, the page's number, the day, and of
/// whom the page speaks, so that a sheet that has lost its fellows still says where it belongs.
///
/// Every line is shown whole, whatever its letters: what is wider than the page runs on over further lines.
class PageFrame {
public:
    explicit PageFrame(const Content& content);

    /// The part of the page's width that the text takes.
    static Measure flow();
    /// Where the text begins on a page, from 0, and where it must end.
    double top(std::size_t page) const;
    double bottom() const { return m_bottom; }

    void add(Page& page, std::size_t index, std::size_t count) const;

private:
    double headTop() const;
    void addHead(Page& page, std::size_t index) const;
    void addFooter(Page& page, const QString& number) const;

    std::vector<Paragraph> m_header, m_footer;
    Paragraph m_client;  ///< of the first page
    Paragraph m_running; ///< client and title, of the pages after it
    QString m_date;
    double m_bottom = 0;
};

/// Puts a line of text on a page, its top left corner at (x, y).
void addLine(Page& page, const Line& line, const Face& face, double x, double y);

} // namespace reports
