#include "datastore/deletion.h"

#include <string>

#include "assessment/rows.h"
#include "assessment/tables.h"
#include "datastore/filetexts.h"
#include "store/database.h"
#include "store/error.h"

namespace datastore {

using assessment::TableDescription;

namespace {

constexpr const char* chooseAgain = "Nothing was deleted. Choose the client again in the list.";

/// Between the reading of the list and the click another program may have put somebody else under this key.
void requireSameClient(store::Database& database, const ClientLine& client) {
    store::Statement row =
        database.prepare("SELECT [Name], [BirthDate] FROM [PersDetails] WHERE [DCLNO]=? ORDER BY rowid");
    row.bind(1, client.DCLNO);
    if (!row.step())
        throw store::Error(store::Number::noCurrentRecord, database.path().string(),
                           client.Name + " is no longer in the file.", chooseAgain);
    if (row.text(0) != client.Name || row.number(1) != client.BirthDate)
        throw store::Error(store::Number::changedByAnother, database.path().string(),
                           "Another program has changed this client, or put another one in his place.", chooseAgain);
}

/// The rows of one client that are not the only one with his key stay: a shared file may hold two by accident.
void deleteFirstRow(store::Database& database, const TableDescription& table, double key) {
    if (const auto row = assessment::firstRow(database, table, key))
        database.prepare("DELETE FROM " + store::bracketed(table.name()) + " WHERE rowid=?")
            .bind(1, static_cast<double>(*row))
            .run();
}

void deleteRows(store::Database& database, const TableDescription& table, double key) {
    database.prepare("DELETE FROM " + store::bracketed(table.name()) + " WHERE [DCLNO]=?").bind(1, key).run();
}

} // namespace

void deleteClient(const std::filesystem::path& dataDbPath, const ClientLine& client) {
    store::Database database(dataDbPath);
    store::Transaction transaction(database);
    requireSameClient(database, client);
    deleteFirstRow(database, assessment::dataTable(), client.DCLNO);
    deleteFirstRow(database, assessment::persDetailsTable(), client.DCLNO);
    for (const assessment::ItemTable& line : assessment::itemTables())
        if (line.table != nullptr) deleteRows(database, *line.table, client.DCLNO);
    deleteRows(database, assessment::polsInvestsTable(), client.DCLNO);
    deleteFileTexts(database, client.DCLNO, client.DCLNO);
    transaction.commit();
}

} // namespace datastore
