#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "assessment/fieldtable.h"
#include "store/database.h"
#include "store/error.h"
#include "store/files.h"

namespace datastore {

/// Shows the user a message. Arguments: title, text.
using Notice = std::function<void(const std::string&, const std::string&)>;

/// Creates a database or completes an existing one, table by table. What exists already is kept and is no error.
///
/// All or nothing: a new file is built beside its place under a temporary name, an existing one is changed in a single
/// transaction, and `finish` makes either take effect. A table is written when the next table or index begins, or by
/// `finish`.
class Creator {
public:
    explicit Creator(Notice notice = {});
    /// Works inside the caller's transaction on an open database; the caller commits after `finish`.
    explicit Creator(store::Database& database);
    ~Creator();
    Creator(const Creator&) = delete;
    Creator& operator=(const Creator&) = delete;

    /// Sets the current database: creates it, or opens the existing one. If both fail, the user is told, there is no
    /// current database, and all later calls do nothing.
    void CreateOrOpenDb(const std::filesystem::path& path);
    /// Sets the current table. A table that does not exist is created with its Boolean `In Use`.
    void CreateOrOpenTable(std::string_view name);
    /// Adds a field to the current table unless it has one of that name. `attribute`: 16 a counter, 10 default 0, 11
    /// default "", any other no default. Existing rows hold Null in it, even with a default. Errors are ignored.
    void AddField(std::string_view name, store::Type type, int size, int attribute);
    /// Recreates the index over the fields of a comma-separated list. An unknown table or field is ignored.
    void AddIndex(std::string_view fields, std::string_view name, bool primary, bool unique);
    /// Makes everything take effect. Before that `lastly` runs on the database, as part of the same transaction.
    void finish(const std::function<void(store::Database&)>& lastly = {});

    bool hasDatabase() const { return m_database != nullptr; }
    /// Why there is no current database, for callers that need one; nothing while there is one.
    const std::optional<store::Error>& failure() const { return m_failure; }

private:
    void flushTable();
    void createTable();
    void alterTable();

    Notice m_notice;
    std::filesystem::path m_path;
    std::optional<store::FileBeside> m_beside; ///< the new file under construction
    std::optional<store::Error> m_failure;
    std::optional<store::Database> m_own;
    store::Database* m_database = nullptr;
    std::optional<store::Transaction> m_transaction;
    std::string m_table;
    std::vector<store::Column> m_existing; ///< of the current table; empty if it is new
    struct NewField {
        std::string name;
        std::string declaration;
        bool hasDefault;
    };
    std::vector<NewField> m_new;
};

/// Creates the client database at a path, or adds every table, field and index that an existing one lacks. Writes no
/// rows. False if the file can be neither created nor opened; the user has then been told.
bool MakeNewDb(const std::filesystem::path& path, const Notice& notice = {});

/// The same within the caller's transaction.
void MakeNewDb(store::Database& database);

/// Adds a table that not every client database has, or what it lacks of it, within the caller's transaction. Nothing is
/// written if it has all its fields.
void completeTable(store::Database& database, const assessment::TableDescription& table);

/// Creates a client database ready for its first start: the tables, the row of `HeadFoot` and a `DataSetup` of version
/// 1. It appears complete or not at all, so that a killed program never leaves one without a version. On failure shows
/// the notice, then throws.
void createClientDb(const std::filesystem::path& path, const Notice& notice = {});

} // namespace datastore
