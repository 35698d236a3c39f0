#include "analyses/yearrun.h"

#include <cmath>

namespace analyses {

YearRun projectCapital(const YearlyFlows& flows, double capital, double percent) {
    YearRun run;
    run.CapitalByYear[1] = capital;
    run.InterestByYear[1] = std::floor(capital * percent / 100);
    std::size_t year = 1;
    while (year < lastYear) {
        ++year;
        const double last = run.CapitalByYear[year - 1];
        double& now = run.CapitalByYear[year];
        now = last + last * percent / 100 + (flows.AvailableByYear[year - 1] - flows.RequiredByYear[year - 1]);
        now += flows.paidOut[year];
        run.InterestByYear[year] = now * percent / 100;
        now += flows.sold[year];
        if (flows.RequiredByYear[year] > now + run.InterestByYear[year] + flows.AvailableByYear[year]) break;
    }
    run.YearsCovered = static_cast<int>(year) - 1;
    return run;
}

} // namespace analyses
