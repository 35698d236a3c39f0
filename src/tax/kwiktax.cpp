#include "tax/kwiktax.h"

#include <algorithm>
#include <cmath>

#include "base/finite.h"

namespace tax {

ScaleTax taxSalary(assessment::KwikTax& client, const TaxYear& year) {
    const ScaleTax result = taxOn(year, client.Salary);
    base::keepFinite(client.LastScaleTax, result.tax);
    return result;
}

ScaleTax TABLEVIEW2026(assessment::KwikTax& client) { return taxSalary(client, quickTaxFebruary2026.scale); }
ScaleTax TABLEVIEW2027(assessment::KwikTax& client) { return taxSalary(client, quickTaxFebruary2027.scale); }

bool choosesFebruary2026(const assessment::KwikTax& client) { return client.YR9798 == 0; }

QuickTax quickTax(assessment::KwikTax& client) {
    const bool first = choosesFebruary2026(client);
    const TaxRules& rules = first ? quickTaxFebruary2026 : quickTaxFebruary2027;
    QuickTax result;
    result.TotalRebates = std::floor(totalRebates(rules, client.Age));
    const ScaleTax scale = first ? TABLEVIEW2026(client) : TABLEVIEW2027(client);
    result.TaxOnLowerLimit = scale.taxOnLowerLimit;
    result.MarginalRate = scale.rate;
    result.PortionAtRate = scale.portion;
    result.ScaleTax = scale.tax;
    const bool taxed = scale.tax > 0;
    result.AverageBefore = taxed ? scale.tax / client.Salary * 100 : scale.rate;
    result.TotalTax = scale.tax;
    result.TaxCommitment = std::max(0.0, result.TotalTax - result.TotalRebates);
    if (taxed) result.AverageAfter = std::max(0.0, (scale.tax - result.TotalRebates) / client.Salary * 100);
    return result;
}

} // namespace tax
