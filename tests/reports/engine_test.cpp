#include "reports/report_support.h"

using namespace reporttest;

namespace {

class Engine : public ReportTest {};

/// Where a word stands on its page, in points.
QPointF placeOf(const QString& file, const QString& word) {
    const QRegularExpression place("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>" + word + "<");
    const auto found = place.match(runTool("pdftotext", {"-bbox", file, "-"}));
    EXPECT_TRUE(found.hasMatch()) << word.toStdString();
    return {found.captured(1).toDouble(), found.captured(2).toDouble()};
}

/// Records the number of copies at the end of each page.
class CountingPrinter : public QPrinter {
public:
    CountingPrinter(const QString& file, int& copies) : QPrinter(QPrinter::HighResolution), m_copies(copies) {
        setOutputFormat(QPrinter::PdfFormat);
        setOutputFileName(file);
    }
    bool newPage() override {
        m_copies = copyCount();
        return QPrinter::newPage();
    }

private:
    int& m_copies;
};

} // namespace

TEST_F(Engine, CopiesHoldForOnePrintout) {
    feedLoan();
    feedAmortisation(100);
    int copies = 0;
    reports::Engine counted(desk, folder.path(), [&] { return std::make_unique<CountingPrinter>(printed, copies); });
    counted.CopiesToPrinter = 3;
    EXPECT_TRUE(counted.run("LonrepaA.rpt", "Title", Destination::printer));
    EXPECT_EQ(copies, 3);
    EXPECT_TRUE(counted.run("LonrepaA.rpt", "Title", Destination::printer));
    EXPECT_EQ(copies, 1);
}

TEST_F(Engine, EachFailureShowsOneBoxThatNamesTheFileAndTheProgramGoesOn) {
    feedLoan();
    define("Unknown.rpt", page("<p>{{Num77}}</p>"));
    const struct {
        const char *definition, *names, *number;
    } failures[] = {
        {"\\Missing.rpt", "Missing.rpt", "(53)"},
        {"Unknown.rpt", "Num77", "(3265)"},
    };
    for (const auto& failure : failures)
        for (const Destination destination : {Destination::preview, Destination::printer}) {
            engine.CopiesToPrinter = 7;
            const auto box = desk.told([&] { EXPECT_FALSE(engine.run(failure.definition, "Title", destination)); });
            EXPECT_TRUE(box.text.contains(failure.names)) << box.text.toStdString();
            EXPECT_TRUE(box.text.endsWith(failure.number)) << box.text.toStdString();
            EXPECT_EQ(engine.CopiesToPrinter, 1);
            EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        }
    EXPECT_TRUE(engine.previews().empty());
    EXPECT_FALSE(QFile::exists(printed));
    EXPECT_TRUE(engine.run("Lonrepa.rpt", "Title", Destination::preview));
    EXPECT_EQ(engine.previews().size(), 1u);
}

TEST_F(Engine, APreviewKeepsTheRowsOfItsOwnRun) {
    feedLoan();
    ASSERT_TRUE(engine.run("\\Lonrepa.rpt", "Personal Details ", Destination::preview));
    feed("Loans", {{"Heading", "x"}, {"Num1", 7.0}, {"Num2", 1}, {"Num3", 1}, {"Num4", 1}});
    ASSERT_TRUE(engine.run("\\Lonrepa.rpt", "", Destination::preview));
    fs::remove(print);
    const auto windows = engine.previews();
    ASSERT_EQ(windows.size(), 2u);
    EXPECT_TRUE(textOfPdf(reports::toPdf(windows[0]->report())).contains("R 250 000.00"));
    EXPECT_TRUE(textOfPdf(reports::toPdf(windows[1]->report())).contains("R 7.00"));
    EXPECT_EQ(windows[0]->windowTitle(), "Personal Details ");           // including its last blank
    EXPECT_EQ(windows[1]->windowTitle(), "Monthly repayment of a loan"); // without a title: the definition's own
    for (auto* window : windows) {
        EXPECT_EQ(window->parentWidget(), nullptr);
        EXPECT_FALSE(window->isModal());
    }
    windows[0]->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(engine.previews().size(), 1u);
}

TEST_F(Engine, PrintsOnTheSessionsPrinter) {
    feedLoan();
    feedAmortisation(100);
    EXPECT_TRUE(engine.run("LonrepaA.rpt", "Title", Destination::printer));
    EXPECT_TRUE(engine.previews().empty());
    const QStringList onPaper = textOfPdf(printed).split('\f', Qt::SkipEmptyParts);
    const QStringList inPdf = pages("LonrepaA.rpt");
    ASSERT_EQ(onPaper.size(), inPdf.size());
    EXPECT_EQ(textOfPdf(printed).count('\f'), inPdf.size()) << "and no blank page";
    for (int page = 0; page < inPdf.size(); ++page) // pages break as in the PDF
        EXPECT_EQ(onPaper[page].simplified(), inPdf[page].simplified());
    storetest::put(folder / "own.pdf", engine.pdf("LonrepaA.rpt").toStdString());
    for (const char* word : {"Principal", "Page"}) // and sets each word in its place
        EXPECT_LT((placeOf(printed, word) - placeOf(pathOf("own.pdf"), word)).manhattanLength(), 1) << word;

    // A later printout uses the choice made in Printer Setup.
    const QString other = pathOf("other.pdf");
    desk.printDialog = [&](QPrinter& printer) {
        printer.setOutputFileName(other);
        return true;
    };
    engine.setUpPrinter();
    QFile::remove(printed);
    EXPECT_TRUE(engine.run("Lonrepa.rpt", "Title", Destination::printer));
    EXPECT_TRUE(QFile::exists(other));
    EXPECT_FALSE(QFile::exists(printed));
}

TEST_F(Engine, WithoutAPrinterAWarningSaysSoAndViewingWorks) {
    feedLoan();
    const auto prints = [this] { EXPECT_FALSE(engine.run("Lonrepa.rpt", "Title", Destination::printer)); };
    printed = pathOf("no such folder/x.pdf"); // a printer that cannot start
    EXPECT_EQ(desk.told(prints).style, screenkit::BoxStyle::critical);
    desk.printTo.clear();
    for (const auto& box : {desk.told(prints), desk.told([this] { engine.setUpPrinter(); })}) {
        EXPECT_EQ(box.style, screenkit::BoxStyle::warning);
        EXPECT_TRUE(box.text.contains("No printer is installed"));
    }
    EXPECT_TRUE(engine.run("Lonrepa.rpt", "Title", Destination::preview));
}
