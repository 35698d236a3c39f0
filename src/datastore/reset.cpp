#include "datastore/reset.h"

#include "assessment/rows.h"
#include "assessment/tables.h"
#include "datastore/settings.h"
#include "store/error.h"

namespace datastore {

namespace {
assessment::Assessment blankRecord(store::Database& settings) {
    assessment::Assessment blank;
    blank.GRINC = readSettings(settings, "Setup").number("GRINC");
    return blank;
}
} // namespace

assessment::Assessment blankRecord(const std::filesystem::path& defaultDbPath) {
    store::Database settings(defaultDbPath);
    return blankRecord(settings);
}

void readCPI(assessment::Assessment& record, store::Database& clients) {
    try {
        assessment::RowReader(clients, assessment::cpiDefaultTable()).next(record);
    } catch (const store::Error&) {
        record.CPI = 0; // stays 0 if the practice has never entered it
    }
}

void writeCPI(const std::filesystem::path& dataDbPath, double percent) {
    store::Database clients(dataDbPath);
    store::Transaction transaction(clients);
    const assessment::TableDescription& table = assessment::cpiDefaultTable();
    editOrAddRow(clients, table.name(), {{table.fields().front().name, percent}});
    transaction.commit();
}

void ResetAssessment(assessment::Assessment& record, const Paths& paths) {
    assessment::Assessment blank = blankRecord(paths.DefaultDbPath);
    try {
        store::Database clients(paths.DataDbPath);
        readCPI(blank, clients);
    } catch (const store::Error&) {
        blank.CPI = 0;
    }
    blank.unstoredRates = record.unstoredRates;
    record = std::move(blank);
}

void ResetAssessment(assessment::Assessment& record, store::Database& settings, store::Database& clients) {
    assessment::Assessment blank = blankRecord(settings);
    readCPI(blank, clients);
    record = std::move(blank);
}

} // namespace datastore
