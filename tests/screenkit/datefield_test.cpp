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
                 {"28-2-66", day(1966, 2, 28), "28/02/1966"}, // - parts what has no year yet
                 {"1966-02-28", day(1966, 2, 28), "28/02/1966"},
                 {"28/2", day(2026, 2, 28), "28/02/2026"},
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

TEST_F(KitTest, aRefusedDateKeepsWhatWasTypedUntilItIsMended) {
    const char* const wrong[] = {"31/02/2026", "13/13/2026", "abc", "1/3/202", "01/01/1800", "3/5/1652", "5"};
    const double stood = day(1970, 1, 1);
    places.day = stood;
    refresh();
    for (const char* typed : wrong)
        for (const bool byButton : {false, true}) {
            SCOPED_TRACE(typed);
            enter("dtDay", typed);
            EXPECT_EQ(places.day, stood) << "a slip never wipes a good date";
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
            refresh();
            EXPECT_EQ(selected(), typed);
            EXPECT_EQ(focus(), "dtDay");
            EXPECT_EQ(screen->runs, 0);
        }
    key(Qt::Key_Escape);
    EXPECT_EQ(selected(), "01/01/1970");
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "txtName");
    EXPECT_EQ(places.day, stood);
}

TEST_F(KitTest, aDatesLimitsMoveWithAnotherDateAndHaveWordsOfTheirOwn) {
    double end = base::NoDate;
    const DateKind kind =
        DateKind{}
            .worded("No such day", "INVALID DATE")
            .notBefore([] { return 46082.0; }, [] { return Complaint{"Too early"}; })
            .notAfter([&end] { return end; },
                      [&end] { return Complaint{"Not after " + QString::fromStdString(base::formatDate(end))}; });
    double held = day(1990, 1, 1); // from the file: his to look at
    auto* field = screen->add("dtOther", held, kind);
    const struct {
        double end;
        const char* typed;
        const char* told;
    } cases[] = {{base::NoDate, "1/3/26", nullptr},
                 {base::NoDate, "28/2/26", "Too early"},
                 {base::NoDate, "31/2/26", "No such day"},
                 {day(2026, 5, 1), "2/5/26", "Not after 01/05/2026"},
                 {day(2026, 5, 2), "2/5/26", nullptr}};
    screen->checkFields();
    EXPECT_EQ(held, day(1990, 1, 1));
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        const double stood = held;
        end = c.end;
        field->takeFocus();
        type(c.typed);
        if (c.told != nullptr) desk.expect(Answer::ok);
        EXPECT_EQ(screen->checkFields(), c.told == nullptr);
        if (c.told == nullptr) continue;
        EXPECT_EQ(desk.last().text, c.told);
        EXPECT_EQ(held, stood);
        key(Qt::Key_Escape);
    }
    EXPECT_EQ(held, day(2026, 5, 2));
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

    enter("dtDay", "31/2/26"); // the calendar is no leaving: it is what the user turns to then
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
