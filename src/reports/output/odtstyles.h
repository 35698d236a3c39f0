#pragma once

#include <QHash>
#include <QString>

#include "reports/content.h"

namespace reports {

class Face;

/// A length in page units (see face.h) as the file writes it: "12.92pt".
QString odtLength(double units);

/// The styles of a text document. Each different look gets one name.
class OdtStyles {
public:
    struct Text {
        const Face& face;
        Align align = Align::left;
        double before = 0;      ///< space above
        bool keepsNext = false; ///< on the same page as what follows
        QString further{};      ///< other properties of the paragraph
    };

    /// The next paragraph or table begins a page: the first of that page style, or if that is empty any page.
    void beginPage(const QString& pageStyle = {});

    QString paragraph(const Text& text);
    QString span(const Face& face);
    QString table(double width, double before);
    QString column(double width);
    /// whole: keeps the row on one page; not for a row longer than a page.
    QString row(bool whole);
    QString cell(const QString& properties);

    /// All styles, as elements of office:automatic-styles.
    QString xml() const { return m_xml; }
    /// The part of a style that applies to characters, as style:text-properties.
    static QString letters(const Face& face);

private:
    /// attributes: of the style itself, beside its name and family.
    QString named(const char* family, const QString& properties, const QString& attributes = {});

    QString m_pageStyle; ///< for the next paragraph or table, as an attribute of its style; empty: none
    QString m_pageBreak; ///< the same among its properties

    QHash<QString, QString> m_names;
    QString m_xml;
};

} // namespace reports
