#include "bench.h"

#include "calculators/amortisation.h"
#include "calculators/loans.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

namespace {

using assessment::Loans;
using calculators::Amortisation;

constexpr int loanCount = 1000;

/// Loans of every size that the fields accept, the same ones in each run. Four in five are realistic; the others have a
/// repayment unrelated to the principal, which is hardest for the searches.
std::vector<Loans> clientLoans() {
    std::mt19937_64 random{20260301};
    const auto between = [&](double low, double high) { return std::uniform_real_distribution(low, high)(random); };
    const auto money = [&] { return std::floor(std::exp(between(0, std::log(1e12))) * 100) / 100; };
    std::vector<Loans> loans(loanCount);
    for (Loans& loan : loans) {
        loan.Num1 = money();
        loan.Num2 = std::floor(between(1, 600));
        loan.Num3 = std::floor(between(1, 50000)) / 1000;
        const double repayment = std::floor(calculators::repaymentFor(loan.Num1, loan.Num2, loan.Num3) * 100) / 100;
        loan.Num4 = between(0, 1) < 0.8 ? repayment : money();
    }
    // A million million over one month, 400 thousand million rand short of clearing: 4e13 cents.
    loans.push_back({"", 1e12, 1, 12, 6e11});
    loans.push_back({"", 1e12, 1, 0.001, 5.1e11});
    loans.push_back({"", 0.01, 600, 0.001, 1e12}); // a rate of millions of percent
    loans.push_back({"", 0.01, 1, 50, 80});        // 800 000 percent
    loans.push_back({"", 1e12, 600, 50, 0.02});    // never cleared within 600 months
    return loans;
}

/// Figures that no field accepts, as a damaged file may hold them: the searches never settle.
std::vector<Loans> oddLoans() {
    std::vector<Loans> loans;
    for (const double principal : {-1e300, -1000.0, -1e-310, 1e-310, 1000.0, 1e300})
        for (const double months : {-1e9, -120.0, 1e-15, 0.3, 240.0, 1e300})
            for (const double repayment : {-1e300, -1e-310, 1e-310, 12.0, 1e14, 1e300})
                loans.push_back({"", principal, months, months, repayment});
    return loans;
}

/// The time of the slowest loan in one mode; the best of three tries for each, since the machine does other work too.
double slowest(const std::vector<Loans>& loans, calculators::LoanMode mode) {
    double worst = 0;
    for (Loans loan : loans) {
        loan.Heading = calculators::loanHeadings[static_cast<std::size_t>(mode)];
        double best = 1e9;
        for (int attempt = 0; attempt < 3; ++attempt) {
            Loans copy = loan;
            best = std::min(best, bench::milliseconds([&] { calculators::LoanCalc(copy); }));
            bench::keep(copy.Num1 + copy.Num2 + copy.Num3 + copy.Num4);
        }
        worst = std::max(worst, best);
    }
    return worst;
}

bench::Bench slowestCase(calculators::LoanMode mode) {
    const std::string heading(calculators::loanHeadings[static_cast<std::size_t>(mode)]);
    return {.name = std::to_string(loanCount) + " loans solved for \"" + heading + "\", slowest single legal case",
            .floor = {},
            .ours = [mode] { return slowest(clientLoans(), mode); },
            .goal = 16,
            .rounds = 5};
}

bench::Bench slowestOddCase(calculators::LoanMode mode) {
    const std::string heading(calculators::loanHeadings[static_cast<std::size_t>(mode)]);
    return {.name = "figures of a damaged file solved for \"" + heading + "\", slowest single case",
            .floor = {},
            .ours = [mode] { return slowest(oddLoans(), mode); },
            .goal = 16,
            .rounds = 1};
}

Loans twentyYears(int number) { return {"", 100000.0 + number, 240, 5 + number * 0.01, 0}; }

/// The months of one loan, written directly into columns, with everything constant moved out of the loop by hand.
double leastWork(const Loans& loan) {
    static Amortisation table;
    const double growth = 1 + loan.Num3 / 12 / 100;
    const double pay = (loan.Num3 / 12 / 100 * loan.Num1) / (1 - std::pow(growth, -loan.Num2));
    double balance = loan.Num1;
    for (std::size_t i = 1; i <= 240; ++i) {
        table.MonthCapital[i] = pay * std::pow(growth, static_cast<double>(i) - 241);
        table.MonthInterest[i] = pay - table.MonthCapital[i];
        table.MonthBalance[i] = balance = std::fabs(balance - table.MonthCapital[i]);
    }
    return table.MonthBalance[240];
}

double timeOfAll(double (*work)(const Loans&)) {
    return bench::milliseconds([work] {
        double sum = 0;
        for (int i = 0; i < loanCount; ++i)
            sum += work(twentyYears(i));
        bench::keep(sum);
    });
}

const bench::Register repayment(slowestCase(calculators::LoanMode::MonthlyRepayment));
const bench::Register principal(slowestCase(calculators::LoanMode::PrincipalAmount));
const bench::Register period(slowestCase(calculators::LoanMode::RepaymentPeriod));
const bench::Register rate(slowestCase(calculators::LoanMode::InterestRate));
const bench::Register oddPeriod(slowestOddCase(calculators::LoanMode::RepaymentPeriod));
const bench::Register oddRate(slowestOddCase(calculators::LoanMode::InterestRate));
const bench::Register amortisation({
    .name = "1000 loans, 240 months of amortisation with the annual table, beside the bare monthly loop",
    .floor = [] { return timeOfAll(leastWork); },
    .ours =
        [] {
            return timeOfAll([](const Loans& loan) {
                const Amortisation table = calculators::annualAmortisation({loan.Num1, loan.Num2, loan.Num3, 0});
                return table.MonthBalance[240] + table.YearInterest[20];
            });
        },
    .goal = 2,
});

} // namespace
