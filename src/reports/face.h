#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QString>

namespace reports {

/// Pages are measured in 1/1200 inch, the resolution of printers and PDF files, so that a page breaks at the same line
/// wherever it is shown.
inline constexpr double unitsPerInch = 1200;
constexpr double points(double value) { return value * unitsPerInch / 72; }
constexpr double millimetres(double value) { return value * unitsPerInch / 25.4; }

/// The typeface of the pages in one size, weight and colour. All use the program's own font family, whose digits have
/// equal widths and which has all letters of the country's languages.
class Face {
public:
    explicit Face(double pointSize, QFont::Weight weight = QFont::Normal, const QColor& ink = QColor(0x1f, 0x23, 0x2b),
                  bool italic = false);

    QFont font;
    QColor ink;
    double lineHeight; ///< from one baseline to the next
    double ascent;     ///< from the top of the line to its baseline; spare height is divided between above and below
    QFontMetricsF metrics;

    /// The width of a text on one line. The figures of a table are measured to see whether they fit, and once more to
    /// be placed; measuring is most of the work of laying out, so the last ones are kept. For the thread of the
    /// windows.
    double widthOf(const QString& text) const;

private:
    mutable QHash<QString, double> m_widths;
};

/// The typefaces that all reports share.
struct Faces {
    Face body{9.5};
    Face bold{9.5, QFont::DemiBold};
    Face italic{9.5, QFont::Normal, QColor(0x1f, 0x23, 0x2b), true};
    Face small{8};
    Face smallest{6.8};
    Face title{16, QFont::DemiBold, QColor(0x17, 0x40, 0x6b)};
    Face cover{30, QFont::DemiBold, QColor(0x17, 0x40, 0x6b)};
    Face answer{16, QFont::Bold, QColor(0x17, 0x40, 0x6b)}; ///< the strongest text of a report
    Face lead{10.5, QFont::Normal, QColor(0x5b, 0x64, 0x72)};
    Face heading{12, QFont::DemiBold, QColor(0x17, 0x40, 0x6b)};
    Face note{8.5, QFont::Normal, QColor(0x5b, 0x64, 0x72)};
    Face columnHead{9, QFont::DemiBold, QColor(0x17, 0x40, 0x6b)};
    Face result{11.5, QFont::Bold, QColor(0x17, 0x40, 0x6b)};
    Face total{9.5, QFont::Bold, QColor(0x17, 0x40, 0x6b)};
    Face smallTotal{8, QFont::Bold, QColor(0x17, 0x40, 0x6b)};
    Face smallestTotal{6.8, QFont::Bold, QColor(0x17, 0x40, 0x6b)};
    Face practice{10, QFont::DemiBold};
    Face header{8.5, QFont::Normal, QColor(0x3d, 0x45, 0x52)};
    Face footer{8, QFont::Normal, QColor(0x5b, 0x64, 0x72)};

    /// Created once for the process, since measuring a face loads its font file.
    static const Faces& all();
};

namespace ink {
inline const QColor strong(0x17, 0x40, 0x6b);   ///< rules that divide the page
inline const QColor hairline(0xd3, 0xd9, 0xe2); ///< between rows
inline const QColor headBand(0xe9, 0xee, 0xf5); ///< behind column heads
inline const QColor resultBand(0xf3, 0xf6, 0xfa);
} // namespace ink

} // namespace reports
