#include "screenkit/grid.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>

#include "base/numberformat.h"
#include "screenkit/look.h"
#include "screenkit/tabletext.h"

namespace screenkit {

namespace {

class Figures : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void set(std::vector<GridColumn> columns, std::vector<std::vector<double>> rows) {
        beginResetModel();
        m_columns = std::move(columns);
        m_rows = std::move(rows);
        endResetModel();
    }
    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }
    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        if (role != Qt::DisplayRole) return {};
        const auto column = static_cast<std::size_t>(index.column());
        const double figure = m_rows[static_cast<std::size_t>(index.row())][column];
        return QString::fromStdString(base::formatNumber(figure, m_columns[column].mask));
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal) return {};
        if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        if (role != Qt::DisplayRole) return {};
        return m_columns[static_cast<std::size_t>(section)].head.trimmed();
    }

private:
    std::vector<GridColumn> m_columns;
    std::vector<std::vector<double>> m_rows;
};

} // namespace

Grid::Grid(const QString& name, QWidget* parent) : QTableView(parent) {
    setObjectName(name);
    setModel(new Figures(this));
    setAlternatingRowColors(true);
    setShowGrid(false);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
}

void Grid::show(std::vector<GridColumn> columns, std::vector<std::vector<double>> rows) {
    static_cast<Figures*>(model())->set(std::move(columns), std::move(rows));
    verticalHeader()->setDefaultSectionSize(look::lineHeight(this) * 3 / 2);
    if (model()->rowCount() > 0) setCurrentIndex(model()->index(0, 0));
}

void Grid::clear() { show({}, {}); }

QSize Grid::sizeHint() const {
    constexpr int visibleRows = 11; // a head and ten rows before it scrolls
    const int line = look::lineHeight(this);
    return {fontMetrics().averageCharWidth() * 80, line * 3 / 2 * (visibleRows + 1)};
}

void Grid::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        copySelection();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->ignore(); // the panel's default button
    else
        QTableView::keyPressEvent(event);
}

void Grid::copySelection() const {
    if (selectionModel()->hasSelection()) QGuiApplication::clipboard()->setText(tableText(selectedIndexes()));
}

} // namespace screenkit
