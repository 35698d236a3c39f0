#pragma once

#include <cmath>
#include <random>

#include "assessment/tables.h"
#include "base/numberformat.h"
#include "client/policyschedule.h"

/// A slow reference for the death and disability analyses: one step after the other, every run from the beginning. The
/// fast ones must give the same.
namespace stepping {

using assessment::Assessment;
using assessment::ItemList;
using assessment::ItemRow;
using assessment::Policy;

enum class Cover { death, disability };

struct CoverSteps {
    CoverSteps(Assessment& client, Cover kind) : record(client), isDeath(kind == Cover::death) { calculate(); }

    Assessment& record;
    const bool isDeath;
    double Income = 0, Period = 0, Inflation = 0, InvestRate = 0, MIAvail = 0;
    double NetCapital = 0, solved = 0;
    int YearsCovered = 0;
    std::string txtAns1, txtAns2;
    double CapitalByYear[52] = {}, InterestByYear[52] = {}, RequiredByYear[52] = {}, AvailableByYear[52] = {},
           monthly[52] = {};

    const ItemList& list(ItemList assessment::Itemised::*death, ItemList assessment::Itemised::*disability) const {
        return record.itemised.*(isDeath ? death : disability);
    }

    void calculate() {
        client::CalculatePolInv(record);
        auto& d = record.death;
        auto& b = record.disability;
        Income = isDeath ? d.Income : b.MDisaDTS5, Period = isDeath ? d.PeriodDeath : b.MDisaDTS15;
        MIAvail = isDeath ? d.DeathMIAvail : b.DisaMIAvail;
        double& inflation = isDeath ? d.Inflation : b.MDisaDTS6;
        double& rate = isDeath ? d.InvestRate : b.MDisaDTS7;
        Inflation = inflation = std::min(inflation, 30.0), InvestRate = rate = std::min(rate, 50.0);
        NetCapital = isDeath ? d.ANSAss1 + d.ANSAss2 + d.ANSAss4 + d.ANSAss5 + d.ANSAss6 -
                                   (d.ANSLib1 + d.ANSLib2 + d.ANSLib3 + d.ANSLib4 + d.lib5)
                             : b.DisaASS1 + b.DisaASS2 + b.DisaASS4 + b.DisaASS5 + b.DisaASS6 -
                                   (b.Disalib1 + b.Disalib2 + b.Disalib3 + b.Disalib4 + b.Disalib5);
        project();
        const double first = NetCapital + AvailableByYear[1], year = 12 * Income;
        const std::string lasts = "Funds available will provide income for ";
        if (isDeath ? Income > 0 && NetCapital >= 0 && first <= year
                    : Income > 0 && NetCapital > 0 && ((first <= year && Income > 0) || NetCapital > 0))
            txtAns1 = lasts + "less than 1 year.";
        const bool carries = isDeath ? first > year : first >= year;
        if (YearsCovered > 1 && carries)
            txtAns1 = lasts + std::to_string(YearsCovered > Period ? std::lrint(Period) : YearsCovered) + " years.";
        if (YearsCovered == 1 && carries) txtAns1 = lasts + "less than 2 years.";
        const double kept = NetCapital;
        const int keptYears = YearsCovered;
        const bool lastsLongEnough = YearsCovered >= Period;
        lastsLongEnough ? excess() : shortfall();
        NetCapital = kept;
        YearsCovered = keptYears;
        const double over = NetCapital - solved;
        if (lastsLongEnough && (isDeath ? over > 50000 : over >= 50000))
            txtAns2 = "(capital excess available of " + base::formatNumber(over, "### ### ###") + " detected)";
        if (Period > 0 && !lastsLongEnough)
            txtAns2 = base::formatNumber(-over, "### ### ###") + " additional cover required.";
    }

    void excess() {
        for (;;) {
            NetCapital -= 10000;
            project();
            if (NetCapital < 0) return;
            if (YearsCovered < Period) {
                solved = NetCapital + 10000;
                return;
            }
        }
    }

    void shortfall() {
        do {
            NetCapital += 10000;
            project();
        } while (YearsCovered < Period);
        solved = NetCapital;
    }

    void project() {
        using I = assessment::Itemised;
        CapitalByYear[1] = NetCapital;
        monthly[1] = Income;
        RequiredByYear[1] = Income * 12;
        InterestByYear[1] = std::floor(NetCapital * InvestRate / 100);
        AvailableByYear[1] = MIAvail * 12;
        double policies = 0;
        for (const Policy& p : record.policies)
            policies += isDeath ? p.DeathBenMonthly : p.DisabilMonthly + p.IncProMonthly;
        AvailableByYear[1] += policies * 12;
        int y = 1;
        while (y != 51) {
            ++y;
            require(y, list(&I::DTHMonIncReq, &I::DISAMonIncReq));
            CapitalByYear[y] = CapitalByYear[y - 1] + CapitalByYear[y - 1] * InvestRate / 100 +
                               (AvailableByYear[y - 1] - RequiredByYear[y - 1]);
            InterestByYear[y] = CapitalByYear[y] * InvestRate / 100;
            double sold = 0, due = 0;
            for (const auto* each : {&list(&I::DTHRealEst, &I::DISARealEst), &list(&I::DTHStocks, &I::DISAStocks),
                                     &list(&I::DTHCars, &I::DISACars), &list(&I::DTHOtherCap, &I::DISAOtherCap)})
                sold = add(sold, *each, y);
            for (const auto* each :
                 {&list(&I::DTHMortgage, &I::DISAMortgage), &list(&I::DTHOtherLoans, &I::DISAOtherLoans),
                  &list(&I::DTHCreditCard, &I::DISACreditCard), &list(&I::DTHEstateDuty, &I::DISAEstateDuty),
                  &list(&I::DTHOtherExp, &I::DISAOtherExp)})
                due = add(due, *each, y);
            CapitalByYear[y] += sold;
            RequiredByYear[y] = monthly[y] * 12 + due;
            AvailableByYear[y] = sources(y) * 12 + policyIncome(y) * 12;
            if (RequiredByYear[y] > CapitalByYear[y] + InterestByYear[y] + AvailableByYear[y]) break;
        }
        YearsCovered = y - 1;
    }

    static double add(double sum, const ItemList& items, int y) {
        for (std::size_t i = 0; items.flag == 1 && i < items.rows.size(); ++i)
            if (items.rows[i].At == y) sum += items.rows[i].Amount;
        return sum;
    }

    void require(int y, const ItemList& needs) {
        const ItemRow* row = nullptr;
        for (std::size_t i = 0; needs.flag == 1 && i < needs.rows.size(); ++i)
            if (needs.rows[i].FromAge <= y && y <= needs.rows[i].ToAge) row = &needs.rows[i];
        const double rate = row == nullptr || y <= row->FromAge ? Inflation : row->Escalation;
        monthly[y] = monthly[y - 1] + monthly[y - 1] * rate / 100;
        if (row == nullptr || row != needs.rows.data() || y != row->FromAge) return;
        monthly[y] = row->Amount;
        for (int k = 2; k <= y; ++k)
            monthly[y] = monthly[y] * Inflation / 100 + monthly[y];
    }

    double sources(int y) const {
        using I = assessment::Itemised;
        const ItemList& items = list(&I::DTHFutMonInc, &I::DISAFutMonInc);
        if (items.flag != 1) return MIAvail;
        double income = 0;
        for (const ItemRow& row : items.rows) {
            double v = 0;
            for (int k = 1; k <= y; ++k) {
                if (k > row.ToAge)
                    v = 0;
                else if (k == row.FromAge)
                    v += row.Amount;
                else if (k > row.FromAge)
                    v += v * row.Escalation / 100;
            }
            income += v;
        }
        return income;
    }

    double policyIncome(int y) const {
        double sum = 0;
        const auto grown = [y](double amount, float escalation, double years) {
            double s = 0;
            for (int k = 1; k <= y; ++k) {
                if (k > years) s = 0;
                if (k <= years) s = k == 1 ? s + amount : escalation * s / 100 + s;
            }
            return s;
        };
        if (isDeath) {
            for (const Policy& p : record.policies)
                if (record.itemised.DTHLifeAssItemise == 1)
                    sum += grown(p.DeathBenMonthly, p.DeathBenMonEsc, p.DeathBenYears);
            return sum;
        }
        if (record.itemised.DISALifeAssItemise != 1) return sum;
        for (const Policy& p : record.policies)
            sum += grown(p.DisabilMonthly, p.DisabilMonEscAt, 51);
        for (const Policy& p : record.policies)
            sum += grown(p.IncProMonthly, p.IncProMonEscAt, p.IncProYears);
        return sum;
    }
};

/// A realistic client with every variant that the two analyses distinguish; the capital is small enough for plain
/// steps.
inline Assessment someInsured(std::mt19937_64& random) {
    const auto from = [&](double low, double high) { return std::uniform_real_distribution(low, high)(random); };
    const auto pick = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    const auto cents = [&](double high) { return std::floor(from(0, high) * 100) / 100; };
    const auto rate = [&] { return static_cast<float>(pick(0, 120) / 8.0); };
    const auto tick = [&] { return static_cast<std::int16_t>(pick(0, 1)); };
    Assessment client;
    auto& d = client.death;
    auto& b = client.disability;
    d.Income = pick(0, 9) == 0 ? 0 : cents(15000);
    d.PeriodDeath = pick(0, 30);
    d.Inflation = pick(-5, 12) + pick(0, 3) / 4.0;
    d.InvestRate = pick(0, 15) + pick(0, 3) / 4.0;
    d.DeathMIAvail = tick() * cents(4000);
    for (double* line : {&d.ANSAss1, &d.ANSAss2, &d.ANSAss4, &d.ANSAss6})
        *line = tick() * cents(8e5);
    for (double* line : {&d.ANSLib1, &d.ANSLib2, &d.ANSLib3, &d.ANSLib4, &d.lib5})
        *line = tick() * cents(3e5);
    b.MDisaDTS5 = d.Income, b.MDisaDTS15 = d.PeriodDeath, b.MDisaDTS6 = d.Inflation, b.MDisaDTS7 = d.InvestRate;
    b.DisaMIAvail = cents(4000), b.DisaASS1 = d.ANSAss2, b.DisaASS2 = d.ANSAss6, b.DisaASS4 = d.ANSAss1;
    b.DisaASS6 = d.ANSAss4, b.Disalib1 = d.lib5, b.Disalib2 = d.ANSLib3, b.Disalib3 = d.ANSLib1;
    b.Disalib4 = d.ANSLib2, b.Disalib5 = d.ANSLib4;
    client.policies.resize(static_cast<std::size_t>(pick(1, 4)));
    for (Policy& p : client.policies) {
        p.DeathBen = tick() * cents(6e5), p.DeathBenPerson = static_cast<std::int16_t>(pick(0, 3));
        p.DeathBenMonthly = tick() * cents(3000), p.DeathBenMonEsc = rate(), p.DeathBenYears = pick(0, 60) / 2.0;
        p.DisabilLumpSum = tick() * cents(5e5), p.DisabilMonthly = tick() * cents(2000), p.DisabilMonEscAt = rate();
        p.IncProMonthly = tick() * cents(2000), p.IncProMonEscAt = rate();
        p.IncProYears = static_cast<std::int16_t>(pick(0, 30));
        p.InvBensCurVal = tick() * cents(1e5), p.InvBensTakeAtDisa = tick();
    }
    for (const assessment::ItemTable& table : assessment::itemTables()) {
        if (table.list == nullptr) continue;
        ItemList& list = table.list(client.itemised);
        list.flag = pick(0, 3) == 0 ? 1 : 0;
        for (int row = pick(0, 4); row > 0; --row) {
            ItemRow& added = list.rows.emplace_back();
            added.FromAge = added.At = pick(0, 20), added.ToAge = added.FromAge + pick(0, 20);
            added.Amount = cents(9000), added.Escalation = pick(0, 30) / 2.0;
        }
    }
    return client;
}

} // namespace stepping
