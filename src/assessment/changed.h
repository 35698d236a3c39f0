#pragma once

#include <cstdint>

namespace assessment {

/// A flag for each screen: 1 once the user has changed anything on it since the client was loaded or saved.
struct Changed {
    std::int16_t KwikQuotesChanged = 0;
    std::int16_t DayBalChanged = 0;
    std::int16_t NomEffecChanged = 0;
    std::int16_t NADeathChanged = 0;
    std::int16_t NARAChanged = 0;
    std::int16_t NAEdChanged = 0;
    std::int16_t InflationChanged = 0;
    std::int16_t SpareChanged = 0; ///< tested and cleared with the others; no screen sets it
    std::int16_t LoansChanged = 0;
    std::int16_t KwikTaxChanged = 0;
    std::int16_t InvestCompChanged = 0;
    std::int16_t DDLivAnnChanged = 0; ///< not cleared by a save: an edited annuity counts as unsaved ever after
    std::int16_t OffShoreChanged = 0;
    std::int16_t RRRChanged = 0;
    std::int16_t BondBusterChanged = 0;
    std::int16_t BondAnaChanged = 0;
    std::int16_t NADisabilityChanged = 0;
    std::int16_t LifeOfCapChanged = 0;
    std::int16_t PersDetChanged = 0;
    std::int16_t IncomeSharesChanged = 0;
    std::int16_t PolInvestChanged = 0;
    std::int16_t EstateDutyChanged = 0;
    std::int16_t RATaxAdvChanged = 0;
    std::int16_t CGTChanged = 0;
    std::int16_t LumpSumChanged = 0;

    /// True if any flag is 1.
    bool any() const;
    /// Clears all flags except `DDLivAnnChanged`.
    void clearAfterSave();

    bool operator==(const Changed&) const = default;
};

} // namespace assessment
