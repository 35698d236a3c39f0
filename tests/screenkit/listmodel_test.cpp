#include <QHeaderView>

#include "screenkit/editcells.h"
#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

/// One row: a fund's name, growth (none for a new fund), date.
const std::vector<std::array<GridCell, 3>> funds{{QString("Êland"), 0.5, 100.0},
                                                 {QString("bosbok"), {}, 50.0},
                                                 {QString(""), 12.25, 100.0},
                                                 {QString("Aalwyn"), -1.0, 0.0},
                                                 {QString("BOSBOK"), NAN, 300.0}};
const std::vector<GridColumn> columns{GridColumn::text(" Fund "), {"1 yr", "0.00"}, GridColumn::date("Started")};

GridRows rowsOfFunds() {
    return {funds.size(),
            [](std::size_t row, std::size_t column) { return funds[row].at(column); },
            [](std::size_t row) { return QString("fund %1").arg(row); },
            {QString("All"), 11.75}};
}

std::string order(const ListModel& model) {
    std::string rows;
    for (int line = 0; line < model.rowCount(); ++line)
        rows += model.rowAt(line) ? std::to_string(*model.rowAt(line)) : "+";
    return rows;
}

// Views, screen readers and the clipboard may ask for lines that no longer exist or never existed.
TEST(Models, AnswerNothingForLinesAndHeadsThatDoNotExist) {
    ListModel empty, headless, filled;
    headless.set(columns, {});
    filled.set(columns, rowsOfFunds());
    EditCells cells, blankCells;
    cells.set({{"Item", {}, 60, {}}, {"Amount", money, 0, {}}}, {{QString("a"), 1.0}, {QString("b"), 2.0}});
    for (QAbstractItemModel* model :
         std::initializer_list<QAbstractItemModel*>{&empty, &headless, &filled, &cells, &blankCells}) {
        const QModelIndex strange[] = {
            {}, model->index(-1, 0), model->index(0, 99), model->index(99, 0), model->index(0, -1)};
        for (const QModelIndex& index : strange) {
            ASSERT_FALSE(index.isValid());
            for (int role = 0; role <= Qt::UserRole; ++role)
                EXPECT_FALSE(model->data(index, role).isValid()) << role;
            EXPECT_EQ(model->flags(index) & (Qt::ItemIsSelectable | Qt::ItemIsEditable), Qt::NoItemFlags);
        }
        for (const int section : {-1, 3, 99, INT_MAX})
            for (const auto orientation : {Qt::Horizontal, Qt::Vertical})
                for (const int role : {Qt::DisplayRole, Qt::TextAlignmentRole, Qt::SizeHintRole})
                    EXPECT_FALSE(model->headerData(section, orientation, role).isValid()) << section;
    }
    // An index that a view kept from before the rows were removed.
    const QModelIndex before = filled.index(4, 2);
    filled.set({}, {});
    EXPECT_FALSE(filled.data(before, Qt::DisplayRole).isValid());
    EXPECT_EQ(filled.flags(before), Qt::NoItemFlags);
    EXPECT_FALSE(filled.rowAt(0) || filled.rowAt(-1));
}

TEST(ListModelTest, SortsEachKindOfColumnBothWaysWithBlanksLowestAndEqualRowsInTheirOwnOrder) {
    ListModel model;
    model.set(columns, rowsOfFunds());
    const std::tuple<int, Qt::SortOrder, const char*> cases[] = {
        // the totals stay last
        {0, Qt::AscendingOrder, "23140+"},  {0, Qt::DescendingOrder, "01432+"}, {1, Qt::AscendingOrder, "14302+"},
        {1, Qt::DescendingOrder, "20314+"}, {2, Qt::AscendingOrder, "31024+"},  {2, Qt::DescendingOrder, "40213+"},
        {-1, Qt::AscendingOrder, "01234+"}, {7, Qt::DescendingOrder, "01234+"},
    };
    for (const auto& [column, way, expected] : cases) {
        model.sort(column, way);
        EXPECT_EQ(order(model), expected) << column << way;
    }
    model.sort(2, Qt::DescendingOrder);
    model.narrow(std::vector<std::size_t>{3, 0, 1});
    EXPECT_EQ(order(model), "013+");
    model.sort(0, Qt::AscendingOrder);
    EXPECT_EQ(order(model), "310+") << "the sort keeps to what is shown";
    model.narrow({});
    EXPECT_EQ(order(model), "23140+");
}

struct GridTest : KitTest {
    Grid* make(Grid::Picking picking) {
        auto* grid = new Grid("grdFunds", screen);
        grid->setPicking(picking);
        grid->setSortable(true);
        grid->show(columns, rowsOfFunds());
        grid->pickChanged = [this] { ++picks; };
        grid->setGeometry(0, 0, 500, 300);
        grid->setVisible(true);
        grid->setFocus();
        settle();
        return grid;
    }
    void clickLine(Grid* grid, int line) {
        click(grid->viewport(), grid->visualRect(grid->model()->index(line, 0)).center());
    }
    void clickHead(Grid* grid, int column) {
        const QHeaderView* heads = grid->horizontalHeader();
        click(heads->viewport(), QPoint(heads->sectionViewportPosition(column) + 9, heads->height() / 2));
    }
    static std::string picked(const Grid* grid) {
        std::string rows;
        for (const std::size_t row : grid->picked())
            rows += std::to_string(row);
        return rows;
    }
    static std::string shownRows(const Grid* grid) { return order(*static_cast<ListModel*>(grid->model())); }
    int picks = 0;
};

TEST_F(GridTest, HeadsSortByClickAndByKeyAndWhatIsPickedGoesAlong) {
    Grid* grid = make(Grid::Picking::one);
    EXPECT_EQ(picked(grid), "");
    for (const auto& [press, to] : {std::pair{"Down", "0"}, {"End", "4"}, {"Down", "4"}, {"Home", "0"}}) {
        act(press);
        EXPECT_EQ(picked(grid), to) << "the first, not the second, and never the totals";
    }
    for (const auto& [press, expected] : {std::pair{"head", "23140+"},
                                          {"head", "01432+"},
                                          {"Ctrl+3", "31024+"},
                                          {"head", "23140+"},
                                          {"Ctrl+9", "23140+"}}) {
        if (press == std::string("head"))
            clickHead(grid, 0);
        else
            act(press);
        EXPECT_EQ(shownRows(grid), expected);
        EXPECT_EQ(picked(grid), "0");
        EXPECT_EQ(grid->current(), 0U);
    }
    int pressed = -1;
    grid->headPressed = [&](int column) { pressed = column; };
    clickHead(grid, 1);
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(shownRows(grid), "23140+") << "a screen with an order of its own sorts itself";
    grid->setSortable(false);
    clickHead(grid, 2);
    EXPECT_EQ(pressed, 1);
}

TEST_F(GridTest, ASinglePickIsDroppedWhenHiddenAndSeveralAreKept) {
    Grid* grid = make(Grid::Picking::several);
    for (const int line : {1, 3, 4, 3})
        clickLine(grid, line);
    act("Up Up Up Space"); // the arrows move without picking
    EXPECT_EQ(picked(grid), "014");
    grid->narrow(std::vector<std::size_t>{2, 4});
    key(Qt::Key_1, Qt::ControlModifier);
    clickLine(grid, 0);
    EXPECT_EQ(picked(grid), "0124");
    clickLine(grid, 1);
    grid->narrow({});
    EXPECT_EQ(picked(grid), "012");
    EXPECT_EQ(grid->selectionModel()->selectedRows().size(), 3);

    Grid* one = make(Grid::Picking::one);
    clickLine(one, 1);
    clickLine(one, 2);
    EXPECT_EQ(picked(one), "2");
    picks = 0;
    one->narrow(std::vector<std::size_t>{1, 2});
    EXPECT_EQ(picked(one) + std::to_string(picks), "20");
    one->narrow(std::vector<std::size_t>{0});
    EXPECT_EQ(picked(one) + std::to_string(picks), "1") << "what can't be seen is not picked";
    clickLine(one, 1); // the line of totals
    EXPECT_EQ(picked(one), "");
}

TEST_F(GridTest, CopiesPickedLinesUnderTheirHeadsAndSaysWhyItIsEmpty) {
    Grid* grid = make(Grid::Picking::stretch);
    QApplication::clipboard()->setText("before");
    grid->narrow(std::vector<std::size_t>{});
    act("Ctrl+C Ctrl+A Ctrl+C Ctrl+1");
    EXPECT_EQ(QApplication::clipboard()->text(), "before") << "no line, nothing copied";
    grid->narrow(std::vector<std::size_t>{0, 3});
    act("Ctrl+A Ctrl+C");
    EXPECT_EQ(QApplication::clipboard()->text(),
              "Fund\t1 yr\tStarted\nAalwyn\t-1.00\t30/12/1899\nÊland\t0.50\t09/04/1900\nAll\t11.75\t");
    EXPECT_EQ(grid->model()->index(0, 1).data(Qt::AccessibleTextRole), "1 yr: -1.00");
    EXPECT_TRUE(grid->model()->index(2, 0).data(Qt::FontRole).value<QFont>().bold()) << "the totals";
    EXPECT_FALSE(grid->model()->flags(grid->model()->index(2, 0)).testFlag(Qt::ItemIsSelectable));
    grid->setEmptyText("nobody");
    EXPECT_FALSE(get("grdFundsEmpty")->isVisible());
    grid->clear();
    EXPECT_TRUE(get("grdFundsEmpty")->isVisible());
    EXPECT_EQ(grid->accessibleDescription(), "nobody");
    key(Qt::Key_C, Qt::ControlModifier);
}

TEST_F(GridTest, ADoubleClickAndEnterOpenALineAndNothingElse) {
    Grid* grid = make(Grid::Picking::one);
    std::string opened;
    grid->opened = [&] { opened += picked(grid); };
    key(Qt::Key_Return); // nothing is picked: Enter presses the default button
    EXPECT_EQ(screen->runs, 1);
    const auto twice = [&](int line) {
        QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {},
                           grid->visualRect(grid->model()->index(line, 0)).center());
    };
    clickLine(grid, 2);
    twice(2);
    twice(5);
    clickLine(grid, 2);
    key(Qt::Key_Enter);
    EXPECT_EQ(opened, "22");
}

} // namespace
} // namespace screenkit
