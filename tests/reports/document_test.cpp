#include "reports/document.h"

#include <QRegularExpression>

#include "reports/layout_support.h"
#include "reports/output/pdfproperties.h"
#include "reports/report_support.h"

using namespace reporttest;
using reports::Chapter;
using reports::DocumentPlan;
using reports::PrintSection;

namespace {

const char* const clientName = "Ms T. Ṱhoho-Nḓou";

/// A client file with a cover, loans with and without their table, and an analysis.
class Document : public ReportTest {
protected:
    Document() {
        client = clientName;
        define("Cover.rpt", page("<h1>Client file</h1><h2>Prepared for</h2><p>{{Heading}}</p>"));
        define("Breaks.rpt", page("<p>before</p><hr class=\"page\"/><p>behind</p><hr class=\"page\"/>"));
        feed("HeadFoot", {{"HEADERV0", "Marlow & Partners"}, {"footv0", "Prepared by"}});
        feedLoan();
        plan.chapters = {{{}, prints({"Cover.rpt"})},
                         {"Loans",
                          [this](const PrintSection& run) {
                              for (const int months : {90, 120}) {
                                  feedAmortisation(months);
                                  run({months == 90 ? "LonrepaA.rpt" : "\\lonpramA.rpt", "Title"});
                              }
                          }},
                         {"Nothing worked out", prints({})},
                         {"Breaks & others", prints({"Breaks.rpt"})}};
    }
    static std::function<void(const PrintSection&)> prints(const std::vector<std::string>& definitions) {
        return [definitions](const PrintSection& run) {
            for (const std::string& definition : definitions)
                run({definition, ""});
        };
    }
    QString fileOf(const QByteArray& pdf) {
        storetest::put(folder / "document.pdf", pdf.toStdString());
        return pathOf("document.pdf");
    }

    DocumentPlan plan{.definitions = folder.path(),
                      .printDatabase = print,
                      .date = QDate(2026, 11, 23),
                      .title = "Client file",
                      .client = clientName,
                      .chapters = {}};
};

/// The words of a page without its number.
QString wordsOf(const QString& page) {
    static const QRegularExpression number("Page \\d+ of \\d+");
    return page.simplified().remove(number);
}

} // namespace

TEST_F(Document, PagesAreThoseOfTheReportsAloneNumberedThroughTheWhole) {
    desk.day = plan.date;
    const QStringList pages = pagesOfPdf(reports::toPdf(makeDocument(plan)));
    QStringList alone = this->pages("Cover.rpt");
    alone << QString(); // the contents
    feedAmortisation(90);
    alone << this->pages("LonrepaA.rpt");
    feedAmortisation(120);
    alone << this->pages("LonPrAmA.rpt") << this->pages("Breaks.rpt");
    ASSERT_EQ(pages.size(), alone.size());
    for (int page = 0; page < pages.size(); ++page) {
        EXPECT_EQ(page == 1 ? QString() : wordsOf(pages[page]), wordsOf(alone[page])) << page;
        EXPECT_EQ(pages[page].count(QString("Page %1 of %2").arg(page + 1).arg(pages.size())), 1) << page;
    }
    EXPECT_EQ(wordsOf(pages[1]), QString("Marlow & Partners %1 23/11/2026 Contents Loans 3 Principal amount of a loan "
                                         "with amortisation 6 Breaks & others 10 Prepared by ")
                                     .arg(clientName));
    expectWords(pages[9], {"before"}, {"behind"});
    EXPECT_TRUE(pages[10].contains("behind"));
}
