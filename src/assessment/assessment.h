#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "assessment/cgt.h"
#include "assessment/changed.h"
#include "assessment/filetexts.h"
#include "assessment/itemised.h"
#include "assessment/lumpsums.h"
#include "assessment/personaldetails.h"
#include "assessment/policy.h"
#include "base/day.h"
#include "store/filestate.h"

/// The client's record: one struct for each screen's group, each field under its database name.
///
/// Amounts are rand, rates percent a year, dates day numbers, unless a line says otherwise. A default-constructed
/// record is a blank one. The types are part of the record: a figure of single precision or 16 bits is rounded when it
/// is entered, not when it is saved.
namespace assessment {

/// Who the client is: shown on every screen and stored in both client tables.
struct Client {
    std::string Name; ///< display name: title, initials, surname
    double BirthDate = base::blankDate;
    std::string IDNumber;

    bool operator==(const Client&) const = default;
};

/// Interest on a balance between two days.
struct DailyBalance {
    float CapAmount = 0;
    std::int32_t StartDateDB = static_cast<std::int32_t>(base::blankDate);
    std::int32_t EndDateDB = static_cast<std::int32_t>(base::blankDate);
    float IntRate = 0;

    bool operator==(const DailyBalance&) const = default;
};

/// Up to five debts and the loan that replaces them.
struct DebtConsolidation {
    double Loan1Amt = 0, Loan2Amt = 0, Loan3Amt = 0, Loan4Amt = 0, Loan5Amt = 0;
    double Loan1Int = 0, Loan2Int = 0, Loan3Int = 0, Loan4Int = 0, Loan5Int = 0;
    double ConInt = 0;
    std::int16_t ConPeriod = 0; ///< months

    bool operator==(const DebtConsolidation&) const = default;
};

/// A quotation's inputs.
struct KwikQuotes {
    std::string TYPEINVEST = "E"; ///< "E", "R", "U" or "B"
    double LUMPSUM = 0;
    double ANNUALPAYMENT = 0;
    double regularpayment = 0; ///< rand a month
    std::int16_t term = 0;     ///< months, for every kind
    double GrowthRate = 0;
    double PaymentEscalation = 0;

    bool operator==(const KwikQuotes&) const = default;
};

/// A maturity value whose premium is searched. Kept until the next client, never stored.
struct PremiumQuote {
    double PremTarget = 0;     ///< rand
    std::int16_t PremTerm = 0; ///< months
    double PremGrowth = 0;
    double PremEscalation = 0;

    bool operator==(const PremiumQuote&) const = default;
};

/// The monthly unit-trust premium for the capital of one needs analysis: what the analysis carried in, what the premium
/// screen holds, and the answer. Kept until the next client, never stored.
struct CapitalPremium {
    double capital = 0;        ///< carried in, rand; 0 or less if none is needed
    double years = 0;          ///< carried in: until the capital is needed, may be above 50
    std::int16_t isFound = 0;  ///< carried in: 1 if the analysis found a capital
    double PremTarget = 0;     ///< rand
    std::int16_t PremTerm = 0; ///< years, at most 50
    double PremGrowth = 0;
    double PremEscalation = 0;
    std::int16_t isSolved = 0; ///< 1 if `premium` is the answer for the four figures above and for `capital`
    double premium = 0;        ///< rand a month

    bool operator==(const CapitalPremium&) const = default;
};

/// A premium for each analysis that asks for one.
struct CapitalPremiums {
    std::int16_t source = 1; ///< whose premium the screen shows: 1 education, 2 retirement
    CapitalPremium education, retirement;

    CapitalPremium& shown() { return source == 2 ? retirement : education; }

    bool operator==(const CapitalPremiums&) const = default;
};

/// A level-payment loan with one unknown. Saved with the client.
struct Loans {
    std::string Heading = "Monthly repayment"; ///< names the unknown among the four
    double Num1 = 0;                           ///< principal, rand
    double Num2 = 0;                           ///< period, whole months
    double Num3 = 0;                           ///< interest, percent a year, nominal, compounded monthly
    double Num4 = 0;                           ///< repayment, rand a month

    bool operator==(const Loans&) const = default;
};

/// Needs analysis for death. `Itemised` holds the flags of itemised lines.
struct NADeath {
    double Income = 0; ///< rand a month
    double Inflation = 0;
    double InvestRate = 0;
    double PeriodDeath = 0; ///< years
    double DeathMIAvail = 0;
    double ANSAss1 = 0, ANSAss2 = 0, ANSAss4 = 0, ANSAss5 = 0, ANSAss6 = 0;
    double ANSLib1 = 0, ANSLib2 = 0, ANSLib3 = 0, ANSLib4 = 0, lib5 = 0;
    double DTHLastReview = base::blankDate;
    double DTHNextReview = base::blankDate;
    std::string DeathNotes;

    bool operator==(const NADeath&) const = default;
};

/// Needs analysis for education.
struct NAEducation {
    double FundsPD = 0;
    double InflationEDU = 0;
    double YearsToEdu = 0;
    double FundsForYears = 0;
    double BankRate = 0;
    double EducLastReview = base::blankDate;
    double EducNextReview = base::blankDate;

    bool operator==(const NAEducation&) const = default;
};

/// Needs analysis for retirement.
struct NARetirement {
    double IncomePD = 0; ///< rand a month
    double IncomeRA = 0;
    double InflationRA = 0;
    double YearsToRet = 0;
    double CoverYears = 0;
    double BankInvestRate = 0;
    double ANSLAss1 = 0, ANSLAss2 = 0, ANSLAss3 = 0, ANSLAss4 = 0, ANSLAss5 = 0;
    double ANSLLib1 = 0, ANSLLib2 = 0, ANSLLib3 = 0, ANSLLib4 = 0, ANSLLib5 = 0;
    double AgeRetiment = 55;
    double CurrAge = 0;
    double NaraLastReview = base::blankDate;
    double NaraNextReview = base::blankDate;
    std::string RANotes;

    bool operator==(const NARetirement&) const = default;
};

/// Needs analysis for disability.
struct NADisability {
    double MDisaDTS5 = 0, MDisaDTS6 = 0, MDisaDTS7 = 0, MDisaDTS15 = 0;
    double DisaMIAvail = 0;
    std::string DisaNotes;
    double DisaASS1 = 0, DisaASS2 = 0, DisaASS4 = 0, DisaASS5 = 0, DisaASS6 = 0;
    double Disalib1 = 0, Disalib2 = 0, Disalib3 = 0, Disalib4 = 0, Disalib5 = 0;
    double DISALastReview = base::blankDate;
    double DISANextReview = base::blankDate;

    bool operator==(const NADisability&) const = default;
};

/// Nominal against effective interest.
struct NominalEffective {
    double amount = 0;
    double PeriodNomEff = 0;
    double NomRate = 0;
    double IntComp = 12; ///< compounding periods a year

    bool operator==(const NominalEffective&) const = default;
};

struct Inflation {
    double PresCostInflation = 0;
    std::int16_t PeriodInflation = 0; ///< years
    double IntRateInflation = 0;

    bool operator==(const Inflation&) const = default;
};

struct KwikTax {
    double Salary = 0; ///< income a year; the input of every tax scale
    double Age = 0;
    double YR9798 = 1;       ///< the tax year's option: 0 is February 2026, anything else February 2027
    double LastScaleTax = 0; ///< last result of any tax scale, rand a year; never stored

    bool operator==(const KwikTax&) const = default;
};

struct InvestComparison {
    double CTaxFreeI = 0, CTaxInc = 0;
    double AnnAmount = 0;
    std::string AnnDet;
    double MonTFAnn = 0, MonTAnn = 0;
    double FDAmount = 0, FXInt = 0;
    std::string FXDet;

    bool operator==(const InvestComparison&) const = default;
};

/// The part of a draw-down annuity that is saved with the client.
struct DrawDown {
    double LSAmt = 0, GRLA = 0, Midp = 0, Esc = 0;

    bool operator==(const DrawDown&) const = default;
};

/// A stretch of years of a draw-down annuity: what is drawn, and how it and the portfolio grow.
struct DrawDownPhase {
    double FromYear = 0, ToYear = 0;
    double LAInitDraw = 0; ///< income at the start, rand a month
    double Esc = 0;        ///< escalation of the income
    double GRLA = 0;       ///< effective growth of the portfolio

    bool operator==(const DrawDownPhase&) const = default;
};

/// The phases of a draw-down annuity, as on the lines of their table. Kept until the next client, never stored.
struct DrawDownPhases {
    DrawDownPhase phase0, phase1;
    std::vector<DrawDownPhase> further; ///< lines that the user added: kept, but not part of the calculation

    bool operator==(const DrawDownPhases&) const = default;
};

struct OffShore {
    std::int32_t InvAmount = 0;
    std::int16_t OSPeriod = 0; ///< years
    double OFInvRate = 0, LInvRate = 0;
    std::int16_t OFTaxRate = 0, LTaxRate = 0, LCurrChange = 0;

    bool operator==(const OffShore&) const = default;
};

/// Real rate of return, the old screen.
struct RRROld {
    double SingPremLump = 0, MonPrem = 0;
    float Period = 0;
    double AnnEsc = 0, MatVal = 0, TotPremPaid = 0, RRR = 0;

    bool operator==(const RRROld&) const = default;
};

/// Real rate of return, the new screen: four phases of payments and of income, each with its escalation and a remark.
struct RRRNew {
    double RRRNEWIntLumpInv = 0, RRRNEWPeriod = 0, RRRNEWMaturityVal = 0;
    double RegMpay1 = 0, RegMpay2 = 0, RegMpay3 = 0, RegMpay4 = 0;
    double PayEsc1 = 0, PayEsc2 = 0, PayEsc3 = 0, PayEsc4 = 0;
    double RegMinc1 = 0, RegMinc2 = 0, RegMinc3 = 0, RegMinc4 = 0;
    double IncEsc1 = 0, IncEsc2 = 0, IncEsc3 = 0, IncEsc4 = 0;
    std::string RegMpayDet1, RegMpayDet2, RegMpayDet3, RegMpayDet4;
    std::string RegMincDet1, RegMincDet2, RegMincDet3, RegMincDet4;

    bool operator==(const RRRNew&) const = default;
};

/// Bond buster (BM) and bond analysis (BCM).
struct Bond {
    double BMBP2 = 0;
    std::int16_t OMBP3 = 0; ///< months
    float BMBP4 = 0;
    double VOLUN = 0;
    double BCMBP2 = 0;
    float BCMBP4 = 0;

    bool operator==(const Bond&) const = default;
};

struct LifeOfCapital {
    double CAPI = 0, MINC = 0, GRTE = 0, TXRTE = 0, EXCLife = 0;

    bool operator==(const LifeOfCapital&) const = default;
};

struct IncomeShares {
    double InvestAmount = 0, ISGrowthRate = 0, InitPercRequire = 0, AnnIncEsca = 0, EffTaxRate = 0;
    std::string AnnMonIncShare = "annually";

    bool operator==(const IncomeShares&) const = default;
};

struct EstateDuty {
    double PropEstate = 0, PolInvEstate = 0, OtherEstate = 0, LessAccEstate = 0;
    double PropExecutor = 0, PolInvExecutor = 0, OtherExecutor = 0, LessAccExecutor = 0;

    bool operator==(const EstateDuty&) const = default;
};

struct RATaxAdvantage {
    double RARemuneration = 0, RATaxableInc = 0, ProposedRF = 0;
    std::int16_t RATaxPayerAge = 0;
    std::string RASurname;
    double TaxCGT = 0;

    bool operator==(const RATaxAdvantage&) const = default;
};

/// The client's rows as this program last read or wrote them. A save compares them to detect another program's change.
struct ClientInFile {
    std::string Name;
    double BirthDate = base::blankDate;
    std::uint64_t contents = 0; ///< checksum of all that the file holds of the client
    store::FileState file;      ///< if the file is still in this state, nothing in it has changed

    bool operator==(const ClientInFile&) const = default;
};

/// Costs of a draw-down annuity after a reset; the screen replaces them by its own settings.
struct DrawDownCosts {
    double BrokerCom = 0;
    double SetupCosts = 500; ///< rand
    double AnnPortFee = 0.5;
    double AnnualDiv = 1;
    double TrailComm = 1;
    double MaxIncAllowed = 17.5; ///< percent of the portfolio a year
    double MinIncAllowed = 0;

    bool operator==(const DrawDownCosts&) const = default;
};

/// A travel claim for one vehicle in one tax year. Kept until the next client, never stored.
struct CarAll {
    static constexpr double firstDay = 46082; ///< 1 March 2026
    static constexpr double lastDay = 46446;  ///< 28 February 2027

    std::string description;
    std::string employee; ///< as printed
    double vehicleValue = 0;
    double allowance = 0;           ///< received in the year
    double closeKm = 0, openKm = 0; ///< readings
    double businessKm = 0;          ///< from the log book
    std::int16_t expensesKept = 0;  ///< 1: the claim is by the actual costs below, else by deemed costs
    double fuel = 0, repairs = 0, insurance = 0, otherCosts = 0, wearAndTear = 0, leasePayments = 0;
    double startDate = firstDay, endDate = lastDay;
    std::int16_t includeFuel = 1, includeMaintenance = 1; ///< 1: the employee pays for it

    bool operator==(const CarAll&) const = default;
};

/// Percentages and rand amounts that quotations start from, read from the one row of `MutualFunds` at start-up.
struct FundDefaults {
    double ESPremCom = 0, EAPremCom = 0, EMPremCom = 0, EAComPortVal = 0, EComEscPr = 0, EIAF = 0, EAMFee = 0,
           EADivBo = 0, ETaxRate = 0;
    double RSPremCom = 0, RAPremCom = 0, RMPremCom = 0, RAComPortVal = 0, RComEscPr = 0, RIAF = 0, RAMFee = 0,
           RAADivBo = 0;
    double LumpSumPort = 0, AllocationPer = 0, AnnuityPer = 0;
    double UTCOM = 0, UTDiv = 0, UTAMFee = 0, UTAComPortVal = 0;

    bool operator==(const FundDefaults&) const = default;
};

/// Rates that the practice confirmed but that could not be stored: they hold until the program ends, for all clients.
struct UnstoredRates {
    bool hold = false;
    FundDefaults funds;
    double GRINC = 0;

    bool operator==(const UnstoredRates&) const = default;
};

/// The one working record of the current client. One exists in the process; it is handed down by reference.
struct Assessment {
    Client client;
    PersonalDetails details;
    DailyBalance dailyBalance;
    DebtConsolidation debts;
    KwikQuotes quotes;
    PremiumQuote premiumQuote;
    CapitalPremiums premiums;
    Loans loans;
    NADeath death;
    NAEducation education;
    NARetirement retirement;
    NADisability disability;
    NominalEffective nominalEffective;
    Inflation inflation;
    KwikTax tax;
    InvestComparison comparison;
    DrawDown drawDown;
    DrawDownPhases drawDownPhases;
    DrawDownCosts drawDownCosts;
    OffShore offShore;
    RRROld rrrOld;
    RRRNew rrrNew;
    Bond bond;
    LifeOfCapital lifeOfCapital;
    IncomeShares incomeShares;
    EstateDuty estateDuty;
    RATaxAdvantage raTaxAdvantage;
    CarAll car;
    Itemised itemised;
    std::vector<Policy> policies = std::vector<Policy>(1); ///< `MaxNum` of them; a screen shows at least one
    std::int16_t CurPolicy = 1;                            ///< the policy shown, from 1
    double PolicyMonthlyIncome = 0; ///< pensions of all policies, rand a month; computed with them, never stored
    CapitalGains capitalGains;
    LumpSums lumpSums;
    FileTexts fileTexts;
    FundDefaults funds;
    UnstoredRates unstoredRates; ///< kept when another client comes

    double DCLNO = 0; ///< client key, 0 while the client has none
    std::int16_t ClientOnFile = 0;
    ClientInFile inFile; ///< valid while `ClientOnFile` is 1
    std::int16_t ClientChanged = 0;
    std::int16_t SaveThenNew = 0; ///< 1 if the current save is to be followed by a blank client
    Changed changed;
    double GRINC = 0;
    double CPI = 0;
    std::string FinChargeState = "UP"; ///< "DOWN" while the loan screen shows its financial charges

    std::int16_t MaxNum() const { return static_cast<std::int16_t>(policies.size()); }

    bool operator==(const Assessment&) const = default;
};

/// Trim(title) + " " + Trim(initials) + " " + Trim(surname). The result is not trimmed: a surname alone keeps two
/// blanks before it, as the list of clients has always shown it.
std::string displayName(const PersonalDetails& client);

/// Sets `ClientChanged` to 1 if any screen's changed flag is 1; never resets it.
void CheckChanges(Assessment& record);

} // namespace assessment
