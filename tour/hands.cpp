#include "tour/hands.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <cmath>

#include "reports/previewwindow.h"
#include "reports/report.h"
#include "screenkit/numberfield.h"
#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"

namespace tour {

namespace {

constexpr int patience = 5000; // milliseconds to wait for a window or menu

/// Sends the letter as text: Qt's own helper supports only Latin-1.
void letterKey(QWidget* target, QChar letter) {
    QTest::sendKeyEvent(QTest::Click, target, Qt::Key_unknown, QString(letter), Qt::NoModifier);
}

void keys(QWidget* target, const QString& text) {
    for (const QChar letter : text)
        letterKey(target, letter);
}

QString textIn(QWidget* field) {
    if (auto* memo = qobject_cast<QPlainTextEdit*>(field)) return memo->toPlainText();
    return static_cast<QLineEdit*>(field)->text();
}

/// True if the field shows this text, or the same number.
bool shows(QWidget* field, const QString& typed) {
    if (const auto* figure = dynamic_cast<screenkit::NumberField*>(field)) return figure->value() == typed.toDouble();
    return textIn(field) == typed;
}

/// An option or a check box may be wider than its caption, but only the caption accepts clicks.
QPoint spotOn(const QAbstractButton* button) {
    return button->isCheckable() ? QPoint(button->height() / 2, button->height() / 2) : button->rect().center();
}

} // namespace

shell::MDIForm1& Hands::window() { return m_program.window(); }

void Hands::settle() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    m_desk.checkQuiet();
}

screenkit::Screen* Hands::front() {
    QMdiSubWindow* active = window().findChild<QMdiArea*>()->activeSubWindow();
    return active != nullptr && active->isVisible() ? qobject_cast<screenkit::Screen*>(active->widget()) : nullptr;
}

void Hands::expectFront(const QString& screen) {
    const QString now = front() != nullptr ? front()->objectName() : "nothing";
    check(now == screen, screen + " should be in front, but " + now + " is");
}

QWidget* Hands::find(const QString& name) { return front() != nullptr ? front()->findChild<QWidget*>(name) : nullptr; }

void Hands::lost(const QString& name) {
    fail("there is no " + name + " on " + (front() != nullptr ? front()->objectName() : "the empty main window"));
}

void Hands::reach(QWidget* control) {
    check(control->isVisible(), control->objectName() + " cannot be seen");
    check(control->isEnabled(), control->objectName() + " is greyed out");
}

void Hands::menu(const QStringList& names) {
    QWidget* shown = window().menuBar();
    for (const QString& name : names) {
        auto* below = window().findChild<QMenu*>(name);
        auto* action = below != nullptr ? below->menuAction() : window().findChild<QAction*>(name);
        check(action != nullptr && action->isEnabled(), "the menu item " + name + " cannot be picked");
        auto* bar = qobject_cast<QMenuBar*>(shown);
        const QRect place =
            bar != nullptr ? bar->actionGeometry(action) : static_cast<QMenu*>(shown)->actionGeometry(action);
        QTest::mouseClick(shown, Qt::LeftButton, {}, place.center());
        if (below == nullptr) continue;
        check(QTest::qWaitFor([&] { return below->isVisible(); }, patience), "the menu " + name + " does not open");
        shown = below;
    }
    toFront(window());
}

void Hands::toFront(QWidget& window) {
    window.activateWindow();
    check(QTest::qWaitForWindowActive(&window, patience), window.windowTitle() + " does not come back to the front");
    settle();
}

void Hands::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    if (QApplication::focusWidget() == nullptr) toFront(window());
    QWidget* target = QApplication::focusWidget();
    QTest::keyClick(target != nullptr ? target : &window(), key, modifiers);
    settle();
}

void Hands::click(const QString& name) {
    auto* button = control<QAbstractButton>(name);
    turnTo(name);
    reach(button);
    QTest::mouseClick(button, Qt::LeftButton, {}, spotOn(button));
    settle();
}

void Hands::type(const QString& name, const QString& text, Qt::Key leave) {
    auto* field = control<QWidget>(name);
    turnTo(name);
    reach(field);
    QTest::mouseClick(field, Qt::LeftButton);
    settle();
    check(field->hasFocus(), name + " does not take the focus");
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    keys(field, text);
    QTest::keyClick(field, leave);
    settle();
}

void Hands::enter(std::span<const Entry> entries) {
    for (const auto& [field, text] : entries) {
        type(field, text);
        auto* shown = control<QWidget>(field);
        check(shows(shown, text), QString("%1 shows %2 after typing %3").arg(field, textIn(shown), text));
    }
    say(QString("  typed %1 fields").arg(entries.size()));
}

void Hands::write(const QString& text) {
    for (const QChar letter : text) {
        check(QApplication::focusWidget() != nullptr, "nothing has the focus to type \"" + text + "\" into");
        letterKey(QApplication::focusWidget(), letter);
    }
    settle();
}

void Hands::turnTo(const QString& name) {
    for (QWidget* page = control<QWidget>(name); page != nullptr && page != front(); page = page->parentWidget()) {
        auto* stack = page->parentWidget() != nullptr ? page->parentWidget()->parentWidget() : nullptr;
        auto* book = qobject_cast<QTabWidget*>(stack);
        const int index = book != nullptr ? book->indexOf(page) : -1;
        if (index < 0 || index == book->currentIndex()) continue;
        QTest::mouseClick(book->tabBar(), Qt::LeftButton, {}, book->tabBar()->tabRect(index).center());
        settle();
    }
}

QString Hands::shown(const QString& name) { return control<QLineEdit>(name)->text(); }
double Hands::figure(const QString& name) {
    auto* field = dynamic_cast<screenkit::NumberField*>(control<QLineEdit>(name));
    if (field == nullptr) lost(name);
    return field->value();
}

void Hands::expectFigure(const QString& name, double expected) {
    check(std::abs(figure(name) - expected) < 1,
          QString("%1 shows %2 instead of %3").arg(name, shown(name)).arg(expected, 0, 'f', 2));
}

reports::PreviewWindow* Hands::preview() {
    settle();
    const auto open = m_program.reports().previews();
    check(!open.empty(), "no report window has opened");
    check(QTest::qWaitForWindowActive(open.back(), patience), "the report window does not come to the front");
    return open.back();
}

void Hands::closePreview() {
    const QPointer<reports::PreviewWindow> open = preview();
    key(Qt::Key_Escape);
    check(open.isNull(), "Escape does not close the report window");
    const auto others = m_program.reports().previews();
    toFront(others.empty() ? static_cast<QWidget&>(window()) : *others.back());
}

} // namespace tour
