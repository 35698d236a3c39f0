#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

const QString tooLong = "At most five";
const QString tooMuch = "0 to 100";

/// A screen with a table of three columns between two fields.
class GridScreen : public Screen {
public:
    explicit GridScreen(Workplace& work) : Screen(work, "frmGrid", "Grid", untracked()) {
        before = text("txtBefore", m_before, 10);
        grid = editGrid("grdItems");
        body(column({before, grid, text("txtAfter", m_after, 10), button("cmdAct", "&Act", [this] { ++acts; }),
                     cancelButton("cmdCancel", "&Cancel", [] {})}));
        defaultButton(findChild<QPushButton*>("cmdAct"));
    }
    void show(std::vector<EditRow> rows) {
        const NumberKind kind{"### ##0.##", false, 9};
        grid->present({{"Item", {}, 5, tooLong},
                       {"Amount", kind.between(0, 100, tooMuch, {}), 0, {}},
                       {"Age", kind.between(0, 100, tooMuch, {}), 0, {}}},
                      std::move(rows), 5);
    }
    TextField* before;
    EditGrid* grid;
    int acts = 0;

private:
    std::string m_before, m_after;
};

struct Way {
    const char* name;
    std::function<void()> leave;
};

struct EditGridTest : KitTest {
    EditGridTest() : grids(new GridScreen(bench.workplace)), gridChild(area.addSubWindow(grids)) {
        gridChild->setGeometry(0, 0, 700, 500);
        gridChild->show();
        area.setActiveSubWindow(gridChild);
        grids->activate();
        settle();
    }
    ~EditGridTest() override { grids->drop(); }

    EditGrid& grid() { return *grids->grid; }
    void show(std::vector<EditRow> rows, int row = 0, int column = 0) {
        grids->show(std::move(rows));
        grid().setFocus(Qt::OtherFocusReason);
        goTo(row, column);
    }
    void goTo(int row, int column) { grid().setCurrentIndex(grid().model()->index(row, column)); }
    QPoint at(int row, int column) { return grid().visualRect(grid().model()->index(row, column)).center(); }
    std::pair<int, int> place() { return {grid().currentIndex().row(), grid().currentIndex().column()}; }
    bool inEdit() { return focus() == "grdItemsCell"; }
    std::function<void()> presses(Qt::Key pressed, Qt::KeyboardModifiers with = {}) {
        return [this, pressed, with] { key(pressed, with); };
    }
    std::function<void()> clicks(QWidget* target, QPoint where = {}) {
        return [this, target, where] { click(target, where); };
    }
    /// Every way out of a cell of the first row that is in edit.
    std::vector<Way> waysOut() {
        return {{"Tab", presses(Qt::Key_Tab)},
                {"Shift+Tab", presses(Qt::Key_Tab, Qt::ShiftModifier)},
                {"Enter", presses(Qt::Key_Enter)},
                {"Escape", presses(Qt::Key_Escape)},
                {"Up", presses(Qt::Key_Up)},
                {"Down", presses(Qt::Key_Down)},
                {"another cell", clicks(grid().viewport(), at(1, 0))},
                {"below the rows", clicks(grid().viewport(), at(1, 0) + QPoint(0, 60))},
                {"another field", clicks(grids->before)},
                {"a button", clicks(grids->findChild<QPushButton*>("cmdAct"))},
                {"its access key", presses(Qt::Key_A, Qt::AltModifier)},
                {"a command of the main window", [this] { grids->checkFields(); }}};
    }

    GridScreen* grids;
    QMdiSubWindow* gridChild;
};

using Rows = std::vector<EditRow>;
const Rows twoRows{{"Farm", 12.3456, 1.0}, {"Shop", 50.0, 2.0}};

TEST_F(EditGridTest, aListIsTypedByKeyboardAlone) {
    show({});
    type("Farm");
    key(Qt::Key_Tab);
    type("12,5");
    key(Qt::Key_Return);
    type(" 1 0 ");
    key(Qt::Key_Return); // the last cell: a new row
    EXPECT_EQ(place(), std::pair(1, 0));
    type("Shop");
    key(Qt::Key_Down); // past the last row
    EXPECT_EQ(place(), std::pair(2, 0));
    key(Qt::Key_Down); // no second blank row
    key(Qt::Key_Tab);
    EXPECT_EQ(place(), std::pair(2, 1));
    type("7.5");
    key(Qt::Key_Up);
    EXPECT_EQ(place(), std::pair(1, 1));
    key(Qt::Key_Tab, Qt::ShiftModifier);
    key(Qt::Key_F2);
    key(Qt::Key_End);
    type("2");
    key(Qt::Key_Escape);
    EXPECT_FALSE(inEdit());
    goTo(2, 2);
    key(Qt::Key_Tab);
    EXPECT_EQ(place(), std::pair(3, 0));
    EXPECT_EQ(grid().rows(), (Rows{{"Farm", 12.5, 10.0}, {"Shop2", 0.0, 0.0}, {"", 7.5, 0.0}})) << "without the offer";
    goTo(3, 2);
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "txtAfter") << "from a blank last row Tab goes on";
    key(Qt::Key_Tab, Qt::ShiftModifier);
    goTo(0, 0);
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focus(), "txtBefore");
}

TEST_F(EditGridTest, everyWayOutTakesAGoodEntryAndTellsOfABadOneOnce) {
    const struct {
        int column;
        const char *good, *typed;
        QString told;
        std::string held;
    } cells[] = {{0, "Ṱhoho", "Houses", tooLong, "Farm"}, {1, "100", "100.01", tooMuch, "12.35"}};
    show(twoRows);
    for (const auto& cell : cells)
        for (const Way& way : waysOut()) {
            SCOPED_TRACE(testing::Message() << way.name << " from column " << cell.column);
            show(twoRows, 0, cell.column);
            type(cell.good);
            way.leave();
            EXPECT_EQ(grid().model()->index(0, cell.column).data(), cell.good);
            EXPECT_TRUE(desk.boxes.empty());
            grids->acts = 0;

            show(twoRows, 0, cell.column);
            type(cell.typed);
            desk.expect(Answer::ok);
            way.leave();
            settle();
            ASSERT_EQ(desk.boxes.size(), 1U);
            EXPECT_EQ(desk.last().text, cell.told);
            EXPECT_EQ(desk.last().title, "Marlowbeck");
            EXPECT_TRUE(inEdit()) << focus();
            EXPECT_EQ(place(), std::pair(0, cell.column));
            EXPECT_EQ(selected(), cell.held);
            EXPECT_EQ(grid().rows(), twoRows);
            EXPECT_EQ(grids->acts, 0);
            desk.boxes.clear();
        }
    key(Qt::Key_Tab); // what the cell got back lets the user go
    EXPECT_FALSE(inEdit());
}

TEST_F(EditGridTest, whatIsNotTypedOverKeepsEveryBitWhateverItIs) {
    const Rows old{{"Farmhouse", 12.3456, -500.0}};
    show(old);
    for (int i = 0; i < 3; ++i) {
        key(Qt::Key_Return);
        EXPECT_TRUE(inEdit());
        key(Qt::Key_Return);
    }
    EXPECT_EQ(grid().rows(), old);
}

TEST_F(EditGridTest, rowsAreDeletedAndOneStays) {
    show({{"a", 1.0, 0.0}, {"b", 2.0, 0.0}, {"c", 3.0, 0.0}}, 1, 1);
    key(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(grid().rows(), (Rows{{"a", 1.0, 0.0}, {"c", 3.0, 0.0}}));
    EXPECT_EQ(place(), std::pair(1, 1));
    key(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(place(), std::pair(0, 1));
    key(Qt::Key_Delete); // empties the cell alone
    EXPECT_TRUE(inEdit());
    key(Qt::Key_Escape);
    EXPECT_EQ(grid().rows(), (Rows{{"a", 0.0, 0.0}}));
    for (int i = 0; i < 2; ++i)
        key(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(grid().rows(), (Rows{{"", 0.0, 0.0}}));
}

TEST_F(EditGridTest, mousePasteAndScreenReaderKnowTheCells) {
    show(twoRows);
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, grid().viewport()->mapTo(&window, at(1, 1)));
    settle();
    EXPECT_TRUE(inEdit());
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Amount, row 2");
    key(Qt::Key_Escape);
    paste("7");
    key(Qt::Key_Escape);
    EXPECT_EQ(grid().rows(), (Rows{twoRows[0], {"Shop", 7.0, 2.0}}));
    EXPECT_EQ(grid().currentIndex().data(Qt::AccessibleTextRole), "Amount, row 2: 7");
}

TEST_F(EditGridTest, whatCannotBeReadStaysMarkedInItsCellUntilItIsMended) {
    show(twoRows, 0, 1);
    for (const char* typed : {"1.2.3", "12x"})
        for (const Way& way : waysOut()) {
            if (QString(way.name) == "Escape") continue;
            SCOPED_TRACE(testing::Message() << typed << ", " << way.name);
            if (inEdit()) key(Qt::Key_Escape);
            key(Qt::Key_F2);
            qobject_cast<QLineEdit*>(QApplication::focusWidget())->selectAll();
            paste(typed);
            desk.boxes.clear();
            desk.expect(Answer::ok);
            way.leave();
            settle();
            ASSERT_EQ(desk.boxes.size(), 1U);
            EXPECT_EQ(selected(), typed);
            EXPECT_EQ(grid().rows(), twoRows);
        }
    key(Qt::Key_Escape);
    EXPECT_EQ(selected(), "12.35") << "Escape gives back what the cell held";
    key(Qt::Key_Escape);
    EXPECT_FALSE(inEdit());
    EXPECT_EQ(grid().rows(), twoRows);
}

TEST_F(EditGridTest, rowsOfASpreadsheetArePastedWholeOrNotAtAll) {
    const struct {
        const char* copied;
        int row, column;
        Rows held;
        const char* told; // nothing: they are taken
    } cases[] = {
        {"a\tR 1,5\t7\r\nb\t2\t8\r\nc\t\t9\r\n",
         1,
         0,
         {twoRows[0], {"a", 1.5, 7.0}, {"b", 2.0, 8.0}, {"c", 0.0, 9.0}},
         nullptr},
        {"7\n8", 0, 1, {{"Farm", 7.0, 1.0}, {"Shop", 8.0, 2.0}}, nullptr},      // what lies beside stays
        {"\"a\nb\"\t1", 0, 0, {{"a b", 1.0, 1.0}, twoRows[1]}, nullptr},        // a line end within a cell
        {"Amount\tAge\n3\t4", 1, 1, {twoRows[0], {"Shop", 3.0, 4.0}}, nullptr}, // copied here, with its heads
        {"a\t1\nb\tmany", 0, 0, twoRows, "Row 2, Amount: “many” can't be read"},
        {"a\t1\nHouses\t2", 0, 0, twoRows, "Row 2, Item: At most five"},
        {"1\n100.5", 0, 2, twoRows, "Row 2, Age: 0 to 100"},
        {"1\t2\t3", 0, 1, twoRows, "Row 1 has more cells"},
    };
    for (const auto& c : cases)
        for (const bool fromTheCell : {false, true}) {
            SCOPED_TRACE(testing::Message() << c.copied << (fromTheCell ? " in edit" : ""));
            show(twoRows, c.row, c.column);
            if (fromTheCell) key(Qt::Key_F2);
            desk.boxes.clear();
            if (c.told != nullptr) desk.expect(Answer::ok);
            paste(c.copied);
            settle();
            EXPECT_EQ(grid().rows(), c.held);
            ASSERT_EQ(desk.boxes.size(), c.told != nullptr ? 1U : 0U);
            EXPECT_TRUE(c.told == nullptr || desk.last().text.startsWith(c.told)) << desk.last().text.toStdString();
        }
    show(twoRows);
    grid().setCurrentIndex({}); // nothing is chosen
    paste("x\t5");
    EXPECT_EQ(grid().rows()[0], (EditRow{"x", 5.0, 1.0}));
}

TEST_F(EditGridTest, cellsAreCopiedBelowTheirHeadsAndOneCellAlone) {
    show({{"\"Farm\"", 12.3456, 1.0}, twoRows[1]});
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Item\tAmount\tAge\n\"\"\"Farm\"\"\"\t12.35\t1\nShop\t50\t2");
    goTo(1, 1);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "50");
}

TEST_F(EditGridTest, enterOnAnEmptyCellWalksOn) {
    show({{"a", 0.0, 3.0}});
    goTo(0, 1);
    key(Qt::Key_Return);
    EXPECT_EQ(place(), std::pair(0, 2));
    key(Qt::Key_Return);
    EXPECT_TRUE(inEdit()) << "a filled one is edited";
}

TEST_F(EditGridTest, aColumnOfYesAndNoTakesTheWordInAnyFormAndNoOther) {
    grid().present({{"Item", {}, 9, {}}, yesNoColumn("Split?")}, {{"a", "No"}}, 5);
    grid().setFocus(Qt::OtherFocusReason);
    const struct {
        const char *typed, *kept;
    } cases[] = {{"y", "Yes"}, {" N ", "No"}, {"YES", "Yes"}, {"no", "No"}, {"maybe", nullptr}, {"", "No"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        goTo(0, 1);
        key(Qt::Key_Delete);
        type(c.typed);
        if (c.kept == nullptr) desk.expect(Answer::ok);
        key(Qt::Key_Return);
        if (c.kept == nullptr)
            EXPECT_EQ(desk.last().text, "Please enter Yes or No.");
        else
            EXPECT_EQ(grid().rows()[0][1], EditCell(c.kept));
        key(Qt::Key_Escape);
    }
    EXPECT_EQ(grid().rows().size(), 1U) << "a new row with its No is still blank";
}

} // namespace
} // namespace screenkit
