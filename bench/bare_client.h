#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

struct sqlite3_value;

namespace bench {

/// A client's rows, written and read with the database's own functions only: no field tables, no checks of types and
/// sizes, no record. The file is opened and closed each time.
class BareClient {
public:
    BareClient(std::filesystem::path file, double key);
    ~BareClient();
    BareClient(const BareClient&) = delete;
    BareClient& operator=(const BareClient&) = delete;

    /// Writes all rows in one transaction, synchronous=FULL: an update if the client has one row, else delete and
    /// insert.
    void save();
    /// Reads all rows and copies each cell.
    void load();

private:
    struct Table {
        std::string name;
        std::string select, update, remove, insert;
        std::vector<std::vector<sqlite3_value*>> rows;
    };
    std::filesystem::path m_file;
    double m_key;
    std::vector<Table> m_tables;
    double m_edits = 0;
};

} // namespace bench
