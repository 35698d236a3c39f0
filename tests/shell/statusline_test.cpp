#include <QAccessible>
#include <QLabel>
#include <QTime>

#include "shell/running_program.h"
#include "shell/statusline.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

/// The part of the main window's caption after the version.
std::string client(RunningProgram& run) {
    RunningProgram::settle();
    return run.window().windowTitle().section(" Version : 1.00.000", 1).toStdString();
}

std::string saved(RunningProgram& run) { return run.window().findChild<QLabel*>("lblSaved")->text().toStdString(); }

TEST(Caption, NamesTheClientAndMarksWhatIsNotSaved) {
    RunningProgram run;
    EXPECT_EQ(client(run), "");
    run.menu("mnuLoansCalc");
    run.type("numPrinAmount", "100000");
    EXPECT_EQ(client(run), " - New client *");
    run.menu("mnuPersDet");
    run.type("txtCInit", "J");
    run.type("txtCLName", "Botha [*]");
    EXPECT_EQ(client(run), " - J Botha [*][*] *"); // Qt shows the doubled mark as a single one, as it was typed
    EXPECT_EQ(saved(run), "");
    const QTime before = QTime::currentTime();
    run.menu("mnuSave");
    EXPECT_EQ(client(run), " - J Botha [*][*]");
    const QTime told = QTime::fromString(QString::fromStdString(saved(run)), "'Saved 'HH:mm");
    EXPECT_TRUE(told.isValid() && std::abs(before.secsTo(told)) <= 60) << saved(run);

    run.menu("mnuPolInvests");
    run.click("cmdAdd"); // a change made without a field
    EXPECT_EQ(client(run), " - J Botha [*][*] *");
    run.front()->parentWidget()->showMaximized(); // its title is added to the main window's
    run.menu("mnuSave");
    EXPECT_EQ(client(run), " - J Botha [*][*] - [Policies & Investments. : Num. 2 of 2]");
    run.menu("mnuNewFile");
    EXPECT_EQ(client(run), "");
    EXPECT_EQ(saved(run), "");
}

TEST(Announced, EachCalculationOnceAndTheSameAgain) {
    const struct {
        const char* item;
        QStringList typed;
        const char *button, *answer;
    } screens[] = {
        // 125 599 plus 36 % of the income above 530 200, less the rebate of 17 820
        {"mnuQuickTax", {"sidbEdit1(0)=650000", "sidbEdit1(1)=40"}, "cmdCalculate", "Tax commitment 150 907.00"},
        {"mnuLoansCalc",
         {"numPrinAmount=100000", "numPeriod=240", "numIntRate=12"},
         "cmdCalculate",
         "Monthly repayment 1 101.09"},
        {"mnuPAYE", {"numSalRemun=10000"}, "cmdCalculate", "Total tax deduction "},
        {"mnuPolInvests", {"numDeathBen=9"}, "cmdCalculatePolInv", "Nothing at retirement"},
        {"mnuPolInvests",
         {"numRBEMV=500", "numRBEMVAge=55"},
         "cmdCalculatePolInv",
         "At retirement: R/A maturity value 500.00"},
        {"mnuNARA", {"numMonIncPD=10000", "numCoverReq=20"}, "cmdCalculate", " additional cover required."},
        {"mnuNAEd", {"numFundsPres=10000", "numPerRequired=3"}, "cmdCalculate", "30 000 capital required"},
        {"mnuNAEd", {"numPerRequired=0"}, "cmdCalculate", "(real future value) 10 000"},
        {"mnuInflation", {"numPresCost=50"}, "cmdCalculate", "Future value/cost 50.00"},
        {"mnuInflation", {"numPresCost=10000000000000"}, "cmdCalculate", "Amount too large to display"},
        {"mnuLifeOfCap", {"sidbEdit13=1200", "sidbEdit14=9", "sidbEdit15=1"}, "cmdCalculate", "income for 11"},
    };
    RunningProgram run;
    auto* line = run.window().findChild<shell::StatusLine*>();
    auto* panel = run.window().findChild<QLabel*>("lblSaid");
    QStringList said;
    QObject::connect(line, &shell::StatusLine::announced, line,
                     [&] { said << QAccessible::queryAccessibleInterface(panel)->text(QAccessible::Name); });
    for (const auto& screen : screens) {
        run.menu(screen.item);
        for (const QString& entry : screen.typed)
            run.type(entry.section('=', 0, 0), entry.section('=', 1));
        for (const char* when : {"first", "again"}) {
            said.clear();
            run.click(screen.button);
            EXPECT_EQ(said.size(), 1) << screen.item << ' ' << when << ' ' << said.join(" | ").toStdString();
            EXPECT_TRUE(said.join("").contains(screen.answer)) << said.join(" | ").toStdString();
        }
        said.clear();
        run.screen(run.front()->objectName())->activate();
        EXPECT_EQ(said.size(), 0) << "a screen that only fills itself keeps quiet";
    }
}

} // namespace
