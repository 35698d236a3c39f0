#include <gtest/gtest.h>

#include "client/policyschedule.h"

#pragma GCC diagnostic ignored "-Wmissing-field-initializers" // the texts of a policy stay empty

namespace {

using assessment::Assessment;
using assessment::Policy;
using client::CalculatePolInv;

struct Totals {
    double death = 0, disability = 0, retirement = 0, pension = 0;
    int deathFlag = 0, disabilityFlag = 0, retirementFlag = 0, pensionFlag = 0;
    bool operator==(const Totals&) const = default;
};

void PrintTo(const Totals& t, std::ostream* out) {
    *out << t.death << ' ' << t.disability << ' ' << t.retirement << ' ' << t.pension << " flags " << t.deathFlag
         << t.disabilityFlag << t.retirementFlag << t.pensionFlag;
}

Totals totalsOf(Assessment& client) {
    CalculatePolInv(client);
    const auto& flags = client.itemised;
    return {client.death.ANSAss5,       client.disability.DisaASS5,   client.retirement.ANSLAss4,
            client.PolicyMonthlyIncome, flags.DTHLifeAssItemise,      flags.DISALifeAssItemise,
            flags.RNAPoliciesItemise,   flags.NARAPolicyIncomeItemise};
}

struct Case {
    const char* what;
    Policy policy;
    Totals totals;
};

/// Cover with a cash value of 1 000 at that age, which grows by 10 % a year.
Policy cashValue(double cover, std::int16_t age) {
    return {.DeathBen = cover,
            .DeathBenCashVal = 1000,
            .DeathBenCashValAge = age,
            .DeathBenUseCashAtRet = 1,
            .DeathBenCashValEscFor = 10};
}

// One policy of a client who retires at 55.
const Case cases[] = {
    {"cover to the estate", {.DeathBen = 1000.9}, {.death = 1000, .deathFlag = 1}},
    {"cover to charity, investment all the same",
     {.DeathBen = 1000, .DeathBenPerson = 2, .InvBensCurVal = 300},
     {.death = 300, .deathFlag = 1}},
    {"ceded in full", {.DeathBen = 1000, .DeathBenAmtCeded = 1000}, {}},
    {"ceded and lent against past the cover",
     {.DeathBen = 1000, .DeathBenLoanAgainst = 900, .DeathBenAmtCeded = 900},
     {}},
    {"income on death alone turns the flag", {.DeathBenMonthly = 5}, {.deathFlag = 1}},
    {"an investment lost leaves the flag", {.InvBensCurVal = -10}, {.death = -10}},
    {"disability",
     {.DisabilLumpSum = 10, .InvBensCurVal = 50, .InvBensCurValLoanAgainst = 20},
     {.death = 50, .disability = 10, .deathFlag = 1, .disabilityFlag = 1}},
    {"investment taken on disability",
     {.InvBensCurVal = 50, .InvBensCurValLoanAgainst = 20, .InvBensTakeAtDisa = 1},
     {.death = 50, .disability = 30, .deathFlag = 1, .disabilityFlag = 1}},
    {"income protection alone turns the flag", {.IncProMonthly = 5}, {.disabilityFlag = 1}},
    {"cash value two years on: one year of growth",
     cashValue(5000, 53),
     {.death = 5000, .retirement = 1100, .deathFlag = 1, .retirementFlag = 1}},
    {"cash value at retirement itself",
     cashValue(5000, 55),
     {.death = 5000, .retirement = 1000, .deathFlag = 1, .retirementFlag = 1}},
    {"cash value as high as the cover: the tick alone counts",
     cashValue(1000, 50),
     {.death = 1000, .deathFlag = 1, .retirementFlag = 1}},
    {"annuity past retirement neither counts nor locks", {.RBEMV = 1000, .RBEMVAge = 56}, {}},
    {"annuity without an age", {.RBEMV = 1000}, {}},
    {"annuity, pension and provident lump sums",
     {.RBEMV = 1000,
      .RBEMVAge = 52,
      .RBEMVEscFor = 10,
      .RBPenLump = 100,
      .RBPenLumpAge = 55,
      .RBProvFLump = 10.9,
      .RBProvFLumpAge = 54,
      .RBProvFLumpEscFor = 50},
     {.retirement = 1320, .retirementFlag = 1}}, // 1210 + 100 + 10.9
    {"endowment without its tick", {.EndowEMV = 1000, .EndowEMVAge = 50}, {}},
    {"endowment",
     {.EndowEMV = 1000, .EndowEMVAge = 53, .UseEndowEMVAtRet = 1, .EndowEMVEscFwd = 12.5F},
     {.retirement = 1125, .retirementFlag = 1}},
    {"maturity after retirement comes back",
     {.InvBensTakeFinValAtRet = 1, .InvBensMatValLS = 1210, .InvBensMatValLSAtAge = 57, .InvBensMatValLSEscAt = 10},
     {.retirement = 1000, .retirementFlag = 1}},
    {"maturity that no rate brings back",
     {.InvBensTakeFinValAtRet = 1, .InvBensMatValLS = 1210, .InvBensMatValLSAtAge = 57, .InvBensMatValLSEscAt = -100},
     {.retirement = 1210, .retirementFlag = 1}},
    {"a blank maturity age grows from the first year of life",
     {.InvBensTakeFinValAtRet = 1, .InvBensMatValLS = 1000, .InvBensMatValLSEscAt = 1},
     {.retirement = 1711, .retirementFlag = 1}}, // 54 years at 1 %
    {"pension", {.RBMonAvaible = 700.5}, {.pension = 700.5, .retirementFlag = 1, .pensionFlag = 1}},
};

TEST(PolicySchedule, EachBenefitCountsWhereItBelongs) {
    for (const Case& line : cases) {
        Assessment client;
        client.policies[0] = line.policy;
        EXPECT_EQ(totalsOf(client), line.totals) << line.what;
    }
}

TEST(PolicySchedule, RecordsAddUpAndAnEmptyScheduleGivesNothing) {
    Assessment client;
    client.policies.resize(3);
    client.policies[0].RBMonAvaible = 100;
    client.policies[2].RBMonAvaible = 20;
    client.policies[1].DeathBen = client.policies[2].DeathBen = 0.6;
    const auto values = CalculatePolInv(client);
    EXPECT_EQ(values[0].monthlyIncome, 100);
    EXPECT_EQ(values[1].monthlyIncome, 0);
    EXPECT_EQ(values[2].monthlyIncome, 120);
    EXPECT_EQ(client.death.ANSAss5, 1); // the sum is truncated, not its parts

    client.policies.clear();
    for (std::int16_t* flag : {&client.itemised.DTHLifeAssItemise, &client.itemised.DISALifeAssItemise,
                               &client.itemised.RNAPoliciesItemise, &client.itemised.NARAPolicyIncomeItemise})
        *flag = 1;
    EXPECT_EQ(totalsOf(client), Totals{});
    client.policies = {{.InvBensCurVal = -10}};
    client.itemised.DTHLifeAssItemise = 1;
    EXPECT_EQ(totalsOf(client).deathFlag, 1) << "an investment lost leaves the flag";
}

TEST(PolicySchedule, TheShownPolicyAloneDecidesTheFlagOfIncomeOnDeath) {
    for (const std::int16_t shown : {std::int16_t{1}, std::int16_t{2}}) {
        Assessment client;
        client.policies.resize(2);
        client.policies[1].DeathBenMonthly = 500;
        client.CurPolicy = shown;
        EXPECT_EQ(totalsOf(client).deathFlag, shown == 2 ? 1 : 0);
    }
}

} // namespace
