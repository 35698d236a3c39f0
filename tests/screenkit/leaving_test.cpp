#include <QToolButton>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

struct LeavingTest : KitTest {
    /// 700 months are more than the 600 that the field takes.
    void enterTooMany() { enter("numMonths", "700"); }
    void expectOneBox(const char* afterwards) {
        ASSERT_EQ(desk.boxes.size(), 1U);
        EXPECT_EQ(desk.last().text, "Too many months");
        EXPECT_EQ(desk.last().title, "Months!");
        EXPECT_EQ(desk.last().style, BoxStyle::critical);
        EXPECT_EQ(focus(), afterwards);
        EXPECT_EQ(selected(), "700");
    }
};

TEST_F(LeavingTest, everyWayOutOfAFieldChecksItOnce) {
    const struct {
        const char* way;
        std::function<void()> leave;
    } ways[] = {{"Tab", [this] { key(Qt::Key_Tab); }},
                {"two Tabs at once",
                 [this] {
                     for (int i = 0; i < 2; ++i)
                         QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_Tab, "\t",
                                             Qt::NoModifier);
                     settle();
                 }},
                {"Enter", [this] { key(Qt::Key_Return); }},
                {"an access key", [this] { key(Qt::Key_A, Qt::AltModifier); }},
                {"a click into another field", [this] { click("txtName"); }},
                {"a click on a check box", [this] { click("chkSmokes"); }},
                {"a click on a button", [this] { click("cmdRun"); }},
                {"a button's access key", [this] { key(Qt::Key_R, Qt::AltModifier); }},
                {"a spin button", [this] { click(get<QToolButton>("spnMonthsUp")); }},
                {"the Up key", [this] { key(Qt::Key_Up); }},
                {"a click on OK", [this] { click("cmdOK"); }},
                {"the print panel", [this] { click("cmdPrint"); }},
                {"the close button", [this] {
                     child->close();
                     settle();
                 }}};
    for (const auto& c : ways) {
        SCOPED_TRACE(c.way);
        desk.boxes.clear();
        enterTooMany();
        desk.expect(Answer::ok);
        c.leave();
        expectOneBox("numMonths");
        EXPECT_EQ(bench.record.loans.Num2, 700) << "the entry stays for the user to put right";
        EXPECT_EQ(screen->runs, 0);
        EXPECT_TRUE(child->isVisible());
        EXPECT_FALSE(screen->print->isVisible());
        enter("numMonths", "12");
        go("txtName");
    }
}

TEST_F(LeavingTest, aRightEntryLetsThemAllAct) {
    enter("numMonths", "600");
    click("cmdRun");
    EXPECT_EQ(screen->runs, 1);
    key(Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(screen->runs, 2);
    click("cmdOK");
    EXPECT_EQ(screen, nullptr);
}

TEST_F(LeavingTest, cancelIsNeverHeldBack) {
    enterTooMany();
    click("cmdCancel");
    EXPECT_EQ(screen->cancels, 1);
    EXPECT_TRUE(desk.boxes.empty());
    desk.expect(Answer::ok);
    click("cmdRun"); // but nothing else acts on the wrong entry
    expectOneBox("numMonths");
    EXPECT_EQ(screen->runs, 0);
}

TEST_F(LeavingTest, theBoxComesAfterTheFocusChangeNotInside) {
    enterTooMany();
    get("txtName")->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(desk.boxes.empty());
    desk.expect(Answer::ok);
    settle();
    expectOneBox("numMonths");
}

TEST_F(LeavingTest, theBoxWaitsForTheMouseToBeReleased) {
    enterTooMany();
    press(get("cmdRun"));
    QTest::qWait(60);
    EXPECT_TRUE(desk.boxes.empty());
    desk.expect(Answer::ok);
    release(get("cmdRun"));
    QTest::qWait(60);
    expectOneBox("numMonths");
    EXPECT_FALSE(get<QPushButton>("cmdRun")->isDown());
}

TEST_F(LeavingTest, aHeldSpinButtonStopsAtItsBox) {
    enterTooMany();
    auto* up = get<QToolButton>("spnMonthsUp");
    desk.expect(Answer::ok);
    press(up);
    QTest::qWait(up->autoRepeatDelay() + up->autoRepeatInterval() * 5);
    release(up);
    expectOneBox("numMonths");
}

TEST_F(LeavingTest, comingBackBeforeTheCheckIsNoLeaving) {
    enterTooMany();
    get("txtName")->setFocus(Qt::TabFocusReason);
    get("numMonths")->setFocus(Qt::BacktabFocusReason);
    settle();
    EXPECT_TRUE(desk.boxes.empty());
    enter("numMonths", "5");
}

TEST_F(LeavingTest, whatTheScreenHidesOrShowsAsAResultIsNotHeldAgainstTheUser) {
    enterTooMany();
    get("numMonths")->hide();
    click("cmdRun");
    get("numMonths")->show();
    get("numMonths")->setEnabled(false);
    click("cmdRun");
    get("numMonths")->setEnabled(true);
    get<NumberField>("numMonths")->setResult(true);
    click("cmdRun");
    EXPECT_EQ(screen->runs, 3);
    desk.expect(Answer::ok);
    get<NumberField>("numMonths")->setResult(false);
    click("cmdRun");
    EXPECT_EQ(screen->runs, 3);
    enter("numMonths", "12");
}

TEST_F(LeavingTest, whatTheFileBroughtIsMarkedAndToldAndHoldsNobodyUp) {
    auto* months = get<QLineEdit>("numMonths");
    auto* told = get<QLabel>("lblFaults");
    const auto isMarked = [&] {
        EXPECT_EQ(months->accessibleDescription().isEmpty(), !told->isVisible());
        return told->isVisible() && months->palette().color(QPalette::Base) != QPalette().color(QPalette::Base) &&
               months->toolTip() == "Too many months";
    };
    EXPECT_FALSE(told->isVisible());
    bench.record.loans.Num2 = 700;
    refresh();
    EXPECT_TRUE(isMarked());
    EXPECT_EQ(told->text(), "Please check Months: Too many months");
    go("numMonths");
    key(Qt::Key_Tab);
    click("cmdRun");
    EXPECT_EQ(screen->runs, 1);

    desk.expect(Answer::ok); // what he types himself is held against him, the same figure too
    enter("numMonths", "700");
    EXPECT_FALSE(told->isVisible());
    click("cmdRun");
    expectOneBox("numMonths");
    screen->clientReplaced(); // as another client's it is none of his
    EXPECT_TRUE(isMarked());
    enter("numMonths", "600");
    key(Qt::Key_Tab);
    EXPECT_FALSE(told->isVisible());
    EXPECT_EQ(months->toolTip(), "");
}

TEST_F(LeavingTest, aResultLooksOutOfDateWhileItsInputsAreOthers) {
    auto* total = get<QLineEdit>("numTotal");
    const auto isStale = [total] {
        EXPECT_EQ(total->palette().color(QPalette::Base), QColor(Qt::yellow));
        EXPECT_EQ(total->accessibleDescription().isEmpty(), !total->font().italic());
        return total->font().italic() && total->palette().color(QPalette::Text) != QColor(Qt::black);
    };
    enter("numAmount", "5");
    EXPECT_TRUE(isStale());
    enter("numAmount", "0"); // back again
    EXPECT_FALSE(isStale());
    for (const char* words : {"txtName", "txtNotes"})
        enter(words, "x");
    click("cmdPrint");
    get<QCheckBox>("Check3")->click(); // a choice of how to print
    click("cmdPrintCancel");
    EXPECT_FALSE(isStale());
    get<QRadioButton>("optMode(2)")->click();
    EXPECT_TRUE(isStale());
    screen->calculated();
    EXPECT_FALSE(isStale());
    screen->outdated();
    EXPECT_TRUE(isStale());
    refresh();
    EXPECT_FALSE(isStale());
}

TEST_F(LeavingTest, aResultThatIsNotFiniteShowsAsAnError) {
    get<NumberField>("numTotal")->present(std::numeric_limits<double>::infinity());
    EXPECT_EQ(text("numTotal"), "   Error");
    EXPECT_EQ(get<NumberField>("numTotal")->value(), 0);
}

TEST_F(LeavingTest, aScreenTornDownInMidEditAsksNothing) {
    enterTooMany();
    delete screen;
    settle();
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(LeavingTest, aFailingActionShowsOneBoxAndTheProgramGoesOn) {
    const auto fail = [] { throw store::Error(store::Number::diskFull, "/practice/Print.mdb"); };
    screen->onRun = fail;
    screen->onEdit = fail;
    const auto settleBadly = [&] {
        screen->onSettled = [&](Field* field) {
            if (field->widget()->objectName() == "txtName") fail();
        };
        key(Qt::Key_Tab);
    };
    for (const auto& act : std::initializer_list<std::function<void()>>{
             [this] { click("cmdRun"); }, [this] { enter("txtName", "x"); }, settleBadly}) {
        desk.boxes.clear();
        desk.expect(Answer::ok);
        act();
        ASSERT_EQ(desk.boxes.size(), 1U);
        EXPECT_EQ(desk.last().title, "Marlowbeck");
        EXPECT_TRUE(desk.last().text.contains("/practice/Print.mdb"));
        EXPECT_TRUE(desk.last().text.endsWith("(3026)") || desk.last().text.endsWith("[3026]"))
            << desk.last().text.toStdString();
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
    EXPECT_EQ(places.name, "x");
    screen->onEdit = [] {};
    screen->onSettled = [](Field*) {};
}

} // namespace
} // namespace screenkit
