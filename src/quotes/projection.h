#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "assessment/assessment.h"
#include "finance/plan.h"

/// Quotations of savings products: what they grow to month by month, and the premium that reaches a value.
namespace quotes {

using assessment::FundDefaults;
using assessment::KwikQuotes;

/// The kinds of investment, in the order of their options on the screen.
enum class Kind { endowment, retirement, unitTrust, bank };
inline constexpr const char* kindLetters[] = {"E", "R", "U", "B"};

/// The kind that TYPEINVEST names; nothing for any other text.
std::optional<Kind> kindOf(std::string_view TYPEINVEST);

/// The longest terms, months.
inline constexpr int longestQuote = 480;
inline constexpr int longestPremium = 600;

/// The terms of a plan with an insurer. All are percentages but the fee.
struct InsurerRates {
    double singleCommission, regularCommission;
    double initialFee; ///< rand
    double trail;      ///< a year, a twelfth of it taken each month
    double managementFee, bonus;
    double tax; ///< on each year's gain, negative for a loss; 0 for a retirement annuity, which pays none
};

InsurerRates endowmentRates(const FundDefaults& funds);
InsurerRates retirementRates(const FundDefaults& funds);

/// Shares of the initial commissions that are charged. Graphs of short terms charge less than the quotation, so that
/// their last point can be higher than its maturity value.
struct ChargedShare {
    double single = 1, annual = 1, monthly = 1;
};

/// The months of an endowment or a retirement annuity; none has passed at first.
///
/// Monthly premiums pay the commission of annual ones, on a year's premiums in advance. Each anniversary the fund gets
/// last year's annual premium, although the totals count this year's. A negative fund does not grow, but still pays the
/// trail commission, which raises it.
class InsuredPlan {
public:
    InsuredPlan(const finance::Plan& plan, const InsurerRates& rates, const ChargedShare& share = {});

    /// The next month.
    void goOn();
    /// The fund, not below 0.
    double value() const { return FundValue < 0 ? 0 : FundValue; }

    double InitLump = 0, InitAnnual = 0, InitMonthly = 0; ///< initial commissions, rand
    double FundValue = 0;                                 ///< rand, may be negative
    double TotalInvested = 0;                             ///< rand paid less the initial fee
    double TotalPaid = 0;                                 ///< rand

private:
    void endYear();
    void beginYear();

    InsurerRates m_rates;
    double m_growth, m_escalation;
    double m_monthly, m_annual, m_annualBefore;
    double m_valueYearAgo = 0;
    int m_month = 0;
};

/// A quotation with its months. All amounts are rand, and nothing is rounded.
struct Quote {
    std::optional<Kind> kind;
    bool QuoteEmpty = true; ///< no growth, no term or no kind: nothing was projected
    double InitLump = 0, InitAnnual = 0, InitMonthly = 0;
    double FundValue = 0, TotalInvested = 0, TotalPaid = 0;
    double UTValue = 0, UTValueNoFee = 0;
    double QuoteEMV = 0;
    double QuoteLumpPortion = 0, QuoteMonthlyPayout = 0; ///< of a retirement annuity, not below 0
    /// By month; element 0 is 0. Paid to date, value, and for a unit trust the value with dividends re-invested. The
    /// values of endowments and retirement annuities are not below 0.
    std::vector<double> QuotePaid, QuoteValue, QuoteValueDiv;
};

/// Projects the quotation over its term. Empty if GrowthRate is 0 or the term is below 1 month.
Quote InvestProCalc(const KwikQuotes& inputs, const FundDefaults& funds);

/// The points of a quotation's graph: whole years for a term above 24 months, else months. Element 0 is unused. A
/// negative point is drawn as 0.
struct QuoteGraph {
    bool inYears = false;
    int points = 0;
    std::vector<double> invested, value, reinvested; ///< `reinvested` only for unit trusts, otherwise empty
};

/// Projects the quotation once more for its graph. Up to 60 months it charges only 0.8 of the commission on the single
/// investment and 0.6 of that on regular ones.
QuoteGraph InvestProGraphCalc(const KwikQuotes& inputs, const FundDefaults& funds);

/// The note beneath a bank investment.
inline constexpr const char* taxNote = "(Tax implications ignored)";

/// A quotation with what the screen and the report show of it.
struct ShownQuote {
    Quote quote;
    double numPremEsc = 0;         ///< 0 if there is no regular payment, whatever the record holds
    double numAns1 = 0;            ///< total investment made
    double numAns2 = 0;            ///< estimated maturity value; for a unit trust without dividends
    std::optional<double> numAns3; ///< lump sum portion, or a unit trust's value with dividends re-invested
    std::optional<double> numAns4; ///< monthly payout of a retirement annuity
    bool ignoresTax = false;       ///< `taxNote` belongs beneath it
    bool isFinite = true;          ///< false if the figures are too large to calculate with
};

ShownQuote ShowQuote(const KwikQuotes& inputs, const FundDefaults& funds);

} // namespace quotes
