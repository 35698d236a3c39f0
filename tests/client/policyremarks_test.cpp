#include "client/policyremarks.h"

#include <gtest/gtest.h>

#include <functional>

#include "client/policyschedule.h"

namespace {

using assessment::Policy;

constexpr const char* noAge = "Counts nothing: no age";
constexpr const char* noTick = "Counts nothing: no tick";

struct Case {
    std::function<void(Policy&)> fill;
    std::string remarks; ///< column and text, joined
};

// Of a client who retires at 60.
const Case cases[] = {
    {[](Policy&) {}, ""},
    {[](Policy& p) { p.DeathBen = 100; }, ""},
    {[](Policy& p) { p.DeathBen = 100, p.DeathBenPerson = 1; }, ""},
    {[](Policy& p) { p.DeathBen = 100, p.DeathBenPerson = 3; }, "DeathBen Counts nothing: not for estate or spouse"},
    {[](Policy& p) { p.DeathBen = 100, p.DeathBenAmtCeded = 100; },
     "DeathBen Counts nothing: all ceded or lent against"},
    {[](Policy& p) { p.DeathBen = 100, p.DeathBenAmtCeded = 60, p.DeathBenLoanAgainst = 39.99; }, ""},
    {[](Policy& p) { p.DeathBenSurrVal = 1, p.TraumlLumpSum = 2, p.TraumMonthly = 3; },
     "DeathBenSurrVal Counts nothing: reports only|TraumlLumpSum Counts nothing: reports only|"
     "TraumMonthly Counts nothing: reports only"},
    {[](Policy& p) { p.DeathBenMonthly = 1, p.DeathBenYears = 1, p.IncProMonthly = 1; },
     "IncProMonthly 0 years: counts in the first year only"},
    {[](Policy& p) { p.DeathBenMonthly = 1, p.DisabilMonthly = 1, p.RBMonAvaible = 1; },
     "DeathBenMonthly 0 years: counts in the first year only"},
    {[](Policy& p) { p.DeathBen = 100, p.DeathBenCashVal = 50, p.DeathBenCashValAge = 55; },
     std::string("DeathBenCashVal ") + noTick},
    {[](Policy& p) { p.DeathBen = 100, p.DeathBenCashVal = 50, p.DeathBenUseCashAtRet = 1; },
     std::string("DeathBenCashVal ") + noAge},
    {[](Policy& p) { p.DeathBen = 50, p.DeathBenCashVal = 50, p.DeathBenUseCashAtRet = 1, p.DeathBenCashValAge = 60; },
     "DeathBenCashVal Counts nothing: not below the death benefit"},
    {[](Policy& p) { p.DeathBen = 51, p.DeathBenCashVal = 50, p.DeathBenUseCashAtRet = 1, p.DeathBenCashValAge = 60; },
     ""},
    {[](Policy& p) { p.DeathBenCashVal = 50, p.DeathBenUseCashAtRet = 1, p.DeathBenCashValAge = 61; },
     "DeathBenCashVal Counts at 61, after retirement"},
    {[](Policy& p) { p.RBEMV = 1, p.RBPenLump = 1, p.RBPenLumpAge = 60, p.RBProvFLump = 1, p.RBProvFLumpAge = 65; },
     std::string("RBEMV ") + noAge + "|RBProvFLump Counts at 65, after retirement"},
    {[](Policy& p) { p.EndowEMV = 1, p.UseEndowEMVAtRet = 1; }, std::string("EndowEMV ") + noAge},
    {[](Policy& p) { p.EndowEMV = 1, p.EndowEMVAge = 60; }, std::string("EndowEMV ") + noTick},
    {[](Policy& p) { p.EndowEMV = 1, p.EndowEMVAge = 70; }, "EndowEMV Counts at 70, after retirement"},
    {[](Policy& p) { p.InvBensMatValLS = 1, p.InvBensMatValLSAtAge = 50; }, std::string("InvBensMatValLS ") + noTick},
    {[](Policy& p) { p.InvBensMatValLS = 1, p.InvBensTakeFinValAtRet = 1; }, ""},
    {[](Policy& p) { p.InvBensCurVal = 2, p.InvBensCurValLoanAgainst = 1; },
     "InvBensCurVal No tick: counts on death only|InvBensCurValLoanAgainst Loan counts nothing: no tick"},
    {[](Policy& p) { p.InvBensCurVal = 2, p.InvBensCurValLoanAgainst = 1, p.InvBensTakeAtDisa = 1; }, ""},
};

TEST(PolicyRemarks, SayOfEachValueWhatTheAnalysesMakeOfIt) {
    for (const Case& each : cases) {
        Policy policy;
        each.fill(policy);
        std::string said;
        for (const client::PolicyRemark& remark : client::policyRemarks(policy, 60))
            said += (said.empty() ? "" : "|") + std::string(remark.column) + " " + remark.text;
        EXPECT_EQ(said, each.remarks);
        // A value at retirement that the screen shows as 0 is explained, and one that counts is not called nothing.
        const bool atRetirement = policy.DeathBenCashVal + policy.RBEMV + policy.EndowEMV + policy.InvBensMatValLS > 0;
        if (atRetirement && policy.RBPenLump == 0) {
            EXPECT_EQ(client::valuesAtRetirement(policy, 60).capital() > 0, said.empty()) << each.remarks;
        }
    }
}

TEST(PolicyRemarks, ARecordIsNamedByWhatIsEntered) {
    Policy policy;
    EXPECT_EQ(client::policyName(policy), "");
    policy.PolRefNum = " 12/3 ";
    EXPECT_EQ(client::policyName(policy), "12/3");
    policy.PolInvType = "Endowment";
    policy.UnderInst = "  ";
    EXPECT_EQ(client::policyName(policy), "Endowment, 12/3");
}

} // namespace
