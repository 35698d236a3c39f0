#include "reports/document.h"

#include <QApplication>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QTimer>

#include "reports/layout_support.h"
#include "reports/pageview.h"
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
    expectWords(pages[10], {"behind"}, {"before"});
}

// So many chapters that their list takes more than a page, which moves all of them.
TEST_F(Document, ContentsOutlineAndLinksNameThePageWhereEachPartBegins) {
    define("Part.rpt", page("<h1>{{Heading}}</h1><h2>Section of it</h2><p>text</p>"));
    for (int part = 0; part < 70; ++part)
        plan.chapters.push_back({QString("Part no. %1").arg(part), [this, part](const PrintSection& run) {
                                     feedLoan("Title no. " + std::to_string(part));
                                     for (int times = part % 7 == 0 ? 2 : 1; times > 0; --times)
                                         run({"Part.rpt", ""});
                                 }});
    const reports::Report report = makeDocument(plan);
    for (int page = 0; page < report.layout.count(); ++page)
        EXPECT_EQ(report.layout.textOf(page).contains("Contents"), page > 0 && page < 4) << page;
    expectSound(report.layout);
    const QString pdf = fileOf(reports::toPdf(report));
    const QStringList pages = textOfPdf(pdf).split('\f', Qt::SkipEmptyParts);
    const QJsonObject json = jsonOf(pdf);
    const QStringList outline = outlineOf(json);
    expectWords(outline.join('\n') + '\n',
                {"1 Contents page 2\n1 Loans page 5\n2 Financial charges page 5\n2 Amortisation, rand page 5\n"
                 "2 Principal amount of a loan with amortisation page 8\n3 Financial charges page 8\n"
                 "3 Amortisation, rand page 8\n1 Breaks & others page 12\n1 Part no. 0 page 14\n"
                 "2 Section of it page 14\n2 Own title page 15\n3 Section of it page 15\n1 Part no. 1 page 16\n"},
                {"Nothing worked out", "Client file", "Title no."});
    const QString contents = pages.mid(1, 3).join('\n');
    for (int part = 0; part < 70; ++part) {
        int at = 0;
        while (!pages.value(at).contains(QRegularExpression(QString("Title no. %1\\n").arg(part))) && at < pages.size())
            ++at;
        EXPECT_EQ(simplifiedLine(contents, QString("Part no. %1 ").arg(part)),
                  QString("Part no. %1 %2").arg(part).arg(at + 1));
    }

    const QJsonObject objects = json["objects"].toObject();
    QStringList leads, shown;
    for (int page = 1; page < 4; ++page) {
        const auto& links = report.layout.pages[static_cast<std::size_t>(page)].links;
        const QJsonValue listed = objects[json["pages"][page]["object"].toString()]["/Annots"];
        const QJsonArray made = listed.isString() ? objects[listed.toString()].toArray() : listed.toArray();
        ASSERT_EQ(made.size(), static_cast<qsizetype>(links.size()));
        for (qsizetype at = 0; at < made.size(); ++at) {
            const QJsonValue link = objects[made[at].toString()];
            leads << link["/Dest"][0].toString();
            const QRectF area = links[static_cast<std::size_t>(at)].area;
            EXPECT_NEAR(link["/Rect"][1].toDouble(), 841.89 - area.bottom() * 0.06, 0.5);
            EXPECT_NEAR(link["/Rect"][3].toDouble(), 841.89 - area.top() * 0.06, 0.5);
            for (const reports::PlacedText& text : report.layout.pages[static_cast<std::size_t>(page)].texts)
                if (area.contains(inkOf(text)) && text.at.x() > area.center().x())
                    shown << json["pages"][text.text.toInt() - 1]["object"].toString();
        }
    }
    EXPECT_EQ(leads.size(), 2 + 1 + 70 + 10);
    const QString root = objects[objects["trailer"]["/Root"].toString()]["/Outlines"].toString();
    EXPECT_EQ(objects[root]["/Count"].toInt(), 1 + 1 + 1 + 70) << "at first a reader shows the chapters alone";
    EXPECT_EQ(objects[objects[root]["/Last"].toString()]["/Count"].toInt(), -1);
    EXPECT_EQ(leads, shown);
}

TEST_F(Document, IsEncryptedByItsPassword) {
    for (const QString password : {"Botha 1966", "Ṱhoho-Nḓou é"}) {
        reports::Report report = makeDocument(plan);
        report.password = password;
        const QString pdf = fileOf(reports::exported(report, reports::Format::pdf));
        EXPECT_FALSE(storetest::bytesOf(folder / "document.pdf").find("/AESV3") == std::string::npos);
        EXPECT_EQ(textOfPdf(pdf), QString());
        EXPECT_EQ(runTool("pdftotext", {"-upw", "another", pdf, "-"}), QString());
        expectWords(runTool("pdftotext", {"-upw", password, pdf, "-"}), {"Contents", "R 250 000.00"});
        expectWords(runTool("qpdf", {"--password=" + password, "--show-encryption", pdf}),
                    {"R = 6", "stream encryption method: AESv3", "extract for any purpose: allowed",
                     "print high resolution: allowed"});
    }
}

TEST_F(Document, NamesThePartThatCannotBePrinted) {
    define("Broken.rpt", page("<p>{{Num77}}</p>"));
    const auto failsToFeed = [this](const PrintSection&) { feed("Loan", {{"Num1", 1}}); };
    const struct {
        QString title;
        std::function<void(const PrintSection&)> print;
        const char *names, *advice;
        int number;
    } faults[] = {
        {"Loans \"20\"", prints({"Lonrepa.rpt", "Broken.rpt"}),
         "The part \"Loans \"20\"\" can't be printed: Line 5: ", "Correct the report definition", 3265},
        {"Tax", prints({"Absent.rpt"}), "The part \"Tax\" can't be printed: ", "install", 53},
        {"Cost", failsToFeed, "The part \"Cost\" can't be printed: ", "Install", 3011},
        {{}, prints({"Broken.rpt"}), "The cover can't be printed: Line 5: ", "Correct the report definition", 3265},
    };
    const std::vector<Chapter> sound(38, plan.chapters.back());
    for (const auto& fault : faults) {
        plan.chapters = sound;
        plan.chapters.insert(plan.chapters.begin() + 20, {fault.title, fault.print});
        const auto error = storetest::caughtFrom([this] { makeDocument(plan); });
        ASSERT_TRUE(error);
        EXPECT_THAT(error->why(), testing::StartsWith(fault.names));
        EXPECT_THAT(error->advice(), testing::HasSubstr(fault.advice));
        EXPECT_EQ(error->number(), fault.number);
    }
    plan.chapters = {{"Loans", prints({})}};
    EXPECT_EQ(storetest::errorOf([this] { makeDocument(plan); }), 3021) << "nothing to print";
}

TEST_F(Document, TellsItsProgressAndCanBeCancelledAtEachStep) {
    const reports::Report report = makeDocument(plan);
    for (const auto& work :
         {std::function<void(const store::Progress&)>([this](const auto& progress) { makeDocument(plan, progress); }),
          std::function<void(const store::Progress&)>(
              [&](const auto& progress) { reports::toPdf(report, progress); })}) {
        std::vector<double> told;
        work([&](double done) { return told.push_back(done), true; });
        EXPECT_GE(told.size(), plan.chapters.size() + report.sections.size());
        EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
        EXPECT_GE(told.front(), 0);
        EXPECT_LE(told.back(), 1);
        for (std::size_t last = 0; last < told.size(); ++last) {
            std::size_t steps = 0;
            EXPECT_THROW(work([&](double) { return steps++ < last; }), store::Cancelled) << last;
        }
    }
}

TEST_F(Document, PreviewOffersPdfAndOdtAndAsksBeforeAnOdtWithoutThePassword) {
    auto report = std::make_shared<reports::Report>(makeDocument(plan));
    report->password = "secret";
    engine.show(report);
    reports::PreviewWindow* window = engine.previews().front();
    EXPECT_EQ(window->windowTitle(), QString("Client file - %1").arg(clientName));
    desk.expectFile(pathOf("a.odt"));
    const auto box = desk.asked(screenkit::Answer::no, [&] { EXPECT_FALSE(window->exportReport()); });
    EXPECT_EQ(box.defaultAnswer, screenkit::Answer::no);
    EXPECT_FALSE(box.text.contains("secret"));
    EXPECT_FALSE(fs::exists(folder / "a.odt"));
    EXPECT_EQ(desk.suggestedName, QString("%1 - client file 2026-11-23.pdf").arg(clientName));
    EXPECT_EQ(desk.offeredFilters, QStringList({"PDF (*.pdf)", "ODT (*.odt)"}));
    desk.expect(screenkit::Answer::yes);
    EXPECT_TRUE(window->exportTo(pathOf("a.odt")));
    EXPECT_EQ(storetest::bytesOf(folder / "a.odt").substr(0, 2), "PK");

    // Cancelled by the box that shows how far it is: the file of that name stays as it was.
    storetest::put(folder / "b.pdf", "old");
    QTimer::singleShot(0, [] {
        for (QWidget* shown : QApplication::topLevelWidgets())
            if (auto* work = qobject_cast<QProgressDialog*>(shown)) work->cancel();
    });
    for (int copies = 0; copies < 6; ++copies) // long enough for the box to look for an answer
        report->layout.pages.insert(report->layout.pages.end(), report->layout.pages.begin(),
                                    report->layout.pages.end());
    EXPECT_FALSE(window->exportTo(pathOf("b.pdf")));
    EXPECT_EQ(storetest::bytesOf(folder / "b.pdf"), "old");
}

TEST_F(Document, AClickOnALineOfTheContentsShowsItsPage) {
    engine.show(std::make_shared<reports::Report>(makeDocument(plan)));
    reports::PreviewWindow* window = engine.previews().front();
    window->resize(800, 700);
    reports::PageView& view = window->view();
    view.setScale(1);
    view.showPage(1);
    const double scale = view.logicalDpiX() / reports::unitsPerInch;
    const QRectF line = window->report().layout.pages[1].links.at(1).area;
    const double left = (view.viewport()->width() - reports::Layout::pageSize().width() * scale) / 2;
    const QPoint place(static_cast<int>(left + line.center().x() * scale),
                       static_cast<int>(view.fontMetrics().height() * 1.2 + line.center().y() * scale));
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, place - QPoint(0, 40));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, place); // drags the pages
    EXPECT_EQ(view.currentPage(), 1);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(view.currentPage(), 5);
}

TEST_F(Document, AsOdtHasAPageStyleForEachSectionAndItsPagesInTheContents) {
    plan.chapters.push_back({"Empty", prints({"Empty.rpt"})});
    define("Empty.rpt", page(""));
    storetest::put(folder / "own.odt", reports::exported(makeDocument(plan), reports::Format::odt).toStdString());
    const QString styles = runTool("unzip", {"-p", pathOf("own.odt"), "styles.xml"});
    QString content = runTool("unzip", {"-p", pathOf("own.odt"), "content.xml"});
    EXPECT_EQ(styles.count("<style:master-page "), 6);
    EXPECT_EQ(styles.count("Principal amount of a loan with amortisation"), 1);
    EXPECT_EQ(content.count("fo:break-before=\"page\""), 1);
    const std::pair<int, int> sections[] = {{3, 3}, {4, 6}, {5, 10}, {6, 12}};
    for (const auto& [section, number] : sections) {
        expectWords(content, {QString("style:master-page-name=\"Section%1\"").arg(section),
                              QString("text:name=\"Section%1\"/>").arg(section),
                              QString("text:ref-name=\"Section%1\">%2<").arg(section).arg(number)});
    }
}
