#include "datastore/reset.h"

#include "assessment/rows.h"
#include "assessment/tables.h"
#include "datastore/settings.h"
#include "store/error.h"

namespace datastore {

assessment::Assessment blankRecord(const std::filesystem::path& defaultDbPath) {
    assessment::Assessment blank;
    blank.GRINC = readSettings(defaultDbPath, "Setup").number("GRINC");
    return blank;
}

void readCPI(assessment::Assessment& record, store::Database& clients) {
    try {
        assessment::RowReader(clients, assessment::cpiDefaultTable()).next(record);
    } catch (const store::Error&) {
        record.CPI = 0; // a practice that has never entered it works without
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
    record = std::move(blank);
}

void ResetAssessment(assessment::Assessment& record, const Paths& paths, store::Database& clients) {
    assessment::Assessment blank = blankRecord(paths.DefaultDbPath);
    readCPI(blank, clients);
    record = std::move(blank);
}

} // namespace datastore
