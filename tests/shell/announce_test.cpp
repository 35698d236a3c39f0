#include <QAccessible>
#include <QLabel>

#include "shell/running_program.h"
#include "shell/statusline.h"

namespace {

using shelltest::RunningProgram;

struct Screen {
    const char* item;
    std::vector<std::pair<const char*, const char*>> typed;
    const char* button;
    const char* answer;
};

TEST(Announced, EachCalculationOnceAndTheSameAgain) {
    const Screen screens[] = {
        // 125 599 and 36 % of what is above 530 200, less the rebate of 17 820
        {"mnuQuickTax",
         {{"sidbEdit1(0)", "650000"}, {"sidbEdit1(1)", "40"}},
         "cmdCalculate",
         "Tax commitment 150 907.00"},
        {"mnuLoansCalc",
         {{"numPrinAmount", "100000"}, {"numPeriod", "240"}, {"numIntRate", "12"}},
         "cmdCalculate",
         "Monthly repayment 1 101.09"},
        {"mnuPAYE", {{"numSalRemun", "10000"}}, "cmdCalculate", "Total tax deduction "},
        {"mnuPolInvests", {{"numDeathBen", "9"}}, "cmdCalculatePolInv", "Nothing at retirement"},
        {"mnuNARA", {{"numMonIncPD", "10000"}, {"numCoverReq", "20"}}, "cmdCalculate", " additional cover required."}};
    RunningProgram run;
    auto* line = run.window().findChild<shell::StatusLine*>();
    auto* panel = run.window().findChild<QLabel*>("lblSaid");
    QStringList said;
    QObject::connect(line, &shell::StatusLine::announced, line,
                     [&] { said << QAccessible::queryAccessibleInterface(panel)->text(QAccessible::Name); });
    for (const Screen& screen : screens) {
        run.menu(screen.item);
        for (const auto& [field, text] : screen.typed)
            run.type(field, text);
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
