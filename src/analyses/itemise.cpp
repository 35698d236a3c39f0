#include "analyses/itemise.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "analyses/amounts.h"
#include "analyses/itemflows.h"
#include "base/finite.h"

namespace analyses {

namespace {

using assessment::Analysis;
using assessment::Assessment;
using assessment::ItemLayout;
using assessment::ItemRow;
using assessment::ItemTable;

constexpr double longestPeriod = 50; // years: the longest that an analysis runs

constexpr ItemColumn description{"Description", nullptr, 60, "A maximum of only 60 characters can be accepted !"};
constexpr ItemColumn amount{"Amount", amountMask, 99999999, "Only a value between 0 and 99 999 999 can be entered!",
                            &ItemRow::Amount};
constexpr ItemColumn escalation{"Escl.", "##.##", 30, "Only a value between 0% and 30% can be entered!",
                                &ItemRow::Escalation};

constexpr ItemColumn time(const char* head, double ItemRow::*figure) {
    return {head, "###", 999, "Only a value between 0 and 999 can be entered!", figure};
}

using Columns = std::vector<ItemColumn>;
const Columns capitalColumns{description, amount};
const Columns incomeByAge{description, amount, escalation, time("From Age", &ItemRow::FromAge),
                          time("To Age", &ItemRow::ToAge)};
const Columns incomeByYear{description, amount, escalation, time("From Year", &ItemRow::FromAge),
                           time("To Year", &ItemRow::ToAge)};
const Columns timedByAge{description, amount, time("At Age", &ItemRow::At)};
const Columns timedByYear{description, amount, time("At Year", &ItemRow::At)};

ItemKind kindOf(ItemLayout layout) {
    if (layout == ItemLayout::income) return ItemKind::income;
    return layout == ItemLayout::plain ? ItemKind::capital : ItemKind::timed;
}

ItemLine line(int index, const char* title, const char* flag, double& (*place)(Assessment&) = nullptr,
              void (*derive)(Assessment&) = nullptr) {
    const auto& tables = assessment::itemTables();
    const auto table =
        std::find_if(tables.begin(), tables.end(), [flag](const ItemTable& each) { return each.flagField == flag; });
    assert(table != tables.end() && table->list != nullptr);
    return {index, title, kindOf(table->layout), &*table, place, derive};
}

template <auto Group, auto Amount>
double& in(Assessment& record) {
    return record.*Group.*Amount;
}

/// Sets the income and the period that a list asks for. A list that sums to 0 or less changes nothing: the user's own
/// figures count.
void deriveRequired(const assessment::ItemList& list, double first, double& monthly, double& years) {
    const auto asked = incomeAsked(list.rows, first);
    if (!asked) return;
    base::keepFinite(monthly, asked->monthly);
    years = asked->years;
}

/// Sets the income that the sources of a list pay in year 1. A list that sums to 0 or less changes nothing.
void deriveAvailable(const assessment::ItemList& list, double& monthly) {
    if (!(sumOfItems(list.rows) > 0)) return;
    double sum = 0;
    for (const ItemRow& row : list.rows)
        if (isInForce(row, 1)) sum += row.Amount;
    base::keepFinite(monthly, sum);
}

void deriveRetirementIncome(Assessment& record) {
    assessment::NARetirement& needs = record.retirement;
    deriveRequired(record.itemised.RNAMonIncReq, needs.AgeRetiment, needs.IncomePD, needs.CoverYears);
}

// Death and disability may happen today: their lists count years, starting with 1.
void deriveDeathIncome(Assessment& record) {
    deriveRequired(record.itemised.DTHMonIncReq, 1, record.death.Income, record.death.PeriodDeath);
}

void deriveDeathSources(Assessment& record) {
    deriveAvailable(record.itemised.DTHFutMonInc, record.death.DeathMIAvail);
}

void deriveDisabilityIncome(Assessment& record) {
    assessment::NADisability& needs = record.disability;
    deriveRequired(record.itemised.DISAMonIncReq, 1, needs.MDisaDTS5, needs.MDisaDTS15);
}

void deriveDisabilitySources(Assessment& record) {
    deriveAvailable(record.itemised.DISAFutMonInc, record.disability.DisaMIAvail);
}

std::vector<ItemLine> retirementLines() {
    using R = assessment::NARetirement;
    constexpr auto group = &Assessment::retirement;
    return {
        line(11, "Monthly Income Required", "RNAMonIncReqItemise", nullptr, deriveRetirementIncome),
        line(0, "Source of monthly income available", "RNAFutMonIncItemise"),
        line(1, "Real Estate", "RNARealEstItemise", in<group, &R::ANSLAss1>),
        line(2, "Stocks & cash etc.", "RNAStocksItemise", in<group, &R::ANSLAss2>),
        line(3, "Business Sale", "RNABussSaleItemise", in<group, &R::ANSLAss3>),
        line(5, "Other Capital", "RNAOtherCapItemise", in<group, &R::ANSLAss5>), // 4 is the policies'
        line(6, "Mortgages", "RNAMortgageItemise", in<group, &R::ANSLLib1>),
        line(7, "Retirement Properties", "RNARetPropItemise", in<group, &R::ANSLLib2>),
        line(8, "New Car/RV", "RNANewCarItemise", in<group, &R::ANSLLib3>),
        line(9, "Travel Plans", "RNATravelItemise", in<group, &R::ANSLLib4>),
        line(10, "Other Expenses", "RNAOtherExpItemise", in<group, &R::ANSLLib5>),
    };
}

// The investment lists of death and disability have no line, since nothing reads them.
std::vector<ItemLine> deathLines() {
    using D = assessment::NADeath;
    constexpr auto group = &Assessment::death;
    return {
        line(0, "Monthly Income Required", "DTHMonIncReqItemise", nullptr, deriveDeathIncome),
        line(1, "Source of monthly income available(future value)", "DTHFutMonIncItemise", nullptr, deriveDeathSources),
        line(2, "Real Estate", "DTHRealEstItemise", in<group, &D::ANSAss1>),
        line(3, "Stocks & cash", "DTHStocksItemise", in<group, &D::ANSAss2>),
        line(4, "Cars etc.", "DTHCarsItemise", in<group, &D::ANSAss4>),
        line(5, "Other Capital", "DTHOtherCapItemise", in<group, &D::ANSAss6>), // ANSAss5 is the policies'
        line(6, "Mortgage", "DTHMortgageItemise", in<group, &D::ANSLib1>),
        line(7, "Other loans", "DTHOtherLoansItemise", in<group, &D::ANSLib2>),
        line(8, "Credit cards", "DTHCreditCardItemise", in<group, &D::ANSLib3>),
        line(9, "Estate duty/fees etc.", "DTHEstateDutyItemise", in<group, &D::ANSLib4>),
        line(10, "Other Expenses", "DTHOtherExpItemise", in<group, &D::lib5>),
    };
}

std::vector<ItemLine> disabilityLines() {
    using D = assessment::NADisability;
    constexpr auto group = &Assessment::disability;
    return {
        line(0, "Monthly Income Required", "DISAMonIncReqItemise", nullptr, deriveDisabilityIncome),
        line(1, "Source of monthly income available", "DISAFutMonIncItemise", nullptr, deriveDisabilitySources),
        line(2, "Real Estate", "DISARealEstItemise", in<group, &D::DisaASS1>),
        line(3, "Stocks & cash", "DISAStocksItemise", in<group, &D::DisaASS2>),
        line(4, "Cars etc.", "DISACarsItemise", in<group, &D::DisaASS4>),
        line(5, "Other Capital", "DISAOtherCapItemise", in<group, &D::DisaASS6>),
        line(6, "Mortgage", "DISAMortgageItemise", in<group, &D::Disalib1>),
        line(7, "Other loans", "DISAOtherLoansItemise", in<group, &D::Disalib2>),
        line(8, "Credit cards", "DISACreditCardItemise", in<group, &D::Disalib3>),
        line(9, "Conversion costs etc.", "DISAEstateDutyItemise", in<group, &D::Disalib4>),
        line(10, "Other Expenses", "DISAOtherExpItemise", in<group, &D::Disalib5>),
    };
}

} // namespace

const std::vector<ItemColumn>& ItemLine::columns() const {
    const bool byAge = table->analysis == Analysis::retirement; // the others start today and count years
    if (kind == ItemKind::capital) return capitalColumns;
    if (kind == ItemKind::income) return byAge ? incomeByAge : incomeByYear;
    return byAge ? timedByAge : timedByYear;
}

const std::vector<ItemLine>& itemLines(Analysis analysis) {
    static const std::vector<ItemLine> retirement = retirementLines();
    static const std::vector<ItemLine> death = deathLines();
    static const std::vector<ItemLine> disability = disabilityLines();
    switch (analysis) {
    case Analysis::retirement: return retirement;
    case Analysis::death: return death;
    case Analysis::disability: break;
    }
    return disability;
}

double sumOfItems(const std::vector<ItemRow>& rows) {
    double sum = 0;
    for (const ItemRow& row : rows)
        sum += row.Amount;
    return sum;
}

void takeItems(Assessment& record, const ItemLine& line, std::vector<ItemRow> rows) {
    if (rows.empty()) rows.emplace_back();
    const double sum = sumOfItems(rows);
    assessment::ItemList& list = line.list(record);
    list.rows = std::move(rows);
    list.flag = sum > 0 ? 1 : 0;
    if (line.amount != nullptr) base::keepFinite(line.amount(record), sum);
    if (line.derive != nullptr) line.derive(record);
}

std::optional<IncomeAsked> incomeAsked(const std::vector<ItemRow>& rows, double first) {
    if (!(sumOfItems(rows) > 0)) return {}; // not in use: the figures typed by the user count
    double atFirst = 0, later = 0, begins = 0, ends = 0;
    bool startsAtFirst = false, spans = false, lasts = false;
    for (const ItemRow& row : rows) {
        if (row.FromAge == first) {
            startsAtFirst = true;
            atFirst += row.Amount;
        }
        if (row.FromAge > first) later += row.Amount;
        if (row.Amount == 0) continue; // a row without an amount does not extend the period
        begins = spans ? std::min(begins, row.FromAge) : row.FromAge;
        ends = spans ? std::max(ends, row.ToAge) : row.ToAge;
        lasts = lasts || row.ToAge >= row.FromAge;
        spans = true;
    }
    return IncomeAsked{startsAtFirst ? atFirst : later, lasts ? std::clamp(ends - begins, 0.0, longestPeriod) : 0};
}

void deriveItemised(Assessment& record, Analysis analysis) {
    for (const ItemLine& line : itemLines(analysis))
        if (line.derive != nullptr && line.list(record).flag != 0) line.derive(record);
}

} // namespace analyses
