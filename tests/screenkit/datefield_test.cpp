#include <QCalendarWidget>
#include <QMenu>
#include <QTimer>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

double day(int year, int month, int date) { return base::dayNumber(year, month, date).value(); }

TEST_F(KitTest, datesAreTypedFreelyAndShownInOneForm) {
    const struct {
        const char* typed;
        double kept;
        const char* shown;
    } cases[] = {{"01/03/2026", day(2026, 3, 1), "01/03/2026"},
                 {"1-3-26", day(2026, 3, 1), "01/03/2026"},
                 {"1.3.26", day(2026, 3, 1), "01/03/2026"},
                 {"29/2/24", day(2024, 2, 29), "29/02/2024"},
                 {"31/12/30", day(1930, 12, 31), "31/12/1930"},
                 {"31/12/29", day(2029, 12, 31), "31/12/2029"},
                 {"2/1/1800", day(1800, 1, 2), "02/01/1800"},
                 {"31/12/9999", day(9999, 12, 31), "31/12/9999"},
                 {"   ", base::NoDate, ""},
                 {"t", day(2026, 11, 22), "22/11/2026"},
                 {"T+", day(2026, 11, 23), "23/11/2026"},
                 {"t--", day(2026, 11, 20), "20/11/2026"},
                 {"28/2/2026+", day(2026, 3, 1), "01/03/2026"},
                 {"1/3/2026-", day(2026, 2, 28), "28/02/2026"},
                 {"2/1/1800-", day(1800, 1, 2), "02/01/1800"}, // the day before would mean no date
                 {"31/12/9999+", day(9999, 12, 31), "31/12/9999"},
                 {"12+/5/2026", day(2026, 5, 12), "12/05/2026"}}; // in a half-typed date + means nothing
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        places.day = day(1970, 1, 1);
        refresh();
        changed() = 0;
        enter("dtDay", c.typed);
        EXPECT_EQ(places.day, c.kept);
        EXPECT_EQ(changed(), 1);
        go("txtName");
        EXPECT_EQ(text("dtDay"), c.shown);
        EXPECT_EQ(places.day, c.kept);
    }
}

TEST_F(KitTest, plusAndMinusOnAnEmptyDateStartFromToday) {
    enter("dtDay", "-");
    EXPECT_EQ(text("dtDay"), "21/11/2026");
}

TEST_F(KitTest, onlyDaysAfterTheEmptyOneFillADate) {
    const struct {
        double held;
        const char* shown;
    } cases[] = {{base::NoDate, ""},        {base::blankDate, ""}, {base::blankDate + 1, "02/01/1800"},
                 {base::blankDate - 1, ""}, {0, "30/12/1899"},     {46348, "22/11/2026"}};
    for (const auto& c : cases) {
        places.day = c.held;
        refresh();
        EXPECT_EQ(text("dtDay"), c.shown);
        go("dtDay");
        key(Qt::Key_Tab);
        EXPECT_EQ(places.day, c.held) << "looking at it is no edit";
    }
    EXPECT_EQ(changed(), 0);
}

TEST_F(KitTest, aWrongDateIsClearedWithABoxAndTheFocusComesBack) {
    const char* const wrong[] = {"31/02/2026", "13/13/2026", "abc", "1/3", "01/01/1800", "3/5/1652", "5"};
    for (const char* typed : wrong)
        for (const bool byButton : {false, true}) {
            SCOPED_TRACE(typed);
            places.day = day(1970, 1, 1);
            refresh();
            enter("dtDay", typed);
            EXPECT_EQ(places.day, base::NoDate) << "the record never holds a date that the screen does not show";
            desk.boxes.clear();
            desk.expect(Answer::ok);
            if (byButton)
                click("cmdRun");
            else
                key(Qt::Key_Tab);
            ASSERT_EQ(desk.boxes.size(), 1U);
            EXPECT_EQ(desk.last().text, "The date entered is in the wrong format\nPlease use the dd/mm/yyyy format.");
            EXPECT_EQ(desk.last().title, "Marlowbeck");
            EXPECT_EQ(desk.last().style, BoxStyle::critical);
            EXPECT_EQ(text("dtDay"), "");
            EXPECT_EQ(focus(), "dtDay");
            EXPECT_EQ(screen->runs, 0);
        }
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "txtName") << "an empty date is right";
}

/// Works the calendar while it is up; gives false if none came.
bool inCalendar(KitTest*, const std::function<void(QCalendarWidget*)>& work, const std::function<void()>& open) {
    bool came = false;
    QTimer::singleShot(50, qApp, [&] {
        auto* popup = QApplication::activePopupWidget();
        auto* calendar = popup != nullptr ? popup->findChild<QCalendarWidget*>() : nullptr;
        came = calendar != nullptr;
        if (came) work(calendar);
        if (popup != nullptr && popup->isVisible()) {
            ADD_FAILURE() << "the calendar stayed open";
            popup->close();
        }
    });
    open();
    return came;
}

TEST_F(KitTest, theCalendarIsWorkedByKeys) {
    const auto keys = [this](std::initializer_list<Qt::Key> pressed) {
        return [this, pressed = std::vector(pressed)](QCalendarWidget* calendar) {
            EXPECT_EQ(calendar->selectedDate(), QDate(2026, 3, 1));
            for (const Qt::Key one : pressed)
                QTest::keyClick(window.windowHandle(), one);
            settle();
        };
    };
    const auto byF4 = [this] {
        enter("dtDay", "1/3/2026");
        QTest::keyClick(window.windowHandle(), Qt::Key_F4);
    };
    EXPECT_TRUE(inCalendar(this, keys({Qt::Key_Down, Qt::Key_Right, Qt::Key_Return}), byF4));
    settle();
    EXPECT_EQ(text("dtDay"), "09/03/2026");
    EXPECT_EQ(places.day, day(2026, 3, 9));
    EXPECT_EQ(focus(), "dtDay");
    EXPECT_TRUE(inCalendar(this, keys({Qt::Key_Down, Qt::Key_Escape}), byF4));
    EXPECT_EQ(text("dtDay"), "1/3/2026") << "Escape leaves what was typed";

    enter("dtDay", "31/2"); // the calendar is no leaving: it is what the user turns to then
    EXPECT_TRUE(inCalendar(
        this,
        [this](QCalendarWidget* calendar) {
            EXPECT_EQ(calendar->selectedDate(), desk.today());
            QTest::keyClick(window.windowHandle(), Qt::Key_Return);
            settle();
        },
        [this] { QTest::keyClick(window.windowHandle(), Qt::Key_F4); }));
    settle();
    EXPECT_TRUE(desk.boxes.empty());
    EXPECT_EQ(text("dtDay"), "22/11/2026");
}

} // namespace
} // namespace screenkit
