#include <algorithm>
#include <iterator>

#include "assessment/tables.h"

namespace assessment {

namespace {

using A = Assessment;
using Fields = std::vector<Field<A>>;

Fields calculatorFields() {
    return {
        {"DCLNO", zero(Double), Rule::key},
        {"Name", Text(80), in<&A::client, &Client::Name>},
        {"BirthDate", Date, in<&A::client, &Client::BirthDate>, Rule::birthDate},
        {"CapAmount", Double, in<&A::dailyBalance, &DailyBalance::CapAmount>},
        {"StartDateDB", Date, in<&A::dailyBalance, &DailyBalance::StartDateDB>, Rule::emptyDate},
        {"EndDateDB", Date, in<&A::dailyBalance, &DailyBalance::EndDateDB>, Rule::emptyDate},
        {"IntRate", Double, in<&A::dailyBalance, &DailyBalance::IntRate>},
        {"Loan1Amt", Double, in<&A::debts, &DebtConsolidation::Loan1Amt>},
        {"Loan2Amt", Double, in<&A::debts, &DebtConsolidation::Loan2Amt>},
        {"Loan3Amt", Double, in<&A::debts, &DebtConsolidation::Loan3Amt>},
        {"Loan4Amt", Double, in<&A::debts, &DebtConsolidation::Loan4Amt>},
        {"Loan5Amt", Double, in<&A::debts, &DebtConsolidation::Loan5Amt>},
        {"Loan1Int", Double, in<&A::debts, &DebtConsolidation::Loan1Int>},
        {"Loan2Int", Double, in<&A::debts, &DebtConsolidation::Loan2Int>},
        {"Loan3Int", Double, in<&A::debts, &DebtConsolidation::Loan3Int>},
        {"Loan4Int", Double, in<&A::debts, &DebtConsolidation::Loan4Int>},
        {"Loan5Int", Double, in<&A::debts, &DebtConsolidation::Loan5Int>},
        {"ConInt", Double, in<&A::debts, &DebtConsolidation::ConInt>},
        {"ConPeriod", Double, in<&A::debts, &DebtConsolidation::ConPeriod>},
        {"TYPEINVEST", Text(50), in<&A::quotes, &KwikQuotes::TYPEINVEST>},
        {"LUMPSUM", Double, in<&A::quotes, &KwikQuotes::LUMPSUM>},
        {"ANNUALPAYMENT", Double, in<&A::quotes, &KwikQuotes::ANNUALPAYMENT>},
        {"REGULARPAYMENT", Double, in<&A::quotes, &KwikQuotes::regularpayment>},
        {"TERM", Double, in<&A::quotes, &KwikQuotes::term>},
        {"GROWTHRATE", Double, in<&A::quotes, &KwikQuotes::GrowthRate>},
        {"PAYMENTESCALATION", Double, in<&A::quotes, &KwikQuotes::PaymentEscalation>},
        {"Heading", Text(50), in<&A::loans, &Loans::Heading>},
        {"Num1", Double, in<&A::loans, &Loans::Num1>},
        {"Num2", Double, in<&A::loans, &Loans::Num2>},
        {"Num3", Double, in<&A::loans, &Loans::Num3>},
        {"Num4", Double, in<&A::loans, &Loans::Num4>},
        {"Income", Double, in<&A::death, &NADeath::Income>},
        {"Inflation", Double, in<&A::death, &NADeath::Inflation>},
        {"PeriodDeath", Double, in<&A::death, &NADeath::PeriodDeath>},
        {"InvestRate", Double, in<&A::death, &NADeath::InvestRate>},
        {"AnsAss1", Double, in<&A::death, &NADeath::ANSAss1>},
        {"AnsAss2", Double, in<&A::death, &NADeath::ANSAss2>},
        {"AnsAss3", Double},
        {"AnsAss4", Double, in<&A::death, &NADeath::ANSAss4>},
        {"AnsAss5", Double, in<&A::death, &NADeath::ANSAss5>},
        {"AnsAss6", Double, in<&A::death, &NADeath::ANSAss6>},
        {"AnsLib1", Double, in<&A::death, &NADeath::ANSLib1>},
        {"AnsLib2", Double, in<&A::death, &NADeath::ANSLib2>},
        {"AnsLib3", Double, in<&A::death, &NADeath::ANSLib3>},
        {"AnsLib4", Double, in<&A::death, &NADeath::ANSLib4>},
        {"FundsPD", Double, in<&A::education, &NAEducation::FundsPD>},
        {"InflationEdu", Double, in<&A::education, &NAEducation::InflationEDU>},
        {"YearsToEdu", Double, in<&A::education, &NAEducation::YearsToEdu>},
        {"FundsForYears", Double, in<&A::education, &NAEducation::FundsForYears>},
        {"BankRate", Double, in<&A::education, &NAEducation::BankRate>},
        {"IncomePD", Double, in<&A::retirement, &NARetirement::IncomePD>},
        {"IncomeRA", Double, in<&A::retirement, &NARetirement::IncomeRA>},
        {"InflationRA", Double, in<&A::retirement, &NARetirement::InflationRA>},
        {"YearsToRet", Double, in<&A::retirement, &NARetirement::YearsToRet>},
        {"CoverYears", Double, in<&A::retirement, &NARetirement::CoverYears>},
        {"BankInvestRate", Double, in<&A::retirement, &NARetirement::BankInvestRate>},
        {"AnsLAss1", Double, in<&A::retirement, &NARetirement::ANSLAss1>},
        {"AnsLAss2", Double, in<&A::retirement, &NARetirement::ANSLAss2>},
        {"AnsLAss3", Double, in<&A::retirement, &NARetirement::ANSLAss3>},
        {"AnsLAss4", Double, in<&A::retirement, &NARetirement::ANSLAss4>},
        {"AnsLAss5", Double, in<&A::retirement, &NARetirement::ANSLAss5>},
        {"AnsLLib1", Double, in<&A::retirement, &NARetirement::ANSLLib1>},
        {"AnsLLib2", Double, in<&A::retirement, &NARetirement::ANSLLib2>},
        {"AnsLLib3", Double, in<&A::retirement, &NARetirement::ANSLLib3>},
        {"AnsLLib4", Double, in<&A::retirement, &NARetirement::ANSLLib4>},
        {"AnsLLib5", Double, in<&A::retirement, &NARetirement::ANSLLib5>},
        {"AMOUNT", Double, in<&A::nominalEffective, &NominalEffective::amount>},
        {"PERIODNomEff", Double, in<&A::nominalEffective, &NominalEffective::PeriodNomEff>},
        {"NOMRATE", Double, in<&A::nominalEffective, &NominalEffective::NomRate>},
        {"INTCOMP", Double, in<&A::nominalEffective, &NominalEffective::IntComp>},
        {"PresCostInflation", Double, in<&A::inflation, &Inflation::PresCostInflation>},
        {"PeriodInflation", Double, in<&A::inflation, &Inflation::PeriodInflation>},
        {"IntRateInflation", Double, in<&A::inflation, &Inflation::IntRateInflation>},
        {"Salary", Double, in<&A::tax, &KwikTax::Salary>},
        {"Age", Double, in<&A::tax, &KwikTax::Age>},
        {"YR9798", Double, in<&A::tax, &KwikTax::YR9798>},
        {"CTaxFreeI", Double, in<&A::comparison, &InvestComparison::CTaxFreeI>},
        {"CTaxInc", Double, in<&A::comparison, &InvestComparison::CTaxInc>},
        {"AnnAmount", Double, in<&A::comparison, &InvestComparison::AnnAmount>},
        {"AnnDet", Text(80), in<&A::comparison, &InvestComparison::AnnDet>},
        {"MonTFAnn", Double, in<&A::comparison, &InvestComparison::MonTFAnn>},
        {"MonTAnn", Double, in<&A::comparison, &InvestComparison::MonTAnn>},
        {"FDAmount", Double, in<&A::comparison, &InvestComparison::FDAmount>},
        {"FXInt", Double, in<&A::comparison, &InvestComparison::FXInt>},
        {"FXDet", Text(80), in<&A::comparison, &InvestComparison::FXDet>},
        {"LsAmt", Double, in<&A::drawDown, &DrawDown::LSAmt>},
        {"GRLA", Double, in<&A::drawDown, &DrawDown::GRLA>},
        {"MidP", Double, in<&A::drawDown, &DrawDown::Midp>},
        {"Esc", Double, in<&A::drawDown, &DrawDown::Esc>},
        {"InvAmount", Double, in<&A::offShore, &OffShore::InvAmount>},
        {"OSPeriod", Integer, in<&A::offShore, &OffShore::OSPeriod>},
        {"OFInvRate", Double, in<&A::offShore, &OffShore::OFInvRate>},
        {"LInvRate", Double, in<&A::offShore, &OffShore::LInvRate>},
        {"OFTaxRate", Integer, in<&A::offShore, &OffShore::OFTaxRate>},
        {"LTaxRate", Integer, in<&A::offShore, &OffShore::LTaxRate>},
        {"LCurrChange", Integer, in<&A::offShore, &OffShore::LCurrChange>},
        {"SingPremLump", Double, in<&A::rrrOld, &RRROld::SingPremLump>},
        {"MonPrem", Double, in<&A::rrrOld, &RRROld::MonPrem>},
        {"Period", Double, in<&A::rrrOld, &RRROld::Period>},
        {"AnnEsc", Double, in<&A::rrrOld, &RRROld::AnnEsc>},
        {"MatVal", Double, in<&A::rrrOld, &RRROld::MatVal>},
        {"TotPremPaid", Double},
        {"RRR", Double, in<&A::rrrOld, &RRROld::RRR>, Rule::writtenOnly},
        {"RRRNEWIntLumpInv", Double, in<&A::rrrNew, &RRRNew::RRRNEWIntLumpInv>},
        {"RRRNEWPeriod", Double, in<&A::rrrNew, &RRRNew::RRRNEWPeriod>},
        {"RRRNEWMaturityVal", Double, in<&A::rrrNew, &RRRNew::RRRNEWMaturityVal>},
        {"RegMpay1", Double, in<&A::rrrNew, &RRRNew::RegMpay1>},
        {"RegMpay2", Double, in<&A::rrrNew, &RRRNew::RegMpay2>},
        {"RegMpay3", Double, in<&A::rrrNew, &RRRNew::RegMpay3>},
        {"RegMpay4", Double, in<&A::rrrNew, &RRRNew::RegMpay4>},
        {"PayEsc1", Double, in<&A::rrrNew, &RRRNew::PayEsc1>},
        {"PayEsc2", Double, in<&A::rrrNew, &RRRNew::PayEsc2>},
        {"PayEsc3", Double, in<&A::rrrNew, &RRRNew::PayEsc3>},
        {"PayEsc4", Double, in<&A::rrrNew, &RRRNew::PayEsc4>},
        {"RegMinc1", Double, in<&A::rrrNew, &RRRNew::RegMinc1>},
        {"RegMinc2", Double, in<&A::rrrNew, &RRRNew::RegMinc2>},
        {"RegMinc3", Double, in<&A::rrrNew, &RRRNew::RegMinc3>},
        {"RegMinc4", Double, in<&A::rrrNew, &RRRNew::RegMinc4>},
        {"IncEsc1", Double, in<&A::rrrNew, &RRRNew::IncEsc1>},
        {"IncEsc2", Double, in<&A::rrrNew, &RRRNew::IncEsc2>},
        {"IncEsc3", Double, in<&A::rrrNew, &RRRNew::IncEsc3>},
        {"IncEsc4", Double, in<&A::rrrNew, &RRRNew::IncEsc4>},
        {"RegMpayDet1", Text(50), in<&A::rrrNew, &RRRNew::RegMpayDet1>},
        {"RegMpayDet2", Text(50), in<&A::rrrNew, &RRRNew::RegMpayDet2>},
        {"RegMpayDet3", Text(50), in<&A::rrrNew, &RRRNew::RegMpayDet3>},
        {"RegMpayDet4", Text(50), in<&A::rrrNew, &RRRNew::RegMpayDet4>},
        {"RegMincDet1", Text(50), in<&A::rrrNew, &RRRNew::RegMincDet1>},
        {"RegMincDet2", Text(50), in<&A::rrrNew, &RRRNew::RegMincDet2>},
        {"RegMincDet3", Text(50), in<&A::rrrNew, &RRRNew::RegMincDet3>},
        {"RegMincDet4", Text(50), in<&A::rrrNew, &RRRNew::RegMincDet4>},
        {"BMBP2", Double, in<&A::bond, &Bond::BMBP2>},
        {"OMBP3", Integer, in<&A::bond, &Bond::OMBP3>},
        {"BMBP4", Single, in<&A::bond, &Bond::BMBP4>},
        {"VOLUN", Double, in<&A::bond, &Bond::VOLUN>},
        {"BCMBP2", Double, in<&A::bond, &Bond::BCMBP2>},
        {"BCMBP4", Single, in<&A::bond, &Bond::BCMBP4>},
    };
}

Fields retirementFields() {
    return {
        {"AgeRetiment", zero(Double), in<&A::retirement, &NARetirement::AgeRetiment>},
        {"CurrAge", zero(Double), in<&A::retirement, &NARetirement::CurrAge>},
        {"IDNumber", Text(40), in<&A::client, &Client::IDNumber>},
        {"RANotes", Memo(2000), in<&A::retirement, &NARetirement::RANotes>},
        {"NaraLastReview", Date, in<&A::retirement, &NARetirement::NaraLastReview>, Rule::emptyDate},
        {"NaraNextReview", Date, in<&A::retirement, &NARetirement::NaraNextReview>, Rule::emptyDate},
        {"DeathMIAvail", zero(Double), in<&A::death, &NADeath::DeathMIAvail>},
        {"DeathNotes", Memo(2000), in<&A::death, &NADeath::DeathNotes>},
        {"lib5", zero(Double), in<&A::death, &NADeath::lib5>},
    };
}

Fields disabilityFields() {
    return {
        {"DTHLastReview", Date, in<&A::death, &NADeath::DTHLastReview>, Rule::emptyDate},
        {"DTHNextReview", Date, in<&A::death, &NADeath::DTHNextReview>, Rule::emptyDate},
        {"MDisaDTS5", zero(Double), in<&A::disability, &NADisability::MDisaDTS5>},
        {"MDisaDTS6", zero(Double), in<&A::disability, &NADisability::MDisaDTS6>},
        {"DISAMIAvail", zero(Double), in<&A::disability, &NADisability::DisaMIAvail>},
        {"MDisaDTS7", zero(Double), in<&A::disability, &NADisability::MDisaDTS7>},
        {"MDisaDTS15", zero(Double), in<&A::disability, &NADisability::MDisaDTS15>},
        {"DISANotes", Memo(2000), in<&A::disability, &NADisability::DisaNotes>},
        {"DisaASS1", zero(Double), in<&A::disability, &NADisability::DisaASS1>},
        {"DisaASS2", zero(Double), in<&A::disability, &NADisability::DisaASS2>},
        {"DisaASS3", zero(Double)},
        {"DisaASS4", zero(Double), in<&A::disability, &NADisability::DisaASS4>},
        {"DisaASS5", zero(Double), in<&A::disability, &NADisability::DisaASS5>},
        {"DisaASS6", zero(Double), in<&A::disability, &NADisability::DisaASS6>},
        {"Disalib1", zero(Double), in<&A::disability, &NADisability::Disalib1>},
        {"Disalib2", zero(Double), in<&A::disability, &NADisability::Disalib2>},
        {"Disalib3", zero(Double), in<&A::disability, &NADisability::Disalib3>},
        {"Disalib4", zero(Double), in<&A::disability, &NADisability::Disalib4>},
        {"DISAlib5", zero(Double), in<&A::disability, &NADisability::Disalib5>},
    };
}

Fields laterFields() {
    return {
        {"DISALastReview", Date, in<&A::disability, &NADisability::DISALastReview>, Rule::emptyDate},
        {"DISANextReview", Date, in<&A::disability, &NADisability::DISANextReview>, Rule::emptyDate},
        {"CAPI", Double, in<&A::lifeOfCapital, &LifeOfCapital::CAPI>},
        {"MINC", Double, in<&A::lifeOfCapital, &LifeOfCapital::MINC>},
        {"GRTE", Double, in<&A::lifeOfCapital, &LifeOfCapital::GRTE>},
        {"TXRTE", Double, in<&A::lifeOfCapital, &LifeOfCapital::TXRTE>},
        {"EXCLife", Double, in<&A::lifeOfCapital, &LifeOfCapital::EXCLife>},
        {"EducLastReview", Date, in<&A::education, &NAEducation::EducLastReview>, Rule::emptyDate},
        {"EducNextReview", Date, in<&A::education, &NAEducation::EducNextReview>, Rule::emptyDate},
        {"InvestAmount", Double, in<&A::incomeShares, &IncomeShares::InvestAmount>},
        {"ISGrowthRate", Double, in<&A::incomeShares, &IncomeShares::ISGrowthRate>},
        {"InitPercRequire", Double, in<&A::incomeShares, &IncomeShares::InitPercRequire>},
        {"AnnIncEsca", Double, in<&A::incomeShares, &IncomeShares::AnnIncEsca>},
        {"EffTaxRate", Double, in<&A::incomeShares, &IncomeShares::EffTaxRate>},
        {"AnnMonIncShare", Text(20), in<&A::incomeShares, &IncomeShares::AnnMonIncShare>},
        {"PropEstate", zero(Double), in<&A::estateDuty, &EstateDuty::PropEstate>},
        {"PolInvEstate", zero(Double), in<&A::estateDuty, &EstateDuty::PolInvEstate>},
        {"OtherEstate", zero(Double), in<&A::estateDuty, &EstateDuty::OtherEstate>},
        {"LessAccEstate", zero(Double), in<&A::estateDuty, &EstateDuty::LessAccEstate>},
        {"PropExecutor", zero(Double), in<&A::estateDuty, &EstateDuty::PropExecutor>},
        {"PolInvExecutor", zero(Double), in<&A::estateDuty, &EstateDuty::PolInvExecutor>},
        {"OtherExecutor", zero(Double), in<&A::estateDuty, &EstateDuty::OtherExecutor>},
        {"LessAccExecutor", zero(Double), in<&A::estateDuty, &EstateDuty::LessAccExecutor>},
        {"RARemuneration", zero(Double), in<&A::raTaxAdvantage, &RATaxAdvantage::RARemuneration>},
        {"RATaxableInc", zero(Double), in<&A::raTaxAdvantage, &RATaxAdvantage::RATaxableInc>},
        {"ProposedRF", zero(Double), in<&A::raTaxAdvantage, &RATaxAdvantage::ProposedRF>},
        {"RATaxPayerAge", zero(Integer), in<&A::raTaxAdvantage, &RATaxAdvantage::RATaxPayerAge>},
        {"RASurname", Text(200), in<&A::raTaxAdvantage, &RATaxAdvantage::RASurname>},
        {"TaxCGT", zero(Double), in<&A::raTaxAdvantage, &RATaxAdvantage::TaxCGT>},
    };
}

/// The flags of one analysis's itemised lines.
Fields flagFields(Analysis analysis) {
    Fields fields;
    for (const ItemTable& line : itemTables()) {
        if (line.analysis != analysis) continue;
        if (line.isKept)
            fields.emplace_back(line.flagField, zero(Double), line.flag);
        else
            fields.emplace_back(line.flagField, zero(Double));
    }
    return fields;
}

Fields allFields() {
    Fields fields;
    for (const Fields& part :
         {calculatorFields(), flagFields(Analysis::retirement), retirementFields(), flagFields(Analysis::death),
          disabilityFields(), flagFields(Analysis::disability), laterFields()})
        fields.insert(fields.end(), part.begin(), part.end());
    return fields;
}

} // namespace

const FieldTable<A>& dataTable() {
    static const FieldTable<A> table("Data", allFields(), {{"Name", "Name"}, {"DCLNOIndex", "DCLNO"}});
    return table;
}

} // namespace assessment
