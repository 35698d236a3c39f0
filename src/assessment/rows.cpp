#include "assessment/rows.h"

#include "base/text.h"

namespace assessment {

namespace {

bool isEmptyDate(Rule rule, double day) {
    switch (rule) {
    case Rule::birthDate: return day == base::NoDate || day == base::NoDate - 1;
    case Rule::emptyDate:
    case Rule::assetDate: return day == base::NoDate;
    default: return false;
    }
}

store::Value valueToWrite(const FieldLine& line, void* row, const RowPlace& place) {
    switch (line.rule) {
    case Rule::key: return place.key;
    case Rule::rowCount: return static_cast<double>(place.count);
    case Rule::rowNumber: return static_cast<double>(place.number);
    default: break;
    }
    store::Value value = valueAt(line.at(row));
    const double* day = std::get_if<double>(&value);
    if (day != nullptr && isEmptyDate(line.rule, *day)) return base::blankDate;
    return value;
}

void setFromRow(const FieldLine& line, void* row, store::Value&& value) {
    const double* day = std::get_if<double>(&value);
    if (line.rule == Rule::assetDate && day != nullptr && *day <= base::blankDate) value = base::NoDate;
    setValueAt(line.at(row), std::move(value), line.kind.blank);
}

double numberOrZero(const store::Value& value) {
    const double* number = std::get_if<double>(&value);
    return number == nullptr ? 0 : *number;
}

std::string selectSql(const TableDescription& table, bool ofOneClient) {
    // The index on the client lists equal keys in the order of adding, so this ORDER BY costs nothing.
    return "SELECT * FROM " + store::bracketed(table.name()) + (ofOneClient ? " WHERE [DCLNO]=?" : "") +
           " ORDER BY rowid";
}

/// The position of each field among the file's columns. The columns are mostly in the table's own order, so each search
/// starts after the column found last.
std::vector<int> columnsOf(const TableDescription& table, const store::Statement& select) {
    const auto& fields = table.fields();
    std::vector<int> columns(fields.size(), -1);
    std::size_t next = 0;
    for (int column = 0; column < select.columnCount(); ++column) {
        const std::string name = select.columnName(column);
        for (std::size_t tried = 0; tried < fields.size(); ++tried) {
            const std::size_t at = (next + tried) % fields.size();
            if (!base::sameName(fields[at].name, name)) continue;
            columns[at] = column;
            next = at + 1;
            break;
        }
    }
    return columns;
}

} // namespace

int RowWriterCore::bindFields(store::Statement& statement, void* row, const RowPlace& place) const {
    int index = 0;
    const std::string file = m_database.path().string();
    for (const FieldLine& line : m_table.fields()) {
        if (!line.isWritten()) continue;
        const store::Value value = store::toStored(valueToWrite(line, row, place), line.kind.declared, file, line.name);
        if (m_sum != nullptr && line.isRead()) m_sum->add(value);
        statement.bind(++index, value);
    }
    return index;
}

void RowWriterCore::add(void* row, const RowPlace& place) {
    if (!m_insert) m_insert.emplace(m_database, m_table.insertSql());
    bindFields(*m_insert, row, place);
    m_insert->run();
}

void RowWriterCore::overwrite(void* row, const RowPlace& place, std::int64_t rowid) {
    store::Statement update(m_database, m_table.updateSql());
    const int fields = bindFields(update, row, place);
    update.bind(fields + 1, static_cast<double>(rowid));
    update.run();
}

RowReaderCore::RowReaderCore(store::Database& database, const TableDescription& table, std::optional<double> key,
                             Checksum* sum)
    : m_select(database, selectSql(table, key.has_value())), m_sum(sum) {
    if (key) m_select.bind(1, *key);
    const std::vector<int> columns = columnsOf(table, m_select);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const FieldLine& line = table.fields()[i];
        if (line.isRead()) m_sources.push_back({&line, columns[i]});
    }
}

bool RowReaderCore::next(void* row) {
    if (!m_select.step()) return false;
    for (const auto& [field, column] : m_sources) {
        store::Value value = column < 0 ? store::Value{} : m_select.column(column);
        if (m_sum != nullptr) m_sum->add(value);
        if (field->rule == Rule::key)
            m_key = numberOrZero(value);
        else if (field->rule == Rule::rowCount)
            m_rowCount = numberOrZero(value);
        else
            setFromRow(*field, row, std::move(value));
    }
    return true;
}

std::optional<std::int64_t> firstRow(store::Database& database, const TableDescription& table,
                                     std::optional<double> key) {
    store::Statement find = database.prepare("SELECT rowid FROM " + store::bracketed(table.name()) +
                                             (key ? " WHERE [DCLNO]=?" : "") + " ORDER BY rowid LIMIT 1");
    if (key) find.bind(1, *key);
    if (!find.step()) return {};
    return static_cast<std::int64_t>(find.number(0));
}

} // namespace assessment
