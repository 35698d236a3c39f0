#include <QToolButton>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

QRadioButton* option(KitScreen* screen, int index) { return screen->findChild<OptionGroup*>("optMode")->option(index); }

TEST_F(KitTest, anOptionIsPickedByMouseAndByTheArrows) {
    int picks = 0; // the arrows go round at both ends
    for (const auto& [pick, held] : {std::pair("@optMode(2)", 2), {"Down", 0}, {"Right", 1}, {"Up", 0}, {"Left", 2}}) {
        SCOPED_TRACE(pick);
        changed() = 0;
        EXPECT_EQ(after(pick), "optMode(" + std::to_string(held) + ")");
        EXPECT_EQ(places.mode, held);
        EXPECT_TRUE(option(screen, held)->isChecked());
        EXPECT_EQ(changed(), 1);
        EXPECT_EQ(screen->picks, ++picks);
    }
    changed() = 0;
    act("@optMode(2) Space");
    EXPECT_EQ(changed(), 0) << "picking what holds already is no edit";

    option(screen, 0)->setEnabled(false);
    key(Qt::Key_Down);
    EXPECT_EQ(places.mode, 1) << "an option that can't be picked is passed over";
    option(screen, 0)->setEnabled(true);

    places.mode = -1; // names none: all are off, and passing by is no choice
    refresh();
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(option(screen, i)->isChecked());
    go("txtNotes");
    EXPECT_EQ(after("Tab"), "optMode(0)");
    EXPECT_EQ(places.mode, -1);
    key(Qt::Key_Space);
    EXPECT_EQ(places.mode, 0);
}

TEST_F(KitTest, aCheckBoxIsOneOrZero) {
    for (const std::int16_t held : {std::int16_t{0}, std::int16_t{1}, std::int16_t{-1}}) {
        places.smokes = held;
        refresh();
        EXPECT_EQ(get<QCheckBox>("chkSmokes")->isChecked(), held != 0);
        EXPECT_EQ(places.smokes, held);
    }
    EXPECT_EQ(changed(), 0);
    go("chkSmokes");
    key(Qt::Key_Space);
    EXPECT_EQ(places.smokes, 0);
    click("chkSmokes");
    EXPECT_EQ(places.smokes, 1);
    EXPECT_EQ(changed(), 1);
}

TEST_F(KitTest, spinButtonsStepByMouseAndByUpAndDown) {
    bench.record.loans.Num2 = 10;
    refresh();
    go("txtName");
    auto* up = get<QToolButton>("spnMonthsUp");
    click(up);
    EXPECT_EQ(bench.record.loans.Num2, 11);
    EXPECT_EQ(focus(), "txtName") << "they take no focus";
    press(up);
    QTest::qWait(up->autoRepeatDelay() + up->autoRepeatInterval() * 3);
    release(up);
    EXPECT_GE(bench.record.loans.Num2, 13);
    EXPECT_EQ(changed(), 1);

    const double held = bench.record.loans.Num2;
    go("numMonths");
    act("Down Down Up");
    EXPECT_EQ(bench.record.loans.Num2, held - 1);
    EXPECT_EQ(text("numMonths"), std::to_string(static_cast<int>(held) - 1));
    go("numCount");
    key(Qt::Key_Up);
    EXPECT_EQ(places.count, 0) << "a field without spin buttons does not step";

    enter("numMonths", "1");
    screen->clickFocus = get("cmdRun");
    key(Qt::Key_Down);
    EXPECT_EQ(bench.record.loans.Num2, 40);
    EXPECT_EQ(desk.bells, 1);
    EXPECT_EQ(selected(), "40") << "the keys leave the focus there";
    click(up);
    EXPECT_EQ(focus(), "cmdRun") << "a click takes it on";
}

TEST(SpinRule, saysWhereAStepLeads) {
    const auto by = [](double step) { return [step] { return step; }; };
    const SpinRule years{
        .idleAtZero = true, .floor = 0, .holdsFloor = false, .ceiling = 40, .wrapsTo = 40, .rings = true};
    SpinRule rate = years;
    rate.step = by(0.1);
    rate.ceiling = rate.wrapsTo = 50;
    const SpinRule inflation{.step = by(0.25), .floor = -5, .ceiling = 40, .wrapsTo = 30};
    const SpinRule copies{.floor = 1, .ceiling = 9};
    const SpinRule stuck{.step = by(0)};
    constexpr double nowhere = -999;
    const std::tuple<const SpinRule&, double, int, double, bool> cases[] = {
        {years, 2, -1, 1, false},        {years, 1, -1, 40, true},          {years, 40, 1, 1, false},
        {years, 0, 1, nowhere, false},   {years, 0.5, -1, 40, true}, // a fraction of a step also stops at the floor
        {rate, 0.1, -1, 50, true},       {rate, 0.3 - 0.2, -1, 50, true},   {rate, 50, 1, 0.1, false},
        {inflation, 0, 1, 0.25, false},  {inflation, -4.75, -1, -5, false}, {inflation, -5, -1, 30, false},
        {inflation, 40, 1, 0.25, false}, {inflation, 0.25, -1, 0, false},   {copies, 1, -1, nowhere, false},
        {copies, 9, 1, nowhere, false},  {copies, 8, 1, 9, false},          {stuck, 5, 1, nowhere, false}};
    for (const auto& [rule, from, direction, to, rings] : cases) {
        const auto next = spun(rule, from, direction);
        EXPECT_NEAR(next ? next->value : nowhere, to, 1e-12) << from << ' ' << direction;
        EXPECT_EQ(next && next->rings, rings) << from << ' ' << direction;
    }
}

} // namespace
} // namespace screenkit
