#include "quotes/quotereport.h"

#include "base/numberformat.h"

#include "quotes/quotes_support.h"
#include "quotes/statements.h"
#include "reports/layout_support.h"
#include "reports/report_support.h"

using namespace quotes;
using namespace reporttest;
using quotestest::inputs, quotestest::rates;
using storetest::rowsOf;

namespace {

const assessment::LifeOfCapital capital{500000, 5000, 9, 25, 6.5};

class QuoteReports : public ReportTest {
protected:
    datastore::Printout feedOf(const KwikQuotes& quote, QuoteReportOptions options = {.commissions = true},
                               const finance::CapitalLife& life = {}) {
        return feedQuote(print, client, {quote, rates(), ShowQuote(quote, rates()), capital, life}, options);
    }
};

TEST_F(QuoteReports, EachKindWritesItsWholeRow) {
    const std::string tax = "(Tax implications ignored)";
    const std::string taken = "All commissions and loadings, where applicable, were taken into account in the "
                              "calculations used to determine the Estimated Maturity Value shown.|The following "
                              "commissions are payable…|";
    const auto once = [](const char* amount, const char* investment) {
        return std::string("A once-off commission amount of ") + amount + " is payable on the single " + investment;
    };
    const auto trail = [](const char* rate) {
        return std::string("Trail commission equal to one twelfth of  ") + rate +
               "% of portfolio value will be paid monthly.";
    };
    const struct {
        const char* kind;
        std::string definition, title, answers, note, statements;
    } cases[] = {
        {"E", "Endow", "Endowment", "56500.00|55562.60|0.00|0.00", "",
         taken + once("1 000", "premium investment.") +
             "|Commission equal to 3% of regular premiums paid will apply.|||" + trail("0.6") + "|"},
        {"R", "RetAnn", "Retirement Annuity/Superannuation type", "56500.00|55215.66|13803.91|270.56", "",
         taken + once("1 250", "investment made.") + "|Commission equal to 3.5% of premiums paid will apply.||||" +
             trail("0.9")},
        {"U", "UT", "Unit Trust/Mutual Fund type", "56500.00|54782.40|54782.40|0.00", "",
         taken + "A commission amount, equal to 4 % of investment made, is payable.|" + trail("0.7") + "||||"},
        {"B", "BankInv", "Bank Investments", "56000.00|56560.00|0.00|0.00", tax, "|||||||"},
    };
    for (const auto& c : cases) {
        const auto plain = feedOf(inputs(c.kind, 1, 50000, 6000, 500));
        EXPECT_EQ(plain.definition, "\\" + c.definition + ".rpt");
        EXPECT_EQ(plain.title, c.title + (c.kind == std::string("E") ? " Type" : ""));
        EXPECT_EQ(rowsOf(print, "SELECT LUMPSUM, ANNpayment, regularpayment, paymentescalation, term, growthrate, "
                                "printf('%.2f|%.2f|%.2f|%.2f', ANS1, ANS2, ANS3, ANS4), LOA, TAXIG, CAPI, MINC, GRTE, "
                                "TXRTE, EXCLife FROM InvestmentPro"),
                  "50000|6000|500|10|1|12|" + c.answers + "||" + c.note + "|500000|5000|9|25|6.5");
        const char* const statements = "SELECT ComStatement_1, ComStatement_2, ComStatement_3, ComStatement_4, "
                                       "ComStatement_5, ComStatement_6, ComStatement_7, ComStatement_8 "
                                       "FROM InvestmentPro";
        EXPECT_EQ(rowsOf(print, statements), c.statements);
        EXPECT_EQ(rowsOf(print, "SELECT count(*) FROM Amort"), "0") << "left alone while it is not asked for";
        const auto long_ = feedOf(inputs(c.kind, 2, 1000, 0, 100), {.amortised = true},
                                  finance::LCCalculate(capital, finance::moreThanInQuotes));
        EXPECT_EQ(long_.definition, "\\" + c.definition + "A.rpt");
        EXPECT_EQ(long_.title, c.title + " Including Amortisation");
        EXPECT_EQ(rowsOf(print, statements), "|||||||") << "not asked for";
        EXPECT_EQ(rowsOf(print, "SELECT LOA FROM InvestmentPro"), "Will provide required income for 8 years.");
        const Quote quote = InvestProCalc(inputs(c.kind, 2, 1000, 0, 100), rates());
        EXPECT_EQ(rowsOf(print, "SELECT Year, Capital FROM Amort"),
                  c.kind == std::string("B") ? "1|1000\n2|1100" : "1|1100\n2|1200");
        EXPECT_EQ(std::stod(rowsOf(print, "SELECT Interest FROM Amort WHERE Year = 2")), quote.QuoteValue[2]);
        EXPECT_EQ(rowsOf(print, "SELECT count(Required) FROM Amort"), c.kind == std::string("U") ? "2" : "0");
        PrintFeed clearing(print, "");
        clearing.clear("Amort");
        clearing.commit();
    }
    feedOf(inputs("E", 1, 1000, 0, 0));
    EXPECT_EQ(rowsOf(print, "SELECT paymentescalation FROM InvestmentPro"), "0") << "as the screen shows it";
    EXPECT_EQ(storetest::errorOf([&] { feedOf(inputs("E", 24, 1e308, 0, 0, 1e6)); }), 3421);
    EXPECT_EQ(rowsOf(print, "SELECT LUMPSUM FROM InvestmentPro"), "1000");
}

TEST(Statements, AreGivenOnlyForWhatIsPaidAndCharged) {
    struct Case {
        const char* kind;
        double single, annual, monthly;
        bool isFree;
        std::vector<int> given;
    };
    for (const Case& c : {Case{"E", 1, 0, 0, false, {1, 2, 3, 7}},
                          {"E", 0, 1, 0, false, {1, 2, 4, 7}},
                          {"E", 0, 0, 1, false, {1, 2, 4, 7}},
                          {"E", -1, -1, -1, false, {1, 2}},
                          {"E", 1, 1, 1, true, {1, 2}},
                          {"R", 1, 0, 0, false, {1, 2, 3, 8}},
                          {"R", 0, 0, 1, false, {1, 2, 4, 8}},
                          {"R", 1, 1, 1, true, {1, 2}},
                          {"U", 0, 1, 0, false, {1, 2, 3, 4}},
                          {"U", 0, 0, 0, false, {1, 2}},
                          {"U", 1, 1, 1, true, {1, 2}},
                          {"B", 1, 1, 1, false, {}}}) {
        const FundDefaults funds = c.isFree ? FundDefaults() : rates();
        const KwikQuotes quote = inputs(c.kind, 12, c.single, c.annual, c.monthly);
        const Statements texts = commissionStatements(quote, funds, InvestProCalc(quote, funds));
        std::vector<int> given;
        for (std::size_t i = 0; i < texts.size(); ++i)
            if (!texts[i].empty()) given.push_back(static_cast<int>(i) + 1);
        EXPECT_EQ(given, c.given) << c.kind << c.single << c.annual << c.monthly;
    }
    const KwikQuotes empty = inputs("E", 0, 1, 1, 1);
    EXPECT_EQ(commissionStatements(empty, rates(), InvestProCalc(empty, rates())), Statements());
}

TEST_F(QuoteReports, DefinitionsPrintPlanAnswersSentencesAndMonths) {
    client = "Ms T. Ṱhoho-Nḓou";
    const QStringList plan{"Ṱhoho-Nḓou",
                           "Single investment R 50 000.00",
                           "Regular annual investment R 6 000.00",
                           "Regular monthly investment R 500.00",
                           "Escalation of regular investments 10.00 % a year",
                           "Growth rate 12.00 % a year",
                           "Term of investment 60 months"};
    const struct {
        const char* kind;
        QStringList words, absent, heads;
    } cases[] = {
        {"E", {"amount of 1 000 is", "Commission equal to 3%"}, {"payout", "Tax implications"}, {"Estimated maturity"}},
        {"R", {"Lump sum portion R", "Approximate monthly payout R", "of 0.9% of"}, {}, {"Estimated maturity"}},
        {"U", {"with dividends re-invested R", "equal to 4 % of"}, {"payout"}, {"Capital growth", "+Re-invested"}},
        {"B", {"(Tax implications ignored)"}, {"Commissions", "payable", "payout"}, {"Estimated maturity"}},
    };
    for (const auto& c : cases) {
        const KwikQuotes quote = inputs(c.kind, 60, 50000, 6000, 500);
        const auto printout = feedOf(quote, {.commissions = true, .amortised = true},
                                     finance::LCCalculate(capital, finance::moreThanInQuotes));
        const auto report = engine.prepare(QString::fromStdString(printout.definition).mid(1));
        expectSound(report->layout);
        const QStringList pages = pagesOfPdf(reports::toPdf(*report));
        ASSERT_GE(pages.size(), 2) << c.kind;
        const QString text = pages.join(' ').simplified();
        expectWords(text, plan + c.words + QStringList{"income for 8 years.", "tax 9.00 % a year"}, c.absent);
        const ShownQuote shown = ShowQuote(quote, rates());
        for (const double figure : {shown.numAns1, shown.numAns2, shown.numAns3.value_or(0), shown.numAns4.value_or(0)})
            expectWords(text,
                        {QString::fromStdString(figure == 0 ? "" : base::formatNumber(figure, "R # ### ### ##0.00"))});
        expectWords(pages[1], c.heads);
        expectWords(pages.back().simplified(),
                    {QString::fromStdString("60 " + base::formatNumber(shown.numAns1, "# ### ### ##0.00") + " " +
                                            base::formatNumber(shown.numAns2, "# ### ### ##0.00"))});
    }
    feedOf({}, {.commissions = true});
    expectWords(text("Endow.rpt").simplified(), {"Estimated maturity value R 0.00"},
                {"Commissions", "payable", "Life of capital"});
}

} // namespace
