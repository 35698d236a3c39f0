#include "analyses/itemise.h"

#include <gmock/gmock.h>

#include <set>

#include "analyses/frmItemised.h"
#include "analyses/itemisereport.h"
#include "reports/report_support.h"
#include "screenkit/kit_screen.h"

using namespace analyses;
using assessment::Analysis;
using assessment::Assessment;
using assessment::ItemRow;
using testing::ElementsAre;

namespace {

const ItemLine& lineOf(Analysis analysis, const std::string& flag) {
    for (const ItemLine& line : itemLines(analysis))
        if (line.table->flagField == flag) return line;
    throw std::logic_error(flag);
}

ItemRow income(double amount, double from, double to) { return {"", amount, 0, from, to, 0}; }
ItemRow capital(const char* text, double amount, double at = 0) { return {text, amount, 0, 0, 0, at}; }

} // namespace

TEST(Itemise, EveryListThatAnAnalysisReadsHasItsLineAndItsOwnAmount) {
    for (const Analysis analysis : {Analysis::retirement, Analysis::death, Analysis::disability}) {
        std::set<std::string> flags, expected;
        std::set<double*> amounts;
        Assessment record;
        for (const auto& table : assessment::itemTables())
            if (table.analysis == analysis && table.list != nullptr && table.isKept) expected.insert(table.flagField);
        for (const ItemLine& line : itemLines(analysis)) {
            flags.insert(line.table->flagField);
            if (line.amount != nullptr) amounts.insert(&line.amount(record));
        }
        EXPECT_EQ(flags, expected);
        EXPECT_EQ(amounts.size(), 9U);
    }
}

// Where a list's sum goes is seen nowhere but in the wrong figure of a report.
TEST(Itemise, EachSumGoesIntoItsOwnLine) {
    Assessment a;
    const struct {
        Analysis analysis;
        const char *flag, *title;
        double& amount;
        const char* lastHead;
    } lines[] = {
        {Analysis::retirement, "RNABussSaleItemise", "Business Sale", a.retirement.ANSLAss3, "Amount"},
        {Analysis::retirement, "RNAOtherCapItemise", "Other Capital", a.retirement.ANSLAss5, "Amount"},
        {Analysis::retirement, "RNAOtherExpItemise", "Other Expenses", a.retirement.ANSLLib5, "At Age"},
        {Analysis::death, "DTHCarsItemise", "Cars etc.", a.death.ANSAss4, "At Year"},
        {Analysis::death, "DTHOtherCapItemise", "Other Capital", a.death.ANSAss6, "At Year"},
        {Analysis::death, "DTHEstateDutyItemise", "Estate duty/fees etc.", a.death.ANSLib4, "At Year"},
        {Analysis::disability, "DISAOtherCapItemise", "Other Capital", a.disability.DisaASS6, "At Year"},
        {Analysis::disability, "DISAEstateDutyItemise", "Conversion costs etc.", a.disability.Disalib4, "At Year"}};
    double expected = 0;
    for (const auto& each : lines) {
        const ItemLine& line = lineOf(each.analysis, each.flag);
        EXPECT_EQ(line.title, each.title);
        EXPECT_STREQ(line.columns().back().head, each.lastHead);
        takeItems(a, line, {capital("", expected += 1000.5), {}, capital("", 0.25)});
        EXPECT_EQ(each.amount, expected + 0.25);
        EXPECT_EQ(line.list(a).flag, 1);
        EXPECT_EQ(line.list(a).rows.size(), 3U) << "blank rows are kept";
    }
}

TEST(Itemise, AListThatSumsToNothingUnlocksItsLine) {
    const ItemLine& line = lineOf(Analysis::retirement, "RNARealEstItemise");
    for (const auto& rows : {std::vector<ItemRow>{}, {capital("Farm", 0)}, {capital("", 5), capital("", -5)}}) {
        Assessment a;
        takeItems(a, line, {capital("Shop", 7)});
        takeItems(a, line, rows);
        EXPECT_EQ(line.list(a).flag, 0);
        EXPECT_EQ(a.retirement.ANSLAss1, 0);
        EXPECT_EQ(line.list(a).rows.size(), std::max<std::size_t>(1, rows.size()));
    }
}

TEST(Itemise, TheIncomeRequiredIsThatOfTheFirstStartFromRetirementOn) {
    const struct {
        const char* what;
        std::vector<ItemRow> rows;
        double incomePD, coverYears;
    } cases[] = {
        {"two from retirement, one later", {income(100, 65, 75), income(20, 65, 80), income(7, 70, 85)}, 120, 20},
        {"none exactly then: all that start later", {income(100, 66, 75), income(20, 70, 90)}, 120, 24},
        {"earlier ones count nothing, but for the period", {income(100, 60, 75), income(20, 65, 70)}, 20, 15},
        {"earlier ones alone", {income(100, 60, 75)}, 0, 15},
        {"no longer than the analysis runs", {income(100, 65, 999)}, 100, 50},
        {"no period backwards", {income(100, 65, 40)}, 100, 0},
        {"nor out of several", {income(100, 65, 60), income(20, 40, 30)}, 100, 0},
        {"a row without an amount starts, but lasts no time",
         {income(100, 66, 75), income(0, 65, 99), income(0, 0, 0)},
         0,
         9},
        {"in sum nothing: what was typed stays", {income(0, 65, 99)}, 1234, 17},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Assessment a;
        a.retirement.AgeRetiment = 65;
        a.retirement.IncomePD = 1234;
        a.retirement.CoverYears = 17;
        takeItems(a, lineOf(Analysis::retirement, "RNAMonIncReqItemise"), c.rows);
        EXPECT_EQ(a.retirement.IncomePD, c.incomePD);
        EXPECT_EQ(a.retirement.CoverYears, c.coverYears);
    }
}

namespace {

/// An analysis with a line of each kind.
class LinesScreen : public ItemisedScreen {
public:
    explicit LinesScreen(screenkit::Workplace& work)
        : ItemisedScreen(work, "frmLines", "Lines", work.record.changed.NARAChanged, Analysis::retirement) {
        auto* property = number("numProperty", work.record.retirement.ANSLAss1, screenkit::money);
        body(screenkit::column({property, screenkit::row({itemiseButton(11), itemiseButton(1), itemiseButton(10)})}));
        locks(1, {property});
    }
    std::vector<std::string> log;

protected:
    void filled() override { refreshItemised(); }
    void itemsTaken(const ItemLine& line) override { log.push_back(line.title); }
    void recalculate() override { log.emplace_back("recalculated"); }
};

struct ItemisedPanel : screenkit::KitTest {
    ItemisedPanel() : lines(new LinesScreen(bench.workplace)), linesChild(area.addSubWindow(lines)) {
        linesChild->setGeometry(0, 0, 900, 600);
        linesChild->show();
        area.setActiveSubWindow(linesChild);
        lines->activate();
        settle();
    }
    ~ItemisedPanel() override {
        if (lines != nullptr) lines->drop();
    }
    template <class T = QWidget>
    T* the(const char* name) {
        return lines->findChild<T*>(name);
    }
    void open(int index) { click(the(("cmdItemise(" + std::to_string(index) + ")").c_str())); }
    bool isOpen() { return the("fraItemise") != nullptr && the("fraItemise")->isVisible(); }
    std::string shown(const char* field) { return the<QLineEdit>(field)->text().toStdString(); }

    QPointer<LinesScreen> lines;
    QPointer<QMdiSubWindow> linesChild;
    assessment::ItemList& property = bench.record.itemised.RNARealEst;
    std::int16_t& naraChanged = bench.record.changed.NARAChanged;
};

} // namespace

TEST_F(ItemisedPanel, aListIsTypedTakenAndLocksItsLine) {
    const qint64 picture = the<QPushButton>("cmdItemise(1)")->icon().cacheKey();
    open(1);
    type("Farm");
    key(Qt::Key_Tab);
    type("1 200 000");
    key(Qt::Key_Tab);
    type("Shop");
    key(Qt::Key_Tab);
    type("34.5");
    EXPECT_EQ(shown("numItemiseTotal"), "1 200 000");
    EXPECT_EQ(naraChanged, 0) << "a copy is no change of the client";
    area.setActiveSubWindow(child); // to another screen and back
    settle();
    area.setActiveSubWindow(linesChild);
    lines->activate();
    settle();
    EXPECT_EQ(focus(), "grdItemise");
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(focus(), "cmdItemise(1)");
    ASSERT_EQ(property.rows.size(), 2U);
    EXPECT_EQ(property.rows[1].IncomeSource, "Shop");
    EXPECT_EQ(bench.record.retirement.ANSLAss1, 1200034.5);
    EXPECT_EQ(naraChanged, 1);
    EXPECT_THAT(lines->log, ElementsAre("Real Estate", "recalculated"));
    EXPECT_EQ(shown("numProperty"), "1 200 034.50");
    EXPECT_TRUE(the<QLineEdit>("numProperty")->isReadOnly());
    EXPECT_NE(the<QPushButton>("cmdItemise(1)")->icon().cacheKey(), picture);
    EXPECT_EQ(the("cmdItemise(1)")->accessibleName(), "Itemise Real Estate");

    open(1); // and out of use again
    for (int i = 0; i < 2; ++i)
        key(Qt::Key_Delete, Qt::ControlModifier);
    click(the("cmdOKItemise"));
    EXPECT_EQ(property.flag, 0);
    EXPECT_EQ(property.rows.size(), 1U);
    EXPECT_FALSE(the<QLineEdit>("numProperty")->isReadOnly());
    EXPECT_EQ(shown("numProperty"), "0.00");
}

TEST_F(ItemisedPanel, everyCellHasItsLimitAndWords) {
    const struct {
        int index, column;
        const char *good, *bad, *told;
    } cells[] = {
        {1, 0, "x", nullptr, "A maximum of only 60 characters can be accepted !"},
        {1, 1, "99999999", "100000000", "Only a value between 0 and 99 999 999 can be entered!"},
        {11, 2, "30", "30.01", "Only a value between 0% and 30% can be entered!"},
        {11, 4, "999", "-1", "Only a value between 0 and 999 can be entered!"},
        {10, 2, "999", "1000", "Only a value between 0 and 999 can be entered!"},
    };
    for (const auto& cell : cells) {
        SCOPED_TRACE(testing::Message() << cell.index << " column " << cell.column);
        open(cell.index);
        auto* grid = the<screenkit::EditGrid>("grdItemise");
        const std::string good = cell.bad != nullptr ? cell.good : std::string(60, 'x');
        for (const std::string& typed : {good, cell.bad != nullptr ? cell.bad : good + "y"}) {
            grid->setCurrentIndex(grid->model()->index(0, cell.column));
            grid->setFocus();
            if (typed != good) desk.expect(screenkit::Answer::ok);
            type(QString::fromStdString(typed));
            key(Qt::Key_Tab);
        }
        EXPECT_EQ(desk.last().text, cell.told);
        EXPECT_EQ(focus(), "grdItemiseCell");
        desk.expect(screenkit::Answer::no);
        click(the("cmdGridClose"));
        EXPECT_FALSE(isOpen());
    }
}

TEST_F(ItemisedPanel, closingAsksOnlyAboutAChangedList) {
    using screenkit::Answer;
    property = {1, {capital("Farm", 10.125)}};
    const struct {
        const char* what;
        std::function<void()> act;
    } ways[] = {{"button", [this] { click(the("cmdGridClose")); }},
                {"Escape", [this] { key(Qt::Key_Escape); }},
                {"the client is to be saved or replaced", [this] { lines->commitPendingEdits(); }}};
    const struct {
        const char* what;
        std::vector<const char*> typed; ///< into the first cells
        std::optional<Answer> answer;
        double afterwards;
    } cases[] = {{"nothing typed", {}, {}, 10.125},
                 {"typed as it was", {"Farm"}, {}, 10.125},
                 {"Cancel stays", {"Farm", "20"}, Answer::cancel, 10.125},
                 {"No drops", {"Farm", "20"}, Answer::no, 10.125},
                 {"Yes takes", {"Farm", "20"}, Answer::yes, 20}};
    for (const auto& c : cases)
        for (const auto& way : ways) {
            SCOPED_TRACE(testing::Message() << c.what << " by " << way.what);
            property.rows[0].Amount = 10.125;
            open(1);
            for (const char* cell : c.typed) {
                type(cell);
                key(cell == c.typed.back() ? Qt::Key_Escape : Qt::Key_Tab);
            }
            if (c.answer) desk.expect(*c.answer);
            way.act();
            EXPECT_TRUE(!c.answer || desk.last().text == "The list has been changed. Do you want to keep the changes?");
            EXPECT_EQ(property.rows[0].Amount, c.afterwards);
            EXPECT_TRUE(isOpen() || c.answer != Answer::cancel);
            EXPECT_TRUE(!isOpen() || c.answer != Answer::yes);
            lines->clientReplaced(); // the list is the old client's: dropped without asking
            EXPECT_FALSE(isOpen());
        }
    open(1);
    key(Qt::Key_Tab);
    type("-1");
    desk.expect(Answer::yes); // to a cell that can't stand
    desk.expect(Answer::ok);
    click(the("cmdGridClose"));
    EXPECT_EQ(focus(), "grdItemiseCell");
    type("5");
    desk.expect(Answer::cancel);
    linesChild->close();
    EXPECT_TRUE(linesChild->isVisible());
    delete lines; // in mid-edit
    EXPECT_EQ(property.rows[0].Amount, 20);
}

namespace {
class ItemisedReport : public reporttest::ReportTest {};
} // namespace

TEST_F(ItemisedReport, listsPrintWithTheirHeadsOnEveryPage) {
    Assessment a;
    a.client.Name = "Ms T. Ṱhoho-Nḓou";
    EXPECT_FALSE(anyItemised(a, Analysis::retirement));
    takeItems(a, lineOf(Analysis::retirement, "RNAFutMonIncItemise"), {{"Rent & more", 1234567.5, 7.5, 65, 90, 0}, {}});
    std::vector<ItemRow> plots;
    for (int i = 1; i <= 60; ++i)
        plots.push_back(capital(("Plot " + std::to_string(i)).c_str(), 1000 * i));
    takeItems(a, lineOf(Analysis::retirement, "RNARealEstItemise"), plots);
    takeItems(a, lineOf(Analysis::retirement, "RNAOtherExpItemise"), {capital("Wedding", 250000, 70)});
    takeItems(a, lineOf(Analysis::retirement, "RNATravelItemise"), {capital("Not in use", 0)});
    takeItems(a, lineOf(Analysis::death, "DTHCarsItemise"), {capital("Of another analysis", 5, 2)});
    EXPECT_TRUE(anyItemised(a, Analysis::retirement));
    EXPECT_FALSE(anyItemised(a, Analysis::disability));
    for (int again = 0; again < 2; ++again) // nothing is left over from the printout before
        feedItemised(print, a, Analysis::retirement);

    const QStringList sheets = pages("ItPrint.rpt");
    ASSERT_EQ(sheets.size(), 2);
    const QString all = sheets.join("");
    EXPECT_EQ(reporttest::simplifiedLine(all, "Rent"), "Rent & more 1 234 568 7.5 65 90");
    EXPECT_EQ(reporttest::simplifiedLine(all, "Wedding"), "Wedding 250 000 70");
    EXPECT_EQ(all.count("Plot 60"), 1);
    EXPECT_TRUE(all.simplified().contains("Plot 60 60 000 Total 1 830 000"));
    EXPECT_EQ(reporttest::simplifiedLine(all, "Total of all ages"), "Total of all ages 1 234 568");
    EXPECT_EQ(all.count("Total"), 3); // one under each list
    EXPECT_TRUE(all.simplified().contains("Description Amount, rand Escl. % From Age To Age"));
    EXPECT_TRUE(all.simplified().contains("Other Expenses Description Amount, rand At Age Wedding"));
    for (const QString& page : sheets)
        EXPECT_TRUE(page.simplified().contains("Real Estate Description Amount, rand Plot")) << page.toStdString();
    for (const char* absent : {"Not in use", "Of another"})
        EXPECT_FALSE(all.contains(absent));
    EXPECT_TRUE(all.contains("Ṱhoho-Nḓou"));
}
