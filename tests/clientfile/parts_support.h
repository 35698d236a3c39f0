#pragma once

#include "assessment/newasset.h"
#include "calculators/loans.h"
#include "calculators/realrate.h"
#include "clientfile/parts.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"
#include "tax/capitalgainlist.h"

namespace parttest {

using clientfile::Choice;
using clientfile::Choices;
using clientfile::Part;
using clientfile::Source;
using shelltest::RunningProgram;

/// All that a report says, a line for each paragraph and each row: two reports with the same text have the same words
/// and figures.
inline std::string textOf(const reports::Report& report) {
    const reports::Content& content = report.content;
    return QStringList{report.windowTitle, content.title, content.client, content.date}.join(" / ").toStdString() +
           "\n" + exported(report, reports::Format::html).toStdString();
}

/// A client for whom every calculator and tax screen has figures and a result, as their screens leave them. `full` is
/// the blank record of a started program, with the practice's settings.
inline assessment::Assessment fullClient(assessment::Assessment full) {
    const auto day = [](int year, int month, int date) { return *base::dayNumber(year, month, date); };
    full.client = {"Ms T. Ṱhoho-Nḓou", day(1981, 3, 15), "8103150123081"};
    full.details.CTitle = "Ms";
    full.details.CInit = "T.";
    full.details.CLName = "Ṱhoho-Nḓou";
    full.details.Comments = "Two children.\nWants to stop working at 60.";
    full.dailyBalance = {100000, 46082, 46112, 9.5F};
    full.debts = {.Loan1Amt = 80000, .Loan2Amt = 45000, .Loan1Int = 18, .Loan2Int = 21, .ConInt = 11, .ConPeriod = 60};
    full.loans = {"Repayment period", 100000, 0, 12, 1100};
    calculators::LoanCalc(full.loans);
    full.nominalEffective = {50000, 18, 10, 2};
    full.inflation = {1000, 20, 6};
    full.tax = {.Salary = 640000, .Age = 45, .YR9798 = 0};
    full.comparison = {12000, 480000, 900000, "With a guarantee", 2000, 9000, 900000, 8.5, "Five years"};
    full.drawDown = {.LSAmt = 2000000};
    full.drawDownPhases = {{1, 10, 9000, 6, 9}, {11, 30, 15000, 5, 8}, {}};
    full.offShore = {500000, 10, 6, 9, 15, 20, 3};
    full.rrrOld = {20000, 1000, 120, 5, 300000, 0, 0};
    calculators::RRRCalc(full.rrrOld);
    full.rrrNew = {10000, 60, 90000, 800, 0, 0,           0,  5,  0,  0,  0,  0,  100, 0,
                   0,     0,  0,     0,   0, "Endowment", "", "", "", "", "", "", ""};
    full.bond = {1200000, 240, 11.5F, 0, 900000, 10.75F};
    full.lifeOfCapital = {1000000, 8000, 9, 18, 6};
    full.incomeShares = {1500000, 12, 90000, 6, 25, "monthly"};
    full.estateDuty = {4000000, 1500000, 200000, 100000, 4500000, 900000, 300000, 50000};
    full.raTaxAdvantage = {600000, 560000, 90000, 0, "", 10000};
    full.car = {"Citi Golf", "T. Nḓou", 385000, 60000, 40000, 10000, 12000};
    full.lumpSums.RetireLumpSumBefore = 20000;
    full.lumpSums.RetireDeathAfter.back() = 900000;
    full.lumpSums.FstLumpTaken = 3;
    for (const char* described : {"Shares", "House at Makhado"}) {
        assessment::CGTAssetRecord asset = assessment::newAsset();
        asset.CGTAssetNum = static_cast<std::int16_t>(full.capitalGains.assets.size() + 1);
        asset.AssetDesc = described;
        asset.DateAquired = day(2012, 5, 1);
        asset.OrigPurPrice = 300000;
        asset.DateSale = day(2026, 6, 30);
        asset.SellPrice = 900000;
        tax::workOut(asset);
        full.capitalGains.assets.push_back(asset);
    }
    tax::takeItemisedGains(full.capitalGains, {{"Family trust", "No", 70000, 100, 70100, "Yes"}});
    return full;
}

/// Compares what a part prints with what its screen prints, in the running program.
class PartsTest : public testing::Test {
protected:
    static const Part& part(const std::string& name) {
        for (const Part& each : clientfile::parts())
            if (each.name == name) return each;
        throw std::runtime_error("no part " + name);
    }
    /// What the parts are made from on the desk's day.
    Source sourceOf(const assessment::Assessment& record) {
        const QDate today = run.desk.day;
        return {record, run.program.paths(), *base::dayNumber(today.year(), today.month(), today.day()), {}};
    }
    /// The reports that the screen opens for this client, after these controls are pressed one by one, such as
    /// "cmdPrint Check1 cmdVR"; up to the first one that is not to be seen or disabled, as behind a refused Print. The
    /// screen is closed then, and the working record is as it was.
    std::string shownBy(const QString& screen, const QString& presses, const assessment::Assessment& record) {
        const assessment::Assessment kept = run.record();
        run.record() = record;
        run.window().open(screen);
        RunningProgram::settle();
        for (const QString& name : presses.split(' ')) {
            auto* control = run.control<QAbstractButton>(name, screen);
            if (control == nullptr || !control->isEnabled() || !control->isVisible()) break;
            run.click(name);
        }
        std::string texts;
        for (const reports::PreviewWindow* preview : run.program.reports().previews())
            texts += textOf(preview->report());
        run.program.reports().closePreviews();
        run.screen(screen)->drop();
        run.window().activateWindow(); // a report was in front
        RunningProgram::settle();
        run.window().workplace().lent.forget();
        run.record() = kept;
        return texts;
    }
    /// What the part prints. It feeds the same Print.mdb, which changes nothing in a report once it is made.
    std::string printedBy(const Part& part, const Source& source, const Choices& choices = {}) {
        std::string texts;
        part.print(source, choices, [&](const datastore::Printout& printout) {
            texts += textOf(*run.program.reports().prepare(QString::fromStdString(printout.definition),
                                                           QString::fromStdString(printout.title)));
        });
        return texts;
    }
    /// The part prints, block by block, what its screen prints, and something; and to print changes no record.
    void expectAsShown(const char* name, const Choices& choices, const QString& screen, const QString& presses,
                       const assessment::Assessment& record) {
        SCOPED_TRACE(name + (" after " + presses.toStdString()));
        const Source source = sourceOf(record);
        // The part comes first: rows that its screen has fed to Print.mdb would stand in for those that it forgets.
        const std::string printed = printedBy(part(name), source, choices);
        const std::string shown = shownBy(screen, presses, record);
        EXPECT_NE(shown, "") << "the screen prints nothing";
        EXPECT_EQ(part(name).whyNot(source), "");
        EXPECT_EQ(printed, shown);
        EXPECT_TRUE(source.record == record);
    }

    RunningProgram run;
};

} // namespace parttest
