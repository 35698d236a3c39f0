#include "analyses/educationreport.h"

#include "analyses/premium.h"
#include "analyses/reportlines.h"
#include "base/day.h"

namespace analyses {

datastore::Printout feedEducation(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                                  const EducationAnalysis& analysis, const EducationReportOptions& options) {
    const assessment::NAEducation& needs = record.education;
    datastore::Row row{{"Name", record.client.Name},
                       {"FundsPD", needs.FundsPD},
                       {"BirthDate", base::reportDate(record.client.BirthDate)},
                       {"Inflation", needs.InflationEDU},
                       {"YearsToEdu", needs.YearsToEdu},
                       {"FundsFV", analysis.FundsFV},
                       {"FundsForYears", needs.FundsForYears},
                       {"BankRate", needs.BankRate},
                       {"FundsReq", analysis.FundsReq}};
    const assessment::CapitalPremium& premium = record.premiums.education;
    const bool isSolved = finance::isSolvedFor(premium, analysis.capitalToProvide(), yearsUntilNeeded(needs));
    const auto block = premiumLines(options.premium && isSolved, premium, finance::educationPremium);
    row.insert(row.end(), block.begin(), block.end());
    datastore::PrintFeed feed(printDbPath, record.client.Name);
    feed.replace("NAED", row);
    if (options.amortised) feed.replace("Amort", amortisationRows(analysis.years()));
    feed.commit();
    if (options.amortised) return {"\\EducatnA.rpt", "Needs Analysis for Education Including Amortisation"};
    return {"\\Educatin.rpt", "Needs Analysis for Education"};
}

} // namespace analyses
