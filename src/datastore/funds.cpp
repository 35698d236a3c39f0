#include "datastore/funds.h"

#include "assessment/tables.h"
#include "datastore/settings.h"

namespace datastore {

using assessment::FundDefaults, assessment::mutualFundsTable;

namespace {
FundDefaults readTable(store::Database& settings, std::string_view table) {
    FundDefaults funds;
    readSettings(settings, table).fill(mutualFundsTable(), &funds);
    return funds;
}
} // namespace

FundDefaults readFunds(store::Database& settings) { return readTable(settings, mutualFundsTable().name()); }

FundDefaults readFunds(const std::filesystem::path& defaultDbPath) {
    store::Database settings(defaultDbPath);
    return readFunds(settings);
}

FundDefaults readOriginalFunds(const std::filesystem::path& defaultDbPath) {
    store::Database settings(defaultDbPath);
    return readTable(settings, "TallowenDefault");
}

void refreshFunds(assessment::Assessment& record, const std::filesystem::path& defaultDbPath) {
    if (record.unstoredRates.hold) {
        record.funds = record.unstoredRates.funds;
        record.GRINC = record.unstoredRates.GRINC;
        return;
    }
    store::Database settings(defaultDbPath);
    const FundDefaults funds = readFunds(settings);
    record.GRINC = readSettings(settings, "Setup").number("GRINC");
    record.funds = funds;
}

void writeFunds(const std::filesystem::path& defaultDbPath, const FundDefaults& funds, double grinc) {
    store::Database settings(defaultDbPath);
    store::Transaction transaction(settings);
    writeSettings(settings, "Setup", {{"GRINC", grinc}});
    writeSettings(settings, mutualFundsTable().name(), rowOf(mutualFundsTable(), funds));
    transaction.commit();
}

void storeFunds(assessment::Assessment& record, const std::filesystem::path& defaultDbPath) {
    record.unstoredRates = {true, record.funds, record.GRINC};
    writeFunds(defaultDbPath, record.funds, record.GRINC);
    record.unstoredRates = {};
}

} // namespace datastore
