#include "quotes/projection.h"

#include <algorithm>
#include <cmath>

namespace quotes {

using finance::grown, finance::isAnniversary, finance::isYearEnd, finance::Plan, finance::risen;

namespace {

constexpr int longestInMonths = 24;      // graphs of longer terms have a point a year
constexpr int longestReducedCharge = 60; // months
constexpr ChargedShare reducedCharge{0.8, 0.6, 0.6};

Plan planOf(const KwikQuotes& inputs) {
    return {inputs.LUMPSUM, inputs.ANNUALPAYMENT, inputs.regularpayment,
            inputs.term,    inputs.GrowthRate,    inputs.PaymentEscalation};
}

void clearMonths(Quote& quote, int months) {
    for (auto* column : {&quote.QuotePaid, &quote.QuoteValue, &quote.QuoteValueDiv})
        column->assign(static_cast<std::size_t>(months) + 1, 0);
}

void projectInsured(Quote& quote, const Plan& plan, const InsurerRates& rates, const ChargedShare& share) {
    InsuredPlan run(plan, rates, share);
    for (std::size_t month = 1; month < quote.QuotePaid.size(); ++month) {
        run.goOn();
        quote.QuotePaid[month] = run.TotalPaid;
        quote.QuoteValue[month] = run.value();
    }
    quote.InitLump = run.InitLump;
    quote.InitAnnual = run.InitAnnual;
    quote.InitMonthly = run.InitMonthly;
    quote.TotalInvested = run.TotalInvested;
    quote.TotalPaid = run.TotalPaid;
    quote.FundValue = quote.QuoteEMV = run.FundValue;
}

void payOut(Quote& quote, const FundDefaults& funds) {
    quote.QuoteLumpPortion = quote.QuoteEMV * funds.LumpSumPort / 100;
    // From the portion as it is, also a negative one: only the results are cut off at 0.
    const double annuity =
        ((quote.QuoteEMV - quote.QuoteLumpPortion) * funds.AllocationPer / 100) * funds.AnnuityPer / 100;
    quote.QuoteMonthlyPayout = std::max(annuity / 12, 0.0);
    quote.QuoteLumpPortion = std::max(quote.QuoteLumpPortion, 0.0);
}

void projectUnitTrust(Quote& quote, const Plan& plan, const FundDefaults& funds) {
    finance::UnitTrust run(plan, funds, finance::Trail::atYearEnd);
    for (std::size_t month = 1; month < quote.QuotePaid.size(); ++month) {
        if (month > 1) run.goOn();
        quote.QuotePaid[month] = run.TotalInvested;
        quote.QuoteValue[month] = run.UTValue;
        quote.QuoteValueDiv[month] = run.UTValueNoFee;
    }
    quote.TotalInvested = run.TotalInvested;
    quote.UTValue = run.UTValue;
    quote.UTValueNoFee = run.UTValueNoFee;
    quote.FundValue = quote.QuoteEMV = run.UTValueNoFee;
}

void projectBank(Quote& quote, const Plan& plan) {
    double annual = plan.annual, monthly = plan.monthly;
    quote.FundValue = quote.TotalInvested = plan.single + plan.annual; // the first monthly payment comes in month 2
    for (std::size_t i = 1; i < quote.QuotePaid.size(); ++i) {
        const bool anniversary = isAnniversary(static_cast<int>(i));
        if (anniversary) {
            annual = risen(annual, plan.escalation);
            monthly = risen(monthly, plan.escalation);
        }
        const double paid = i == 1 ? 0 : anniversary ? annual + monthly : monthly;
        quote.TotalInvested += paid;
        quote.FundValue = grown(quote.FundValue + paid, plan.growth);
        quote.QuotePaid[i] = quote.TotalInvested;
        quote.QuoteValue[i] = quote.FundValue;
    }
    quote.QuoteEMV = quote.FundValue;
}

Quote project(const KwikQuotes& inputs, const FundDefaults& funds, const ChargedShare& share) {
    Quote quote;
    quote.kind = kindOf(inputs.TYPEINVEST);
    quote.QuoteEmpty = !quote.kind || inputs.GrowthRate == 0 || inputs.term < 1;
    if (quote.QuoteEmpty) return quote;
    const Plan plan = planOf(inputs);
    clearMonths(quote, plan.months);
    switch (*quote.kind) {
    case Kind::endowment: projectInsured(quote, plan, endowmentRates(funds), share); break;
    case Kind::retirement:
        projectInsured(quote, plan, retirementRates(funds), share);
        payOut(quote, funds);
        break;
    case Kind::unitTrust: projectUnitTrust(quote, plan, funds); break;
    case Kind::bank: projectBank(quote, plan); break;
    }
    return quote;
}

} // namespace

std::optional<Kind> kindOf(std::string_view TYPEINVEST) {
    const auto* const found = std::find(std::begin(kindLetters), std::end(kindLetters), TYPEINVEST);
    if (found == std::end(kindLetters)) return {};
    return static_cast<Kind>(found - std::begin(kindLetters));
}

InsurerRates endowmentRates(const FundDefaults& funds) {
    return {.singleCommission = funds.ESPremCom,
            .regularCommission = funds.EAPremCom,
            .initialFee = funds.EIAF,
            .trail = funds.EAComPortVal,
            .managementFee = funds.EAMFee,
            .bonus = funds.EADivBo,
            .tax = funds.ETaxRate};
}

InsurerRates retirementRates(const FundDefaults& funds) {
    return {.singleCommission = funds.RSPremCom,
            .regularCommission = funds.RAPremCom,
            .initialFee = funds.RIAF,
            .trail = funds.RAComPortVal,
            .managementFee = funds.RAMFee,
            .bonus = funds.RAADivBo,
            .tax = 0};
}

InsuredPlan::InsuredPlan(const Plan& plan, const InsurerRates& rates, const ChargedShare& share)
    : m_rates(rates), m_growth(plan.growth), m_escalation(plan.escalation), m_monthly(plan.monthly),
      m_annual(plan.annual), m_annualBefore(plan.annual) {
    if (plan.single > 0) InitLump = (rates.singleCommission / 100) * plan.single * share.single;
    if (plan.annual > 0) InitAnnual = (rates.regularCommission / 100) * plan.annual * share.annual;
    if (plan.monthly > 0) InitMonthly = plan.monthly * 12 * (rates.regularCommission / 100) * share.monthly;
    TotalPaid = plan.single + plan.annual;
    TotalInvested = TotalPaid - rates.initialFee;
    FundValue = TotalPaid - (InitLump + InitAnnual + InitMonthly + rates.initialFee);
}

void InsuredPlan::goOn() {
    ++m_month;
    if (isYearEnd(m_month)) endYear();
    if (isAnniversary(m_month)) beginYear();
    TotalInvested += m_monthly;
    TotalPaid += m_monthly;
    FundValue += m_monthly;
    if (FundValue > 0) FundValue = grown(FundValue, m_growth);
    FundValue -= (m_rates.trail / 100 / 12) * FundValue;
    if (isYearEnd(m_month)) m_valueYearAgo = value();
}

void InsuredPlan::endYear() {
    FundValue -= (FundValue - m_valueYearAgo) * m_rates.tax / 100;
    FundValue -= FundValue * m_rates.managementFee / 100;
    FundValue += FundValue * m_rates.bonus / 100;
}

void InsuredPlan::beginYear() {
    m_annual = risen(m_annual, m_escalation);
    for (double* sum : {&FundValue, &TotalInvested, &TotalPaid})
        *sum += m_annual;
    if (m_annualBefore > 0) {
        FundValue -= m_annual - m_annualBefore;
        m_annualBefore = m_annual;
    } else {
        m_annualBefore = 0;
    }
    m_monthly = risen(m_monthly, m_escalation);
}

Quote InvestProCalc(const KwikQuotes& inputs, const FundDefaults& funds) { return project(inputs, funds, {}); }

QuoteGraph InvestProGraphCalc(const KwikQuotes& inputs, const FundDefaults& funds) {
    const Quote quote = project(inputs, funds, inputs.term <= longestReducedCharge ? reducedCharge : ChargedShare{});
    QuoteGraph graph;
    if (quote.QuoteEmpty) return graph;
    graph.inYears = inputs.term > longestInMonths;
    const int monthsAPoint = graph.inYears ? 12 : 1;
    graph.points = inputs.term / monthsAPoint; // a part year at the end has no point
    const auto picked = [&](const std::vector<double>& months) {
        std::vector<double> points(static_cast<std::size_t>(graph.points) + 1, 0);
        for (std::size_t point = 1; point < points.size(); ++point)
            points[point] = std::max(months[point * static_cast<std::size_t>(monthsAPoint)], 0.0);
        return points;
    };
    graph.invested = picked(quote.QuotePaid);
    graph.value = picked(quote.QuoteValue);
    if (quote.kind == Kind::unitTrust) graph.reinvested = picked(quote.QuoteValueDiv);
    return graph;
}

ShownQuote ShowQuote(const KwikQuotes& inputs, const FundDefaults& funds) {
    ShownQuote shown;
    const Quote& quote = shown.quote = InvestProCalc(inputs, funds);
    const bool isRegular = inputs.regularpayment != 0 || inputs.ANNUALPAYMENT != 0;
    shown.numPremEsc = isRegular ? inputs.PaymentEscalation : 0;
    const bool isInsured = quote.kind == Kind::endowment || quote.kind == Kind::retirement;
    shown.numAns1 = isInsured ? quote.TotalPaid : quote.TotalInvested;
    shown.numAns2 = quote.kind == Kind::unitTrust ? quote.UTValue : quote.QuoteEMV;
    if (quote.kind == Kind::retirement) {
        shown.numAns3 = quote.QuoteLumpPortion;
        shown.numAns4 = quote.QuoteMonthlyPayout;
    }
    if (quote.kind == Kind::unitTrust) shown.numAns3 = quote.UTValueNoFee;
    shown.ignoresTax = quote.kind == Kind::bank && quote.QuoteEMV > 0;
    shown.isFinite = std::isfinite(shown.numAns1) && std::isfinite(shown.numAns2) &&
                     std::isfinite(shown.numAns3.value_or(0)) && std::isfinite(shown.numAns4.value_or(0));
    return shown;
}

} // namespace quotes
