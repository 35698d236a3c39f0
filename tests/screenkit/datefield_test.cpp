#include <QCalendarWidget>
#include <QMenu>
#include <QTimer>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

double day(int year, int month, int date) { return base::dayNumber(year, month, date).value(); }

TEST_F(KitTest, datesAreTypedFreelyAndShownInOneForm) {
    const std::tuple<const char*, double, const char*> cases[] = {
        {"01/03/2026", day(2026, 3, 1), "01/03/2026"},
        {"   ", base::NoDate, ""},
        {"t", day(2026, 11, 22), "22/11/2026"},
        {"T+", day(2026, 11, 23), "23/11/2026"},
        {"t--", day(2026, 11, 20), "20/11/2026"},
        {"28/2/2026+", day(2026, 3, 1), "01/03/2026"},
        {"1/3/2026-", day(2026, 2, 28), "28/02/2026"},
        {"2/1/1800-", day(1800, 1, 2), "02/01/1800"}, // the day before would mean no date
        {"31/12/9999+", day(9999, 12, 31), "31/12/9999"},
        {"28-2-66", day(1966, 2, 28), "28/02/1966"},     // in a date without a year - is a separator
        {"12+/5/2026", day(2026, 5, 12), "12/05/2026"}}; // in a half-typed date + does nothing
    for (const auto& [typed, kept, shown] : cases) {
        SCOPED_TRACE(typed);
        places.day = day(1970, 1, 1);
        refresh();
        changed() = 0;
        enter("dtDay", typed);
        EXPECT_EQ(places.day, kept);
        EXPECT_EQ(changed(), 1);
        go("txtName");
        EXPECT_EQ(text("dtDay"), shown);
        EXPECT_EQ(places.day, kept);
    }
    places.day = base::NoDate;
    refresh();
    enter("dtDay", "-");
    EXPECT_EQ(text("dtDay"), "21/11/2026") << "an empty one steps from today";
}

TEST_F(KitTest, onlyDaysAfterTheEmptyOneFillADate) {
    const std::pair<double, const char*> cases[] = {
        {base::NoDate, ""},        {base::blankDate, ""}, {base::blankDate + 1, "02/01/1800"},
        {base::blankDate - 1, ""}, {0, "30/12/1899"},     {46348, "22/11/2026"}};
    for (const auto& [held, shown] : cases) {
        places.day = held;
        refresh();
        EXPECT_EQ(text("dtDay"), shown);
        go("dtDay");
        key(Qt::Key_Tab);
        EXPECT_EQ(places.day, held) << "looking at it is no edit";
    }
    EXPECT_EQ(changed(), 0);
}

TEST_F(KitTest, aRefusedDateKeepsWhatWasTypedUntilCorrected) {
    const char* const wrong[] = {"31/02/2026", "13/13/2026", "abc", "1/3/202", "01/01/1800", "3/5/1652", "5"};
    const double stood = day(1970, 1, 1);
    places.day = stood;
    refresh();
    for (const char* typed : wrong)
        for (const char* leave : {"Tab", "@cmdRun"}) {
            SCOPED_TRACE(typed);
            enter("dtDay", typed);
            EXPECT_EQ(places.day, stood) << "a slip never wipes a good date";
            const auto box = desk.told([&] { act(leave); });
            EXPECT_EQ(box.text, "The date entered is in the wrong format\nPlease use the dd/mm/yyyy format.");
            EXPECT_EQ(box.title, "Marlowbeck");
            refresh();
            EXPECT_EQ(selected(), typed);
            EXPECT_EQ(focus(), "dtDay");
            EXPECT_EQ(screen->runs, 0);
        }
    key(Qt::Key_Escape);
    EXPECT_EQ(selected(), "01/01/1970");
    EXPECT_EQ(after("Tab"), "txtName");
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
    double held = day(1990, 1, 1); // from the file: only marked
    auto* field = screen->add("dtOther", held, kind);
    const std::tuple<double, const char*, const char*> cases[] = {{base::NoDate, "1/3/26", nullptr},
                                                                  {base::NoDate, "28/2/26", "Too early"},
                                                                  {base::NoDate, "31/2/26", "No such day"},
                                                                  {day(2026, 5, 1), "2/5/26", "Not after 01/05/2026"},
                                                                  {day(2026, 5, 2), "2/5/26", nullptr}};
    screen->checkFields();
    EXPECT_EQ(held, day(1990, 1, 1));
    for (const auto& [latest, typed, told] : cases) {
        SCOPED_TRACE(typed);
        const double stood = held;
        end = latest;
        field->takeFocus();
        type(typed);
        if (told != nullptr) desk.expect(Answer::ok);
        EXPECT_EQ(screen->checkFields(), told == nullptr);
        if (told == nullptr) continue;
        EXPECT_EQ(desk.last().text, told);
        EXPECT_EQ(held, stood);
        key(Qt::Key_Escape);
    }
    EXPECT_EQ(held, day(2026, 5, 2));
}

TEST_F(KitTest, theCalendarIsWorkedByKeys) {
    const struct {
        const char* typed;
        QDate opensAt;
        const char *keys, *shown;
    } cases[] = {{"1/3/2026", QDate(2026, 3, 1), "Down Right Return", "09/03/2026"},
                 {"1/3/2026", QDate(2026, 3, 1), "Down Esc", "1/3/2026"},
                 {"31/2/26", desk.today(), "Return", "22/11/2026"}}; // opening it is no leaving
    for (const auto& c : cases) {
        SCOPED_TRACE(c.keys);
        bool came = false;
        enter("dtDay", c.typed);
        QTimer::singleShot(50, qApp, [&] {
            auto* popup = QApplication::activePopupWidget();
            auto* calendar = popup != nullptr ? popup->findChild<QCalendarWidget*>() : nullptr;
            came = calendar != nullptr;
            if (!came) return;
            EXPECT_EQ(calendar->selectedDate(), c.opensAt);
            act(c.keys);
            if (!popup->isVisible()) return;
            ADD_FAILURE() << "the calendar stayed open";
            popup->close();
        });
        act("F4");
        EXPECT_TRUE(QTest::qWaitFor([] { return focus() == "dtDay"; }));
        EXPECT_TRUE(came);
        EXPECT_TRUE(desk.boxes.empty());
        EXPECT_EQ(text("dtDay"), c.shown);
    }
    EXPECT_EQ(places.day, day(2026, 11, 22));
}

} // namespace
} // namespace screenkit
