#include "analyses/frmKinds.h"

#include "analyses/yearrun.h"

namespace analyses {

using namespace screenkit;

NumberKind periodUpTo(int most) {
    return whole.from(0, "The minimum Period is 0 years", "Incorrect Period!")
        .upTo(most, QString("The Maximum Period is %1 years").arg(most), "Incorrect Period!");
}

const NumberKind coverPeriod = periodUpTo(mostYears);
const NumberKind inflation = percent.between(
    -5, highestInflation, "The range for the Inflation Rate is between -5% and 30%", "Incorrect Inflation Rate!");
const NumberKind bankRate =
    percent.from(0, "The minimum Bank Interest Rate allowed is 0%", "Incorrect Bank Interest Rate!")
        .upTo(highestBankInvest, "The maximum Bank Interest Rate allowed is 50%", "Incorrect Bank Interest Rate!");

} // namespace analyses
