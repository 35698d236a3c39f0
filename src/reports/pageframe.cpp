#include "reports/pageframe.h"

#include <numeric>

#include "reports/content.h"
#include "reports/pagelook.h"

namespace reports {
namespace {

using namespace look;

double heightOf(const std::vector<Paragraph>& paragraphs) {
    return std::accumulate(paragraphs.begin(), paragraphs.end(), 0.0,
                           [](double height, const Paragraph& paragraph) { return height + paragraph.height(); });
}

double addParagraph(Page& page, const Paragraph& paragraph, double x, double y) {
    for (const Line& line : paragraph.lines) {
        addLine(page, line, *paragraph.face, x, y);
        y += paragraph.face->lineHeight;
    }
    return y;
}

void addAtRight(Page& page, const QString& text, const Face& face, double y) {
    const Measure flow = PageFrame::flow();
    page.texts.push_back({{flow.x + flow.width - face.widthOf(text), y + face.ascent}, text, &face});
}

} // namespace

PageFrame::PageFrame(const Content& content) : m_date(content.date) {
    const Faces& faces = Faces::all();
    const double width = flow().width;
    for (const QString& line : content.headerLines)
        if (!line.isEmpty())
            m_header.push_back(broken({Run{line}}, m_header.empty() ? faces.practice : faces.header, width));

    QStringList footer = content.footerLines;
    while (!footer.isEmpty() && footer.last().isEmpty())
        footer.removeLast();
    const double besideNumber = width - faces.footer.widthOf("Page 999 of 999") - points(12);
    for (const QString& line : footer)
        m_footer.push_back(broken({Run{line.isEmpty() ? QString(" ") : line}}, faces.footer, besideNumber));
    const double footerHeight = std::max(heightOf(m_footer), faces.footer.lineHeight);
    m_bottom = Layout::pageSize().height() - marginBottom - footerHeight - footerGap - aboveFooter;

    const double besideDate = width - faces.header.widthOf(m_date) - points(12);
    m_client = broken({Run{content.headOf(true)}}, faces.practice, besideDate);
    m_running = broken({Run{content.headOf(false)}}, faces.header, besideDate);
}

Measure PageFrame::flow() { return {marginLeft, Layout::pageSize().width() - marginLeft - marginRight}; }

/// The top of the line with client and date, below the practice's lines and their rule.
double PageFrame::headTop() const {
    return marginTop + (m_header.empty() ? 0 : heightOf(m_header) + points(5) + headGap);
}

double PageFrame::top(std::size_t page) const {
    const Paragraph& head = page == 0 ? m_client : m_running;
    const double dated = m_date.isEmpty() ? 0 : Faces::all().header.lineHeight;
    return headTop() + std::max(head.height(), dated) + belowHead;
}

void PageFrame::add(Page& page, std::size_t index, std::size_t number, std::size_t count) const {
    double y = marginTop;
    const Measure whole = flow();
    for (const Paragraph& line : m_header)
        y = addParagraph(page, line, whole.x, y);
    if (!m_header.empty()) page.fills.push_back({{whole.x, y + headerGap, whole.width, frameLine}, ink::strong});
    addHead(page, index);
    addFooter(page, QString("Page %1 of %2").arg(number).arg(count));
}

void PageFrame::addHead(Page& page, std::size_t index) const {
    const Measure whole = flow();
    const double end = addParagraph(page, index == 0 ? m_client : m_running, whole.x, headTop());
    if (!m_date.isEmpty()) addAtRight(page, m_date, Faces::all().header, headTop());
    if (index > 0) page.fills.push_back({{whole.x, end + headerGap, whole.width, hairline}, ink::hairline});
}

void PageFrame::addFooter(Page& page, const QString& number) const {
    const Face& face = Faces::all().footer;
    const Measure whole = flow();
    double y = m_bottom + aboveFooter;
    page.fills.push_back({{whole.x, y, whole.width, hairline}, face.ink});
    y += footerGap;
    addAtRight(page, number, face, y);
    for (const Paragraph& line : m_footer)
        y = addParagraph(page, line, whole.x, y);
}

void addLine(Page& page, const Line& line, const Face& face, double x, double y) {
    for (const Piece& piece : line.pieces)
        page.texts.push_back({{x + piece.x, y + face.ascent}, piece.text, piece.face});
}

} // namespace reports
