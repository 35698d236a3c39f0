#include <QScrollBar>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>

#include "reports/pageview.h"
#include "reports/report_support.h"

using namespace reporttest;

namespace {

class Preview : public ReportTest {
protected:
    Preview() {
        feedLoan();
        feedAmortisation(200);
        EXPECT_TRUE(engine.run("LonrepaA.rpt", "Title", Destination::preview));
        window = engine.previews().front();
        window->resize(800, 700);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
        window->activateWindow();
        view = &window->view();
    }
    QWidget* buttonOf(const char* action) {
        auto* bar = window->findChild<QToolBar*>("reportToolBar");
        return bar->widgetForAction(window->findChild<QAction*>(action));
    }
    void click(const char* action) { QTest::mouseClick(buttonOf(action), Qt::LeftButton); }

    reports::PreviewWindow* window = nullptr;
    reports::PageView* view = nullptr;
};

} // namespace

TEST_F(Preview, TurnsPagesByButtonAndKey) {
    const int last = view->pageCount() - 1;
    ASSERT_GE(last, 4);
    auto* field = window->findChild<QSpinBox*>("pageField");
    const std::pair<std::function<void()>, int> turns[] = {
        {[] {}, 0},
        {[this] { click("nextPage"); }, 1},
        {[this] { click("lastPage"); }, last},
        {[this] { click("previousPage"); }, last - 1},
        {[this] { QTest::keyClick(view, Qt::Key_Home); }, 0},
        {[this] { QTest::keyClick(view, Qt::Key_PageDown, Qt::ControlModifier); }, 1},
        {[this] { QTest::keyClick(view, Qt::Key_End); }, last}};
    for (const auto& [turn, page] : turns) {
        turn();
        EXPECT_EQ(view->currentPage(), page);
        EXPECT_EQ(field->text(), QString("Page %1 of %2").arg(page + 1).arg(last + 1));
        EXPECT_EQ(buttonOf("previousPage")->isEnabled(), page > 0);
        EXPECT_EQ(buttonOf("nextPage")->isEnabled(), page < last);
    }
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "3");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(view->currentPage(), 2);
}

TEST_F(Preview, FitsAndZoomsKeepingThePlace) {
    view->showPage(2);
    const double wide = view->scale();
    click("wholePage");
    EXPECT_LT(view->scale(), wide);
    EXPECT_EQ(view->currentPage(), 2);
    EXPECT_EQ(view->horizontalScrollBar()->maximum(), 0);
    const double whole = view->scale();
    window->resize(800, 500);
    EXPECT_LT(view->scale(), whole); // it still fits the page to the window
    QTest::keyClick(view, Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(view->scale(), 1);
    EXPECT_EQ(window->findChild<QToolButton*>("zoomButton")->text(), "100 %");
    for (int times = 0; times < 40; ++times)
        click("zoomIn");
    EXPECT_EQ(view->scale(), 8);
    click("pageWidth");
    EXPECT_NEAR(view->scale(), wide, 1e-9);
}

TEST_F(Preview, PaintsThePageInViewWhiteInADarkThemeToo) {
    QPalette dark;
    dark.setColor(QPalette::Dark, Qt::black);
    view->setPalette(dark);
    const QImage image = view->viewport()->grab().toImage();
    int written = 0, white = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = image.width() / 8; x < image.width() * 7 / 8; ++x) {
            const int grey = qGray(image.pixel(x, y));
            written += grey < 128;
            white += grey > 250;
        }
    EXPECT_GT(written, 500);
    EXPECT_GT(white, 10 * written);
}

TEST_F(Preview, TellsAReaderWhatIsInViewAndWhatEachButtonDoes) {
    EXPECT_EQ(view->accessibleName(), QString("Page 1 of %1").arg(view->pageCount()));
    EXPECT_TRUE(view->accessibleDescription().contains("Monthly repayment R 2 709.27"));
    for (const QAction* action : window->actions())
        EXPECT_FALSE(action->text().isEmpty()) << action->objectName().toStdString();
    for (QToolButton* button : window->findChildren<QToolButton*>()) {
        if (button->objectName().startsWith("qt_")) continue;
        EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
        EXPECT_FALSE(button->accessibleName().isEmpty() && button->text().isEmpty());
        EXPECT_EQ(button->icon().isNull(), button->objectName() == "zoomButton");
    }
    EXPECT_EQ(window->findChild<QToolButton*>("exportButton")->toolTip(), "Export Report");
}

TEST_F(Preview, ExportsUnderTheNameThatTheUserPicks) {
    auto* button = window->findChild<QToolButton*>("exportButton");
    desk.expectFile(pathOf("own.PDF"));
    QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
    EXPECT_EQ(desk.suggestedName, "Monthly repayment of a loan with amortisation.pdf");
    EXPECT_EQ(desk.offeredFilters,
              QStringList({"PDF (*.pdf)", "HTML (*.html)", "ODT (*.odt)", "CSV (*.csv)", "XLSX (*.xlsx)"}));
    EXPECT_EQ(storetest::bytesOf(folder / "own.PDF").substr(0, 5), "%PDF-");

    desk.expectFile(pathOf("table.csv"));
    QTest::keyClick(view, Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(storetest::bytesOf(folder / "table.csv").substr(3, 8), "Monthly ");

    desk.expectFile(pathOf("Smith 1.2")); // an unknown ending: the first format's is added
    EXPECT_TRUE(window->exportReport(reports::Format::xlsx));
    EXPECT_EQ(desk.offeredFilters.first(), "XLSX (*.xlsx)");
    EXPECT_EQ(storetest::bytesOf(folder / "Smith 1.2.xlsx").substr(0, 2), "PK");

    desk.expectFile(std::nullopt);
    EXPECT_FALSE(window->exportReport());
}

TEST_F(Preview, PrintsThePagesChosenInTheDialog) {
    desk.printDialog = [](QPrinter& printer) {
        printer.setPrintRange(QPrinter::PageRange);
        printer.setFromTo(2, 3);
        return true;
    };
    click("printReport");
    expectWords(textOfPdf(printed), {"Page 2 of", "Page 3 of"}, {"Page 1 of", "Page 4 of"});

    // The page range applied to that printout only; the next one prints all pages.
    EXPECT_TRUE(engine.run("LonrepaA.rpt", "Title", Destination::printer));
    expectWords(textOfPdf(printed), {"Page 1 of"});
    desk.printDialog = [](QPrinter&) { return false; };
    QFile::remove(printed);
    click("printReport");
    EXPECT_FALSE(QFile::exists(printed));
}
