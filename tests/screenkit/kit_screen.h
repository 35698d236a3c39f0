#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QTest>

#include "base/day.h"
#include "screenkit/accesskeys.h"
#include "screenkit/look.h"
#include "screenkit/screen.h"
#include "screenkit/testdesk.h"
#include "screenkit/workbench.h"
#include "store/error.h"

namespace screenkit {

/// The values that the test screen's fields are bound to, besides the client's loan.
struct Places {
    std::int16_t count = 0;
    std::int32_t shares = 0;
    float rate = 0;
    double total = 1234.5;
    double day = base::blankDate;
    std::string name;
    std::string notes;
    std::int16_t mode = 0;
    std::int16_t smokes = 0;
    std::int16_t withNotes = 0;
};

/// A screen with one field of each kind, every button, and both panels.
class KitScreen : public Screen {
public:
    KitScreen(Workplace& work, Places& places) : Screen(work, "frmKit", "Kit", work.record.changed.LoansChanged) {
        auto& loan = work.record.loans;
        auto* amount = number("numAmount", loan.Num1, money);
        auto* months = number("numMonths", loan.Num2, whole.upTo(600, "Too many months", "Months!"));
        // from 1 to 600; a step below 1 wraps round
        const SpinRule steps{
            .floor = 0, .holdsFloor = false, .ceiling = 600, .wrapsTo = 40, .rings = true, .focus = [this] {
                return clickFocus;
            }};
        auto* total = result("numTotal", places.total, money);
        showsCalculated(total);
        auto* name = text("txtName", places.name, 10);
        auto* run = button("cmdRun", "&Run", [this] {
            ++runs;
            onRun();
        });
        body(column(
            {form({{"&Amount", amount},
                   {"&Months", row({months, spin("spnMonths", months, steps)})},
                   {"&Count", number("numCount", places.count, whole.between(-99999, 99999, "Count", "C!"))},
                   {"&Shares", number("numShares", places.shares, whole)},
                   {"Ra&te", number("numRate", places.rate, percent), "% a year"},
                   {"&Total", total},
                   {"&Date", date("dtDay", places.day)},
                   {"&Name", name},
                   {"N&otes", memo("txtNotes", places.notes, 2000)},
                   {"Mo&de", options("optMode", {"First", "Second", "Third"}, places.mode, [this](int) { ++picks; })}}),
             button("cmdBetween", "&Between", [] {}), check("chkSmokes", "Smo&kes", places.smokes),
             row({run, cancelButton("cmdCancel", "Cance&l", [this] { ++cancels; }),
                  button("cmdPrint", "&Print", [this] { print->open(findChild<QWidget*>("Check3")); }), okButton()})}));
        defaultButton(run);
        months->setAccessibleName("Months"); // its form row also holds the spin buttons
        auto* withNotes = check("Check3", "&Include Notes", places.withNotes);
        untrackedField(withNotes);
        print = printPanel({withNotes}, [this](Destination to) { printed(to); });
    }

    /// Makes Enter calculate from every field.
    void enterRuns() { enterPresses(findChild<QPushButton*>("cmdRun")); }
    /// Adds a field of the test's own kind.
    NumberField* add(const QString& name, double& place, const NumberKind& kind) {
        return added(number(name, place, kind));
    }
    DateField* add(const QString& name, double& place, const DateKind& kind) { return added(date(name, place, kind)); }

    /// Opens the panel with the table of figures.
    void table(std::vector<std::vector<double>> rows) {
        showGrid("Figures", {{" Year ", "##"}, {"Balance", "# ### ##0.00"}}, std::move(rows),
                 findChild<QWidget*>("cmdOK"));
    }

    using Screen::calculated;
    using Screen::outdated;
    Panel* print = nullptr;
    QWidget* clickFocus = nullptr; ///< where a click on the spin buttons moves the focus
    std::function<void(Destination)> printed = [](Destination) {};
    std::function<void()> onFilled = [] {}, onRun = [] {}, onEdit = [] {};
    std::function<void(Field*)> onSettled = [](Field*) {};
    int runs = 0, cancels = 0, picks = 0, edits = 0;

protected:
    template <class F>
    F* added(F* field) {
        field->setParent(this);
        field->fill();
        field->show();
        return field;
    }
    void edited() override {
        ++edits;
        onEdit();
    }
    void filled() override {
        onFilled();
        calculated();
    }
    void settled(Field* field) override { onSettled(field); }
};

/// The screen as a child of a main window, and its user: keys and mouse events go to the window, as the system sends
/// them, not to a control chosen by the test.
class KitTest : public testing::Test {
protected:
    KitTest() {
        new AccessKeys(&window);
        window.setCentralWidget(&area);
        window.resize(1000, 800);
        screen = new KitScreen(bench.workplace, places);
        front = screen;
        child = area.addSubWindow(screen);
        child->resize(900, 780);
        window.show();
        child->show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        refresh();
    }
    ~KitTest() override {
        if (screen != nullptr) screen->drop();
        if (front != nullptr && front != screen) front->drop();
    }

    /// Shows another screen; the following keys and clicks go to it.
    template <class S>
    S* bring(S* other, QRect place = {}) {
        auto* frame = area.addSubWindow(other);
        if (!place.isNull()) frame->setGeometry(place);
        frame->show();
        area.setActiveSubWindow(frame);
        front = other;
        other->activate();
        settle();
        return other;
    }

    /// Brings the screen to the front after the record was changed without it.
    void refresh() {
        screen->activate();
        settle();
    }
    static void settle() {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }

    template <class T = QWidget>
    T* get(const char* name) {
        return front->findChild<T*>(name);
    }
    std::string text(const char* field) { return get<QLineEdit>(field)->text().toStdString(); }
    bool isSeenWhole(const char* name) { return get(name)->visibleRegion().boundingRect().size() == get(name)->size(); }
    static std::string selected() {
        auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        return line != nullptr ? line->selectedText().toStdString() : std::string();
    }
    static std::string focus() {
        const auto* widget = QApplication::focusWidget();
        return widget != nullptr ? widget->objectName().toStdString() : std::string();
    }
    void go(const char* field) {
        get(field)->setFocus(Qt::TabFocusReason);
        if (auto* line = get<QLineEdit>(field)) line->selectAll();
        settle();
    }

    void key(Qt::Key pressed, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(window.windowHandle(), pressed, with);
        settle();
    }
    /// Performs actions given as words: a key by its name ("Tab", "Alt+R"), or a click on a control ("@" and its name).
    void act(const QString& words) {
        for (const QString& word : words.split(' ', Qt::SkipEmptyParts)) {
            if (word.startsWith('@')) {
                click(word.mid(1).toUtf8().constData());
                continue;
            }
            const QKeyCombination pressed = QKeySequence(word)[0];
            ASSERT_NE(pressed.key(), Qt::Key_unknown) << word.toStdString();
            key(pressed.key(), pressed.keyboardModifiers());
        }
    }
    /// The control with the focus after that.
    std::string after(const QString& words) {
        act(words);
        return focus();
    }
    /// Types without running the event loop between the characters, as from a keyboard buffer.
    static void type(const QString& typed) {
        for (const uint point : typed.toUcs4()) {
            const QString one = QString::fromUcs4(reinterpret_cast<const char32_t*>(&point), 1);
            const auto code = point == '\t' ? Qt::Key_Tab
                              : point < 128 ? static_cast<Qt::Key>(QChar(point).toUpper().unicode())
                                            : Qt::Key_unknown;
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), code, one, Qt::NoModifier);
        }
    }
    /// Replaces the field's content, like a user who tabs into it.
    void enter(const char* field, const QString& typed) {
        go(field);
        type(typed);
    }
    static void paste(const QString& copied) {
        QApplication::clipboard()->setText(copied);
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_V, QString(), Qt::ControlModifier);
    }

    void press(QWidget* target, QPoint at = {}) { mouse(QTest::MousePress, target, at); }
    void release(QWidget* target, QPoint at = {}) { mouse(QTest::MouseRelease, target, at); }
    void click(QWidget* target, QPoint at = {}) {
        press(target, at);
        QTest::qWait(5); // a real user needs time between the two, in which queued events run
        release(target, at);
        QTest::qWait(25); // a check that found the mouse button down tries again later
    }
    /// Clicks on a control; for a check box or an option on its mark.
    void click(const char* name) {
        auto* button = get<QAbstractButton>(name);
        click(get(name), button != nullptr && button->isCheckable() ? QPoint(8, button->height() / 2) : QPoint());
    }

    std::int16_t& changed() { return bench.record.changed.LoansChanged; }

    TestDesk desk;
    Workbench bench{desk};
    Places places;
    QMainWindow window;
    QMdiArea area;
    QPointer<KitScreen> screen; ///< null once its window is closed
    QPointer<Screen> front;     ///< the screen in which `get` looks for controls
    QPointer<QMdiSubWindow> child;

private:
    static void mouse(QTest::MouseAction action, QWidget* target, QPoint at) {
        const QPoint inside = at.isNull() ? target->rect().center() : at;
        QTest::mouseEvent(action, target->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          target->mapTo(target->window(), inside), -1);
    }
};

} // namespace screenkit
