#pragma once

#include <QHash>
#include <QString>

#include "reports/content.h"

namespace reports {

class Face;

/// A length of the page (see face.h) as the file states it: "12.92pt".
QString odtLength(double units);

/// The styles of a text document: each look that is asked for gets a name, the same look the same name.
class OdtStyles {
public:
    struct Text {
        const Face& face;
        Align align = Align::left;
        double before = 0;      ///< room above
        bool keepsNext = false; ///< on one page with what follows
        QString further{};      ///< further properties of the paragraph
    };

    QString paragraph(const Text& text);
    QString span(const Face& face);
    QString table(double width, double before);
    QString column(double width);
    /// whole: on one page; a row longer than a page must be free to break.
    QString row(bool whole);
    QString cell(const QString& properties);

    /// All of them, as elements of office:automatic-styles.
    QString xml() const { return m_xml; }
    /// The part of a text's look that its letters have, as style:text-properties.
    static QString letters(const Face& face);

private:
    QString named(const char* family, const QString& properties);

    QHash<QString, QString> m_names;
    QString m_xml;
};

} // namespace reports
