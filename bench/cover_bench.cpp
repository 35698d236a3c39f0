#include "bench.h"

#include "analyses/death.h"
#include "analyses/disability.h"
#include "assessment/tables.h"

namespace {

using assessment::Assessment;

/// The largest search that legal figures lead to: 50 years at 30 % inflation and no return, so that plain steps would
/// take 2.4 x 10^8 runs; and on top of it as many policies and items as a file holds.
Assessment worstClient() {
    Assessment client;
    auto& death = client.death;
    auto& disability = client.disability;
    death.Income = disability.MDisaDTS5 = 100000;
    death.PeriodDeath = disability.MDisaDTS15 = 50;
    death.Inflation = disability.MDisaDTS6 = 30;
    client.policies.resize(5000);
    for (assessment::Policy& policy : client.policies) {
        policy.DeathBenMonthly = policy.DisabilMonthly = policy.IncProMonthly = 0.01;
        policy.DeathBenMonEsc = policy.DisabilMonEscAt = policy.IncProMonEscAt = 5;
        policy.DeathBenYears = policy.IncProYears = 50;
    }
    for (const assessment::ItemTable& table : assessment::itemTables()) {
        if (table.list == nullptr || table.analysis == assessment::Analysis::retirement) continue;
        assessment::ItemList& list = table.list(client.itemised);
        list.flag = 1;
        for (int row = 0; row < 5000; ++row) {
            assessment::ItemRow& added = list.rows.emplace_back();
            added.Amount = 0.01, added.Escalation = 30, added.ToAge = 60;
            added.FromAge = added.At = 2.0 + row % 50;
        }
    }
    return client;
}

double solveDeath() {
    static Assessment client = worstClient();
    return bench::milliseconds([] { bench::keep(analyses::NADeathCalc(client).CapitalSolved); });
}

double solveDisability() {
    static Assessment client = worstClient();
    return bench::milliseconds([] { bench::keep(analyses::NADisabilityCalc(client).CapitalSolved); });
}

const bench::Register
    death({"capital on death, worst legal figures, 5 000 policies and items", "ms", {}, solveDeath, 16});
const bench::Register
    disability({"capital on disability, worst legal figures, 5 000 policies and items", "ms", {}, solveDisability, 16});

} // namespace
