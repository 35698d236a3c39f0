#include "analyses/educationreport.h"

#include "analyses/reportlines.h"
#include "base/day.h"

namespace analyses {

datastore::Printout feedEducation(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                                  const EducationAnalysis& analysis, bool amortised) {
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
    const datastore::Row premium = noPremium();
    row.insert(row.end(), premium.begin(), premium.end());
    datastore::PrintFeed feed(printDbPath, record.client.Name);
    feed.replace("NAED", row);
    if (amortised) feed.replace("Amort", amortisationRows(analysis.years()));
    feed.commit();
    if (amortised) return {"\\EducatnA.rpt", "Needs Analysis for Education Including Amortisation"};
    return {"\\Educatin.rpt", "Needs Analysis for Education"};
}

} // namespace analyses
