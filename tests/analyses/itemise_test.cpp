#include "analyses/itemise.h"

#include <set>

#include "analyses/itemisereport.h"
#include "analyses/nara_screen.h"
#include "reports/report_support.h"

using namespace analyses;
using assessment::Analysis;
using assessment::Assessment;
using assessment::ItemRow;
using naratest::NARA;
using screenkit::Answer;

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

// A sum in the wrong line would show only as a wrong figure in a report.
TEST(Itemise, EachSumGoesIntoItsOwnLine) {
    Assessment a;
    const std::tuple<Analysis, const char*, const char*, double&, const char*> lines[] = {
        {Analysis::retirement, "RNABussSaleItemise", "Business Sale", a.retirement.ANSLAss3, "Amount"},
        {Analysis::retirement, "RNAOtherCapItemise", "Other Capital", a.retirement.ANSLAss5, "Amount"},
        {Analysis::retirement, "RNAOtherExpItemise", "Other Expenses", a.retirement.ANSLLib5, "At Age"},
        {Analysis::death, "DTHCarsItemise", "Cars etc.", a.death.ANSAss4, "At Year"},
        {Analysis::death, "DTHOtherCapItemise", "Other Capital", a.death.ANSAss6, "At Year"},
        {Analysis::death, "DTHEstateDutyItemise", "Estate duty/fees etc.", a.death.ANSLib4, "At Year"},
        {Analysis::disability, "DISAOtherCapItemise", "Other Capital", a.disability.DisaASS6, "At Year"},
        {Analysis::disability, "DISAEstateDutyItemise", "Conversion costs etc.", a.disability.Disalib4, "At Year"}};
    double expected = 0;
    for (const auto& [analysis, flag, title, amount, lastHead] : lines) {
        const ItemLine& line = lineOf(analysis, flag);
        EXPECT_EQ(line.title, title);
        EXPECT_STREQ(line.columns().back().head, lastHead);
        takeItems(a, line, {capital("", expected += 1000.5), {}, capital("", 0.25)});
        EXPECT_EQ(amount, expected + 0.25);
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
    const std::tuple<const char*, std::vector<ItemRow>, double, double> cases[] = {
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
    for (const auto& [what, rows, incomePD, coverYears] : cases) {
        SCOPED_TRACE(what);
        Assessment a;
        a.retirement.AgeRetiment = 65;
        a.retirement.IncomePD = 1234;
        a.retirement.CoverYears = 17;
        takeItems(a, lineOf(Analysis::retirement, "RNAMonIncReqItemise"), rows);
        EXPECT_EQ(a.retirement.IncomePD, incomePD);
        EXPECT_EQ(a.retirement.CoverYears, coverYears);
    }
}

TEST_F(NARA, AListIsTypedTakenAndLocksItsLine) {
    assessment::ItemList& property = run.record().itemised.RNARealEst;
    open();
    const auto picture = [&] { return run.control<QAbstractButton>("cmdItemise(1)")->icon().cacheKey(); };
    const qint64 unused = picture();
    openList(1);
    typeCells({"Farm", "1 200 000", "Shop"});
    typeCells({"34.5"}, {});
    run.expectShown("numItemiseTotal 1 200 000");
    EXPECT_EQ(changed(), 0) << "a copy is no change of the client";
    run.menu("mnuPersDet"); // to another screen and back
    open();
    EXPECT_EQ(focus(), "grdItemise");
    run.key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(isListOpen());
    EXPECT_EQ(focus(), "cmdItemise(1)");
    ASSERT_EQ(property.rows.size(), 2U);
    EXPECT_EQ(property.rows[1].IncomeSource, "Shop");
    EXPECT_EQ(needs().ANSLAss1, 1200034.5);
    EXPECT_EQ(changed(), 1);
    EXPECT_TRUE(run.control<QLineEdit>("numASS(0)")->isReadOnly());
    run.expectShown("numTOTASS 1 200 034"); // it was worked out again
    EXPECT_NE(picture(), unused);
    EXPECT_EQ(run.control("cmdItemise(1)")->accessibleName(), "Itemise Real Estate");
    EXPECT_EQ(run.control("cmdItemise(1)")->accessibleDescription(), "In use");

    openList(1); // and no longer in use
    for (int i = 0; i < 2; ++i)
        run.key(Qt::Key_Delete, Qt::ControlModifier);
    run.click("cmdOKItemise");
    EXPECT_EQ(property.flag, 0);
    EXPECT_EQ(property.rows.size(), 1U);
    EXPECT_FALSE(run.control<QLineEdit>("numASS(0)")->isReadOnly());
}

TEST_F(NARA, EveryCellOfAListHasItsLimitAndWords) {
    open();
    const std::string sixty(60, 'x'), more = sixty + "y";
    for (const auto& [list, column, good, bad, told] :
         {std::tuple{1, 0, sixty, more, "A maximum of only 60 characters can be accepted !"},
          {1, 1, "99999999", "100000000", "Only a value between 0 and 99 999 999 can be entered!"},
          {11, 2, "30", "30.01", "Only a value between 0% and 30% can be entered!"},
          {11, 4, "999", "-1", "Only a value between 0 and 999 can be entered!"},
          {10, 2, "999", "1000", "Only a value between 0 and 999 can be entered!"}}) {
        SCOPED_TRACE(testing::Message() << list << " column " << column);
        openList(list);
        auto* grid = run.control<screenkit::EditGrid>("grdItemise");
        for (const std::string& typed : {good, bad}) {
            grid->setCurrentIndex(grid->model()->index(0, column));
            grid->setFocus();
            if (typed == bad) run.desk.expect(Answer::ok);
            typeCells({QString::fromStdString(typed)});
        }
        EXPECT_EQ(run.desk.last().text, told);
        EXPECT_EQ(focus(), "grdItemiseCell");
        run.desk.expect(Answer::no);
        run.click("cmdGridClose");
        EXPECT_FALSE(isListOpen());
    }
}

TEST_F(NARA, ClosingAListAsksOnlyAboutAChangedOne) {
    assessment::ItemList& property = run.record().itemised.RNARealEst = {1, {capital("Farm", 10.125)}};
    open();
    screenkit::Screen* screen = run.front();
    const std::function<void()> ways[] = {[&] { run.click("cmdGridClose"); }, [&] { run.key(Qt::Key_Escape); },
                                          [&] { screen->commitPendingEdits(); }}; // as before a save
    const std::tuple<const char*, QStringList, std::optional<Answer>, double> cases[] = {
        {"nothing typed", {}, {}, 10.125},
        {"typed as it was", {"Farm"}, {}, 10.125},
        {"Cancel stays", {"Farm", "20"}, Answer::cancel, 10.125},
        {"No drops", {"Farm", "20"}, Answer::no, 10.125},
        {"Yes takes", {"Farm", "20"}, Answer::yes, 20}};
    for (const auto& [what, typed, answer, afterwards] : cases)
        for (const auto& close : ways) {
            SCOPED_TRACE(testing::Message() << what << " by way " << &close - ways);
            property.rows[0].Amount = 10.125;
            openList(1);
            typeCells(typed.mid(0, typed.size() - 1));
            typeCells(typed.mid(typed.size() - 1), Qt::Key_Escape);
            if (answer) run.desk.expect(*answer);
            close();
            EXPECT_TRUE(!answer ||
                        run.desk.last().text == "The list has been changed. Do you want to keep the changes?");
            EXPECT_EQ(property.rows[0].Amount, afterwards);
            EXPECT_TRUE(isListOpen() || answer != Answer::cancel);
            EXPECT_TRUE(!isListOpen() || answer != Answer::yes);
            screen->clientReplaced(); // the list belongs to the old client: dropped without a question
            EXPECT_FALSE(isListOpen());
        }
    openList(1);
    run.key(Qt::Key_Tab);
    typeCells({"-1"}, {});
    run.desk.expect(Answer::yes); // to the invalid cell
    run.desk.expect(Answer::ok);
    run.click("cmdGridClose");
    EXPECT_EQ(focus(), "grdItemiseCell");
    typeCells({"5"}, {});
    run.desk.expect(Answer::cancel);
    screen->parentWidget()->close();
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(property.rows[0].Amount, 20); // and the program ends in mid-edit
}

using ItemisedReport = reporttest::ReportTest;

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
    for (int again = 0; again < 2; ++again) // nothing remains of the earlier printout
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
