#include "quotes/quotereport.h"

#include <array>

#include "quotes/statements.h"

namespace quotes {

namespace {

struct KindReport {
    const char* definition;
    const char* title;
};

// In the order of the kinds.
constexpr std::array<KindReport, 4> reports{{{"Endow", "Endowment Type"},
                                             {"RetAnn", "Retirement Annuity/Superannuation type"},
                                             {"UT", "Unit Trust/Mutual Fund type"},
                                             {"BankInv", "Bank Investments"}}};
constexpr const char* endowmentWithMonths = "Endowment"; // that title alone leaves out "Type"

datastore::Printout printout(Kind kind, bool amortised) {
    const auto& [definition, title] = reports[static_cast<std::size_t>(kind)];
    if (!amortised) return {std::string("\\") + definition + ".rpt", title};
    return {std::string("\\") + definition + "A.rpt",
            std::string(kind == Kind::endowment ? endowmentWithMonths : title) + " Including Amortisation"};
}

std::vector<datastore::Row> monthRows(const Quote& quote) {
    std::vector<datastore::Row> rows;
    for (std::size_t month = 1; month < quote.QuotePaid.size(); ++month) {
        rows.push_back({{"Year", static_cast<double>(month)},
                        {"Capital", quote.QuotePaid[month]},
                        {"Interest", quote.QuoteValue[month]}});
        if (quote.kind == Kind::unitTrust) rows.back().emplace_back("Required", quote.QuoteValueDiv[month]);
    }
    return rows;
}

} // namespace

datastore::Printout feedQuote(const std::filesystem::path& printDbPath, const std::string& client,
                              const QuoteReport& report, const QuoteReportOptions& options) {
    const auto& [inputs, funds, shown, capital, life] = report;
    const bool hasLife = life.years.lookedAt > 0 && life.isFinite;
    const Statements statements = options.commissions ? commissionStatements(inputs, funds, shown.quote) : Statements();
    datastore::Row row{{"LUMPSUM", inputs.LUMPSUM},
                       {"ANNpayment", inputs.ANNUALPAYMENT},
                       {"regularpayment", inputs.regularpayment},
                       {"paymentescalation", shown.numPremEsc},
                       {"term", inputs.term},
                       {"growthrate", inputs.GrowthRate},
                       {"ANS1", shown.numAns1},
                       {"ANS2", shown.numAns2},
                       {"ANS3", shown.numAns3.value_or(0)},
                       {"ANS4", shown.numAns4.value_or(0)},
                       {"LOA", hasLife ? life.sentence() : std::string()},
                       {"CAPI", capital.CAPI},
                       {"MINC", capital.MINC},
                       {"GRTE", capital.GRTE},
                       {"TXRTE", capital.TXRTE},
                       {"EXCLife", capital.EXCLife},
                       {"TAXIG", std::string(shown.ignoresTax ? taxNote : "")}};
    for (std::size_t i = 0; i < statements.size(); ++i)
        row.emplace_back("ComStatement_" + std::to_string(i + 1), statements[i]);
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("InvestmentPro", row);
    if (options.amortised) feed.replace("Amort", monthRows(shown.quote));
    feed.commit();
    return printout(shown.quote.kind.value_or(Kind::endowment), options.amortised);
}

} // namespace quotes
