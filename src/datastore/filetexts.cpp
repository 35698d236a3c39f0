#include "datastore/filetexts.h"

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>

#include "assessment/filetextstable.h"
#include "assessment/rows.h"
#include "base/text.h"
#include "datastore/create.h"

namespace datastore {

using assessment::FileTexts;
using assessment::fileTextsTable;
using assessment::TableDescription;

namespace {

const std::string& markField() { return assessment::fileTextsMark().fields().front().name; }

bool hasField(store::Database& database, const TableDescription& table, const std::string& field) {
    return std::ranges::any_of(database.columns(table.name()),
                               [&](const store::Column& column) { return base::sameName(column.name, field); });
}

/// The client's mark; empty if he has none.
std::string markOf(store::Database& database, double key) {
    const TableDescription& clients = assessment::fileTextsMark();
    if (!hasField(database, clients, markField())) return {};
    store::Statement row = database.prepare("SELECT " + store::bracketed(markField()) + " FROM " +
                                            store::bracketed(clients.name()) + " WHERE [DCLNO]=? ORDER BY rowid");
    row.bind(1, key);
    return row.step() ? row.text(0) : std::string();
}

void setMark(store::Database& database, double key, const std::string& mark) {
    const TableDescription& clients = assessment::fileTextsMark();
    const std::string table = store::bracketed(clients.name());
    database
        .prepare("UPDATE " + table + " SET " + store::bracketed(markField()) +
                 "=? WHERE rowid=(SELECT min(rowid) FROM " + table + " WHERE [DCLNO]=?)")
        .bind(1, mark)
        .bind(2, key)
        .run();
}

std::string newMark() {
    std::random_device random;
    std::string mark;
    for (int part = 0; part < 4; ++part) {
        char digits[9];
        std::snprintf(digits, sizeof digits, "%08x", random());
        mark += digits;
    }
    return mark;
}

} // namespace

void readFileTexts(FileTexts& texts, store::Database& database, double key, assessment::Checksum* sum) {
    const TableDescription& table = fileTextsTable();
    if (!hasField(database, table, "DCLNO") || !assessment::firstRow(database, table, key)) return; // as mostly
    const std::string mark = hasField(database, table, "Mark") ? markOf(database, key) : std::string();
    if (mark.empty()) return;
    store::Statement marks =
        database.prepare("SELECT [Mark] FROM " + store::bracketed(table.name()) + " WHERE [DCLNO]=? ORDER BY rowid");
    marks.bind(1, key);
    assessment::Checksum sumOfRow = sum != nullptr ? *sum : assessment::Checksum();
    const assessment::Checksum before = sumOfRow;
    assessment::RowReader rows(database, fileTextsTable(), key, &sumOfRow); // in the same order
    for (FileTexts found; marks.step() && rows.next(found); sumOfRow = before) {
        if (marks.text(0) != mark) continue;
        texts = std::move(found);
        if (sum != nullptr) *sum = sumOfRow;
        return;
    }
}

void writeFileTexts(FileTexts& texts, store::Database& database, double key, assessment::Checksum* sum) {
    if (texts.isEmpty()) return deleteFileTexts(database, key, key);
    completeTable(database, fileTextsTable());
    completeTable(database, assessment::fileTextsMark());
    deleteFileTexts(database, key, key);
    const std::string mark = newMark();
    setMark(database, key, mark);
    assessment::RowWriter(database, fileTextsTable(), sum).add(texts, {key});
    database.prepare("UPDATE " + store::bracketed(fileTextsTable().name()) + " SET [Mark]=? WHERE rowid=?")
        .bind(1, mark)
        .bind(2, static_cast<double>(database.lastRow()))
        .run();
}

void deleteFileTexts(store::Database& database, double firstKey, double lastKey) {
    if (!hasField(database, fileTextsTable(), "DCLNO")) return;
    database.prepare("DELETE FROM " + store::bracketed(fileTextsTable().name()) + " WHERE [DCLNO] BETWEEN ? AND ?")
        .bind(1, firstKey)
        .bind(2, lastKey)
        .run();
}

} // namespace datastore
