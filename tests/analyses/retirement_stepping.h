#pragma once

#include <cmath>
#include <random>

#include "assessment/assessment.h"
#include "client/policyschedule.h"

/// A slow reference for the retirement analysis: one step after the other, every run from the beginning.
namespace stepping {

using assessment::Assessment;
using assessment::ItemRow;
using assessment::Policy;

struct Retirement {
    explicit Retirement(Assessment& client) : record(client), needs(client.retirement) { calculate(); }

    Assessment& record;
    assessment::NARetirement& needs;
    double IncomeReqFV = 0, NetCapital = 0, CapitalSolved = 0;
    int YearsCovered = 0;
    double CapitalByYear[52] = {}, InterestByYear[52] = {}, RequiredByYear[52] = {}, MonthlyRequiredByYear[52] = {},
           AvailableByYear[52] = {};

    void calculate() {
        client::CalculatePolInv(record);
        needs.InflationRA = std::min(needs.InflationRA, 30.0);
        needs.BankInvestRate = std::min(needs.BankInvestRate, 50.0);
        IncomeReqFV = needs.IncomePD;
        for (int year = 0; year < std::nearbyint(needs.YearsToRet); ++year)
            IncomeReqFV = IncomeReqFV * needs.InflationRA / 100 + IncomeReqFV;
        IncomeReqFV = std::nearbyint(IncomeReqFV);
        NetCapital = needs.ANSLAss1 + needs.ANSLAss2 + needs.ANSLAss3 + std::floor(needs.ANSLAss4) + needs.ANSLAss5 -
                     (needs.ANSLLib1 + needs.ANSLLib2 + needs.ANSLLib3 + needs.ANSLLib4 + needs.ANSLLib5);
        project();
        const double kept = NetCapital;
        const int keptYears = YearsCovered;
        YearsCovered >= needs.CoverYears ? excess() : shortfall();
        NetCapital = kept;
        YearsCovered = keptYears;
    }

    void excess() {
        for (;;) {
            NetCapital -= 100000;
            project();
            if (NetCapital < 0) return;
            if (YearsCovered >= needs.CoverYears) continue;
            NetCapital -= 10000;
            for (;;) {
                NetCapital += 10000;
                project();
                if (NetCapital < 0) return;
                if (YearsCovered < needs.CoverYears) {
                    CapitalSolved = NetCapital + 100000;
                    return;
                }
            }
        }
    }

    void shortfall() {
        do {
            NetCapital += 100000;
            project();
        } while (YearsCovered < needs.CoverYears);
        NetCapital -= 100000;
        do {
            NetCapital += 10000;
            project();
        } while (YearsCovered < needs.CoverYears);
        CapitalSolved = NetCapital;
    }

    void project() {
        double age = needs.AgeRetiment, expenses = 0;
        record.PolicyMonthlyIncome = std::nearbyint(record.PolicyMonthlyIncome);
        needs.IncomeRA = 0;
        if (record.itemised.RNAFutMonInc.flag == 1)
            for (const ItemRow& row : record.itemised.RNAFutMonInc.rows)
                if (row.FromAge <= age && age <= row.ToAge) needs.IncomeRA += row.Amount;
        CapitalByYear[1] = NetCapital;
        MonthlyRequiredByYear[1] = IncomeReqFV;
        RequiredByYear[1] = IncomeReqFV * 12;
        InterestByYear[1] = std::floor(NetCapital * needs.BankInvestRate / 100);
        AvailableByYear[1] = (needs.IncomeRA + record.PolicyMonthlyIncome) * 12;
        double pension = record.PolicyMonthlyIncome;
        int y = 1;
        while (y != 51) {
            ++y;
            ++age;
            for (const Policy& policy : record.policies)
                for (double k = needs.AgeRetiment + 1; k <= age - 1; ++k)
                    pension += (static_cast<double>(policy.RBMonAvaibleEscFor) / 100) * policy.RBMonAvaible;
            needs.IncomeRA = itemisedIncome(y);
            require(y, age);
            CapitalByYear[y] = CapitalByYear[y - 1] + CapitalByYear[y - 1] * needs.BankInvestRate / 100 +
                               (AvailableByYear[y - 1] - RequiredByYear[y - 1]);
            CapitalByYear[y] += lumpSums(age);
            InterestByYear[y] = CapitalByYear[y] * needs.BankInvestRate / 100;
            if (record.itemised.RNAOtherExp.flag == 1) {
                expenses = 0;
                for (const ItemRow& row : record.itemised.RNAOtherExp.rows)
                    if (row.At == age) expenses += row.Amount;
            }
            RequiredByYear[y] = MonthlyRequiredByYear[y] * 12 + expenses;
            AvailableByYear[y] = (needs.IncomeRA + pension) * 12;
            if (RequiredByYear[y] > CapitalByYear[y] + InterestByYear[y] + AvailableByYear[y]) break;
        }
        YearsCovered = y - 1;
    }

    double itemisedIncome(int y) const {
        double income = 0;
        if (record.itemised.RNAFutMonInc.flag != 1) return income;
        for (const ItemRow& row : record.itemised.RNAFutMonInc.rows) {
            double v = 0, age = needs.AgeRetiment;
            for (int step = 1; step <= y; ++step, ++age) {
                if (age > row.ToAge)
                    v = 0;
                else if (age == row.FromAge)
                    v += row.Amount;
                else if (age > row.FromAge)
                    v += v * row.Escalation / 100;
            }
            income += v;
        }
        return income;
    }

    void require(int y, double age) {
        double* monthly = MonthlyRequiredByYear;
        bool inForce = false;
        const auto& rows = record.itemised.RNAMonIncReq.rows;
        for (std::size_t i = 0; record.itemised.RNAMonIncReq.flag == 1 && i < rows.size(); ++i) {
            if (rows[i].FromAge > age || age > rows[i].ToAge) continue;
            inForce = true;
            if (rows[i].FromAge == age) {
                double v = rows[i].Amount;
                for (double k = needs.CurrAge + 1; k <= age - (i == 0 ? 2 : 1); ++k)
                    v = v * needs.InflationRA / 100 + v;
                if (i == 0) monthly[y - 1] = v;
                monthly[y] = v;
            } else {
                monthly[y] = monthly[y - 1] + monthly[y - 1] * rows[i].Escalation / 100;
            }
        }
        if (!inForce) monthly[y] = monthly[y - 1] + monthly[y - 1] * needs.InflationRA / 100;
    }

    double lumpSums(double age) const {
        double sum = 0;
        const auto add = [&](double value, double at) {
            if (at > needs.AgeRetiment && at == age) sum += value;
        };
        for (const Policy& p : record.policies)
            if (p.DeathBenUseCashAtRet == 1) add(p.DeathBenCashVal, p.DeathBenCashValAge);
        for (const Policy& p : record.policies)
            add(p.RBEMV, p.RBEMVAge);
        for (const Policy& p : record.policies)
            add(p.RBPenLump, p.RBPenLumpAge);
        for (const Policy& p : record.policies)
            add(p.RBProvFLump, p.RBProvFLumpAge);
        for (const Policy& p : record.policies)
            add(p.EndowEMV, p.EndowEMVAge);
        return sum;
    }
};

/// A realistic client with every variant that the analysis distinguishes; needs are small enough for plain steps.
inline Assessment someClient(std::mt19937_64& random) {
    const auto from = [&](double low, double high) { return std::uniform_real_distribution(low, high)(random); };
    const auto pick = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    const auto cents = [&](double high) { return std::floor(from(0, high) * 100) / 100; };
    const auto age = [&] { return static_cast<std::int16_t>(pick(0, 95)); };
    const auto rate = [&] { return static_cast<float>(pick(0, 120) / 8.0); };
    const auto tick = [&] { return static_cast<std::int16_t>(pick(0, 1)); };
    Assessment client;
    auto& needs = client.retirement;
    needs.CurrAge = pick(20, 70);
    needs.AgeRetiment = needs.CurrAge + pick(0, 25);
    needs.YearsToRet = needs.AgeRetiment - needs.CurrAge;
    needs.IncomePD = pick(0, 9) == 0 ? 0 : cents(15000);
    needs.CoverYears = pick(0, 30);
    needs.InflationRA = pick(-5, 12) + pick(0, 3) / 4.0;
    needs.BankInvestRate = pick(0, 15) + pick(0, 3) / 4.0;
    for (double* line : {&needs.ANSLAss1, &needs.ANSLAss2, &needs.ANSLAss3, &needs.ANSLAss5})
        *line = tick() * cents(1.5e6);
    for (double* line : {&needs.ANSLLib1, &needs.ANSLLib3, &needs.ANSLLib5})
        *line = tick() * cents(8e5);
    client.policies.resize(static_cast<std::size_t>(pick(1, 4)));
    for (Policy& p : client.policies) {
        p.DeathBen = tick() * cents(1e6), p.DeathBenCashVal = cents(3e5), p.DeathBenCashValAge = age();
        p.DeathBenCashValEscFor = rate(), p.DeathBenUseCashAtRet = tick();
        p.RBEMV = tick() * cents(5e5), p.RBEMVAge = age(), p.RBEMVEscFor = rate();
        p.RBPenLump = tick() * cents(5e5), p.RBPenLumpAge = age(), p.RBPenLumpEscFor = rate();
        p.RBProvFLump = tick() * cents(5e5), p.RBProvFLumpAge = age(), p.RBProvFLumpEscFor = rate();
        p.RBMonAvaible = tick() * cents(3000), p.RBMonAvaibleEscFor = rate();
        p.EndowEMV = cents(2e5), p.EndowEMVAge = age(), p.UseEndowEMVAtRet = tick();
        p.InvBensMatValLS = cents(2e5), p.InvBensMatValLSAtAge = age(), p.InvBensTakeFinValAtRet = tick();
        p.InvBensMatValLSEscAt = rate();
    }
    for (auto* list : {&client.itemised.RNAFutMonInc, &client.itemised.RNAMonIncReq, &client.itemised.RNAOtherExp}) {
        list->flag = tick();
        for (int row = pick(0, 4); row > 0; --row) {
            const double start = needs.AgeRetiment + pick(-4, 20);
            const double end = start + pick(0, 20);
            assessment::ItemRow& added = list->rows.emplace_back();
            added.Amount = cents(9000), added.Escalation = pick(0, 30) / 2.0;
            added.FromAge = added.At = start, added.ToAge = end;
        }
    }
    return client;
}

} // namespace stepping
