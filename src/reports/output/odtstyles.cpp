#include "reports/output/odtstyles.h"

#include <utility>

#include "reports/face.h"

namespace reports {

QString odtLength(double units) { return QString::number(units * 72 / unitsPerInch, 'f', 3) + "pt"; }

QString OdtStyles::letters(const Face& face) {
    // The weight is given as a number: otherwise half-bold heads would be as bold as results.
    return QString(R"(<style:text-properties style:font-name="Text" fo:font-size="%1" fo:font-weight="%2" )"
                   R"(fo:font-style="%3" fo:color="%4"/>)")
        .arg(odtLength(face.font.pixelSize()))
        .arg(face.font.weight())
        .arg(face.font.italic() ? "italic" : "normal", face.ink.name());
}

void OdtStyles::beginPage(const QString& pageStyle) {
    m_pageBreak = pageStyle.isEmpty() ? R"( fo:break-before="page")" : "";
    if (!pageStyle.isEmpty()) m_pageStyle = QString(R"( style:master-page-name="%1")").arg(pageStyle);
}

QString OdtStyles::named(const char* family, const QString& properties, const QString& attributes) {
    const QString key = family + attributes + properties;
    if (m_names.contains(key)) return m_names[key];
    const QString name = QString("%1%2").arg(family).arg(m_names.size() + 1);
    m_names.insert(key, name);
    m_xml += QString(R"(<style:style style:name="%1" style:family="%2"%3>)").arg(name, family, attributes) +
             properties + "</style:style>\n";
    return name;
}

QString OdtStyles::paragraph(const Text& text) {
    const char* const align = text.align == Align::right ? "end" : text.align == Align::centre ? "center" : "start";
    const QString spacing =
        QString(R"(<style:paragraph-properties fo:margin-top="%1" fo:line-height="%2" fo:text-align="%3"%4%5 %6/>)")
            .arg(odtLength(text.before), odtLength(text.face.lineHeight), align,
                 text.keepsNext ? R"( fo:keep-with-next="always")" : "", std::exchange(m_pageBreak, {}), text.further);
    return named("paragraph", spacing + letters(text.face), std::exchange(m_pageStyle, {}));
}

QString OdtStyles::span(const Face& face) { return named("text", letters(face)); }

QString OdtStyles::table(double width, double before) {
    const QString properties =
        QString(R"(<style:table-properties style:width="%1" table:align="left" fo:margin-top="%2"%3/>)")
            .arg(odtLength(width), odtLength(before), std::exchange(m_pageBreak, {}));
    return named("table", properties, std::exchange(m_pageStyle, {}));
}

QString OdtStyles::column(double width) {
    return named("table-column",
                 QString(R"(<style:table-column-properties style:column-width="%1"/>)").arg(odtLength(width)));
}

QString OdtStyles::row(bool whole) {
    return named("table-row",
                 QString(R"(<style:table-row-properties fo:keep-together="%1"/>)").arg(whole ? "always" : "auto"));
}

QString OdtStyles::cell(const QString& properties) {
    return named("table-cell", "<style:table-cell-properties " + properties + "/>");
}

} // namespace reports
