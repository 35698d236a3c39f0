#include "client/policyremarks.h"

#include <gtest/gtest.h>

#include "client/policyschedule.h"

#pragma GCC diagnostic ignored "-Wmissing-field-initializers" // the texts of a policy stay empty

namespace {

using assessment::Policy;

struct Case {
    Policy policy;
    std::string remarks; ///< column and text
};

// For a client who retires at 60.
const Case cases[] = {
    {{}, ""},
    {{.DeathBen = 100}, ""},
    {{.DeathBen = 100, .DeathBenPerson = 3}, "DeathBen Not counted: not for estate or spouse"},
    {{.DeathBen = 100, .DeathBenAmtCeded = 100}, "DeathBen Not counted: all ceded or lent against"},
    {{.DeathBen = 100, .DeathBenLoanAgainst = 39.99, .DeathBenAmtCeded = 60}, ""},
    {{.DeathBenSurrVal = 1, .TraumlLumpSum = 2, .TraumMonthly = 3},
     "DeathBenSurrVal Not counted: reports only|TraumlLumpSum Not counted: reports only|"
     "TraumMonthly Not counted: reports only"},
    {{.DeathBenMonthly = 1, .DeathBenYears = 1, .IncProMonthly = 1},
     "IncProMonthly 0 years: counts in the first year only"},
    {{.DeathBenMonthly = 1, .DisabilMonthly = 1, .RBMonAvaible = 1},
     "DeathBenMonthly 0 years: counts in the first year only"},
    {{.DeathBen = 100, .DeathBenCashVal = 50, .DeathBenCashValAge = 55}, "DeathBenCashVal Not counted: no tick"},
    {{.DeathBen = 100, .DeathBenCashVal = 50, .DeathBenUseCashAtRet = 1}, "DeathBenCashVal Not counted: no age"},
    {{.DeathBen = 50, .DeathBenCashVal = 50, .DeathBenCashValAge = 60, .DeathBenUseCashAtRet = 1},
     "DeathBenCashVal Not counted: not below the death benefit"},
    {{.DeathBen = 51, .DeathBenCashVal = 50, .DeathBenCashValAge = 60, .DeathBenUseCashAtRet = 1}, ""},
    {{.DeathBenCashVal = 50, .DeathBenCashValAge = 61, .DeathBenUseCashAtRet = 1},
     "DeathBenCashVal Counts at 61, after retirement"},
    {{.RBEMV = 1, .RBPenLump = 1, .RBPenLumpAge = 60, .RBProvFLump = 1, .RBProvFLumpAge = 65},
     "RBEMV Not counted: no age|RBProvFLump Counts at 65, after retirement"},
    {{.EndowEMV = 1, .UseEndowEMVAtRet = 1}, "EndowEMV Not counted: no age"},
    {{.EndowEMV = 1, .EndowEMVAge = 70}, "EndowEMV Counts at 70, after retirement"},
    {{.InvBensMatValLS = 1, .InvBensMatValLSAtAge = 50}, "InvBensMatValLS Not counted: no tick"},
    {{.InvBensTakeFinValAtRet = 1, .InvBensMatValLS = 1}, ""},
    {{.InvBensCurVal = 2, .InvBensCurValLoanAgainst = 1},
     "InvBensCurVal No tick: counts on death only|InvBensCurValLoanAgainst Loan not counted: no tick"},
    {{.InvBensCurVal = 2, .InvBensCurValLoanAgainst = 1, .InvBensTakeAtDisa = 1}, ""},
};

TEST(PolicyRemarks, SayOfEachValueWhatTheAnalysesMakeOfIt) {
    for (const Case& each : cases) {
        const Policy& policy = each.policy;
        std::string said;
        for (const client::PolicyRemark& remark : client::policyRemarks(policy, 60))
            said += (said.empty() ? "" : "|") + std::string(remark.column) + " " + remark.text;
        EXPECT_EQ(said, each.remarks);
        // A value at retirement that the screen shows as 0 has an explanation, and a value that counts is never said
        // not to.
        if (policy.RBPenLump == 0 &&
            policy.DeathBenCashVal + policy.RBEMV + policy.EndowEMV + policy.InvBensMatValLS > 0) {
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
