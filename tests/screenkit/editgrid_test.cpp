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

struct EditGridTest : KitTest {
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
    /// Leaves the edited cell of the first row in one of the `waysOut`.
    void leave(const QString& way) {
        if (way == "command of the main window")
            grids->checkFields();
        else if (way.contains("cell") || way.contains("below"))
            click(grid().viewport(), at(1, 0) + QPoint(0, way == "below the rows" ? 60 : 0));
        else
            act(way);
        settle();
    }
    const std::vector<const char*> waysOut{"Tab",        "Shift+Tab", "Enter",        "Esc",
                                           "Up",         "Down",      "another cell", "below the rows",
                                           "@txtBefore", "@cmdAct",   "Alt+A",        "command of the main window"};
    GridScreen* grids = bring(new GridScreen(bench.workplace), {0, 0, 700, 500});
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
    act("Down Tab"); // no second blank row
    EXPECT_EQ(place(), std::pair(2, 1));
    type("7.5");
    key(Qt::Key_Up);
    EXPECT_EQ(place(), std::pair(1, 1));
    act("Shift+Tab Up F2 End");
    type("2");
    key(Qt::Key_Escape);
    EXPECT_FALSE(inEdit());
    goTo(2, 2);
    key(Qt::Key_Tab);
    EXPECT_EQ(place(), std::pair(3, 0));
    EXPECT_EQ(grid().rows(), (Rows{{"Farm2", 12.5, 10.0}, {"Shop", 0.0, 0.0}, {"", 7.5, 0.0}})) << "without the offer";
    goTo(3, 2);
    EXPECT_EQ(after("Tab"), "txtAfter") << "from a blank last row Tab goes on";
    key(Qt::Key_Tab, Qt::ShiftModifier);
    goTo(0, 0);
    EXPECT_EQ(after("Shift+Tab"), "txtBefore");
}

TEST_F(EditGridTest, everyWayOutTakesAGoodEntryAndTellsOfABadOneOnce) {
    // column, a good entry, a bad one, what is told of it, and what is then selected: what the cell held, or what can't
    // be read
    const std::tuple<int, const char*, const char*, QString, std::string> cells[] = {
        {0, "Ṱhoho", "Houses", tooLong, "Farm"},
        {1, "100", "100.01", tooMuch, "12.35"},
        {1, "7", "12x", "can't be read", "12x"}};
    for (const auto& [column, good, bad, told, left] : cells)
        for (const char* way : waysOut) {
            SCOPED_TRACE(testing::Message() << way << " from column " << column);
            if (inEdit()) key(Qt::Key_Escape);
            show(twoRows, 0, column);
            type(good);
            leave(way);
            EXPECT_EQ(grid().model()->index(0, column).data(), good);
            grids->acts = 0;

            if (left == bad && way == std::string("Esc")) continue; // gives back what the cell held
            show(twoRows, 0, column);
            type(bad);
            const auto box = desk.told([&] { leave(way); });
            EXPECT_TRUE(box.text.contains(told)) << box.text.toStdString();
            EXPECT_EQ(box.title, "Marlowbeck");
            EXPECT_TRUE(inEdit()) << focus();
            EXPECT_EQ(place(), std::pair(0, column));
            EXPECT_EQ(selected(), left);
            EXPECT_EQ(grid().rows(), twoRows);
            EXPECT_EQ(grids->acts, 0);
        }
    key(Qt::Key_Escape);
    EXPECT_EQ(selected(), "12.35") << "Escape gives back what the cell held";
    key(Qt::Key_Tab); // which lets the user leave
    EXPECT_FALSE(inEdit());
}

TEST_F(EditGridTest, whatIsNotTypedOverKeepsEveryBitWhateverItIs) {
    const Rows old{{"Farmhouse", 12.3456, -500.0}};
    show(old);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(after("Return"), "grdItemsCell");
        key(Qt::Key_Return);
    }
    EXPECT_EQ(grid().rows(), old);
    show({{"a", 0.0, 3.0}}, 0, 1);
    EXPECT_EQ(after("Return Return"), "grdItemsCell");
    EXPECT_EQ(place(), std::pair(0, 2)) << "Enter on an empty cell walks on";
}

TEST_F(EditGridTest, rowsAreDeletedAndOneStays) {
    const std::tuple<const char*, Rows, int> steps[] = {
        {"Ctrl+Del", {{"a", 1.0, 0.0}, {"c", 3.0, 0.0}}, 1},
        {"Ctrl+Del", {{"a", 1.0, 0.0}}, 0},
        {"Del Esc", {{"a", 0.0, 0.0}}, 0}, // empties only the cell
        {"Ctrl+Del Ctrl+Del", {{"", 0.0, 0.0}}, 0},
    };
    show({{"a", 1.0, 0.0}, {"b", 2.0, 0.0}, {"c", 3.0, 0.0}}, 1, 1);
    for (const auto& [keys, left, row] : steps) {
        act(keys);
        EXPECT_EQ(grid().rows(), left);
        EXPECT_EQ(place(), std::pair(row, 1));
    }
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

TEST_F(EditGridTest, rowsOfASpreadsheetArePastedWholeOrNotAtAll) {
    const char* const taken = nullptr; // no message
    const std::tuple<const char*, int, int, Rows, const char*> cases[] = {
        {"a\tR 1,5\t7\r\nb\t2\t8\r\n", 1, 0, {twoRows[0], {"a", 1.5, 7.0}, {"b", 2.0, 8.0}}, nullptr},
        {"a\tR 1,5\t7\nb\t\t9", 0, 0, {{"a", 1.5, 7.0}, {"b", 0.0, 9.0}}, nullptr}, // an empty cell is 0
        {"7\n8", 0, 1, {{"Farm", 7.0, 1.0}, {"Shop", 8.0, 2.0}}, nullptr},          // the other cells stay
        {"\"a\nb\"\t1", 0, 0, {{"a b", 1.0, 1.0}, twoRows[1]}, nullptr},            // a line break inside a cell
        {"Amount\tAge\n3\t4", 1, 1, {twoRows[0], {"Shop", 3.0, 4.0}}, nullptr},     // copied from this table with heads
        {"a\t1\nb\tmany", 0, 0, twoRows, "Row 2, Amount: “many” can't be read"},
        {"a\t1\nHouses\t2", 0, 0, twoRows, "Row 2, Item: At most five"},
        {"1\n100.5", 0, 2, twoRows, "Row 2, Age: 0 to 100"},
        {"1\t2\t3", 0, 1, twoRows, "Row 1 has more cells"},
    };
    for (const auto& [copied, row, column, held, told] : cases)
        for (const bool fromTheCell : {false, true}) {
            SCOPED_TRACE(testing::Message() << copied << (fromTheCell ? " in edit" : ""));
            show(twoRows, row, column);
            if (fromTheCell) key(Qt::Key_F2);
            if (told != nullptr) desk.expect(Answer::ok);
            paste(copied);
            settle();
            EXPECT_EQ(grid().rows(), held);
            EXPECT_TRUE(told == taken || desk.last().text.startsWith(told)) << desk.last().text.toStdString();
        }
    show(twoRows);
    grid().setCurrentIndex({}); // nothing is chosen
    paste("x\t5");
    EXPECT_EQ(grid().rows()[0], (EditRow{"x", 5.0, 1.0}));
}

TEST_F(EditGridTest, cellsAreCopiedBelowTheirHeadsAndOneCellAlone) {
    show({{"\"Farm\"", 12.3456, 1.0}, twoRows[1]});
    act("Ctrl+A Ctrl+C");
    EXPECT_EQ(QApplication::clipboard()->text(), "Item\tAmount\tAge\n\"\"\"Farm\"\"\"\t12.35\t1\nShop\t50\t2");
    goTo(1, 1);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "50");
}

TEST_F(EditGridTest, aColumnOfYesAndNoTakesTheWordInAnyFormAndNoOther) {
    grid().present({{"Item", {}, 9, {}}, yesNoColumn("Split?")}, {{"a", "No"}}, 5);
    grid().setFocus(Qt::OtherFocusReason);
    const std::pair<const char*, const char*> cases[] = {{"y", "Yes"}, {" N ", "No"},      {"YES", "Yes"},
                                                         {"no", "No"}, {"maybe", nullptr}, {"", "No"}};
    for (const auto& [typed, kept] : cases) {
        SCOPED_TRACE(typed);
        goTo(0, 1);
        key(Qt::Key_Delete);
        type(typed);
        if (kept == nullptr)
            EXPECT_EQ(desk.told([&] { act("Return"); }).text, "Please enter Yes or No.");
        else
            act("Return");
        EXPECT_TRUE(kept == nullptr || grid().rows()[0][1] == EditCell(kept));
        key(Qt::Key_Escape);
    }
    EXPECT_EQ(grid().rows().size(), 1U) << "a new row with its No is still blank";
}

} // namespace
} // namespace screenkit
