#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

#include "screenkit/numberfield.h"

namespace screenkit {

using EditCell = std::variant<QString, double>; ///< text or number
using EditRow = std::vector<EditCell>;

/// A column that the user fills: a text up to a length, or a number shown and limited by its kind.
struct EditColumn {
    QString head;
    std::optional<NumberKind> number; ///< nothing: a text column
    int characters = 0;               ///< of a text: the longest length
    QString complaint;                ///< of a text: the message for a text that is refused
    /// For a text: what is stored for it, or nothing if it is refused. By default every text is stored as it is.
    std::function<std::optional<QString>(const QString&)> keptAs = {};
    QString blank = {}; ///< of a text: the content of a new row

    struct Reading {
        EditCell cell;
        std::optional<Complaint> refusal; ///< why the content does not fit this column
    };
    /// What a typed or pasted text means in this column.
    Reading read(const QString& typed) const;
};

/// A column of Yes and No. Accepts y, n, yes and no in any case; an empty cell is No.
EditColumn yesNoColumn(const QString& head);

/// The rows of an EditGrid, always at least one.
class EditCells : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void set(std::vector<EditColumn> columns, std::vector<EditRow> rows);
    /// All rows, except a blank last one that was only offered for the next entry.
    std::vector<EditRow> rows() const;

    const EditColumn& column(const QModelIndex& cell) const { return m_columns[place(cell.column())]; }
    bool isBlank(const QModelIndex& cell) const;
    const EditCell& at(const QModelIndex& cell) const { return m_rows[place(cell.row())][place(cell.column())]; }
    void put(const QModelIndex& cell, EditCell content);
    /// Pastes rows of texts starting at a cell, and adds rows at the end as needed. If anything does not fit, returns
    /// the complaint and changes nothing.
    std::optional<Complaint> paste(const QModelIndex& from, const std::vector<QStringList>& texts);

    /// Adds a blank row for the next entry; false if the last one is blank already. The row counts once something is
    /// entered in it.
    bool offer();
    /// Deletes a row; the rows below move up.
    void erase(int row);

    /// The name of a cell for a screen reader.
    QString spokenName(const QModelIndex& cell) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& cell) const override;
    QVariant data(const QModelIndex& cell, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static std::size_t place(int number) { return static_cast<std::size_t>(number); }
    bool has(const QModelIndex& cell) const {
        return cell.isValid() && cell.row() < rowCount() && cell.column() < columnCount();
    }
    EditRow blankRow() const;
    bool isBlank(const EditRow& row) const;
    void append(std::size_t count = 1);
    std::optional<Complaint> read(const QStringList& texts, int row, int firstColumn, EditRow& into) const;

    std::vector<EditColumn> m_columns;
    std::vector<EditRow> m_rows;
    bool m_lastIsOffered = false;
};

} // namespace screenkit
