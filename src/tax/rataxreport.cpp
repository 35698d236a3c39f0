#include "tax/rataxreport.h"

namespace tax {

datastore::Printout PrintRATaxAdvantage(const std::filesystem::path& printDbPath, const std::string& client,
                                        const assessment::RATaxAdvantage& inputs, const RATaxResult& result,
                                        datastore::ReportLanguage language) {
    // Each figure is in the field where practices' own copies of the report look for it, whatever the field's name.
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("RATaxAdvantage", {{"Heading", inputs.RASurname},
                                    {"TaxPayerAge", inputs.RATaxPayerAge},
                                    {"TaxIncCur", inputs.RARemuneration},
                                    {"TaxIncRA", inputs.RATaxableInc},
                                    {"PortInvestPaySarsPA", inputs.TaxCGT},
                                    {"RaCont", result.maximum},
                                    {"TaxSavingPM", inputs.ProposedRF},
                                    {"NewRA", result.saving},
                                    {"TaxComitCur", result.paidBySARS},
                                    {"TaxComitRA", result.paidByTaxpayer},
                                    {"PerAns", result.percentText()},
                                    {"BelowThreshold", result.isBelowThreshold() ? 1 : 0}});
    feed.commit();
    const bool isAfrikaans = language == datastore::ReportLanguage::Afrikaans;
    // The title names the help as practices know it.
    return {isAfrikaans ? "\\RATaxAdvantageA.rpt" : "\\RATaxAdvantage.rpt",
            "R/A Advantage - To export printout click on the suitcase button or goto Holtwick Help"};
}

} // namespace tax
