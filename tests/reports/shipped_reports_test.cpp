#include "reports/layout_support.h"
#include "reports/report_support.h"

using namespace reporttest;

namespace {
class ShippedReports : public ReportTest {};
} // namespace

TEST_F(ShippedReports, LoanDefinitionsPrintTheFiguresWithTheSolvedOneLast) {
    feedLoan();
    feedAmortisation(30);
    const std::tuple<const char*, const char*, const char*> loans[] = {
        {"Lonrepa", "Monthly repayment of a loan", "Monthly repayment R 2 709.27"},
        {"LonPrAm", "Principal amount of a loan", "Principal amount R 250 000.00"},
        {"LonRPer", "Repayment period of a loan", "Period 240 months"},
        {"LonInRt", "Interest rate of a loan", "Interest rate 11.750 % a year"},
    };
    for (const auto& [file, heading, solved] : loans)
        for (const bool amortisation : {false, true}) {
            SCOPED_TRACE(testing::Message() << file << amortisation);
            const auto report = engine.prepare(QString(file) + (amortisation ? "A.rpt" : ".rpt"));
            EXPECT_TRUE(report->windowTitle.startsWith(heading));
            const QString text = textOfPdf(reports::toPdf(*report)).simplified();
            expectWords(text,
                        {heading, "Principal amount R 250 000.00", "Period 240 months", "Interest rate 11.750 % a year",
                         "Monthly repayment R 2 709.27", "Total Interest 400 224.24", "Total Repayments 650 224.24"});
            const QStringList table{"Capital payment", "30 1 030.01 2 447.92 0.50"};
            expectWords(text, amortisation ? table : QStringList{}, amortisation ? QStringList{} : table);
            const auto first =
                std::find_if(report->content.blocks.begin(), report->content.blocks.end(),
                             [](const auto& block) { return block.kind == reports::Block::Kind::table; });
            ASSERT_NE(first, report->content.blocks.end());
            const reports::Row& last = first->table.rows.back();
            EXPECT_TRUE(last.result);
            EXPECT_EQ(last.cells[0].text() + " " + last.cells[1].text(), solved);
        }
}

TEST_F(ShippedReports, TheAnswerIsTheStrongestTextAndADebtASignedAmount) {
    feed("NARA", {{"Name", "Ms T. Ṱhoho-Nḓou"},
                  {"ShoRTFall", "Capital Shortfall : 250 000"},
                  {"BottLine1", "Funds available will provide income for less than 1 year."},
                  {"Inflation", 6.125},
                  {"BankInvestRate", 9.875},
                  {"ANSLAss3", -250000},
                  {"TotAss", -250000.0},
                  {"PDV", 12345.0}});
    const auto report = engine.prepare("Retirem.rpt");
    expectSound(report->layout);
    const reports::Face* answer = found(report->layout, "Funds available").face;
    EXPECT_EQ(found(report->layout, "Capital Shortfall").face, answer);
    for (const reports::PlacedText& other : report->layout.pages.front().texts) {
        EXPECT_LE(other.face->font.pixelSize(), answer->font.pixelSize()) << other.text.toStdString();
        EXPECT_LE(other.face->font.weight(), answer->font.weight()) << other.text.toStdString();
    }
    expectWords(textOfPdf(reports::toPdf(*report)).simplified(),
                {"Inflation rate 6.125 % a year", "return 9.875 % a year", "Business sale −250 000",
                 "Total capital −250 000", "Rand a month", "(present-day value) 12 345"},
                {"R −", "Notes"});
}

TEST_F(ShippedReports, LoanWithoutChargesShowsNoneAndYearsHeadTheAnnualTable) {
    feed("Loans", {{"Num1", 100}, {"Num2", 24}, {"Num3", 12}, {"Num4", 4.7}, {"FinText1", ""}, {"YearMon", "Year"}});
    feedAmortisation(2);
    const QString text = this->text("LonrepaA.rpt");
    expectWords(text, {}, {"Financial charges", "Total"});
    EXPECT_EQ(simplifiedLine(text, "Capital payment"), "Year Capital payment Interest payment Balance");
}

TEST_F(ShippedReports, PersonalDetailsPrintWhatIsFilledLetterForLetter) {
    feed("PersDetails", {{"Name", "Ms T. Ṱhoho-Nḓou"},
                         {"CLName", "Ṱhoho-Nḓou"},
                         {"CFName", "O'Brien & Seun"},
                         {"BirthDate", "03/02/1971"},
                         {"SLName", "<b>&\"x\""},
                         {"SDOB", " "},
                         {"CEmployer", "Êksteen"},
                         {"CMaritalStat", "M. ANC w/out Accrual"},
                         {"SMaritalStat", "Married COP"},
                         {"CSmoker", "Never smoked"},
                         {"SSmoker", "Not smoked for 2 years"},
                         {"PAdd1", "P.O. Box 7"},
                         {"PAddZip", "0011"},
                         {"ResAdd1", "14 Office Street"},
                         {"CBank", "First final bank"},
                         {"ReviewDate", "01/03/2027"},
                         {"NextApp", " "},
                         {"DEP3", "Anna"},
                         {"DEPDOB3", "12/12/2003"},
                         {"Comments", "First line\nSecond line"}});
    expectWords(text("persdetl.rpt").simplified(),
                {"Ms T. Ṱhoho-Nḓou", "Surname Ṱhoho-Nḓou <b>&\"x\"", "First names O'Brien & Seun", "Employer Êksteen",
                 "Date of birth 03/02/1971", "Marital status M. ANC w/out Accrual Married COP",
                 "Smoking Never smoked Not smoked for 2 years", "Bank First final bank", "Review date 01/03/2027",
                 "Anna 12/12/2003", "Notes First line Second line", "14 Office Street"},
                {"Appointment", "Occupation", "Contact", "Fax"});
}

TEST_F(ShippedReports, AClientAloneShowsNoSpouseAndNoEmptySection) {
    feed("PersDetails", {{"Name", " J Nel"},
                         {"CLName", "Nel"},
                         {"CMaritalStat", "Single"},
                         {"CSmoker", "Smoker"},
                         {"SMaritalStat", "Widow/er"},
                         {"SSmoker", "Smoker"},
                         {"Comments", ""}});
    const QString text = this->text("PersDetl.rpt");
    EXPECT_EQ(simplifiedLine(text, "Marital"), "Marital status Single");
    EXPECT_EQ(simplifiedLine(text, "Smoking"), "Smoking Smoker");
    expectWords(text, {}, {"Notes", "Dependants", "Postal", "Residential", "Bank", "Review", "Contact"});
}
