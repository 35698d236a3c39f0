#include "analyses/frmKinds.h"

#include "analyses/yearrun.h"

namespace analyses {

using namespace screenkit;

const NumberKind coverPeriod = whole.from(0, "The minimum Period is 0 years", "Incorrect Period!")
                                   .upTo(mostYears, "The Maximum Period is 50 years", "Incorrect Period!");
const NumberKind inflation = percent.between(
    -5, highestInflation, "The range for the Inflation Rate is between -5% and 30%", "Incorrect Inflation Rate!");
const NumberKind bankRate =
    percent.from(0, "The minimum Bank Interest Rate allowed is 0%", "Incorrect Bank Interest Rate!")
        .upTo(highestBankInvest, "The maximum Bank Interest Rate allowed is 50%", "Incorrect Bank Interest Rate!");

} // namespace analyses
