#include "reports/output/odttext.h"

#include <QXmlStreamWriter>

#include "reports/face.h"
#include "reports/output/odtstyles.h"

namespace reports {
namespace {

/// Readers of the file reduce several blanks to one and drop those at either end, so they are written as elements.
void writeBlanks(QXmlStreamWriter& xml, qsizetype count) {
    xml.writeEmptyElement("text:s");
    xml.writeAttribute("text:c", QString::number(count));
}

} // namespace

void writeOdtText(QXmlStreamWriter& xml, const QString& text) {
    const auto sign = [&](qsizetype at) { return at < text.size() ? text[at] : QChar('\n'); };
    qsizetype from = 0;
    for (qsizetype at = 0; at <= text.size(); ++at) {
        const bool loneBlank = sign(at) == ' ' && at > from && sign(at + 1) != ' ' && sign(at + 1) != '\n';
        const bool ends = at == text.size() || sign(at) == '\n' || sign(at) == '\t' || (sign(at) == ' ' && !loneBlank);
        if (!ends) continue;
        if (at > from) xml.writeCharacters(text.mid(from, at - from));
        if (at == text.size()) return;
        qsizetype next = at + 1;
        if (sign(at) == '\n') xml.writeEmptyElement("text:line-break");
        if (sign(at) == '\t') xml.writeEmptyElement("text:tab");
        if (sign(at) == ' ') {
            while (next < text.size() && text[next] == ' ')
                ++next;
            writeBlanks(xml, next - at);
        }
        from = next;
        at = next - 1;
    }
}

void writeOdtRuns(QXmlStreamWriter& xml, OdtStyles& styles, const std::vector<Run>& runs, const Face& face) {
    const Faces& faces = Faces::all();
    for (const Run& run : runs) {
        const bool apart = &face == &faces.body && (run.bold || run.italic); // headings have only one face
        if (apart) {
            xml.writeStartElement("text:span");
            xml.writeAttribute("text:style-name", styles.span(run.bold ? faces.bold : faces.italic));
        }
        writeOdtText(xml, run.text);
        if (apart) xml.writeEndElement();
    }
}

} // namespace reports
