#include "bare_client.h"

#include <sqlite3.h>

#include <algorithm>
#include <stdexcept>

#include "assessment/tables.h"
#include "bench.h"

namespace bench {

namespace {

class Connection {
public:
    explicit Connection(const std::filesystem::path& file) {
        check(sqlite3_open_v2(file.c_str(), &m_handle, SQLITE_OPEN_READWRITE, nullptr));
        execute("PRAGMA synchronous=FULL");
    }
    ~Connection() { sqlite3_close(m_handle); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void execute(const char* sql) { check(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr)); }
    sqlite3_stmt* prepare(const std::string& sql) {
        sqlite3_stmt* statement = nullptr;
        check(sqlite3_prepare_v2(m_handle, sql.c_str(), static_cast<int>(sql.size()) + 1, &statement, nullptr));
        return statement;
    }

private:
    void check(int code) {
        if (code != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(m_handle));
    }
    sqlite3* m_handle = nullptr;
};

void run(sqlite3_stmt* statement) {
    if (sqlite3_step(statement) != SQLITE_DONE) throw std::runtime_error("a bare statement failed");
    sqlite3_reset(statement);
}

void bind(sqlite3_stmt* statement, const std::vector<sqlite3_value*>& row) {
    int index = 0;
    for (sqlite3_value* value : row)
        sqlite3_bind_value(statement, ++index, value);
}

} // namespace

BareClient::BareClient(std::filesystem::path file, double key) : m_file(std::move(file)), m_key(key) {
    Connection connection(m_file);
    for (const assessment::TableDescription* table : assessment::clientTables()) {
        if (table->field("DCLNO") == nullptr) continue;
        std::string names;
        for (const assessment::FieldLine& line : table->fields())
            if (line.isWritten()) names += (names.empty() ? "[" : ",[") + line.name + "]";
        Table bare;
        bare.name = "[" + table->name() + "]";
        bare.select = "SELECT " + names + " FROM " + bare.name + " WHERE [DCLNO]=? ORDER BY rowid";
        bare.update = table->updateSql().substr(0, table->updateSql().find(" WHERE ")) + " WHERE [DCLNO]=?";
        bare.remove = "DELETE FROM " + bare.name + " WHERE [DCLNO]=?";
        bare.insert = table->insertSql();
        sqlite3_stmt* select = connection.prepare(bare.select);
        sqlite3_bind_double(select, 1, m_key);
        while (sqlite3_step(select) == SQLITE_ROW) {
            bare.rows.emplace_back();
            for (int i = 0; i < sqlite3_column_count(select); ++i)
                bare.rows.back().push_back(sqlite3_value_dup(sqlite3_column_value(select, i)));
        }
        sqlite3_finalize(select);
        if (!bare.rows.empty()) m_tables.push_back(std::move(bare));
    }
}

BareClient::~BareClient() {
    for (const Table& table : m_tables)
        for (const auto& row : table.rows)
            std::for_each(row.begin(), row.end(), sqlite3_value_free);
}

void BareClient::save() {
    Connection connection(m_file);
    connection.execute("BEGIN IMMEDIATE");
    for (const Table& table : m_tables) {
        const bool one = table.rows.size() == 1;
        if (!one) {
            sqlite3_stmt* remove = connection.prepare(table.remove);
            sqlite3_bind_double(remove, 1, m_key);
            run(remove);
            sqlite3_finalize(remove);
        }
        sqlite3_stmt* write = connection.prepare(one ? table.update : table.insert);
        for (const auto& row : table.rows) {
            bind(write, row);
            if (one) sqlite3_bind_double(write, static_cast<int>(row.size()) + 1, m_key);
            run(write);
        }
        sqlite3_finalize(write);
    }
    // A row without a change is not written, so one figure differs at each save, as in the program's own save.
    sqlite3_stmt* edit = connection.prepare("UPDATE [Data] SET [Num1]=? WHERE [DCLNO]=?");
    sqlite3_bind_double(edit, 1, ++m_edits);
    sqlite3_bind_double(edit, 2, m_key);
    run(edit);
    sqlite3_finalize(edit);
    connection.execute("COMMIT");
}

void BareClient::load() {
    Connection connection(m_file);
    connection.execute("BEGIN");
    double sum = 0;
    std::vector<std::string> texts;
    for (const Table& table : m_tables) {
        sqlite3_stmt* select = connection.prepare(table.select);
        sqlite3_bind_double(select, 1, m_key);
        while (sqlite3_step(select) == SQLITE_ROW)
            for (int i = 0; i < sqlite3_column_count(select); ++i)
                if (sqlite3_column_type(select, i) == SQLITE_TEXT)
                    texts.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(select, i)),
                                       static_cast<std::size_t>(sqlite3_column_bytes(select, i)));
                else
                    sum += sqlite3_column_double(select, i);
        sqlite3_finalize(select);
    }
    connection.execute("COMMIT");
    keep(sum + static_cast<double>(texts.size()));
}

} // namespace bench
