#pragma once

#include "quotes/projection.h"

namespace quotestest {

/// Rates of which no two are equal, so that none can stand in for another.
inline quotes::FundDefaults rates() {
    quotes::FundDefaults funds;
    funds.ESPremCom = 2, funds.EAPremCom = 3, funds.EMPremCom = 91, funds.EComEscPr = 92, funds.EIAF = 100;
    funds.EAComPortVal = 0.6, funds.EAMFee = 1, funds.EADivBo = 0.5, funds.ETaxRate = 30;
    funds.RSPremCom = 2.5, funds.RAPremCom = 3.5, funds.RMPremCom = 93, funds.RComEscPr = 94, funds.RIAF = 120;
    funds.RAComPortVal = 0.9, funds.RAMFee = 1.25, funds.RAADivBo = 0.75;
    funds.LumpSumPort = 25, funds.AllocationPer = 98, funds.AnnuityPer = 8;
    funds.UTCOM = 4, funds.UTDiv = 2, funds.UTAMFee = 1.5, funds.UTAComPortVal = 0.7;
    return funds;
}

inline quotes::KwikQuotes inputs(const char* kind, int months, double single, double annual, double monthly,
                                 double growth = 12, double escalation = 10) {
    return {kind, single, annual, monthly, static_cast<std::int16_t>(months), growth, escalation};
}

} // namespace quotestest
