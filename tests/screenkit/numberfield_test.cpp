#include <QClipboard>
#include <QWheelEvent>
#include <cmath>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

TEST_F(KitTest, typedFiguresAreReadAndShownWithoutTheSystemsLocale) {
    const struct {
        const char* field;
        const char* typed;
        double kept;
        const char* shownAfterwards;
    } cases[] = {
        {"numAmount", "1234.5", 1234.5, "1 234.50"},
        {"numAmount", "1234,5", 1234.5, "1 234.50"},
        {"numAmount", " 1 234 567.891 ", 1234567.891, "1 234 567.89"},
        {"numAmount", "12abc.5x", 12.5, "12.50"}, // stray letters are not taken
        {"numAmount", "1.2.3", 1.23, "1.23"},     // nor is a second decimal sign
        {"numAmount", "1,2.3", 1.23, "1.23"},
        {"numAmount", "1e5", 15, "15.00"},
        {"numAmount", "-", 0, "0.00"},
        {"numAmount", ".", 0, "0.00"},
        {"numAmount", "-5", -5, "-5.00"},
        {"numAmount", "5-", 5, "5.00"},
        {"numAmount", "-0", 0, "0.00"},
        {"numAmount", "123456789012345678901234", 123456789012345678901234.0, "123 456 789 012 345 685 803 008.00"},
        {"numMonths", "12.5", 125, "125"}, // a count has no decimal sign
        {"numMonths", "12,5", 125, "125"},
        {"numRate", "12.3456", static_cast<double>(12.3456F), "12.346"},
        {"numShares", "2147483648", 2147483647, "2 147 483 647"},
        {"numShares", "-99999999999", -2147483648.0, "-2 147 483 648"},
        {"numCount", "32768", 32767, "32 767"},
        {"numCount", "-40000", -32768, "-32 768"},
    };
    const QLocale system;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const auto kept = [this](const QString& field) {
        if (field == "numAmount") return bench.record.loans.Num1;
        if (field == "numMonths") return bench.record.loans.Num2;
        if (field == "numRate") return static_cast<double>(places.rate);
        return field == "numShares" ? static_cast<double>(places.shares) : static_cast<double>(places.count);
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        changed() = 0;
        enter(c.field, c.typed);
        EXPECT_EQ(kept(c.field), c.kept);
        EXPECT_EQ(changed(), 1);
        go("txtName");
        EXPECT_EQ(text(c.field), c.shownAfterwards);
        EXPECT_FALSE(std::signbit(kept(c.field)) && kept(c.field) == 0);
    }
    QLocale::setDefault(system);
}

TEST_F(KitTest, aRecordHoldsEachKeystrokeAtOnce) {
    go("numAmount");
    const double after[] = {4, 45, 45, 45.6};
    const QString typed = "45.6";
    for (int i = 0; i < typed.size(); ++i) {
        type(typed.mid(i, 1));
        EXPECT_EQ(bench.record.loans.Num1, after[i]);
        EXPECT_EQ(screen->edits, i + 1);
    }
    key(Qt::Key_Backspace);
    EXPECT_EQ(bench.record.loans.Num1, 45);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(bench.record.loans.Num1, 45.6);
    EXPECT_EQ(changed(), 1);
}

TEST_F(KitTest, theKeypadsDecimalKeyIsThePoint) {
    go("numAmount");
    type("7");
    QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_Comma, ",", Qt::KeypadModifier);
    type("5");
    EXPECT_EQ(text("numAmount"), "7.5");
    EXPECT_EQ(bench.record.loans.Num1, 7.5);
}

TEST_F(KitTest, figuresArePastedFromOtherPrograms) {
    const struct {
        const char* copied;
        double kept;
    } cases[] = {{"1 234,56", 1234.56},
                 {"1\u00A0234.56", 1234.56},
                 {"2500\n", 2500}, // a cell of a spreadsheet comes with its line end
                 {"\t3500.25\r\n", 3500.25},
                 {"R 12", 8}}; // a word is refused whole
    for (const auto& c : cases) {
        SCOPED_TRACE(c.copied);
        enter("numAmount", "8");
        get<QLineEdit>("numAmount")->selectAll();
        paste(c.copied);
        EXPECT_EQ(bench.record.loans.Num1, c.kept);
        EXPECT_EQ(text("numAmount").find(','), std::string::npos);
    }
    // the context menu's paste is an edit like any other
    go("numAmount");
    changed() = 0;
    QApplication::clipboard()->setText("77");
    get<QLineEdit>("numAmount")->paste();
    EXPECT_EQ(bench.record.loans.Num1, 77);
    EXPECT_EQ(changed(), 1);
}

TEST_F(KitTest, whatIsNotRetypedKeepsEveryBit) {
    const double thirds[] = {100.0 / 3, 1e21 / 7, 0.1 + 0.2, 1e-300, -5e8 / 3};
    for (const double value : thirds) {
        bench.record.loans.Num1 = value;
        refresh();
        go("numAmount");
        key(Qt::Key_Tab);
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        click("txtName");
        EXPECT_EQ(bench.record.loans.Num1, value);
        EXPECT_EQ(get<NumberField>("numAmount")->value(), value);
    }
    EXPECT_EQ(changed(), 0);
    EXPECT_EQ(screen->edits, 0);
}

TEST_F(KitTest, aFigureLongerThanItsFieldIsShownWholeAndFromItsHead) {
    places.total = 1e21;
    refresh();
    EXPECT_EQ(text("numTotal"), "1 000 000 000 000 000 000 000.00");
    EXPECT_EQ(get<QLineEdit>("numTotal")->cursorPosition(), 0);
}

TEST_F(KitTest, fillingIsNoEditAndTypingBackIsOne) {
    bench.record.loans.Num1 = 500;
    places.day = 45000;
    places.name = "O'Brien";
    places.notes = "a\nb";
    places.mode = 2;
    places.smokes = 1;
    screen->onFilled = [this] { get<NumberField>("numMonths")->enter(3); }; // a calculation may store its answer
    refresh();
    EXPECT_EQ(changed(), 0);
    EXPECT_EQ(screen->edits, 0);
    EXPECT_EQ(bench.record.loans.Num2, 3);

    enter("numAmount", "5001");
    key(Qt::Key_Backspace);
    EXPECT_EQ(bench.record.loans.Num1, 500);
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

    QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_Tab, "\t", Qt::NoModifier);
    type("3"); // from the keyboard's buffer: no turn of the event loop between the keys
    settle();
    type("6");
    EXPECT_EQ(bench.record.loans.Num2, 36);
    settle();

    key(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(selected(), "500.00") << "by its access key";
}

TEST_F(KitTest, aResultIsYellowReadOnlyAndOutOfTheTabOrderInAnyTheme) {
    const QPalette before = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    settle();
    auto* total = get<NumberField>("numTotal");
    const auto has = [](QWidget* widget, const QColor& colour) {
        const QImage image = widget->grab().toImage();
        return image.pixelColor(image.width() / 8, image.height() / 2) == colour;
    };
    EXPECT_TRUE(has(total, QColor("#ffff00")));
    EXPECT_EQ(total->palette().color(QPalette::Text), QColor(Qt::black));
    EXPECT_TRUE(has(get("numShares"), QColor(30, 30, 30)));
    EXPECT_EQ(get("numShares")->palette().color(QPalette::Text), QColor(Qt::white));

    click("numTotal");
    type("9");
    EXPECT_EQ(places.total, 1234.5);
    go("numRate");
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "dtDay");

    total->setResult(false); // the unknown moved to another field
    go("numRate");
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "numTotal");
    EXPECT_TRUE(has(total, QColor(30, 30, 30)));
    QApplication::setPalette(before);
}

TEST_F(KitTest, theWheelChangesNoField) {
    bench.record.loans.Num1 = 500;
    places.day = 45000;
    places.mode = 1;
    refresh();
    for (const char* name : {"numAmount", "numMonths", "dtDay", "txtName", "txtNotes", "optMode(1)", "chkSmokes"}) {
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
    EXPECT_EQ(bench.record.loans.Num1, 500);
    EXPECT_EQ(places.day, 45000);
    EXPECT_EQ(places.mode, 1);
}

} // namespace
} // namespace screenkit
