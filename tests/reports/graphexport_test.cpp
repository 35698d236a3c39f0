#include "reports/output/graphexport.h"

#include <QImageReader>
#include <QRadioButton>
#include <QTemporaryDir>
#include <set>

#include "reports/graph_support.h"
#include "reports/report_support.h"

namespace {

using namespace graphtest;
using reporttest::runTool;
using reporttest::textOfPdf;

TEST(GraphExport, ExportsEveryFormatInTheChosenOrientation) {
    const QTemporaryDir folder;
    Fixture f;
    QPalette dark; // under a dark desktop the picture is white all the same
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, Qt::white);
    f.window.setPalette(dark);
    f.window.EMVGraph("R", GraphPeriod::years, f.a, f.b, f.c, f.d, 30);
    f.open();
    EXPECT_EQ(f.view().grab().toImage().pixelColor(4, 4), QColor(30, 30, 30));
    for (const bool landscape : {true, false}) {
        f.window.findChild<QRadioButton*>(landscape ? "Option1(0)" : "Option1(1)")->click();
        const QString base = folder.filePath(landscape ? "landscape" : "portrait");
        for (const char* ending : {".png", ".SVG", ".pdf"}) {
            f.desk.expectFile(base + ending);
            f.press("cmdExport");
        }
        EXPECT_EQ(f.desk.suggestedName, "Illustration of a Retirement Annuity-Superannuation type.png");

        const QImage picture(base + ".png");
        EXPECT_EQ(picture.width() > picture.height(), landscape);
        EXPECT_EQ(picture.pixelColor(2, 2), QColor(Qt::white));
        std::set<QRgb> colours;
        for (int y = 0; y < picture.height(); y += 3)
            for (int x = 0; x < picture.width(); x += 3)
                colours.insert(picture.pixel(x, y));
        EXPECT_TRUE(colours.contains(0xff0072b2) && colours.contains(0xffd55e00)); // two of the lines' colours

        QFile svg(base + ".SVG");
        ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
        const QString drawing = QString::fromUtf8(svg.readAll());
        QStringList texts{f.chart().title(),     "RETURNS ON INVESTMENT", "TERM OF INVESTMENT (years)",
                          "Estmated Mat. Value", "+Re-invested Div.",     "4 000"};
        reporttest::expectWords(textOfPdf(base + ".pdf"), texts);
        reporttest::expectWords(drawing, texts.replaceInStrings(QRegularExpression("^(.*)$"), ">\\1</text>"));
    }
}

TEST(GraphExport, AFailedExportTellsAndLeavesNothing) {
    const QTemporaryDir folder;
    Fixture f;
    f.window.LivAnnGraph(f.a, f.b, 30);
    f.desk.expectFile({}); // cancelled
    f.press("cmdExport");
    QDir(folder.path()).mkdir("taken.pdf"); // a folder has this name, so no user can write the file
    for (const char* name : {"no such folder/x.png", "taken.pdf"}) {
        f.desk.expectFile(folder.filePath(name));
        f.desk.told([&] { f.press("cmdExport"); });
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{"taken.pdf"});
}

TEST(GraphExport, ANameWithoutAnEndingBecomesAPicture) {
    const QTemporaryDir folder;
    Fixture f;
    f.window.LivAnnGraph(f.a, f.b, 30);
    for (int i = 0; i < 3; ++i)
        f.desk.expectFile(folder.filePath("Bond v2.1"));
    f.press("cmdExport");
    const QString file = folder.filePath("Bond v2.1.png");
    EXPECT_EQ(QImageReader::imageFormat(file), "png");
    storetest::put(file.toStdString(), "old");
    const std::filesystem::path beside = folder.filePath("beside").toStdString();
    std::filesystem::create_hard_link(file.toStdString(), beside);
    for (const auto answer : {screenkit::Answer::no, screenkit::Answer::yes}) {
        const QString asks = f.desk.asked(answer, [&] { f.press("cmdExport"); }).text;
        EXPECT_TRUE(asks.endsWith("Bond v2.1.png exists already.\nDo you want to replace it ?"));
        EXPECT_EQ(storetest::bytesOf(file.toStdString()) == "old", answer == screenkit::Answer::no);
    }
    EXPECT_EQ(storetest::bytesOf(beside), "old") << "a new file takes the old one's place; it is never written over";
}

TEST(GraphExport, PrintsInTheChosenOrientation) {
    const QTemporaryDir folder;
    Fixture f;
    f.window.LoanAmortGraph(f.a, f.b, f.c, 1, 20, 21);
    EXPECT_TRUE(f.desk.told([&] { f.press("cmdPrint"); }).text.startsWith("No printer is installed"));
    EXPECT_EQ(f.window.orientation(), QPageLayout::Landscape);
    f.desk.printTo = folder.filePath("landscape.pdf");
    f.press("cmdPrint");
    f.window.findChild<QRadioButton*>("Option1(1)")->click();
    f.desk.printTo = folder.filePath("portrait.pdf");
    f.press("cmdPrint");
    EXPECT_EQ(f.bench.reports.printer().outputFileName(), f.desk.printTo); // the session's printer
    for (const char* name : {"landscape", "portrait"}) {
        const QString file = folder.filePath(QString(name) + ".pdf");
        static const QRegularExpression pageSize("Pages: +1\n(?:.*\n)*Page size: +([0-9.]+) x ([0-9.]+)");
        const auto found = pageSize.match(runTool("pdfinfo", {file}));
        ASSERT_TRUE(found.hasMatch());
        EXPECT_EQ(found.captured(1).toDouble() > found.captured(2).toDouble(), std::string_view(name) == "landscape");
        EXPECT_TRUE(textOfPdf(file).contains("Illustration of Loan Repayment"));
    }
}

} // namespace
