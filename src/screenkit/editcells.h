#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

#include "screenkit/numberfield.h"

namespace screenkit {

using EditCell = std::variant<QString, double>; ///< text and number in the order of the columns
using EditRow = std::vector<EditCell>;

/// A column that the user fills: a text of so many characters, or a number shown and limited by its kind.
struct EditColumn {
    QString head;
    std::optional<NumberKind> number; ///< nothing: a text
    int characters = 0;               ///< of a text: at most this many
    QString complaint;                ///< of a text: the box for one that can't stand
    /// Of a text: what it is kept as, or nothing where it can't stand. By default every text is kept as it is.
    std::function<std::optional<QString>(const QString&)> keptAs = {};
    QString blank = {}; ///< of a text: what a new row holds

    struct Reading {
        EditCell cell;
        std::optional<Complaint> refusal; ///< no content for this column
    };
    /// What a typed or pasted text comes to here.
    Reading read(const QString& typed) const;
};

/// A column of Yes and No. It takes y, n, yes and no in any case; an empty cell is No.
EditColumn yesNoColumn(const QString& head);

/// The rows behind an EditGrid, never fewer than one.
class EditCells : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void set(std::vector<EditColumn> columns, std::vector<EditRow> rows);
    /// All rows but a last one that was offered and is blank.
    std::vector<EditRow> rows() const;

    const EditColumn& column(const QModelIndex& cell) const { return m_columns[place(cell.column())]; }
    bool isBlank(const QModelIndex& cell) const;
    const EditCell& at(const QModelIndex& cell) const { return m_rows[place(cell.row())][place(cell.column())]; }
    void put(const QModelIndex& cell, EditCell content);
    /// Puts rows of texts over the cells from one on, new rows behind the last. What does not fit is told, and then
    /// nothing is taken.
    std::optional<Complaint> paste(const QModelIndex& from, const std::vector<QStringList>& texts);

    /// Adds a blank row for a next entry, unless the last one is blank already; false then. It counts once something is
    /// in it.
    bool offer();
    /// Those below move up.
    void erase(int row);

    /// What a screen reader calls a cell.
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
