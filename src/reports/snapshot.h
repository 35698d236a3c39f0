#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>
#include <vector>

#include "store/value.h"

namespace reports {

/// The rows of one table when the report was run, in the order in which they were written.
struct TableRows {
    QString name;
    QStringList columns;
    std::vector<std::vector<store::Value>> rows;

    /// The index of a column, matched without case; -1 if there is none.
    int column(const QString& field) const;
};

/// Everything that one report reads from Print.mdb. It is read at once and the file closed, so later printouts may
/// replace the rows while a preview is open.
class Snapshot {
public:
    /// Throws store::Error, 3024 if the file is missing. A table missing in the file is skipped: the caller reports it
    /// with the line of the definition that names it.
    Snapshot(const std::filesystem::path& printDatabase, const QStringList& tables);

    /// The table; null if the file has none or it was not asked for.
    const TableRows* table(const QString& name) const;
    /// The practice's four lines at the top and bottom of each page, trimmed.
    const QStringList& headerLines() const { return m_headerLines; }
    const QStringList& footerLines() const { return m_footerLines; }
    /// Whose report it is, trimmed; empty if it is about no client.
    const QString& client() const { return m_client; }

private:
    std::vector<TableRows> m_tables;
    QStringList m_headerLines;
    QStringList m_footerLines;
    QString m_client;
};

} // namespace reports
