#include "reports/layout.h"

#include "base/numberformat.h"
#include <QRawFont>

#include "reports/face.h"
#include "reports/layout_support.h"
#include "reports/pagelook.h"
#include "reports/paragraph.h"
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
    /// The pages of the test's own definition; fails if texts overlap or leave the paper.
    reports::Layout layoutOf(const std::string& body) {
        define("own.rpt", page(body));
        const reports::Layout layout = engine.prepare("own.rpt")->layout;
        expectSound(layout);
        return layout;
    }
    /// This many paragraphs, numbered from 0.
    static std::string paragraphs(int count, const std::string& word) {
        std::string all;
        for (int number = 0; number < count; ++number)
            all += "<p>" + word + " " + std::to_string(number) + "</p>";
        return all;
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
            ++next; // each row once and in order, none lost at a page break
    }
    EXPECT_EQ(next, 601);
}

TEST_F(Pages, EmptyHeaderLinesTakeNoRoom) {
    feedLoan();
    double above = 1e9;
    for (const QStringList& header : {QStringList{"A", "B", "C", "D"}, QStringList{"A", "", "", "D"}, QStringList{}}) {
        feedLines(header, {});
        const double top = found(engine.prepare("Lonrepa.rpt")->layout, "Monthly repayment of a loan").area.top();
        EXPECT_LT(top, above);
        above = top;
    }
    EXPECT_TRUE(text("Lonrepa.rpt").contains("Page 1 of 1"));
}

// Whatever a practice types, nothing may leave the paper or overlap the footer.
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
    expectSound(report->layout);
    const QString text = textOfPdf(reports::toPdf(*report));
    for (const QString word : {"w0 ", "w1499 ", "w2999 "})
        EXPECT_EQ(text.simplified().count(word), 3) << word.toStdString();
    for (const QString& page : pagesOfPdf(reports::toPdf(*report)).mid(1, 2))
        EXPECT_TRUE(page.contains("Memo"));
    EXPECT_TRUE(text.contains("after"));
}

// A name in wide capital letters must be as complete as one in small letters.
TEST_F(Pages, WideHeaderAndFooterLinesAreComplete) {
    const QString wide(80, QChar(u'Œ'));
    feedLines({wide, wide, wide, wide}, {wide, wide, wide, wide});
    feedLoan();
    feedAmortisation(60);
    const auto report = engine.prepare("LonrepaA.rpt");
    expectSound(report->layout);
    for (int page = 0; page < report->layout.count(); ++page)
        EXPECT_EQ(report->layout.textOf(page).count(wide.front()), 8 * 80) << page;
}

TEST_F(Pages, EachNamesItsClientAndDate) {
    client = "Ms T. Ṱhoho-Nḓou";
    desk.day = QDate(2027, 3, 9);
    feedLoan();
    feedAmortisation(100);
    const auto loan = engine.prepare("LonrepaA.rpt");
    ASSERT_GE(loan->layout.count(), 2);
    for (int page = 0; page < loan->layout.count(); ++page) {
        const QString text = loan->layout.textOf(page);
        EXPECT_EQ(text.count(client.c_str()), 1) << page;
        EXPECT_EQ(text.count("09/03/2027"), 1) << page;
        EXPECT_EQ(text.contains("Nḓou – Monthly repayment of a loan with amortisation"), page > 0) << page;
    }
    feed("PersDetails", {{"Name", client}});
    const auto details = engine.prepare("PersDetl.rpt");
    EXPECT_EQ(details->layout.textOf(0).count(client.c_str()), 1); // only in the heading
    client.clear();
    feedLoan();
    EXPECT_TRUE(engine.prepare("LonrepaA.rpt")->layout.textOf(1).contains("\nMonthly repayment of a loan with"));
}

TEST_F(Pages, CellsStandAtTheirColumnsEdges) {
    feedLoan();
    const reports::Layout layout =
        layoutOf("<table><col width=\"20%\"/><col width=\"30%\" align=\"center\"/><col align=\"right\"/>"
                 "<thead><tr><th>One</th><th>Two</th><th>Three</th></tr></thead>"
                 "<tr><td>left</td><td>middle</td><td>{{Num1:0.00}}</td></tr>"
                 "<tr><td colspan=\"2\">both of two columns</td><td>last</td></tr>"
                 "<tr><td>first</td><td colspan=\"2\" align=\"right\">over to the edge</td></tr>"
                 "<tr class=\"total\"><td>sum</td><td></td><td>{{Num1:0.0}}</td></tr></table>");
    constexpr double left = reports::millimetres(20), width = reports::millimetres(170), padding = reports::points(5);
    // text, a share of its own width, the position of that point
    const std::tuple<const char*, double, double> cells[] = {
        {"One", 0, left + padding},           {"left", 0, left + padding},
        {"both", 0, left + padding},          {"sum", 0, left + padding},
        {"Two", 0.5, left + width * 0.35},    {"middle", 0.5, left + width * 0.35},
        {"Three", 1, left + width - padding}, {"250000.00", 1, left + width - padding},
        {"last", 1, left + width - padding},  {"250000.0", 1, left + width - padding},
        {"over", 1, left + width - padding},
    };
    for (const auto& [text, share, at] : cells) {
        const QRectF area = found(layout, text).area;
        EXPECT_NEAR(area.x() + share * area.width(), at, 3) << text;
    }
}

TEST_F(Pages, AFigureTooWideForItsColumnIsSetSmallerOnItsLine) {
    feed("Loans", {{"Num1", 1234567890.12}, {"Num2", 1}});
    const reports::Layout layout = layoutOf("<table><col width=\"86%\"/><col width=\"14%\" align=\"right\"/>"
                                            "<tr><td>label</td><td>{{Num1:# ##0.00}}</td></tr></table>");
    const Found figure = found(layout, "1 234 567 890.12"), label = found(layout, "label");
    EXPECT_LT(figure.face->font.pixelSize(), label.face->font.pixelSize());
    EXPECT_NEAR(figure.area.bottom(), label.area.bottom(), 1);
}

// Half a page must not stay empty, neither below the last text nor beside a column that goes on alone.
TEST_F(Pages, ColumnsSideBySideAreNeverSplit) {
    feedLoan();
    for (int before = 0; before < 60; before += 3)
        for (const int high : {8, 30, 70}) {
            SCOPED_TRACE(testing::Message() << before << ' ' << high);
            const reports::Layout layout =
                layoutOf(paragraphs(before, "line") + "<div><div>" + paragraphs(high, "left") +
                         "</div><div><p>right</p></div></div><p>after</p>");
            const Found first = found(layout, "left 0"), right = found(layout, "right");
            const Found last = found(layout, "left " + QString::number(high - 1));
            const bool beside = right.area.x() > first.area.x() + reports::millimetres(50);
            EXPECT_EQ(beside, first.page == right.page && first.area.y() == right.area.y());
            EXPECT_TRUE(!beside || first.page == last.page);
            if (before == 0) continue;
            const Found end = found(layout, "line", before - 1); // at least half of the previous page is used
            EXPECT_TRUE(end.page == first.page || end.area.y() > reports::millimetres(297) * 0.45);
        }
}

TEST_F(Pages, WordsInBoldTakeTheirRoomOnTheLine) {
    feedLoan();
    const reports::Layout layout = layoutOf("<p>plain <b>" + std::string(30, 'w') + "</b>, then plain again</p>");
    const Found bold = found(layout, "ww"), behind = found(layout, ", then plain again");
    EXPECT_EQ(bold.face, &reports::Faces::all().bold);
    EXPECT_NEAR(behind.area.left(), bold.area.right(), 1);
    EXPECT_EQ(behind.area.bottom(), bold.area.bottom());
}

TEST_F(Pages, TabsMakeColumns) {
    feedLoan();
    feed("PersDetails", {{"Name", "N"}, {"Comments", "a\tone\t1\nlonger\ttwo\t2\n\tthree\t3"}});
    const reports::Layout layout = layoutOf("<p>{{PersDetails.Comments}}</p>");
    for (const auto& [first, second] : {std::pair("one", "two"), std::pair("two", "three"), std::pair("1", "2")})
        EXPECT_NEAR(found(layout, first).area.x(), found(layout, second).area.x(), 1) << second;
    EXPECT_NEAR(found(layout, "1").area.x() - found(layout, "one").area.x(),
                found(layout, "one").area.x() - found(layout, "a").area.x(), 1);
}

// Figures line up only if all digits have the same width, and a name looks bad if some letters come from another font.
TEST_F(Pages, AreInOneTypeWithEveryLetterOfTheCountry) {
    const reports::Faces& faces = reports::Faces::all();
    for (const reports::Face* face : {&faces.body, &faces.bold, &faces.italic, &faces.title, &faces.result}) {
        const QRawFont type = QRawFont::fromFont(face->font);
        EXPECT_EQ(type.familyName(), "Roboto");
        for (const QChar letter : QString("ṰṱḒḓḼḽṊṋṄṅŠšÊêËëÏïÔôÛûŉ−–’"))
            EXPECT_TRUE(type.supportsCharacter(letter)) << QString(letter).toStdString();
        for (char digit = '1'; digit <= '9'; ++digit)
            EXPECT_EQ(face->metrics.horizontalAdvance(QChar(digit)), face->metrics.horizontalAdvance('0')) << digit;
    }
}

TEST(Paragraph, TextsOnBothSidesOfATabNeverTouch) {
    const reports::Face& face = reports::Faces::all().body;
    for (int letters = 1; letters < 80; ++letters) {
        const QString before(letters, 'i');
        const auto paragraph = reports::broken({{before + "\tnext"}}, face, reports::points(1000));
        const double end = face.metrics.horizontalAdvance(before + " ");
        EXPECT_GT(paragraph.lines.at(0).pieces.at(1).x, end - 0.01) << letters;
    }
}

// A heading alone at the bottom of a page would announce a table that is not there.
TEST_F(Pages, AHeadingStaysWithWhatFollows) {
    feedLoan();
    feedAmortisation(40);
    for (int lines = 20; lines < 60; ++lines) {
        const reports::Layout layout =
            layoutOf(paragraphs(lines, "line") + "<h2>Amortisation</h2><table><thead><tr><th>Head</th></tr></thead>"
                                                 "{{#Amort}}<tr><td>row {{Year:##}}</td></tr>{{/Amort}}</table>");
        ASSERT_EQ(found(layout, "Amortisation").page, found(layout, "row 1").page) << lines;
    }
}
