#include <cmath>

#include "base/day.h"
#include "calculators/bondreport.h"
#include "calculators/dailybalancereport.h"
#include "calculators/debtreport.h"
#include "calculators/drawdowncosts.h"
#include "calculators/drawdownreport.h"
#include "calculators/incomefromsharesreport.h"
#include "calculators/inflationreport.h"
#include "calculators/investcomparisonreport.h"
#include "calculators/lifeofcapitalreport.h"
#include "calculators/loanreport.h"
#include "calculators/loans.h"
#include "calculators/nominaleffectivereport.h"
#include "calculators/nominalrate.h"
#include "calculators/offshorereport.h"
#include "calculators/realratereport.h"
#include "clientfile/partlists.h"
#include "clientfile/partof.h"

namespace clientfile {

namespace {

using assessment::Assessment;
using datastore::Printout;

/// A solved figure that differs by less is the same one: the searches add cents, and each addition rounds.
constexpr double halfACent = 0.005;

bool isAnother(double stored, double present) { return std::fabs(stored - present) >= halfACent; }

calculators::AmortisationChoice tableOf(const Choices& choices) {
    const bool included = choices.contains(Choice::amortisation);
    return {included, included && choices.contains(Choice::monthly)};
}

struct InflationPart {
    static bool isEntered(const Assessment& client) { return client.inflation != assessment::Inflation{}; }
    static std::optional<calculators::InflationResult> result(const Source& source) {
        const auto result = calculators::LTLINFL(source.record.inflation);
        if (!std::isfinite(result.futureValue) || !std::isfinite(result.buyingPower)) return {};
        return result;
    }
    static Printout feed(const Source& source, const Choices&, const calculators::InflationResult& result) {
        return feedInflation(source.paths.PrintDbPath, source.record.client.Name, source.record.inflation, result);
    }
};

struct LoansPart {
    static bool isEntered(const Assessment& client) {
        assessment::Loans blank;
        blank.Heading = client.loans.Heading;
        return client.loans != blank;
    }
    static std::optional<assessment::Loans> result(const Source& source) {
        assessment::Loans loan = source.record.loans;
        calculators::LoanCalc(loan);
        if (!calculators::repaid(loan).hasMonths()) return {};
        return loan;
    }
    static Printout feed(const Source& source, const Choices& choices, const assessment::Loans& loan) {
        const calculators::LoanReportOptions wanted{choices.contains(Choice::charges), tableOf(choices)};
        feedLoanReport(source.paths.PrintDbPath, source.record.client.Name, loan, wanted);
        return loanReport(loan, wanted);
    }
    static std::string remark(const Source& source) {
        const assessment::Loans& stored = source.record.loans;
        const auto mode = calculators::loanMode(stored.Heading);
        if (!mode) return {};
        assessment::Loans present = stored;
        calculators::LoanCalc(present);
        const auto unknown = calculators::unknownOf(*mode);
        bool differs = stored.*unknown != present.*unknown;
        // The search for a period raises the repayment to clear the loan. One that never clears loses a cent of its
        // repayment in each run instead, which says nothing about what is stored.
        if (mode == calculators::LoanMode::RepaymentPeriod && present.Num2 != 0)
            differs = differs || isAnother(stored.Num4, present.Num4);
        return differs ? "The loan stored is not the one that its own figures give." : "";
    }
};

struct BondBusterPart {
    struct Busted {
        assessment::Bond bond;
        calculators::BondBuster result;
    };
    static bool isEntered(const Assessment& client) {
        assessment::Bond busted = client.bond;
        busted.BCMBP2 = busted.BCMBP4 = 0;
        return busted != assessment::Bond{};
    }
    static std::optional<Busted> result(const Source& source) {
        Busted busted{source.record.bond, {}};
        for (int press = 0; press < 2; ++press) { // Print and View each work it out and keep the raised payment
            busted.result = calculators::BBCalc(busted.bond);
            keepExtra(busted.bond, busted.result);
        }
        if (!busted.result.isFinite()) return {};
        return busted;
    }
    static Printout feed(const Source& source, const Choices&, const Busted& busted) {
        return feedBondBuster(source.paths.PrintDbPath, source.record.client.Name, busted.bond, busted.result);
    }
    static std::string remark(const Source& source) {
        assessment::Bond present = source.record.bond;
        keepExtra(present, calculators::BBCalc(present));
        if (!isAnother(source.record.bond.VOLUN, present.VOLUN)) return {};
        return "The extra payment stored for the bond is not the one that its own figures give.";
    }
};

struct BondAnalysisPart {
    static bool isEntered(const Assessment& client) {
        assessment::Bond busted = client.bond;
        busted.BCMBP2 = busted.BCMBP4 = 0;
        return busted != client.bond;
    }
    static std::optional<calculators::BondAnalysis> result(const Source& source) {
        const auto result = calculators::compareBondTerms(source.record.bond);
        if (!result.isFinite()) return {};
        return result;
    }
    static Printout feed(const Source& source, const Choices&, const calculators::BondAnalysis& result) {
        return feedBondAnalysis(source.paths.PrintDbPath, source.record.client.Name, source.record.bond, result);
    }
};

struct LifeOfCapitalPart {
    static bool isEntered(const Assessment& client) { return client.lifeOfCapital != assessment::LifeOfCapital{}; }
    static std::optional<finance::CapitalLife> result(const Source& source) {
        auto life = finance::LCCalculate(source.record.lifeOfCapital, finance::moreThanInLifeOfCapital);
        if (!life.isFinite) return {};
        return life;
    }
    static Printout feed(const Source& source, const Choices& choices, const finance::CapitalLife& life) {
        return calculators::feedLifeOfCapital(source.paths.PrintDbPath, source.record.client.Name,
                                              source.record.lifeOfCapital, life,
                                              choices.contains(Choice::amortisation));
    }
};

struct IncomeSharesPart {
    struct Drawn {
        calculators::IncomeSharesCosts costs;
        calculators::IncomeSharesRun run;
    };
    static bool isEntered(const Assessment& client) {
        assessment::IncomeShares blank;
        blank.AnnMonIncShare = client.incomeShares.AnnMonIncShare;
        return client.incomeShares != blank;
    }
    static std::optional<Drawn> result(const Source& source) {
        const assessment::IncomeShares& inputs = source.record.incomeShares;
        Drawn drawn{calculators::readIncomeSharesCosts(source.paths.DefaultDbPath), {}};
        // A growth rate without a nominal one counts as 0 until another one is typed.
        const double nominal = calculators::nominalRate(inputs.ISGrowthRate).value_or(0);
        drawn.run = incomeFromShares(inputs, drawn.costs, nominal);
        if (drawn.run.months == 0 || !drawn.run.isFinite()) return {};
        return drawn;
    }
    static Printout feed(const Source& source, const Choices& choices, const Drawn& drawn) {
        return feedIncomeFromShares(source.paths.PrintDbPath, source.record.client.Name, source.record.incomeShares,
                                    drawn.costs, drawn.run, choices.contains(Choice::commissions));
    }
};

struct DailyBalancePart {
    /// A date that was cleared holds another number than one that was never filled.
    static bool isEntered(const Assessment& client) {
        const assessment::DailyBalance blank;
        assessment::DailyBalance balance = client.dailyBalance;
        if (!base::isShownOnScreen(balance.StartDateDB)) balance.StartDateDB = blank.StartDateDB;
        if (!base::isShownOnScreen(balance.EndDateDB)) balance.EndDateDB = blank.EndDateDB;
        return balance != blank;
    }
    static std::optional<calculators::DailyBalanceResult> result(const Source& source) {
        return calculators::dailyBalance(source.record.dailyBalance);
    }
    static Printout feed(const Source& source, const Choices&, const calculators::DailyBalanceResult& result) {
        return feedDailyBalance(source.paths.PrintDbPath, source.record.client.Name, source.record.dailyBalance,
                                result);
    }
};

struct NominalEffectivePart {
    struct Solved {
        assessment::NominalEffective inputs;
        calculators::NominalEffectiveResult result;
    };
    /// A period of 12 months is no entry: the calculation writes it where there was none.
    static bool isEntered(const Assessment& client) {
        assessment::NominalEffective inputs = client.nominalEffective;
        if (inputs.PeriodNomEff == 12) inputs.PeriodNomEff = 0;
        inputs.IntComp = assessment::NominalEffective{}.IntComp;
        return inputs != assessment::NominalEffective{};
    }
    static Solved solve(const Source& source) {
        Solved solved{source.record.nominalEffective, {}};
        solved.result = calculators::NomEffCalc(solved.inputs);
        return solved;
    }
    static std::optional<Solved> result(const Source& source) {
        Solved solved = solve(source);
        if (!isPrintable(solved.inputs, solved.result)) return {};
        return solved;
    }
    static Printout feed(const Source& source, const Choices&, const Solved& solved) {
        return *feedNominalEffective(source.paths.PrintDbPath, source.record.client.Name, solved.inputs, solved.result);
    }
    static std::string remark(const Source& source) {
        const Solved present = solve(source);
        if (!present.result.isComplete || present.inputs == source.record.nominalEffective) return {};
        return "The period stored for nominal and effective interest is not a whole number of compounding periods: "
               "12 months count instead.";
    }
};

struct DebtConsolidationPart {
    static bool isEntered(const Assessment& client) { return client.debts != assessment::DebtConsolidation{}; }
    static std::optional<calculators::DebtComparison> result(const Source& source) {
        const auto result = calculators::DCCalc(source.record.debts);
        if (!result.isFinite()) return {};
        return result;
    }
    static Printout feed(const Source& source, const Choices& choices, const calculators::DebtComparison& result) {
        return feedDebts(source.paths.PrintDbPath, source.record.client.Name, source.record.debts, result,
                         tableOf(choices));
    }
};

struct InvestmentComparisonPart {
    static bool isEntered(const Assessment& client) { return client.comparison != assessment::InvestComparison{}; }
    static std::optional<calculators::InvestmentComparison> result(const Source& source) {
        auto result = calculators::compareInvestments(source.record.comparison, source.record.tax.Age);
        if (!result.isFinite()) return {};
        return result;
    }
    static Printout feed(const Source& source, const Choices&, const calculators::InvestmentComparison& result) {
        return feedInvestmentComparison(source.paths.PrintDbPath, source.record.client.Name, source.record.comparison,
                                        source.record.tax.Age, result);
    }
};

struct OffShorePart {
    static bool isEntered(const Assessment& client) { return client.offShore != assessment::OffShore{}; }
    static std::optional<calculators::OffShoreResult> result(const Source& source) {
        const auto result = calculators::compareOffShore(source.record.offShore);
        if (!result.fits()) return {};
        return result;
    }
    static Printout feed(const Source& source, const Choices&, const calculators::OffShoreResult& result) {
        return feedOffShore(source.paths.PrintDbPath, source.record.client.Name, source.record.offShore, result);
    }
};

struct DrawDownPart {
    struct Drawn {
        assessment::DrawDownCosts costs;
        calculators::DrawDownResult run;
    };
    static bool isEntered(const Assessment& client) {
        return client.drawDown != assessment::DrawDown{} || client.drawDownPhases != assessment::DrawDownPhases{};
    }
    static std::optional<Drawn> result(const Source& source) {
        Drawn drawn{calculators::readDrawDownCosts(source.paths.DefaultDbPath), {}};
        // A growth rate without a nominal one keeps that of the run before, and the screen runs when it opens, at Print
        // and at View.
        double NomRate = 0;
        for (int run = 0; run < 3; ++run)
            drawn.run =
                calculators::DrawDownCalc(source.record.drawDown, source.record.drawDownPhases, drawn.costs, NomRate);
        if (!drawn.run.isFinite()) return {};
        return drawn;
    }
    static Printout feed(const Source& source, const Choices& choices, const Drawn& drawn) {
        return feedDrawDown(source.paths.PrintDbPath, source.record.client.Name, source.record.drawDown,
                            source.record.drawDownPhases, drawn.costs, drawn.run,
                            choices.contains(Choice::amortisation));
    }
};

Part drawDownPart() {
    using P = DrawDownPart;
    Part part = partOf<P>("drawDownAnnuity", "Draw Down Annuity", {Choice::amortisation});
    // The phases are kept until the next client and never stored. Without them there is a page of zeros.
    part.whyNot = [](const Source& source) -> std::string {
        const bool isLoadedOnly = source.record.drawDownPhases == assessment::DrawDownPhases{};
        if (P::isEntered(source.record) && isLoadedOnly) return nothingOnScreen;
        return partOf<P>("", "").whyNot(source);
    };
    return part;
}

/// Either real rate of return, by its group of the record.
template <auto Group>
struct RealRatePart {
    struct Found {
        std::remove_cvref_t<decltype(std::declval<Assessment>().*Group)> inputs;
        calculators::RealRate result;
    };
    static bool isEntered(const Assessment& client) { return client.*Group != decltype(Found::inputs){}; }
    static std::optional<Found> result(const Source& source) {
        Found found{source.record.*Group, {}};
        found.result = calculators::RRRCalc(found.inputs);
        if (!found.result.isFinite()) return {};
        return found;
    }
    static Printout feed(const Source& source, const Choices&, const Found& found) {
        return feedRealRate(source.paths.PrintDbPath, source.record.client.Name, found.inputs, found.result);
    }
};

std::string remarkOnPayments(const Source& source) {
    assessment::RRRNew present = source.record.rrrNew;
    calculators::RRRCalc(present);
    return present == source.record.rrrNew
               ? ""
               : "Escalations stored for the payments of the real rate of return have no effect and count as 0.";
}

std::string remarkOnSingleInvestment(const Source& source) {
    const assessment::RRROld& stored = source.record.rrrOld;
    assessment::RRROld present = stored;
    calculators::RRRCalc(present);
    std::vector<std::string> sentences;
    if (present.AnnEsc != stored.AnnEsc)
        sentences.emplace_back(
            "The escalation stored for the premium of the single investment has no effect and counts as 0.");
    // The rate is written to the file but not read from it: 0 also means that it is not known here.
    if (stored.RRR != 0 && present.RRR != stored.RRR)
        sentences.emplace_back(
            "The rate of return stored for the single investment is not the one that its own figures give.");
    return joined(sentences);
}

} // namespace

std::vector<Part> calculatorParts() {
    return {
        partOf<InflationPart>("inflation", "Inflation"),
        partOf<LoansPart>("loans", "Loan Calculations", {Choice::amortisation, Choice::monthly, Choice::charges},
                          LoansPart::remark),
        partOf<BondBusterPart>("bondBuster", "Bond Buster", {}, BondBusterPart::remark),
        partOf<BondAnalysisPart>("bondAnalysis", "Bond Analysis"),
        partOf<LifeOfCapitalPart>("lifeOfCapital", "Life of Capital", {Choice::amortisation}),
        partOf<IncomeSharesPart>("incomeShares", "Income From Shares", {Choice::commissions}),
        partOf<DailyBalancePart>("dailyBalance", "Daily Balance"),
        partOf<NominalEffectivePart>("nominalEffective", "Nominal/Effective", {}, NominalEffectivePart::remark),
        partOf<DebtConsolidationPart>("debtConsolidation", "Debt Consolidation",
                                      {Choice::amortisation, Choice::monthly}),
        partOf<InvestmentComparisonPart>("investmentComparison", "Investment Comparison"),
        partOf<OffShorePart>("offshoreInvestments", "Offshore Investments"),
        drawDownPart(),
        partOf<RealRatePart<&Assessment::rrrNew>>("realRate", "Real Rate of Return", {}, remarkOnPayments),
        partOf<RealRatePart<&Assessment::rrrOld>>("realRateSingle", "Real Rate of Return, single investment", {},
                                                  remarkOnSingleInvestment),
    };
}

} // namespace clientfile
