#include "analyses/yearrun.h"

#include <algorithm>
#include <cmath>

#include "base/rounding.h"

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

int wholeYears(double years) {
    const double whole = base::roundHalfEven(years);
    return whole >= 0 ? static_cast<int>(std::min<double>(whole, mostYears)) : 0;
}

std::vector<ShownYear> shownYears(const YearlyFlows& flows, const YearRun& run, double asked, double first) {
    const int count = std::min({run.YearsCovered + 1, mostYears, wholeYears(asked) + 1});
    std::vector<ShownYear> years;
    for (std::size_t year = 1; year <= static_cast<std::size_t>(count); ++year)
        years.push_back({first + static_cast<double>(year - 1), run.CapitalByYear[year], run.InterestByYear[year],
                         flows.AvailableByYear[year], flows.RequiredByYear[year]});
    return years;
}

int graphPoints(const YearRun& run, double asked) {
    return run.YearsCovered < mostYears ? run.YearsCovered : wholeYears(asked);
}

} // namespace analyses
