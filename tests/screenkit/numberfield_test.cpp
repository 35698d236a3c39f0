#include <QClipboard>
#include <QWheelEvent>
#include <cmath>
#include <limits>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

struct NumberFieldTest : KitTest {
    double kept(const QString& field) {
        if (field == "numAmount") return bench.record.loans.Num1;
        if (field == "numMonths") return bench.record.loans.Num2;
        if (field == "numRate") return static_cast<double>(places.rate);
        return field == "numShares" ? static_cast<double>(places.shares) : static_cast<double>(places.count);
    }
    bool isMarked(const char* field) {
        return !get(field)->accessibleDescription().isEmpty() &&
               get(field)->palette().color(QPalette::Base) == QColor(255, 213, 128);
    }
};

TEST_F(NumberFieldTest, whatIsTypedOrPastedIsReadAndShownGroupedWithoutTheSystemsLocale) {
    const std::tuple<const char*, const char*, double, const char*> cases[] = {
        {"numAmount", "R 1 250 000,50", 1250000.5, "1 250 000.50"},
        {"numAmount", "", 0, "0.00"},
        {"numAmount", "123456789012345678901234", 123456789012345678901234.0, "123 456 789 012 345 685 803 008.00"},
        {"numMonths", "3.5", 4, "4"}, // whole numbers are rounded half to even
        {"numRate", "12.3456", static_cast<double>(12.3456F), "12.346"},
        {"numRate", "6,125%", 6.125, "6.125"}, // three decimal places: the comma is the decimal sign
        {"numCount", "32,767", 32767, "32 767"},
    };
    const QLocale system;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    for (const auto& [field, typed, held, shownAfterwards] : cases)
        for (const bool pasted : {false, true}) {
            if (pasted && *typed == 0) continue; // nothing to paste
            SCOPED_TRACE(testing::Message() << typed << (pasted ? " pasted" : " typed"));
            changed() = 0;
            go(field);
            if (pasted)
                paste(QString("\t%1\r\n").arg(typed)); // a copied spreadsheet cell ends with a line break
            else if (*typed == 0)
                key(Qt::Key_Delete);
            else
                type(typed);
            EXPECT_EQ(kept(field), held);
            EXPECT_EQ(changed(), 1);
            go("txtName");
            EXPECT_EQ(text(field), shownAfterwards);
        }
    QLocale::setDefault(system);
}

TEST_F(NumberFieldTest, unreadableTextIsRefusedWithABellAndKeptUntilCorrected) {
    const char* const width = "Please enter a number from -2 147 483 648 to 2 147 483 647.";
    const struct {
        const char *field, *typed, *told;
    } cases[] = {{"numAmount", "1.2.3", "groups of three"},  {"numAmount", "12x", "can't be read"},
                 {"numAmount", "1000*12", "type ="},         {"numAmount", "=5/0", "divide by 0"},
                 {"numMonths", "4 months", "can't be read"}, {"numShares", "2147483648", width},
                 {"numShares", "-99999999999", width},       {"numCount", "100000", "Count"}}; // by its own limit
    places.count = 7;
    places.shares = 7;
    bench.record.loans.Num1 = bench.record.loans.Num2 = 7;
    refresh();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        const std::string stood = text(c.field);
        for (const char* leave : {"Tab", "Alt+R", "Return", ""}) {
            enter(c.field, c.typed);
            const auto box = desk.told([&] {
                act(leave);
                if (*leave == 0) screen->checkFields();
            });
            EXPECT_TRUE(box.text.contains(c.told)) << box.text.toStdString();
            EXPECT_EQ(text(c.field), c.typed);
            EXPECT_EQ(selected(), c.typed);
            EXPECT_TRUE(isMarked(c.field));
            EXPECT_EQ(kept(c.field), 7) << "the record holds what stood there";
            refresh(); // another screen was in front
            EXPECT_EQ(text(c.field), c.typed);
        }
        EXPECT_EQ(screen->runs, 0);
        key(Qt::Key_Escape);
        EXPECT_EQ(selected(), stood);
        EXPECT_FALSE(isMarked(c.field));
        go("txtName");
    }
    EXPECT_GT(desk.bells, 0);
    enter("numAmount", "12x");
    act("@cmdCancel"); // Cancel still works, and the refused text does not return
    refresh();
    EXPECT_EQ(text("numAmount"), "7.00");
}

TEST_F(NumberFieldTest, afterEnterTheFieldShowsItsFigureGroupedAndWhollySelected) {
    screen->enterRuns();
    go("numAmount");
    for (const auto& [figure, shown] :
         {std::pair("650000", "650 000.00"), {"700000", "700 000.00"}, {"=2*350000", "700 000.00"}}) {
        type(figure);
        EXPECT_EQ(after("Return"), "numAmount");
        EXPECT_EQ(selected(), shown);
    }
    EXPECT_EQ(screen->runs, 3);
    EXPECT_EQ(kept("numAmount"), 700000);
    act("End Alt+A");
    EXPECT_EQ(selected(), "700 000.00") << "its own access key selects it, too";
}

TEST_F(NumberFieldTest, aLimitMayBuildItsMessageRestoreAValueOrMoveTheFocus) {
    auto* amount = get<NumberField>("numAmount");
    double held = 0;
    const auto atMost = [](double most) { return [most](double value) { return value <= most; }; };
    const struct {
        NumberKind kind;
        const char *told, *shown, *focus;
    } cases[] = {
        {money.where(atMost(5), [&held] { return Complaint(QString("%1 is too much").arg(held), "T"); }),
         "9 is too much", "9", "field"},
        {money.where(atMost(5), [] { return Complaint{"At most 5"}; }).orElse(2.5), "At most 5", "2.50", "field"},
        {money.where(atMost(5), [] { return Complaint{}; }).orElse(0), nullptr, "0.00", "field"},
        {money.where(atMost(5), [amount] { return Complaint{.text = "Elsewhere", .focus = amount}; }), "Elsewhere",
         "9.00", "numAmount"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.shown);
        auto* field = screen->add("field", held, c.kind);
        field->setFocus(Qt::TabFocusReason);
        type("9");
        desk.boxes.clear();
        if (c.told != nullptr) desk.expect(Answer::ok);
        key(Qt::Key_R, Qt::AltModifier);
        EXPECT_EQ(desk.boxes.size(), c.told != nullptr ? 1U : 0U);
        EXPECT_TRUE(c.told == nullptr || desk.boxes.empty() || desk.last().text == c.told);
        EXPECT_EQ(focus(), c.focus);
        EXPECT_EQ(screen->runs, 0);
        EXPECT_TRUE(field->text().startsWith(c.shown)) << field->text().toStdString();
        EXPECT_EQ(field->value(), held);
        field->enter(1);
        field->setObjectName({});
    }
}

TEST_F(NumberFieldTest, theKeypadsDecimalKeyIsTheDecimalSignWhateverIsTypedBefore) {
    const std::tuple<const char*, const char*, double> cases[] = {
        {"7", "250", 7.25}, {"1,250", "5", 1250.5}, {"1.250.000", "50", 1250000.5}, {"=2*7", "5", 15}};
    for (const auto& [before, behind, held] : cases)
        for (const auto& [code, sign] : {std::pair{Qt::Key_Comma, ","}, std::pair{Qt::Key_Period, "."}}) {
            enter("numAmount", before);
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), code, sign, Qt::KeypadModifier);
            type(behind);
            EXPECT_EQ(bench.record.loans.Num1, held) << before;
        }
}

TEST_F(KitTest, whatIsNotRetypedKeepsEveryBit) {
    for (const double value : {100.0 / 3, 1e21 / 7, 0.1 + 0.2, 1e-300, -5e8 / 3}) {
        bench.record.loans.Num1 = value;
        refresh();
        go("numAmount");
        act("Tab Backtab @txtName");
        EXPECT_EQ(bench.record.loans.Num1, value);
        EXPECT_EQ(get<NumberField>("numAmount")->value(), value);
    }
    EXPECT_EQ(changed() + screen->edits, 0);

    // A figure that is too long for its field is complete, and its start is visible.
    places.total = 1e21;
    refresh();
    EXPECT_EQ(text("numTotal"), "1 000 000 000 000 000 000 000.00");
    EXPECT_EQ(get<QLineEdit>("numTotal")->cursorPosition(), 0);
}

TEST_F(KitTest, fillingIsNoEditAndTypingBackIsOne) {
    bench.record.loans.Num1 = 500;
    places.day = 45000;
    places.notes = "a\nb";
    places.mode = 2;
    places.smokes = 1;
    screen->onFilled = [this] { get<NumberField>("numMonths")->enter(3); }; // a calculation may store its result
    refresh();
    EXPECT_EQ(changed() + screen->edits, 0);
    EXPECT_EQ(bench.record.loans.Num2, 3);

    go("numAmount");
    int edits = 0;
    for (const auto& [pressed, held] :
         {std::pair("4", 4.0), {"5", 45}, {".", 45}, {"6", 45.6}, {"Backspace", 45}, {"Ctrl+Z", 45.6}}) {
        act(pressed);
        EXPECT_EQ(bench.record.loans.Num1, held) << pressed << ": the record holds each keystroke at once";
        EXPECT_EQ(screen->edits, ++edits);
    }
    enter("numAmount", "500"); // what stood there
    refresh();
    EXPECT_EQ(changed(), 1) << "the flag outlives a filling, too";
}

TEST_F(KitTest, enteringAFieldSelectsAllOfItWithoutSwallowingQuickTyping) {
    bench.record.loans.Num1 = 500;
    bench.record.loans.Num2 = 12;
    refresh();
    go("txtName");
    click("numAmount");
    EXPECT_EQ(selected(), "500.00");
    click(get("numAmount"), QPoint(get("numAmount")->width() - 8, 8));
    EXPECT_EQ(selected(), "") << "a second click sets the cursor";

    type("\t3"); // from a keyboard buffer: the event loop does not run between the keys
    settle();
    type("6");
    EXPECT_EQ(bench.record.loans.Num2, 36);
    settle();

    key(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(selected(), "500.00") << "by its access key";
}

TEST_F(KitTest, resultsAndLockedFieldsHaveTheirOwnShadesInAnyTheme) {
    auto* total = get<NumberField>("numTotal");
    const QPalette before = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, Qt::white);
    const auto paper = [total] {
        const QImage image = total->grab().toImage();
        return image.pixelColor(image.width() / 8, image.height() / 2);
    };
    const auto expectStop = [this, total](bool stops, const QColor& ink) {
        EXPECT_EQ(total->palette().color(QPalette::Text), ink);
        go("numRate");
        EXPECT_EQ(after("Tab"), stops ? "numTotal" : "dtDay");
    };
    for (const QPalette& theme : {dark, before}) {
        QApplication::setPalette(theme);
        total->setResult(true);
        settle();
        EXPECT_EQ(paper(), QColor("#ffff00"));
        expectStop(false, Qt::black);
        click("numTotal");
        type("9");
        EXPECT_EQ(places.total, 1234.5);
        total->setResult(false); // the unknown is another field now
        EXPECT_EQ(paper(), theme.base().color());
        expectStop(true, theme.text().color());
        total->setLocked(true); // it shows the total of a list: neither a result nor an entry
        for (const QColor& other : {QColor("#ffff00"), theme.base().color(), theme.window().color()})
            EXPECT_NE(paper(), other);
        expectStop(false, theme.text().color());
        total->setLocked(false);
        EXPECT_EQ(paper(), theme.base().color());
    }
}

TEST(Bound, aFigureStaysWithinItsWidthAndIsAlwaysANumber) {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    for (const double number : {infinite, 1.7e308, 1e300})
        EXPECT_EQ(narrowed<float>(-number), -std::numeric_limits<float>::max());
    EXPECT_EQ(narrowed<double>(infinite), std::numeric_limits<double>::max());
    EXPECT_EQ(narrowed<double>(std::nan("")) + narrowed<std::int16_t>(std::nan("")), 0);
    EXPECT_EQ(narrowed<std::int16_t>(40000), 32767);
    EXPECT_EQ(narrowed<std::int16_t>(2.5), 2);
}

TEST_F(KitTest, theWheelChangesNoField) {
    for (const char* name : {"numAmount", "numMonths", "dtDay", "txtName", "txtNotes", "optMode(0)", "chkSmokes"}) {
        go(name);
        auto* target = get(name);
        const QPointF middle = target->rect().center();
        for (const int turn : {120, -120, -120}) {
            QWheelEvent wheel(middle, target->mapToGlobal(middle), {}, {0, turn}, {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(target, &wheel);
        }
        settle();
    }
    EXPECT_EQ(screen->edits, 0);
}

} // namespace
} // namespace screenkit
