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
using reports::PrintSection;

namespace {

const char* const clientName = "Ms T. Ṱhoho-Nḓou";

/// A client file: a cover, two reports in one chapter, one with a page break in another.
class Document : public ReportTest {
protected:
    Document() {
        client = clientName;
        define("Cover.rpt", page("<h1>Client file</h1><h2>Prepared for</h2><p>{{Heading}}</p>"));
        define("Breaks.rpt", page("<p>before</p><hr class=\"page\"/><p>behind</p><hr class=\"page\"/>"));
        feed("HeadFoot", {{"HEADERV0", "Marlow & Partners"}, {"footv0", "Prepared by"}});
        feedLoan();
        feedAmortisation(90);
        plan.chapters = {{{}, prints({"Cover.rpt"})},
                         {"Loans", prints({"LonrepaA.rpt", "\\lonpramA.rpt"})},
                         {"Nothing worked out", prints({})},
                         {"Breaks & others", prints({"Breaks.rpt"})}};
    }
    static std::function<void(const PrintSection&)> prints(const std::vector<std::string>& definitions) {
        return [definitions](const PrintSection& run) {
            for (const std::string& definition : definitions)
                run({definition, "Window title"});
        };
    }
    QString fileOf(const QByteArray& bytes) {
        storetest::put(folder / "document", bytes.toStdString());
        return pathOf("document");
    }

    reports::DocumentPlan plan{.definitions = folder.path(),
                               .printDatabase = print,
                               .date = QDate(2026, 11, 23),
                               .title = "Client file",
                               .client = clientName,
                               .fileClient = {},
                               .fileTitle = "client file 2026-11-23",
                               .chapters = {}};
};

} // namespace

TEST_F(Document, PagesAreThoseOfTheReportsAloneNumberedThroughTheWhole) {
    desk.day = plan.date;
    const QStringList pages = pagesOfPdf(reports::toPdf(makeDocument(plan)));
    QStringList alone{QString()}; // the contents
    for (const char* definition : {"Cover.rpt", "LonrepaA.rpt", "LonPrAmA.rpt", "Breaks.rpt"})
        alone << this->pages(definition);
    alone.move(0, 1);
    ASSERT_EQ(pages.size(), alone.size());
    const auto wordsOf = [](const QString& page) {
        static const QRegularExpression number("Page \\d+ of \\d+");
        return page.simplified().remove(number);
    };
    for (int page = 0; page < pages.size(); ++page) {
        EXPECT_EQ(page == 1 ? QString() : wordsOf(pages[page]), wordsOf(alone[page])) << page;
        EXPECT_EQ(pages[page].count(QString("Page %1 of %2").arg(page + 1).arg(pages.size())), 1) << page;
    }
    EXPECT_EQ(wordsOf(pages[1]), QString("Marlow & Partners %1 23/11/2026 Contents Loans 3 Principal amount of a loan "
                                         "with amortisation 6 Breaks & others 9 Prepared by ")
                                     .arg(clientName));
    expectWords(pages[8], {"before"}, {"behind"});
    expectWords(pages[9], {"behind"}, {"before"});
}

// So many chapters that their list takes more than a page, which moves all of them.
TEST_F(Document, ContentsOutlineAndLinksNameThePageWhereEachPartBegins) {
    define("Part.rpt", page("<h1>{{Heading}}</h1><h2>Section of it</h2><p>text</p>"));
    for (int part = 0; part < 70; ++part)
        plan.chapters.push_back({QString("Part no. %1").arg(part), [this, part](const PrintSection& run) {
                                     feedLoan("Title no. " + std::to_string(part) + ".");
                                     prints(std::vector<std::string>(part % 7 == 0 ? 2 : 1, "Part.rpt"))(run);
                                 }});
    const reports::Report report = makeDocument(plan);
    expectSound(report.layout);
    EXPECT_EQ(found(report.layout, "Contents").face, &reports::Faces::all().title);
    const QString pdf = fileOf(reports::toPdf(report));
    const QStringList pages = textOfPdf(pdf).split('\f', Qt::SkipEmptyParts);
    const QJsonObject json = jsonOf(pdf), objects = json["objects"].toObject();
    expectWords(outlineOf(json).join('\n') + '\n',
                {"1 Contents page 2\n1 Loans page 5\n2 Financial charges page 5\n2 Amortisation, rand page 5\n"
                 "2 Principal amount of a loan with amortisation page 8\n3 Financial charges page 8\n"
                 "3 Amortisation, rand page 8\n1 Breaks & others page 11\n1 Part no. 0 page 13\n"
                 "2 Section of it page 13\n2 Own title page 14\n3 Section of it page 14\n1 Part no. 1 page 15\n"},
                {"Nothing worked out", "Client file", "Title no."});
    const QString root = objects[objects["trailer"]["/Root"].toString()]["/Outlines"].toString();
    EXPECT_EQ(objects[root]["/Count"].toInt(), 3 + 70) << "at first a reader shows the chapters alone";
    for (int part = 0; part < 70; ++part) {
        const QString title = QString("Title no. %1.").arg(part), line = QString("Part no. %1 ").arg(part);
        int begins = 0;
        while (begins < pages.size() && !pages[begins].contains(title))
            ++begins;
        EXPECT_EQ(simplifiedLine(pages.mid(1, 3).join('\n'), line), line + QString::number(begins + 1));
    }
    expectWords(pages[2], {"Nḓou – Contents"});
    const auto objectOf = [&](int page) { return json["pages"][page]["object"].toString(); };
    std::size_t lines = 0;
    for (int page = 1; page < 4; ++page) {
        const QJsonArray made = objects[objects[objectOf(page)]["/Annots"].toString()].toArray();
        const auto& links = report.layout.pages[static_cast<std::size_t>(page)].links;
        ASSERT_EQ(static_cast<std::size_t>(made.size()), links.size());
        lines += links.size();
        for (std::size_t at = 0; at < links.size(); ++at) {
            const QJsonValue link = objects[made[static_cast<qsizetype>(at)].toString()];
            const auto section = static_cast<std::size_t>(links[at].section);
            EXPECT_EQ(link["/Dest"][0].toString(), objectOf(report.layout.firstPages[section]));
            EXPECT_NEAR(link["/Rect"][1].toDouble(), 841.89 - links[at].area.bottom() * 0.06, 0.5);
        }
    }
    EXPECT_EQ(lines, 2U + 1 + 70 + 10);
}

TEST_F(Document, IsEncryptedByItsPassword) {
    reports::Report report = makeDocument(plan);
    for (const QString password : {"Botha 1966", "Ṱhoho-Nḓou é"}) {
        report.password = password;
        const QString pdf = fileOf(reports::exported(report, reports::Format::pdf));
        EXPECT_EQ(textOfPdf(pdf) + runTool("pdftotext", {"-upw", "another", pdf, "-"}), QString());
        expectWords(runTool("pdftotext", {"-upw", password, pdf, "-"}), {"Contents", "R 250 000.00"});
        expectWords(runTool("qpdf", {"--password=" + password, "--show-encryption", pdf}),
                    {"R = 6", "stream encryption method: AESv3", "print high resolution: allowed"}, {"not allowed"});
    }
}

TEST_F(Document, NamesThePartThatCannotBePrinted) {
    define("Broken.rpt", page("<p>{{Num77}}</p>"));
    const std::tuple<Chapter, const char*, const char*, int> faults[] = {
        {{"Loans \"20\"", prints({"Lonrepa.rpt", "Broken.rpt"})},
         "The part \"Loans \"20\"\" can't be printed: Line 5: ",
         "Correct the report definition",
         3265},
        {{"Tax", prints({"Absent.rpt"})}, "The part \"Tax\" can't be printed: ", "install", 53},
        {{{},
          [this](const PrintSection&) {
              feed("Loan", {{"Num1", 1}});
          }},
         "The cover can't be printed: ",
         "Install",
         3011}};
    for (const auto& [chapter, why, advice, number] : faults) {
        plan.chapters.assign(39, {"Sound", prints({"Breaks.rpt"})});
        plan.chapters[20] = chapter;
        const auto error = storetest::caughtFrom([this] { makeDocument(plan); });
        ASSERT_TRUE(error);
        EXPECT_THAT(error->why(), testing::StartsWith(why));
        EXPECT_THAT(error->advice(), testing::HasSubstr(advice));
        EXPECT_EQ(error->number(), number);
    }
    plan.chapters = {{"Loans", prints({})}};
    EXPECT_EQ(storetest::errorOf([this] { makeDocument(plan); }), 3021) << "nothing to print";
}

TEST_F(Document, TellsItsProgressAndCanBeCancelledAtEachStep) {
    const reports::Report report = makeDocument(plan);
    const std::function<void(const store::Progress&)> works[] = {
        [this](const store::Progress& progress) { makeDocument(plan, progress); },
        [&](const store::Progress& progress) { exported(report, reports::Format::pdf, progress); },
        [&](const store::Progress& progress) { exported(report, reports::Format::odt, progress); }};
    for (const auto& work : works) {
        std::vector<double> told;
        work([&](double done) { return told.push_back(done), true; });
        EXPECT_GE(told.size(), report.sections.size());
        EXPECT_TRUE(std::is_sorted(told.begin(), told.end()) && told.front() >= 0 && told.back() <= 1);
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
    EXPECT_FALSE(box.text.contains("secret") || fs::exists(folder / "a.odt"));
    EXPECT_EQ(desk.suggestedName, QString("%1 - client file 2026-11-23.pdf").arg(clientName));
    EXPECT_EQ(desk.offeredFilters, QStringList({"PDF (*.pdf)", "ODT (*.odt)"}));
    desk.expect(screenkit::Answer::yes);
    EXPECT_TRUE(window->exportTo(pathOf("a.odt")));
    EXPECT_EQ(storetest::bytesOf(folder / "a.odt").substr(0, 2), "PK");

    // Cancelled by the box that shows how far it is: the file of that name stays as it was.
    storetest::put(folder / "b.pdf", "old");
    QTimer clicks;
    clicks.callOnTimeout([] {
        for (QWidget* shown : QApplication::topLevelWidgets())
            if (auto* work = qobject_cast<QProgressDialog*>(shown)) work->cancel();
    });
    clicks.start(0);
    report->layout.pages.resize(500, report->layout.pages[3]); // long enough for the box to look for an answer
    EXPECT_FALSE(window->exportTo(pathOf("b.pdf")));
    EXPECT_EQ(storetest::bytesOf(folder / "b.pdf"), "old");
}

TEST_F(Document, AClickOnALineOfTheContentsShowsItsPage) {
    engine.show(std::make_shared<reports::Report>(makeDocument(plan)));
    reports::PageView& view = engine.previews().front()->view();
    view.setScale(1);
    view.showPage(1);
    const double scale = view.logicalDpiX() / reports::unitsPerInch, gap = view.fontMetrics().height() * 1.2;
    const QPointF line = engine.previews().front()->report().layout.pages[1].links.at(1).area.center() * scale;
    const QPoint place = QPoint(view.viewport()->width() / 2, static_cast<int>(gap + line.y()));
    QTest::mouseMove(view.viewport(), place);
    EXPECT_EQ(view.viewport()->cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(view.currentPage(), 5);
}

TEST_F(Document, AsOdtHasAPageStyleForEachSectionAndItsPagesInTheContents) {
    plan.chapters.push_back({"Empty", prints({"Empty.rpt"})});
    define("Empty.rpt", page(""));
    const QString file = fileOf(reports::exported(makeDocument(plan), reports::Format::odt));
    const QString styles = runTool("unzip", {"-p", file, "styles.xml"});
    const QString content = runTool("unzip", {"-p", file, "content.xml"});
    for (const char* part : {"<style:master-page ", "<style:header-first>", "<style:footer-first>"})
        EXPECT_EQ(styles.count(part), 6) << part;
    EXPECT_EQ(styles.count("Principal amount of a loan with amortisation"), 1);
    static const QRegularExpression begins("fo:margin-top=\"0.000pt\"[^>]* fo:break-before=\"page\"");
    EXPECT_EQ(content.count(begins), 1);
    EXPECT_EQ(content.count("<text:bookmark-ref "), 4);
    for (const auto& [section, number] : {std::pair(3, 3), std::pair(4, 6), std::pair(5, 9), std::pair(6, 11)})
        expectWords(content, {QString("style:master-page-name=\"Section%1\"").arg(section),
                              QString("<text:bookmark text:name=\"Section%1\"/>").arg(section),
                              QString(" text:ref-name=\"Section%1\">%2</text:bookmark-ref>").arg(section).arg(number)});
}
