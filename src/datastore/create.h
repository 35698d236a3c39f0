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

/// Shows the user a message: title, text.
using Notice = std::function<void(const std::string&, const std::string&)>;

/// Creates a database or completes an existing one, table by table. Nothing that exists is changed or an error.
///
/// All or nothing: a new file is built beside its place under a temporary name, an existing one within one transaction,
/// and both take effect in `finish`. A table takes effect with the next table or index, or at `finish`.
class Creator {
public:
    explicit Creator(Notice notice = {});
    /// Works inside the caller's transaction on an open database; `finish` then leaves the commit to the caller.
    explicit Creator(store::Database& database);
    ~Creator();
    Creator(const Creator&) = delete;
    Creator& operator=(const Creator&) = delete;

    /// Sets the current database: creates it, or opens the one that is there. If neither succeeds the user is told,
    /// there is no current database, and the calls that follow do nothing.
    void CreateOrOpenDb(const std::filesystem::path& path);
    /// Sets the current table, made with its Boolean `In Use` if it is not there.
    void CreateOrOpenTable(std::string_view name);
    /// Adds a field to the current table unless it has one of that name. `attribute`: 16 a counter, 10 default 0, 11
    /// default "", else none. Rows that are there hold Null in it, whatever its default. Errors end the call quietly.
    void AddField(std::string_view name, store::Type type, int size, int attribute);
    /// Makes the index afresh over the fields of a comma-separated list. An unknown table or field ends it quietly.
    void AddIndex(std::string_view fields, std::string_view name, bool primary, bool unique);
    /// Puts what was built in its place. `lastly` runs on the database before that, as part of the whole.
    void finish(const std::function<void(store::Database&)>& lastly = {});

    bool hasDatabase() const { return m_database != nullptr; }
    /// Why there is none, for whoever can't go on without; nothing while there is one.
    const std::optional<store::Error>& failure() const { return m_failure; }

private:
    void flushTable();
    void createTable();
    void alterTable();

    Notice m_notice;
    std::filesystem::path m_path;
    std::optional<store::FileBeside> m_beside; ///< where a new file is built
    std::optional<store::Error> m_failure;
    std::optional<store::Database> m_own;
    store::Database* m_database = nullptr;
    std::optional<store::Transaction> m_transaction;
    std::string m_table;
    std::vector<store::Column> m_existing; ///< of the current table; empty for a new one
    struct NewField {
        std::string name;
        std::string declaration;
        bool hasDefault;
    };
    std::vector<NewField> m_new;
};

/// Creates the client database at a path, or completes the one that is there: every table, field and index that it
/// lacks. Writes no rows. False if the file can neither be created nor opened; the user has then been told.
bool MakeNewDb(const std::filesystem::path& path, const Notice& notice = {});

/// The same within the caller's transaction.
void MakeNewDb(store::Database& database);

/// A client database ready for its first start: the tables, the row of `HeadFoot` and a `DataSetup` of version 1. It
/// appears whole or not at all, so that a killed program never leaves one without a version. Throws what is in the way,
/// after the notice.
void createClientDb(const std::filesystem::path& path, const Notice& notice = {});

} // namespace datastore
