#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>
#include <vector>

#include "store/value.h"

namespace reports {

/// The rows of one table as they were when the report was run, in the order in which they were written.
struct TableRows {
    QString name;
    QStringList columns;
    std::vector<std::vector<store::Value>> rows;

    /// Place of a column, matched without case; -1 if there is none.
    int column(const QString& field) const;
};

/// Everything that one report reads from Print.mdb, read in one go and the file closed again: later printouts replace
/// the rows under an open preview without harm to it.
class Snapshot {
public:
    /// Throws store::Error, 3024 if the file is missing. A table that the file lacks is left out: whoever asked for it
    /// knows the line that names it.
    Snapshot(const std::filesystem::path& printDatabase, const QStringList& tables);

    /// The table; null if the file has none or it was not asked for.
    const TableRows* table(const QString& name) const;
    /// The practice's four lines above and below each page, blanks at their ends dropped.
    const QStringList& headerLines() const { return m_headerLines; }
    const QStringList& footerLines() const { return m_footerLines; }
    /// Whose report it is, blanks at the ends dropped; empty if nobody's.
    const QString& client() const { return m_client; }

private:
    std::vector<TableRows> m_tables;
    QStringList m_headerLines;
    QStringList m_footerLines;
    QString m_client;
};

} // namespace reports
