#pragma once

#include <gtest/gtest.h>

#include <QRectF>
#include <optional>

#include "reports/face.h"
#include "reports/layout.h"
#include "reports/pageframe.h"

namespace reporttest {

/// The area of a text's capitals and digits on its page.
inline QRectF inkOf(const reports::PlacedText& text) {
    const double height = text.face->metrics.capHeight();
    return {text.at.x(), text.at.y() - height, text.face->metrics.horizontalAdvance(text.text.trimmed()), height};
}

/// A text on a page (from 0).
struct Found {
    int page = -1;
    QRectF area;
    const reports::Face* face = nullptr;
};
/// The text that starts with `start`, the first one or the nth; fails the test if there is none.
inline Found found(const reports::Layout& layout, const QString& start, int nth = 0) {
    for (int page = 0; page < layout.count(); ++page)
        for (const reports::PlacedText& text : layout.pages[static_cast<std::size_t>(page)].texts)
            if (text.text.startsWith(start) && nth-- == 0) return {page, inkOf(text), text.face};
    ADD_FAILURE() << "no \"" << start.toStdString() << "\" on any page";
    return {};
}

/// Fails if a text overlaps another one or the margins, on any page.
inline void expectSound(const reports::Layout& layout) {
    const reports::Measure flow = reports::PageFrame::flow();
    const QRectF paper(flow.x - 1, 0, flow.width + 2, reports::Layout::pageSize().height() - reports::millimetres(11));
    for (const reports::Page& page : layout.pages)
        for (std::size_t one = 0; one < page.texts.size(); ++one) {
            const QRectF area = inkOf(page.texts[one]);
            if (area.isEmpty()) continue;
            EXPECT_TRUE(paper.contains(area)) << page.texts[one].text.toStdString();
            for (std::size_t other = 0; other < one; ++other)
                EXPECT_FALSE(area.intersects(inkOf(page.texts[other])))
                    << page.texts[one].text.toStdString() << " on " << page.texts[other].text.toStdString();
        }
}

} // namespace reporttest
