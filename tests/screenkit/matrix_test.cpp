#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

/// Two rows of two amounts; the second row also has options for which of them counts.
class MatrixScreen : public Screen {
public:
    explicit MatrixScreen(Workplace& work) : Screen(work, "frmMatrix", "Matrix", work.record.changed.LoansChanged) {
        taken = options("optTaken", {"T", "T"}, chosen, {}, {});
        const auto beside = [this](int column, NumberField* amount) { return row({amount, taken->option(column)}); };
        body(column({matrix({"&Resignation", "Retirement or death"},
                            {{"01/03/2025 to 28/02/2026", {cell(0), cell(1)}},
                             {"Th&is year :", {beside(0, cell(2)), beside(1, cell(3))}},
                             {"None", {spring(), cell(4)}}}),
                     okButton()}));
    }
    NumberField* cell(int index) { return number(QString("num%1").arg(index), amounts[index], money); }

    double amounts[5] = {};
    std::int16_t chosen = -1;
    OptionGroup* taken = nullptr;
};

struct MatrixTest : KitTest {
    MatrixScreen* shown = bring(new MatrixScreen(bench.workplace));
};

TEST_F(MatrixTest, eachFieldIsCalledByItsRowAndItsColumn) {
    const std::pair<const char*, const char*> names[] = {{"num0", "01/03/2025 to 28/02/2026, Resignation"},
                                                         {"num3", "This year, Retirement or death"},
                                                         {"optTaken(0)", "This year, Resignation, T"},
                                                         {"optTaken(1)", "This year, Retirement or death, T"},
                                                         {"num4", "None, Retirement or death"}};
    for (const auto& [control, name] : names)
        EXPECT_EQ(get(control)->accessibleName(), name);
    const auto place = [this](const char* name) { return QRect(get(name)->mapTo(shown, QPoint()), get(name)->size()); };
    EXPECT_EQ(place("num0").left(), place("num2").left());
    EXPECT_EQ(place("num4").left(), place("num3").left()) << "the empty cell keeps its column";
    EXPECT_GT(place("optTaken(0)").left(), place("num2").right());
    EXPECT_LT(place("optTaken(0)").right(), place("num3").left());
    EXPECT_EQ(after("Alt+I"), "num2");
    EXPECT_EQ(after("Alt+R"), "num0");
}

TEST_F(MatrixTest, separateOptionsAreOneTabStopAndOneChoice) {
    const auto around = [this] {
        std::string stops;
        go("num2");
        for (int i = 0; i < 3; ++i)
            stops += after("Tab") + " ";
        return stops;
    };
    EXPECT_EQ(around(), "optTaken(0) num3 num4 ");
    shown->taken->option(0)->setEnabled(false);
    EXPECT_EQ(around(), "num3 optTaken(1) num4 ") << "the first is greyed: Tab stops at the one that can be picked";
    shown->taken->option(1)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(after("Up Down Up"), "optTaken(1)");
    EXPECT_EQ(shown->chosen, 1);
    EXPECT_EQ(changed(), 1);
    shown->taken->option(0)->setEnabled(true);
    EXPECT_EQ(around(), "num3 optTaken(1) num4 ") << "the one that holds";
    EXPECT_EQ(after("Backtab Left"), "optTaken(0)") << "the arrows cross the fields between them";
    EXPECT_EQ(shown->chosen, 0);
    EXPECT_FALSE(shown->taken->option(1)->isChecked());
    shown->taken->option(0)->setEnabled(false);
    EXPECT_EQ(around(), "num3 optTaken(1) num4 ") << "the one that holds can't be reached: the other way must stay";
    shown->chosen = -1;
    shown->activate();
    shown->taken->option(1)->hide();
    shown->taken->option(0)->setEnabled(true);
    EXPECT_EQ(around(), "optTaken(0) num3 num4 ");
    go("num2");
    EXPECT_EQ(after("Return"), "optTaken(0)") << "Enter walks over it like over any field";
}

} // namespace
} // namespace screenkit
