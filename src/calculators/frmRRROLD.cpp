#include "calculators/frmRRROLD.h"

namespace calculators {

using namespace screenkit;

frmRRROLD::frmRRROLD(Workplace& workplace) : RealRateScreen(workplace, "frmRRROLD", workplace.record.rrrOld) {
    auto* lump = number("numSingLump", m_inputs.SingPremLump, money);
    auto* premium = number("numMonPrem", m_inputs.MonPrem, money);
    auto* period = number("numPeriod", m_inputs.Period, months());
    auto* escalation = number("numAnnEsc", m_inputs.AnnEsc, percent);
    auto* maturity = number("numMatValue", m_inputs.MatVal, money);
    writesBack(escalation);
    body(column({form({{"&Single premium/lumpsum", lump},
                       {"&Monthly premium", premium},
                       {"P&eriod", period, "months"},
                       {"A&nnual escalation", escalation, "% a year"},
                       {"Ma&turity value", maturity},
                       {"Total premiums paid", answer("numTotPremPaid", m_result.netPaid)},
                       {"Real rate of return (nominal rate)", rate(), "% a year"}}),
                 unreached(), spring(), buttonLine()}));
    prints();
}

} // namespace calculators
