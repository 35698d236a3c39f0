#include "reports/layout.h"

#include "base/numberformat.h"
#include "reports/face.h"
#include "reports/report_support.h"

using namespace reporttest;

namespace {

class Pages : public ReportTest {
protected:
    void feedLines(const QStringList& header, const QStringList& footer) {
        Row row;
        for (int line = 0; line < 4; ++line) {
            row.emplace_back("HEADERV" + std::to_string(line), header.value(line).toStdString());
            row.emplace_back("footv" + std::to_string(line), footer.value(line).toStdString());
        }
        feed("HeadFoot", row);
    }
    /// Where the report's first own text begins, in units of the page.
    double firstLine(const QString& definition) {
        const auto report = engine.prepare(definition);
        for (const auto& placed : report->layout.pages.front().texts)
            if (placed.text == "Monthly repayment of a loan") return placed.at.y();
        return -1;
    }
};

} // namespace

TEST_F(Pages, RepeatHeadsFrameAndNumberOnEachPage) {
    feedLines({"Marlow & Partners", "14 Jacaranda Street", "", "Tel. 012"}, {"Prepared by", "", "Signed: ____"});
    feedLoan();
    feedAmortisation(600);
    const QStringList pages = this->pages("LonrepaA.rpt");
    ASSERT_GE(pages.size(), 15);
    EXPECT_LE(pages.size(), 18);
    const auto row = [](int month) {
        const std::string capital = base::formatNumber(1000.005 + month, "# ### ##0.00");
        return QString(" %1 %2 2 447.92 0.50").arg(month).arg(QString::fromStdString(capital));
    };
    int next = 1;
    for (int page = 0; page < pages.size(); ++page) {
        const QString& text = pages[page];
        EXPECT_EQ(text.simplified().count("Month Capital payment Interest payment Balance"), 1) << page;
        for (const char* line : {"Marlow & Partners", "14 Jacaranda Street", "Tel. 012", "Prepared by", "Signed: ____"})
            EXPECT_EQ(text.count(line), 1) << page << line;
        EXPECT_TRUE(text.contains(QString("Page %1 of %2").arg(page + 1).arg(pages.size())));
        while (text.simplified().contains(row(next)))
            ++next; // each row once, in order, none lost at a page's end
    }
    EXPECT_EQ(next, 601);
}

TEST_F(Pages, EmptyHeaderLinesTakeNoRoom) {
    feedLoan();
    feedLines({"A", "B", "C", "D"}, {});
    const double four = firstLine("Lonrepa.rpt");
    feedLines({"A", "", "", "D"}, {});
    const double two = firstLine("Lonrepa.rpt");
    feedLines({}, {});
    const double none = firstLine("Lonrepa.rpt");
    EXPECT_GT(four, two);
    EXPECT_GT(two, none);
    EXPECT_TRUE(text("Lonrepa.rpt").contains("Page 1 of 1"));
}

// Whatever a practice types, nothing may fall off the paper or run into the footer.
TEST_F(Pages, LongTextsWrapAndRunOnInsideThePage) {
    feedLoan();
    QString words;
    for (int word = 0; word < 3000; ++word)
        words += QString("w%1 ").arg(word);
    const QString unbroken(400, 'W');
    feed("Loans", {{"Heading", unbroken.left(50).toStdString()}, {"Num1", 1}});
    feed("PersDetails", {{"Name", "N"}, {"Comments", (words + unbroken).toStdString()}});
    define("long.rpt", page("<h1>{{Heading}}{{Heading}}</h1><table><col width=\"20%\"/><col width=\"80%\"/>"
                            "<thead><tr><th>Head</th><th>Memo</th></tr></thead>"
                            "<tr><td>{{PersDetails.Name}}</td><td>{{PersDetails.Comments}}</td></tr></table>"
                            "<p>{{PersDetails.Comments}}</p><div><div><p>{{PersDetails.Comments}}</p></div>"
                            "<div><p>right</p></div></div><p>after</p>"));
    const auto report = engine.prepare("long.rpt");
    const QSizeF size = reports::Layout::pageSize();
    for (const reports::Page& page : report->layout.pages)
        for (const reports::PlacedText& text : page.texts) {
            const double right = text.at.x() + QFontMetricsF(text.face->font).horizontalAdvance(text.text.trimmed());
            EXPECT_LE(right, size.width() * 0.91) << text.text.toStdString();
            EXPECT_LE(text.at.y(), size.height() * 0.965);
        }
    const QString text = textOfPdf(reports::toPdf(*report));
    for (const QString word : {"w0 ", "w1499 ", "w2999 "})
        EXPECT_EQ(text.simplified().count(word), 3) << word.toStdString();
    for (const QString& page : pagesOfPdf(reports::toPdf(*report)).mid(1, 2))
        EXPECT_TRUE(page.contains("Memo"));
    EXPECT_TRUE(text.contains("after"));
}

// A heading alone at the foot of a page promises a table that is not there.
TEST_F(Pages, AHeadingStaysWithWhatFollows) {
    feedLoan();
    feedAmortisation(40);
    for (int lines = 20; lines < 60; ++lines) {
        std::string body;
        for (int line = 0; line < lines; ++line)
            body += "<p>line</p>";
        define("own.rpt", page(body + "<h2>Amortisation</h2><table><thead><tr><th>Head</th></tr></thead>"
                                      "{{#Amort}}<tr><td>row {{Year:##}}</td></tr>{{/Amort}}</table>"));
        const auto report = engine.prepare("own.rpt");
        for (int page = 0; page < report->layout.count(); ++page) {
            const QString text = report->layout.textOf(page);
            ASSERT_EQ(text.contains("Amortisation"), text.contains("row 1\n")) << lines << " on page " << page;
        }
    }
}
