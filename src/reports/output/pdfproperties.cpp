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

QPDFObjectHandle number(std::size_t value) { return QPDFObjectHandle::newInteger(static_cast<long long>(value)); }

/// The outline as PDF stores it: each heading refers to its parent, its neighbours, and its first and last child.
class Outline {
public:
    Outline(QPDF& pdf, const std::vector<PdfHeading>& headings)
        : m_pdf(pdf), m_headings(headings), m_pages(QPDFPageDocumentHelper(pdf).getAllPages()) {}

    QPDFObjectHandle made() {
        QPDFObjectHandle root = m_pdf.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Outlines >>"));
        addUnder(root, 0, m_headings.size());
        return root;
    }

private:
    /// Adds the headings of this range under `parent`; a heading of a lower level goes under the one before it.
    void addUnder(QPDFObjectHandle parent, std::size_t from, std::size_t to) {
        QPDFObjectHandle previous = QPDFObjectHandle::newNull();
        std::size_t count = 0;
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
            addUnder(item, at + 1, next);
            previous = item;
            at = next;
            ++count;
        }
        if (count == 0) return;
        parent.replaceKey("/Last", previous);
        parent.replaceKey("/Count", number(count)); // initially expanded
    }

    QPDFObjectHandle itemOf(const PdfHeading& heading) {
        QPDFObjectHandle page = m_pages.at(static_cast<std::size_t>(heading.page)).getObjectHandle();
        const double height = page.getKey("/MediaBox").getArrayItem(3).getNumericValue();
        QPDFObjectHandle place = QPDFObjectHandle::newArray();
        place.appendItem(page);
        place.appendItem(QPDFObjectHandle::newName("/XYZ"));
        place.appendItem(QPDFObjectHandle::newInteger(0));
        place.appendItem(QPDFObjectHandle::newReal(height - heading.top, 2));
        place.appendItem(QPDFObjectHandle::newNull()); // keeps the reader's zoom
        QPDFObjectHandle item = QPDFObjectHandle::newDictionary();
        item.replaceKey("/Title", textObject(heading.text));
        item.replaceKey("/Dest", place);
        return m_pdf.makeIndirectObject(item);
    }

    QPDF& m_pdf;
    const std::vector<PdfHeading>& m_headings;
    std::vector<QPDFPageObjectHelper> m_pages;
};

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

QByteArray withProperties(const QByteArray& bytes, const QString& title, const QString& author,
                          const std::vector<PdfHeading>& headings) {
    try {
        QPDF pdf;
        pdf.setSuppressWarnings(true);
        pdf.processMemoryFile("report.pdf", bytes.constData(), static_cast<std::size_t>(bytes.size()));
        setProperties(pdf, title, author);
        if (!headings.empty()) {
            pdf.getRoot().replaceKey("/Outlines", Outline(pdf, headings).made());
            pdf.getRoot().replaceKey("/PageMode", QPDFObjectHandle::newName("/UseOutlines"));
        }
        QPDFWriter writer(pdf);
        writer.setOutputMemory();
        writer.setDeterministicID(true);
        writer.write();
        const auto buffer = writer.getBufferSharedPointer();
        return {reinterpret_cast<const char*>(buffer->getBuffer()), static_cast<qsizetype>(buffer->getSize())};
    } catch (const std::exception& failure) {
        throw store::Error(store::Number::deviceError, "PDF", failure.what());
    }
}

} // namespace reports
