#include <QToolButton>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

struct LeavingTest : KitTest {
    /// 700 months exceed the field's limit of 600.
    void enterTooMany() { enter("numMonths", "700"); }
    /// Expects one message about them, after which they have the focus.
    void expectTold(const std::function<void()>& act) {
        const auto box = desk.told(act);
        EXPECT_EQ(box.text, "Too many months");
        EXPECT_EQ(box.title, "Months!");
        EXPECT_EQ(box.style, BoxStyle::critical);
        EXPECT_EQ(focus(), "numMonths");
        EXPECT_EQ(selected(), "700");
    }
};

TEST_F(LeavingTest, everyWayOutOfAFieldChecksItOnce) {
    for (const char* way : {"Tab", "two Tabs at once", "Return", "Alt+A", "@txtName", "@chkSmokes", "@cmdRun", "Alt+R",
                            "@spnMonthsUp", "Up", "@cmdOK", "@cmdPrint", "the close button"}) {
        SCOPED_TRACE(way);
        enterTooMany();
        expectTold([&] {
            if (way == std::string("the close button"))
                child->close();
            else if (way == std::string("two Tabs at once"))
                type("\t\t");
            else
                act(way);
            settle();
        });
        EXPECT_EQ(bench.record.loans.Num2, 700) << "the entry stays for the user to put right";
        EXPECT_EQ(screen->runs, 0);
        EXPECT_TRUE(child->isVisible());
        EXPECT_FALSE(screen->print->isVisible());
        enter("numMonths", "12");
        go("txtName");
    }
    enterTooMany();
    go("cmdCancel"); // alone is never held back
    key(Qt::Key_Space);
    EXPECT_EQ(screen->cancels, 1);
    enter("numMonths", "600"); // a valid entry stops none of them
    act("@cmdRun Alt+R");
    EXPECT_EQ(screen->runs, 2);
    click("cmdOK");
    EXPECT_EQ(screen, nullptr);
}

TEST_F(LeavingTest, theBoxComesAfterTheFocusChangeNotInsideAndNotIfTheUserIsBackByThen) {
    enterTooMany();
    get("txtName")->setFocus(Qt::TabFocusReason);
    get("numMonths")->setFocus(Qt::BacktabFocusReason);
    settle();
    get("txtName")->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(desk.boxes.empty());
    expectTold(settle);
}

TEST_F(LeavingTest, theBoxWaitsForTheMouseToBeReleased) {
    enterTooMany();
    press(get("cmdRun"));
    QTest::qWait(60);
    EXPECT_TRUE(desk.boxes.empty());
    expectTold([this] {
        release(get("cmdRun"));
        QTest::qWait(60);
    });
    EXPECT_FALSE(get<QPushButton>("cmdRun")->isDown());
    expectTold([this] { // a spin button that is held down stops at the message
        auto* up = get<QToolButton>("spnMonthsUp");
        press(up);
        QTest::qWait(up->autoRepeatDelay() + up->autoRepeatInterval() * 5);
        release(up);
    });
}

TEST_F(LeavingTest, hiddenFieldsAndResultsAreNotChecked) {
    enterTooMany();
    get("numMonths")->hide();
    click("cmdRun");
    get("numMonths")->show();
    get("numMonths")->setEnabled(false);
    click("cmdRun");
    get("numMonths")->setEnabled(true);
    get<NumberField>("numMonths")->setResult(true);
    click("cmdRun");
    get<NumberField>("numMonths")->setResult(false);
    desk.told([this] { click("cmdRun"); });
    EXPECT_EQ(screen->runs, 3);
}

TEST_F(LeavingTest, aFaultFromTheFileIsMarkedAndReportedButNeverBlocks) {
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
    act("Tab @cmdRun");
    EXPECT_EQ(screen->runs, 1);

    enterTooMany(); // the same figure, typed by the user, is refused
    EXPECT_FALSE(told->isVisible());
    expectTold([this] { click("cmdRun"); });
    screen->clientReplaced(); // for another client the figure counts as not typed
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
    enter("numAmount", "0"); // the original figure again
    EXPECT_FALSE(isStale());
    for (const char* words : {"txtName", "txtNotes"})
        enter(words, "x");
    act("@cmdPrint @Check3 @cmdPrintCancel"); // a print option
    EXPECT_FALSE(isStale());
    click("optMode(2)");
    EXPECT_TRUE(isStale());
    screen->calculated();
    EXPECT_FALSE(isStale());
    screen->outdated();
    EXPECT_TRUE(isStale());
    refresh();
    EXPECT_FALSE(isStale());
    get<NumberField>("numTotal")->present(std::numeric_limits<double>::infinity());
    EXPECT_EQ(text("numTotal"), "   Error");
    EXPECT_EQ(get<NumberField>("numTotal")->value(), 0);
}

TEST_F(LeavingTest, aScreenDestroyedDuringAnEditAsksNothing) {
    enterTooMany();
    delete screen;
    settle();
    EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(LeavingTest, aFailingActionShowsOneBoxAndTheProgramGoesOn) {
    const auto fail = [](auto...) { throw store::Error(store::Number::diskFull, "/practice/Print.mdb"); };
    screen->onRun = screen->onEdit = fail;
    screen->printed = fail;
    const auto settleBadly = [&] {
        screen->onSettled = [&](Field* field) {
            if (field->widget()->objectName() == "txtName") fail();
        };
        key(Qt::Key_Tab);
        screen->onSettled = [](Field*) {};
    };
    for (const auto& act :
         std::initializer_list<std::function<void()>>{[this] { click("cmdRun"); }, [this] { enter("txtName", "x"); },
                                                      settleBadly, [this] { act("@cmdPrint @cmdVR"); }}) {
        const auto box = desk.told(act);
        EXPECT_EQ(box.title, "Marlowbeck");
        EXPECT_EQ(box.style, BoxStyle::critical);
        EXPECT_TRUE(box.text.contains("/practice/Print.mdb"));
        EXPECT_TRUE(box.text.contains("3026")) << box.text.toStdString();
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
    EXPECT_TRUE(desk.last().text.startsWith("Marlowbeck could not make the report."));
    EXPECT_FALSE(screen->print->isVisible());
    EXPECT_TRUE(get<QLabel>("lblProcessing")->isHidden());
    EXPECT_EQ(focus(), "cmdPrint");
    EXPECT_EQ(places.name, "x");
}

} // namespace
} // namespace screenkit
