#define POINTERHOLDER_TRANSITION 4 // the library's own switch for programs that never used its older pointers

#include "reports/output/pdfproperties.h"

#include <algorithm>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include "store/error.h"

namespace reports {
namespace {

QPDFObjectHandle textObject(const QString& text) { return QPDFObjectHandle::newUnicodeString(text.toStdString()); }

double heightOf(QPDFObjectHandle page) { return page.getKey("/MediaBox").getArrayItem(3).getNumericValue(); }

using Pages = std::vector<QPDFPageObjectHelper>;

/// A place on a page, so many points below its upper edge; the reader keeps its zoom there.
QPDFObjectHandle placeOn(const Pages& pages, int index, double top) {
    QPDFObjectHandle page = pages.at(static_cast<std::size_t>(index)).getObjectHandle();
    QPDFObjectHandle place = QPDFObjectHandle::newArray();
    place.appendItem(page);
    place.appendItem(QPDFObjectHandle::newName("/XYZ"));
    place.appendItem(QPDFObjectHandle::newInteger(0));
    place.appendItem(QPDFObjectHandle::newReal(heightOf(page) - top, 2));
    place.appendItem(QPDFObjectHandle::newNull());
    return place;
}

/// The outline as PDF stores it: each heading refers to its parent, its neighbours, and its first and last child.
class Outline {
public:
    Outline(QPDF& pdf, const std::vector<PdfHeading>& headings, const Pages& pages)
        : m_pdf(pdf), m_headings(headings), m_pages(pages) {}

    QPDFObjectHandle made() {
        QPDFObjectHandle root = m_pdf.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Outlines >>"));
        addUnder(root, 0, m_headings.size(), true);
        return root;
    }

private:
    /// Adds the headings of this range under `parent`; a heading of a lower level goes under the one before it. open:
    /// a reader shows them at once. Gives the number of lines that are shown when `parent` is open.
    long long addUnder(QPDFObjectHandle parent, std::size_t from, std::size_t to, bool open) {
        QPDFObjectHandle previous = QPDFObjectHandle::newNull();
        long long shown = 0;
        for (std::size_t at = from; at < to;) {
            std::size_t next = at + 1;
            while (next < to && m_headings[next].level > m_headings[at].level)
                ++next;
            QPDFObjectHandle item = itemOf(m_headings[at]);
            item.replaceKey("/Parent", parent);
            if (previous.isNull()) {
                parent.replaceKey("/First", item);
            } else {
                item.replaceKey("/Prev", previous);
                previous.replaceKey("/Next", item);
            }
            const bool only = at == 0 && next == m_headings.size(); // a report's own title
            const long long below = addUnder(item, at + 1, next, only);
            shown += 1 + (only ? below : 0);
            previous = item;
            at = next;
        }
        if (shown == 0) return 0;
        parent.replaceKey("/Last", previous);
        parent.replaceKey("/Count", QPDFObjectHandle::newInteger(open ? shown : -shown));
        return shown;
    }

    QPDFObjectHandle itemOf(const PdfHeading& heading) {
        QPDFObjectHandle item = QPDFObjectHandle::newDictionary();
        item.replaceKey("/Title", textObject(heading.text));
        item.replaceKey("/Dest", placeOn(m_pages, heading.page, heading.top));
        return m_pdf.makeIndirectObject(item);
    }

    QPDF& m_pdf;
    const std::vector<PdfHeading>& m_headings;
    const Pages& m_pages;
};

void addLink(QPDF& pdf, const Pages& pages, const PdfLink& link) {
    QPDFObjectHandle page = pages.at(static_cast<std::size_t>(link.page)).getObjectHandle();
    const double height = heightOf(page);
    QPDFObjectHandle added = QPDFObjectHandle::parse("<< /Type /Annot /Subtype /Link /Border [0 0 0] >>");
    QPDFObjectHandle area = QPDFObjectHandle::newArray();
    for (const double edge :
         {link.area.left(), height - link.area.bottom(), link.area.right(), height - link.area.top()})
        area.appendItem(QPDFObjectHandle::newReal(edge, 2));
    added.replaceKey("/Rect", area);
    added.replaceKey("/Dest", placeOn(pages, link.target, 0));
    if (!page.hasKey("/Annots")) page.replaceKey("/Annots", QPDFObjectHandle::newArray());
    page.getKey("/Annots").appendItem(pdf.makeIndirectObject(added));
}

/// The form of a password that readers compare: composed letters, in UTF-8.
std::string encoded(const QString& password) {
    return password.normalized(QString::NormalizationForm_KC).toStdString();
}

void setProperties(QPDF& pdf, const QString& title, const QString& author) {
    QPDFObjectHandle info = pdf.getTrailer().getKey("/Info");
    if (!info.isDictionary()) {
        info = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
        pdf.getTrailer().replaceKey("/Info", info);
    }
    info.replaceKey("/Title", textObject(title));
    if (!author.isEmpty()) info.replaceKey("/Author", textObject(author));
    QPDFObjectHandle root = pdf.getRoot();
    root.replaceKey("/Lang", QPDFObjectHandle::newString("en-ZA"));
    root.replaceKey("/ViewerPreferences", QPDFObjectHandle::parse("<< /DisplayDocTitle true >>"));
    root.removeKey("/Metadata"); // repeats part of the above and could contradict it
}

} // namespace

QByteArray withProperties(const QByteArray& bytes, const PdfProperties& properties) {
    try {
        QPDF pdf;
        pdf.setSuppressWarnings(true);
        pdf.processMemoryFile("report.pdf", bytes.constData(), static_cast<std::size_t>(bytes.size()));
        setProperties(pdf, properties.title, properties.author);
        const Pages pages = QPDFPageDocumentHelper(pdf).getAllPages();
        if (!properties.headings.empty()) {
            pdf.getRoot().replaceKey("/Outlines", Outline(pdf, properties.headings, pages).made());
            pdf.getRoot().replaceKey("/PageMode", QPDFObjectHandle::newName("/UseOutlines"));
        }
        for (const PdfLink& link : properties.links)
            addLink(pdf, pages, link);
        QPDFWriter writer(pdf);
        writer.setOutputMemory();
        if (const std::string password = encoded(properties.password); password.empty())
            writer.setDeterministicID(true);
        else
            writer.setR6EncryptionParameters(password.c_str(), password.c_str(), true, true, true, true, true, true,
                                             qpdf_r3p_full, true);
        writer.write();
        const auto buffer = writer.getBufferSharedPointer();
        return {reinterpret_cast<const char*>(buffer->getBuffer()), static_cast<qsizetype>(buffer->getSize())};
    } catch (const std::exception& failure) {
        throw store::Error(store::Number::deviceError, "PDF", failure.what());
    }
}

} // namespace reports
