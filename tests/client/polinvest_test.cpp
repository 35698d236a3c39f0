#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <algorithm>

#include "base/numberformat.h"
#include "client/bound_controls.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using assessment::Policy;
using screenkit::Answer;
using namespace clienttest;
using shelltest::RunningProgram;

/// The screen in front, for a client with this many records, whose types are 1, 2, 3, ...
class PolInvest : public testing::Test {
protected:
    void open(std::size_t records = 1) {
        run.record().policies.resize(records);
        for (std::size_t i = 0; i < records; ++i)
            policy(i + 1).PolInvType = std::to_string(i + 1);
        run.menu("mnuPolInvests");
    }
    Policy& policy(std::size_t number) { return run.record().policies[number - 1]; }
    std::string types() {
        std::string all;
        for (const Policy& each : run.record().policies)
            all += each.PolInvType + " ";
        return all;
    }
    std::int16_t& changed() { return run.record().changed.PolInvestChanged; }
    RunningProgram run;
};

/// The tick boxes; paid up is last, since it locks other fields.
const std::vector<std::string> ticks{"WoP",
                                     "PremInvAmtMonthlyCPI",
                                     "DeathBenUseCashAtRet",
                                     "UseEndowEMVAtRet",
                                     "InvBensTakeAtDisa",
                                     "InvBensTakeFinValAtRet",
                                     "PaidUp"};

/// Goes through the columns of the schedule.
std::vector<BoundControl> allControls() {
    std::vector<BoundControl> all;
    int number = 10;
    for (const auto& line : assessment::polsInvestsTable().fields()) {
        Policy sample;
        if (line.at == nullptr || std::ranges::count(ticks, line.name) > 0 || line.name == "DeathBenPerson") continue;
        const QString name = QString::fromStdString(line.name);
        ++number;
        if (std::holds_alternative<std::string*>(line.at(&sample)))
            all.push_back({&line, "txt" + name, name + "ê", line.name + "ê"});
        else if (line.name == "InceptionDate")
            all.push_back({&line, "dt" + name, "15/03/2023", 45000.0});
        else
            all.push_back({&line, "num" + name, QString::number(number), static_cast<double>(number)});
    }
    return all;
}

TEST_F(PolInvest, EveryControlHoldsItsFieldOnScreenInTheRecordAndInTheFile) {
    run.saveClient("Botha");
    open();
    EXPECT_EQ(changed(), 0);
    run.click("cmdAdd");
    EXPECT_EQ(RunningProgram::focused(), "txtPolInvType");
    run.click("optDeathBen(3)"); // enables its text field
    auto controls = allControls();
    keepThoseOn(run.front(), controls);
    EXPECT_GE(controls.size(), 52u);
    for (const BoundControl& each : controls)
        run.type(each.control, each.text);
    for (const std::string& name : ticks)
        run.click("chk" + QString::fromStdString(name));
    const auto expectAllHeld = [&](Policy& held) {
        expectHeld(controls, held);
        for (const std::string& name : ticks)
            EXPECT_EQ(assessment::valueAt(assessment::polsInvestsTable().field(name)->at(&held)), store::Value(1.0));
        EXPECT_EQ(held.DeathBenPerson, 3);
    };
    expectAllHeld(policy(2));
    EXPECT_EQ(policy(1).PolInvType, "1"); // no other record was changed
    EXPECT_EQ(policy(1).DeathBen + policy(1).InvBensMatValLSEscAt, 0);
    EXPECT_EQ(changed(), 1);

    run.menu("mnuSave");
    run.loadClient("Botha");
    run.menu("mnuPolInvests");
    expectAllHeld(policy(2));
    EXPECT_EQ(run.shown("txtPolInvType"), "1");
    run.click("cmdForward");
    for (const BoundControl& each : controls)
        EXPECT_EQ(textIn(run.control(each.control)), each.text) << each.field->name;
    EXPECT_EQ(changed(), 0);
}

TEST_F(PolInvest, RecordsAreWalkedAddedAndDeletedInTheirOrder) {
    const Answer yes = Answer::yes, no = Answer::no;
    // the button and the answer to its question; then title, records left, and whether back and forward are open
    const std::tuple<const char*, std::optional<Answer>, const char*, const char*, bool, bool> presses[] = {
        {"cmdForward", {}, "Num. 2 of 3", "1 2 3 ", true, true},
        {"cmdForward", {}, "Num. 3 of 3", "1 2 3 ", true, false},
        {"cmdDelete", no, "Num. 3 of 3", "1 2 3 ", true, false},
        {"cmdBack", {}, "Num. 2 of 3", "1 2 3 ", true, true},
        {"cmdDelete", yes, "Num. 2 of 2", "1 3 ", true, false}, // the record that follows the deleted one
        {"cmdDelete", yes, "Num. 1 of 1", "1 ", false, false},
        {"cmdAdd", {}, "Num. 2 of 2", "1  ", true, false},
        {"cmdDelete", yes, "Num. 1 of 1", "1 ", false, false},
        {"cmdDelete", yes, "Num. 1 of 1", " ", false, false}, // a single record is blanked
    };
    open(3);
    EXPECT_EQ(run.front()->windowTitle(), "Policies & Investments. : Num. 1 of 3");
    EXPECT_FALSE(run.control("cmdBack")->isEnabled());
    // Space once too often at the end must not press the button beside it, which adds a record: the focus turns round.
    run.control("cmdForward")->setFocus(Qt::TabFocusReason);
    for (const int stop : {2, 3, 2, 1}) {
        run.key(Qt::Key_Space);
        EXPECT_EQ(run.record().CurPolicy, stop);
    }
    for (const auto& [button, answer, title, left, back, forward] : presses) {
        if (answer) run.desk.expect(*answer);
        run.click(button);
        EXPECT_EQ(run.front()->windowTitle(), QString("Policies & Investments. : ") + title);
        EXPECT_EQ(types(), left);
        EXPECT_EQ(run.shown("txtPolInvType").toStdString(), policy(run.record().CurPolicy).PolInvType);
        EXPECT_EQ(run.control("cmdBack")->isEnabled(), back) << title;
        EXPECT_EQ(run.control("cmdForward")->isEnabled(), forward) << title;
        EXPECT_EQ(changed(), types() == "1 2 3 " ? 0 : 1);
    }
    EXPECT_EQ(run.desk.last().defaultAnswer, Answer::no);
}

TEST_F(PolInvest, LimitsHoldTheUserWithAMessageAndKeepWhatWasTyped) {
    const char* const escalation = "The range for the escalation is between 0% and 100%";
    open(2);
    for (const auto& [control, typed, message, allowed] :
         {std::tuple{"numRBEMVAge", "100", "The maximum age allowed is 99", "99"},
          {"numDeathBenYears", "100", "The maximum period allowed is 99 years", "99"},
          {"numRBEMVEscFor", "100.001", escalation, "100"},
          {"numPremInvAmtMonthlyAnnEsc", "-1", escalation, "0"},
          {"numDeathBen", "-0.01", "An amount must be 0 or more", "0"}}) {
        run.desk.expect(Answer::ok);
        run.enter(control, typed);
        run.click("cmdForward");
        EXPECT_EQ(run.desk.last().text, message);
        EXPECT_EQ(RunningProgram::focused(), control);
        EXPECT_EQ(run.record().CurPolicy, 1);
        run.type(control, allowed);
    }
    run.type("numPremInvAmtMonthlyAnnEsc", "7.5"); // the file stores whole percents, so the screen shows one at once
    EXPECT_EQ(run.shown("numPremInvAmtMonthlyAnnEsc"), "8");
}

TEST_F(PolInvest, PaidUpLocksThePremiumsAndOtherOpensItsText) {
    open(2);
    policy(2).PaidUp = 1;
    policy(2).DeathBenPerson = 3;
    const auto expectLocked = [&](bool locked) {
        for (const char* premium : {"numPremInvAmtMonthly", "numPremInvAmtMonthlyAnnEsc", "chkPremInvAmtMonthlyCPI",
                                    "numPremInvAmtAnnual", "numPremInvAmtSingle"})
            EXPECT_EQ(run.control(premium)->isEnabled(), !locked) << premium;
    };
    expectLocked(false);
    EXPECT_FALSE(run.control("txtDeathBenOther")->isEnabled());
    run.click("cmdForward");
    expectLocked(true);
    EXPECT_TRUE(run.control("txtDeathBenOther")->isEnabled());
    EXPECT_EQ(changed(), 0);
    run.click("chkPaidUp");
    expectLocked(false);
    run.click("optDeathBen(1)");
    EXPECT_FALSE(run.control("txtDeathBenOther")->isEnabled());
}

TEST_F(PolInvest, CalculateFoldsTheScheduleAndSettlesALoanAgainstACession) {
    run.record().policies.resize(2);
    policy(1).DeathBen = 1000;
    policy(1).DeathBenLoanAgainst = 1;
    policy(1).DeathBenAmtCeded = 2;
    policy(1).RBEMV = 500;
    policy(1).RBEMVAge = 53;
    policy(1).RBEMVEscFor = 10;
    policy(2).InvBensMatValLS = 300.75;
    policy(2).InvBensTakeFinValAtRet = 1;
    policy(2).InvBensMatValLSAtAge = 55;
    run.menu("mnuPolInvests");
    EXPECT_EQ(run.shown("numRBEMVAtRet"), "550.00"); // one year lies between 53 and 55
    EXPECT_EQ(run.record().death.ANSAss5, 0);        // looking at a record changes nothing
    EXPECT_EQ(changed(), 0);
    run.type("numRBEMV", "1000");
    EXPECT_EQ(run.shown("numRBEMVAtRet"), "1 100.00");
    run.click("cmdForward");
    run.expectShown("numRBEMVAtRet 0.00, numInvBensAtRet 300.75");
    run.click("cmdCalculatePolInv"); // the conflict is on another record
    run.click("cmdBack");
    run.desk.expect(Answer::ok);
    run.click("cmdCalculatePolInv");
    EXPECT_EQ(run.desk.last().text,
              "There cannot be a Value for both 'Loan against' and 'Amount ceded'\nin the same policy!");
    EXPECT_EQ(run.shown("numDeathBenLoanAgainst") + run.shown("numDeathBenAmtCeded"), "0.000.00");
    EXPECT_EQ(run.record().death.ANSAss5, 1000);
    EXPECT_EQ(run.record().retirement.ANSLAss4, 1400);
    changed() = 0;
    run.click("cmdCalculatePolInv"); // nothing changes in the record
    EXPECT_EQ(changed(), 0);
}

TEST_F(PolInvest, TheListShowsAllWithTotalsAndGoesToTheOnePicked) {
    run.record().retirement.AgeRetiment = 60;
    open(3);
    policy(1).UnderInst = "Old Life";
    policy(1).PremInvAmtMonthly = 100.25;
    policy(2).PolOwner = "Anna";
    policy(2).DeathBen = 5000;
    policy(3).RBEMV = 700;
    policy(3).RBEMVAge = 60;
    policy(1).RBEMV = 30;
    policy(1).RBEMVAge = 59;
    policy(3).DisabilLumpSum = 1, policy(3).TraumlLumpSum = 2, policy(1).InvBensCurVal = 3;
    run.click("cmdForward");
    auto* list = run.control<screenkit::Grid>("grdPolicies");
    const auto rows = [&] {
        std::string all;
        for (const QStringList& row : RunningProgram::cells(list))
            all += row.join('|').toStdString() + "\n";
        return all;
    };
    RunningProgram::turnTo(list);
    EXPECT_EQ(rows(), "1|1, Old Life||100.25|0.00|0.00|0.00|3.00|30.00\n"
                      "2|2|Anna|0.00|5 000.00|0.00|0.00|0.00|0.00\n"
                      "3|3||0.00|0.00|1.00|2.00|0.00|700.00\n"
                      "|Total||100.25|5 000.00|1.00|2.00|3.00|730.00\n");
    EXPECT_EQ(list->picked(), std::vector<std::size_t>{1});
    const auto name = [&] { return run.control<QGroupBox>("fraAtRetirement")->title().toStdString(); };
    EXPECT_EQ(name(), "2 of 3:  2  -  at retirement");
    list->setFocus();
    run.key(Qt::Key_9, Qt::ControlModifier); // sorts by the last column
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(1, 1)).center());
    EXPECT_EQ(name(), "1 of 3:  1, Old Life  -  at retirement");
    EXPECT_EQ(run.front()->windowTitle(), "Policies & Investments. : Num. 1 of 3");
    list->setFocus();
    run.key(Qt::Key_Return);
    EXPECT_EQ(RunningProgram::focused(), "txtPolInvType");
    EXPECT_EQ(run.shown("txtPolInvType"), "1");
    EXPECT_EQ(changed(), 0) << "to look is not to change";
    RunningProgram::turnTo(list);
    run.desk.expect(Answer::yes);
    run.click("cmdDelete");
    EXPECT_EQ(list->model()->rowCount(), 3);
    EXPECT_EQ(name(), "1 of 2:  2  -  at retirement");
    run.click("cmdAdd");
    EXPECT_EQ(name(), "3 of 3:  not named yet  -  at retirement");
}

TEST_F(PolInvest, AValueThatCountsNothingSaysSoBesideItAsItIsTyped) {
    open(2);
    run.record().retirement.AgeRetiment = 60;
    const auto remark = [&](const char* column) {
        return run.control<QLabel>(QString("lblRemark") + column)->text().toStdString();
    };
    run.type("numRBEMV", "1000");
    EXPECT_EQ(remark("RBEMV"), "Not counted: no age");
    EXPECT_EQ(run.control("numRBEMV")->accessibleDescription(), "Not counted: no age");
    run.type("numRBEMVAge", "60");
    EXPECT_EQ(remark("RBEMV"), "");
    run.typeAll("numInvBensCurVal 5, numInvBensCurValLoanAgainst 2, numDeathBen 5");
    EXPECT_EQ(remark("InvBensCurVal"), "No tick: counts on death only\nLoan not counted: no tick");
    run.click("optDeathBen(2)");
    EXPECT_EQ(remark("DeathBen"), "Not counted: not for estate or spouse");
    run.click("cmdForward");
    EXPECT_EQ(remark("DeathBen"), "");
}

TEST_F(PolInvest, TheCPIIsStoredForThePracticeWhenConfirmed) {
    const std::string query = "SELECT CPI FROM CPIDefault";
    open();
    for (const auto& [typed, button, held, stored] :
         {std::tuple{"6.5", "cmdCPICancel", 0.0, ""}, {"6.5", "cmdCPIOK", 6.5, "6.5"}, {"4", "cmdCPIOK", 4.0, "4"}}) {
        run.click("cmdCPI");
        EXPECT_EQ(run.shown("numCPI").toStdString(), base::formatNumber(run.record().CPI, "0.000"));
        run.enter("numCPI", typed);
        run.click(button);
        EXPECT_FALSE(run.control("fraCPI")->isVisible());
        EXPECT_EQ(run.record().CPI, held);
        EXPECT_EQ(run.inClients(query), stored);
    }
    EXPECT_EQ(changed(), 0); // the index is the practice's, not the client's
}

TEST_F(PolInvest, PersonalDetailsOpensItAndAFileOfBadFiguresIsShownAndLeft) {
    run.menu("mnuNewFile");
    run.record().CurPolicy = 77; // more than there are
    policy(1).DeathBenPerson = -5;
    policy(1).RBEMVAge = 32767;
    policy(1).DeathBenCashVal = 1e300;
    run.click("cmdPolInvest");
    ASSERT_EQ(run.front()->objectName(), "frmPolInvest");
    EXPECT_EQ(run.front()->windowTitle(), "Policies & Investments. : Num. 1 of 1");
    for (int person = 0; person < 4; ++person)
        EXPECT_FALSE(run.control<QRadioButton>(QString("optDeathBen(%1)").arg(person))->isChecked());
    run.desk.expect(Answer::yes);
    run.click("cmdDelete"); // no message about the record being deleted
    EXPECT_EQ(policy(1).RBEMVAge, 0);
    run.click("cmdOK");
    EXPECT_FALSE(run.isOpen("frmPolInvest"));
}

} // namespace
