#include "bench.h"

#include <random>
#include <vector>

#include "analyses/retirement.h"
#include "analyses/retirement_stepping.h"
#include "client/policyschedule.h"

namespace {

using assessment::Assessment;

/// Clients whose capital plain steps reach in reasonable time.
std::vector<Assessment> clients() {
    std::mt19937_64 random{20261122};
    std::vector<Assessment> all;
    while (all.size() < 200) {
        Assessment client = stepping::someClient(random), copy = client;
        const auto analysis = analyses::NARACalc(copy);
        if (std::fabs(analysis.NetCapital - analysis.CapitalSolved) < 2e7) all.push_back(std::move(client));
    }
    return all;
}

double stepAll() {
    static const std::vector<Assessment> all = clients();
    return bench::milliseconds([] {
        for (Assessment client : all)
            bench::keep(stepping::Retirement(client).CapitalSolved);
    });
}

double solveAll() {
    static const std::vector<Assessment> all = clients();
    return bench::milliseconds([] {
        for (Assessment client : all)
            bench::keep(analyses::NARACalc(client).CapitalSolved);
    });
}

/// A search that plain steps would never finish: 50 years at 30 % inflation after 50 more at the same rate, without a
/// return, so that the capital is hundreds of thousands of millions of rand; with as many policies and items as a file
/// can hold.
double solveWorst() {
    Assessment client;
    auto& needs = client.retirement;
    needs.CurrAge = 15;
    needs.AgeRetiment = 65;
    needs.YearsToRet = needs.CoverYears = 50;
    needs.IncomePD = 20;
    needs.InflationRA = 30;
    client.policies.resize(5000);
    for (assessment::Policy& policy : client.policies) {
        policy.RBMonAvaible = 0.01;
        policy.RBMonAvaibleEscFor = 5;
    }
    for (auto* list : {&client.itemised.RNAFutMonInc, &client.itemised.RNAMonIncReq, &client.itemised.RNAOtherExp}) {
        list->flag = 1;
        for (int row = 0; row < 5000; ++row) {
            assessment::ItemRow& added = list->rows.emplace_back();
            added.Amount = 1, added.Escalation = 5, added.ToAge = 120;
            added.FromAge = added.At = 65.0 + row % 50;
        }
    }
    return bench::milliseconds([&] { bench::keep(analyses::NARACalc(client).CapitalSolved); });
}

/// A thousand records whose values all grow from the first year of life.
double foldSchedule() {
    Assessment client;
    client.policies.resize(1000);
    for (assessment::Policy& policy : client.policies) {
        policy.DeathBen = 2e6, policy.DeathBenCashVal = 1000, policy.DeathBenUseCashAtRet = 1;
        policy.RBEMV = policy.RBPenLump = policy.RBProvFLump = policy.EndowEMV = policy.InvBensMatValLS = 1000;
        policy.DeathBenCashValAge = policy.RBEMVAge = policy.RBPenLumpAge = policy.RBProvFLumpAge = 20;
        policy.EndowEMVAge = policy.InvBensMatValLSAtAge = 20;
        policy.DeathBenCashValEscFor = policy.RBEMVEscFor = policy.RBPenLumpEscFor = policy.RBProvFLumpEscFor = 6;
        policy.EndowEMVEscFwd = policy.InvBensMatValLSEscAt = 6;
        policy.UseEndowEMVAtRet = policy.InvBensTakeFinValAtRet = 1;
    }
    client.retirement.AgeRetiment = 65;
    return bench::milliseconds([&] { bench::keep(client::CalculatePolInv(client).back().investment); });
}

const bench::Register search({"retirement capital, 200 clients, against plain steps", "ms", stepAll, solveAll, 0.5, 3});
const bench::Register
    worst({"retirement capital, worst legal figures, 5 000 policies and items", "ms", {}, solveWorst, 16});
const bench::Register fold({"1 000 policies folded, six values over 44 years", "ms", {}, foldSchedule, 1});

} // namespace
