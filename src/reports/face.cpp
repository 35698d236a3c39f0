#include "reports/face.h"

#include <QRawFont>
#include <algorithm>

namespace reports {
namespace {

QFont fontOf(double pointSize, QFont::Weight weight, bool italic) {
    QFont font;
    font.setFamilies({"Open Sans", "DejaVu Sans", "sans-serif"});
    font.setPixelSize(qRound(points(pointSize)));
    font.setWeight(weight);
    font.setItalic(italic);
    // Widths must not depend on the size at which a page happens to be shown.
    font.setHintingPreference(QFont::PreferNoHinting);
    // A spacing too small to see keeps letters from being joined into one glyph: "fi" read back from a PDF stays "fi".
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.05);
    return font;
}

} // namespace

Face::Face(double pointSize, QFont::Weight weight, const QColor& colour, bool slanted)
    : font(fontOf(pointSize, weight, slanted)), ink(colour), lineHeight(points(pointSize) * 1.36), ascent(0),
      metrics(font) {
    // The capitals stand in the middle of their line, whatever room the font itself claims above and below.
    ascent = (lineHeight + metrics.capHeight()) / 2;
    m_wide = std::make_shared<Face>(*this);
    m_wide->font.setFamilies({"DejaVu Sans", "sans-serif"});
    m_wide->font.setPixelSize(qRound(points(pointSize) * 0.94)); // it runs larger at the same size
    m_wide->metrics = QFontMetricsF(m_wide->font);
}

const Face& Face::forText(const QString& text) const {
    constexpr char16_t endOfLatin = 0x0180; // all that comes before is in both families
    const auto rare = [](QChar letter) { return letter.unicode() >= endOfLatin; };
    if (!m_wide || std::none_of(text.begin(), text.end(), rare)) return *this;
    const QRawFont own = QRawFont::fromFont(font);
    const auto lacks = [&own](uint letter) { return letter > ' ' && !own.supportsCharacter(letter); };
    const QList<uint> letters = text.toUcs4();
    return std::any_of(letters.begin(), letters.end(), lacks) ? *m_wide : *this;
}

const Faces& Faces::all() {
    static const Faces faces;
    return faces;
}

} // namespace reports
