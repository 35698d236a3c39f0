#include "tour/desk.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <stdexcept>

#include "tour/journal.h"

namespace tour {

using screenkit::Answer;

namespace {

QMessageBox::StandardButton buttonOf(Answer answer) {
    switch (answer) {
    case Answer::yes: return QMessageBox::Yes;
    case Answer::no: return QMessageBox::No;
    case Answer::cancel: return QMessageBox::Cancel;
    case Answer::ok: break;
    }
    return QMessageBox::Ok;
}

} // namespace

void Desk::expect(const QString& title, Answer answer, const QString& pictureName) {
    m_boxes.push_back({title, answer, pictureName});
}

void Desk::checkQuiet() const { check(m_trouble.isEmpty(), m_trouble); }

void Desk::checkDone() const {
    checkQuiet();
    if (!m_boxes.empty()) fail("the box \"" + m_boxes.front().title + "\" never came");
    if (!m_files.empty()) fail("nobody asked for the file " + m_files.front());
}

Answer Desk::box(screenkit::BoxStyle style, const QString& text, const QString& title, screenkit::Buttons buttons,
                 std::optional<Answer> defaultAnswer) {
    say("  asked: [" + title + "] " + text);
    if (m_boxes.empty() || m_boxes.front().title != title) {
        m_trouble = "unexpected box [" + title + "] " + text;
        return buttons == screenkit::Buttons::yesNo ? Answer::no : Answer::cancel;
    }
    const Expected expected = m_boxes.front();
    m_boxes.pop_front();
    QTimer::singleShot(0, QApplication::instance(), [this, expected] { press(expected); });
    const Answer answer = RealDesk::box(style, text, title, buttons, defaultAnswer);
    if (answer != expected.answer) m_trouble = "the box [" + title + "] gave another answer than the button pressed";
    return answer;
}

void Desk::press(const Expected& expected) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    auto* button = box != nullptr ? box->button(buttonOf(expected.answer)) : nullptr;
    if (button == nullptr) {
        m_trouble = "the box [" + expected.title + "] has no such button";
        if (box != nullptr) box->reject();
        return;
    }
    try {
        if (!expected.pictureName.isEmpty()) picture(box, expected.pictureName);
    } catch (const std::runtime_error& error) { // exceptions must not pass through Qt
        m_trouble = QString::fromStdString(error.what());
    }
    say("  answered: " + button->text().remove('&'));
    QTest::mouseClick(button, Qt::LeftButton);
}

std::optional<QString> Desk::nextFile(const QString& asked) {
    if (m_files.empty()) {
        m_trouble = "unexpected file chooser " + asked;
        return {};
    }
    const QString name = m_files.front();
    m_files.pop_front();
    say("  asked: " + asked + " ?");
    say("  answered: " + name);
    return name;
}

std::optional<QString> Desk::fileToSave(const QString& title, const QString& suggested, const QStringList&) {
    return nextFile("[" + title + "] save as " + suggested);
}

std::optional<QString> Desk::fileToOpen(const QString& title, const QString& folder, const QStringList&) {
    return nextFile("[" + title + "] open " + folder);
}

} // namespace tour
