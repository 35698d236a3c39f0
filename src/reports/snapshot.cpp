#include "reports/snapshot.h"

#include "store/database.h"

namespace reports {
namespace {

TableRows readTable(store::Database& database, const QString& name) {
    const std::string table = name.toStdString();
    TableRows read{.name = name, .columns = {}, .rows = {}};
    store::Statement rows = database.prepare("SELECT * FROM " + store::bracketed(table) + " ORDER BY rowid");
    const int count = rows.columnCount();
    for (int column = 0; column < count; ++column)
        read.columns << QString::fromStdString(rows.columnName(column));
    while (rows.step()) {
        std::vector<store::Value>& row = read.rows.emplace_back();
        row.reserve(static_cast<std::size_t>(count));
        for (int column = 0; column < count; ++column)
            row.push_back(rows.column(column));
    }
    return read;
}

/// A trimmed text of the table's first row; empty if there is none.
QString line(const TableRows& table, const QString& field) {
    const int column = table.column(field);
    if (column < 0 || table.rows.empty()) return {};
    const auto* text = std::get_if<std::string>(&table.rows.front()[static_cast<std::size_t>(column)]);
    return text ? QString::fromStdString(*text).trimmed() : QString();
}

QStringList lines(const TableRows& headFoot, const QString& prefix) {
    QStringList result;
    for (int number = 0; number < 4; ++number)
        result << line(headFoot, prefix + QString::number(number));
    return result;
}

} // namespace

int TableRows::column(const QString& field) const {
    for (int column = 0; column < columns.size(); ++column)
        if (columns[column].compare(field, Qt::CaseInsensitive) == 0) return column;
    return -1;
}

Snapshot::Snapshot(const std::filesystem::path& printDatabase, const QStringList& tables) {
    store::Database database(printDatabase);
    database.execute("BEGIN"); // so that all tables are read from one state of the file; closing ends the transaction
    for (const QString& name : tables)
        if (database.hasTable(name.toStdString())) m_tables.push_back(readTable(database, name));
    const TableRows headFoot = readTable(database, "HeadFoot");
    m_headerLines = lines(headFoot, "HEADERV");
    m_footerLines = lines(headFoot, "footv");
    m_client = line(readTable(database, "Printout"), "Client");
}

const TableRows* Snapshot::table(const QString& name) const {
    for (const TableRows& table : m_tables)
        if (table.name.compare(name, Qt::CaseInsensitive) == 0) return &table;
    return nullptr;
}

} // namespace reports
