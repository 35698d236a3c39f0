#pragma once

#include <QTableView>
#include <string>
#include <vector>

namespace screenkit {

/// A column of figures: its head and the mask of its numbers.
struct GridColumn {
    QString head;
    std::string mask;
};

/// A read-only table of numbers, walked by the arrow keys; Ctrl+C copies the selected rows below
/// their heads, as `tableText` tells.
class Grid : public QTableView {
    Q_OBJECT
public:
    explicit Grid(const QString& name, QWidget* parent = nullptr);

    /// rows: one list of figures a row, as many as there are columns. Blanks at the ends of the heads are not shown.
    void show(std::vector<GridColumn> columns, std::vector<std::vector<double>> rows);
    void clear();
    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void copySelection() const;
};

} // namespace screenkit
