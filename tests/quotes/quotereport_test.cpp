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
    datastore::Printout feedOf(const KwikQuotes& quote, QuoteReportOptions options, bool isLife = false) {
        const auto life = isLife ? finance::LCCalculate(capital, finance::moreThanInQuotes) : finance::CapitalLife();
        return feedQuote(print, client, {quote, rates(), ShowQuote(quote, rates()), capital, life}, options);
    }
    static constexpr QuoteReportOptions bare{}, withCommissions{.commissions = true},
        withAll{.commissions = true, .amortised = true};
};

TEST_F(QuoteReports, EachKindWritesItsWholeRow) {
    const std::string taken = "All commissions and loadings, where applicable, were taken into account in the "
                              "calculations used to determine the Estimated Maturity Value shown.|The following "
                              "commissions are payable…|";
    const std::string once = "A once-off commission amount of ", trail = "Trail commission equal to one twelfth of  ";
    const std::string paid = "% of portfolio value will be paid monthly.";
    const struct {
        const char* kind;
        std::string definition, title, answers, statements;
    } cases[] = {
        {"E", "Endow", "Endowment", "56500.00|55562.60|0.00|0.00|",
         taken + once +
             "1 000 is payable on the single premium investment.|Commission equal to 3% of regular premiums "
             "paid will apply.|||" +
             trail + "0.6" + paid + "|"},
        {"R", "RetAnn", "Retirement Annuity/Superannuation type", "56500.00|55215.66|13803.91|270.56|",
         taken + once +
             "1 250 is payable on the single investment made.|Commission equal to 3.5% of premiums paid will "
             "apply.||||" +
             trail + "0.9" + paid},
        {"U", "UT", "Unit Trust/Mutual Fund type", "56500.00|54782.40|54782.40|0.00|",
         taken + "A commission amount, equal to 4 % of investment made, is payable.|" + trail + "0.7" + paid + "||||"},
        {"B", "BankInv", "Bank Investments", "56000.00|56560.00|0.00|0.00|(Tax implications ignored)", "|||||||"},
    };
    const char* const row = "SELECT LUMPSUM, ANNpayment, regularpayment, paymentescalation, term, growthrate, "
                            "printf('%.2f|%.2f|%.2f|%.2f', ANS1, ANS2, ANS3, ANS4), TAXIG, ComStatement_1, "
                            "ComStatement_2, ComStatement_3, ComStatement_4, ComStatement_5, ComStatement_6, "
                            "ComStatement_7, ComStatement_8, LOA, CAPI, MINC, GRTE, TXRTE, EXCLife FROM InvestmentPro";
    const char* const months = "SELECT (SELECT count(*) FROM Amort), Year, Capital, printf('%f', Interest), CASE WHEN "
                               "Required THEN printf('%f', Required) END FROM Amort WHERE Year > 1";
    for (const auto& c : cases) {
        PrintFeed clearing(print, "");
        clearing.clear("Amort");
        clearing.commit();
        const auto plain = feedOf(inputs(c.kind, 1, 50000, 6000, 500), withCommissions);
        EXPECT_EQ(plain.definition, "\\" + c.definition + ".rpt");
        EXPECT_EQ(plain.title, c.title + (c.kind == std::string("E") ? " Type" : ""));
        EXPECT_EQ(rowsOf(print, row),
                  "50000|6000|500|10|1|12|" + c.answers + "|" + c.statements + "||500000|5000|9|25|6.5");
        EXPECT_EQ(rowsOf(print, "SELECT count(*) FROM Amort"), "0") << "left alone while it is not asked for";
        const KwikQuotes single = inputs(c.kind, 2, 1000, 0, 0);
        const auto amortised = feedOf(single, {.amortised = true}, true);
        EXPECT_EQ(amortised.definition, "\\" + c.definition + "A.rpt");
        EXPECT_EQ(amortised.title, c.title + " Including Amortisation");
        EXPECT_EQ(rowsOf(print, "SELECT paymentescalation, ComStatement_1, LOA FROM InvestmentPro"),
                  "0||Will provide required income for 8 years.");
        const ShownQuote shown = ShowQuote(single, rates());
        const std::string third = c.kind == std::string("U") ? std::to_string(*shown.numAns3) : "";
        EXPECT_EQ(rowsOf(print, months), "2|2|1000|" + std::to_string(shown.numAns2) + "|" + third);
    }
    EXPECT_EQ(storetest::errorOf([&] { feedOf(inputs("E", 24, 1e308, 0, 0, 1e6), bare); }), 3421);
    EXPECT_EQ(rowsOf(print, "SELECT LUMPSUM FROM InvestmentPro"), "1000");
}

TEST(Statements, AreGivenOnlyForWhatIsPaidAndCharged) {
    const struct {
        const char* kind;
        int months;
        double single, annual, monthly;
        std::string given, givenWithoutCharges;
    } cases[] = {
        {"E", 9, 1, 0, 0, "1237", "12"}, {"E", 9, 0, 1, 0, "1247", "12"},  {"E", 9, 0, 0, 1, "1247", "12"},
        {"R", 9, 1, 0, 0, "1238", "12"}, {"R", 9, 0, 0, 1, "1248", "12"},  {"E", 9, -1, -1, -1, "12", "12"},
        {"U", 9, 0, 1, 0, "1234", "12"}, {"U", 9, -1, -1, -1, "12", "12"}, {"R", 9, 0, 1, 0, "1248", "12"},
        {"B", 9, 1, 1, 1, "", ""},       {"E", 0, 1, 1, 1, "", ""},
    };
    FundDefaults low = rates();
    low.ESPremCom = low.EAPremCom = low.RSPremCom = low.RAPremCom = low.UTCOM = 0.25;
    for (const auto& c : cases)
        for (const auto& [funds, expected] : {std::pair{low, c.given}, {FundDefaults(), c.givenWithoutCharges}}) {
            const KwikQuotes quote = inputs(c.kind, c.months, c.single, c.annual, c.monthly);
            const Statements texts = commissionStatements(quote, funds, InvestProCalc(quote, funds));
            std::string given;
            for (std::size_t i = 0; i < texts.size(); ++i)
                if (!texts[i].empty()) given += std::to_string(i + 1);
            EXPECT_EQ(given, expected) << c.kind << c.single << c.annual << c.monthly;
        }
    const KwikQuotes tiny = inputs("E", 9, 1, 0, 0);
    EXPECT_EQ(commissionStatements(tiny, low, InvestProCalc(tiny, low))[2],
              "A once-off commission amount of  is payable on the single premium investment.")
        << "less than half a rand has no digit to show";
}

TEST_F(QuoteReports, DefinitionsPrintPlanAnswersSentencesAndMonths) {
    client = "Ms T. Ṱhoho-Nḓou";
    const QString plan =
        "Single investment R 50 000.00 Regular annual investment R 6 000.00 Regular monthly investment "
        "R 500.00 Escalation of regular investments 10.00 % a year Growth rate 12.00 % a year Term of "
        "investment 60 months Total investment made R ";
    const struct {
        const char* kind;
        QStringList words, absent;
        QString heads;
    } cases[] = {
        {"E", {"amount of 1 000 is", "equal to 3%", "of 0.6% of"}, {"payout", "Tax impl"}, "Estimated maturity"},
        {"R", {"Lump sum portion R", "Approximate monthly payout R", "of 0.9% of"}, {}, "Estimated maturity"},
        {"U", {"with dividends re-invested R", "equal to 4 % of", "of 0.7% of"}, {"payout"}, "+Re-invested dividends"},
        {"B", {"(Tax implications ignored)"}, {"Commissions", "payable", "payout"}, "Estimated maturity"},
    };
    const auto money = [](double rand) { return QString::fromStdString(base::formatNumber(rand, "# ### ### ##0.00")); };
    for (const auto& c : cases) {
        const KwikQuotes quote = inputs(c.kind, 60, 50000, 6000, 500);
        const auto report = engine.prepare(QString::fromStdString(feedOf(quote, withAll, true).definition).mid(1));
        expectSound(report->layout);
        const QStringList pages = pagesOfPdf(reports::toPdf(*report));
        const ShownQuote shown = ShowQuote(quote, rates());
        expectWords(pages.join(' ').simplified(),
                    c.words + QStringList{"Ṱhoho-Nḓou", plan + money(shown.numAns1),
                                          "maturity value R " + money(shown.numAns2), money(shown.numAns3.value_or(0)),
                                          money(shown.numAns4.value_or(0)), "income for 8 years.", "tax 9.00 % a year"},
                    c.absent);
        expectWords(pages.at(1), {c.heads});
        expectWords(pages.back().simplified(), {"60 " + money(shown.numAns1) + " " + money(shown.numAns2)});
    }
    feedOf({}, withCommissions);
    expectWords(text("Endow.rpt").simplified(), {"Estimated maturity value R 0.00"},
                {"Commissions", "payable", "Life of capital"});
}

} // namespace
