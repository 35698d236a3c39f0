#include "assessment/changed.h"

#include <algorithm>
#include <array>

namespace assessment {

namespace {
using Flag = std::int16_t Changed::*;
constexpr std::array<Flag, 25> flags = {
    &Changed::KwikQuotesChanged, &Changed::DayBalChanged,       &Changed::NomEffecChanged,
    &Changed::NADeathChanged,    &Changed::NARAChanged,         &Changed::NAEdChanged,
    &Changed::InflationChanged,  &Changed::SpareChanged,        &Changed::LoansChanged,
    &Changed::KwikTaxChanged,    &Changed::InvestCompChanged,   &Changed::DDLivAnnChanged,
    &Changed::OffShoreChanged,   &Changed::RRRChanged,          &Changed::BondBusterChanged,
    &Changed::BondAnaChanged,    &Changed::NADisabilityChanged, &Changed::LifeOfCapChanged,
    &Changed::PersDetChanged,    &Changed::IncomeSharesChanged, &Changed::PolInvestChanged,
    &Changed::EstateDutyChanged, &Changed::RATaxAdvChanged,     &Changed::CGTChanged,
    &Changed::LumpSumChanged,
};
} // namespace

bool Changed::any() const {
    return std::any_of(flags.begin(), flags.end(), [this](Flag flag) { return this->*flag == 1; });
}

void Changed::clearAfterSave() {
    for (const Flag flag : flags)
        if (flag != &Changed::DDLivAnnChanged) this->*flag = 0;
}

} // namespace assessment
