#pragma once

#include <gtest/gtest.h>

#include <QPrinter>
#include <QStringList>
#include <deque>
#include <functional>
#include <vector>

#include "screenkit/desk.h"

namespace screenkit {

/// A desk that answers from a queue filled by the test and records its boxes. An unexpected box fails the test, and so
/// does an answer that is never used.
class TestDesk : public Desk {
public:
    struct Box {
        BoxStyle style{};
        QString text;
        QString title;
        Buttons buttons{};
        std::optional<Answer> defaultAnswer;
    };

    ~TestDesk() override {
        EXPECT_TRUE(m_answers.empty()) << m_answers.size() << " expected boxes never came";
        EXPECT_TRUE(m_files.empty()) << "an expected file chooser never came";
    }

    /// Sets the answer to the next box.
    void expect(Answer answer) { m_answers.push_back(answer); }
    /// Runs `act`, answers its one message box and returns the box; fails the test if there is none or more than one.
    Box asked(Answer answer, const std::function<void()>& act) {
        boxes.clear();
        expect(answer);
        act();
        EXPECT_EQ(boxes.size(), 1U);
        return boxes.empty() ? Box{} : boxes.front();
    }
    /// The same, answered OK.
    Box told(const std::function<void()>& act) { return asked(Answer::ok, act); }
    /// Sets the name chosen in the next file dialog; nothing: the user cancels.
    void expectFile(std::optional<QString> name) { m_files.push_back(std::move(name)); }
    /// The box shown last.
    const Box& last() const { return boxes.back(); }

    Answer box(BoxStyle style, const QString& text, const QString& title, Buttons buttons,
               std::optional<Answer> defaultAnswer) override {
        boxes.push_back({style, text, title, buttons, defaultAnswer});
        if (m_answers.empty()) {
            ADD_FAILURE() << "unexpected box \"" << title.toStdString() << "\": " << text.toStdString();
            return buttons == Buttons::ok ? Answer::ok : buttons == Buttons::yesNo ? Answer::no : Answer::cancel;
        }
        const Answer answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }
    std::optional<QString> fileToOpen(const QString&, const QString&, const QStringList&) override {
        return nextFile();
    }
    std::optional<QString> fileToSave(const QString&, const QString& suggested, const QStringList& filters) override {
        suggestedName = suggested;
        offeredFilters = filters;
        return nextFile();
    }
    std::optional<QString> input(const QString& text, const QString&, const QString& initial) override {
        asking = {text, initial};
        return typed;
    }
    bool choosePrinter(QPrinter& printer) override {
        if (printDialog) return printDialog(printer);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(printTo);
        return hasPrinter();
    }
    bool hasPrinter() override { return !printTo.isEmpty(); }
    void bell() override { ++bells; }
    QDate today() override { return day; }
    void openOnDesktop(const QString& address) override { opened << address; }
    bool startProgram(const QStringList&) override {
        ++programsStarted;
        return programStarts;
    }

    std::vector<Box> boxes;
    QString suggestedName;
    QStringList offeredFilters;
    QStringList opened;
    QStringList asking;           ///< the last question for a line of text, and the text that it began with
    std::optional<QString> typed; ///< the answer to it; nothing: the user cancels
    QDate day{2026, 11, 22};
    int bells = 0;
    int programsStarted = 0;
    bool programStarts = true;
    std::function<bool(QPrinter&)> printDialog; ///< what the user does there; false to cancel
    QString printTo; ///< the file that stands in for a printer; empty: no printer is installed

private:
    std::optional<QString> nextFile() {
        if (m_files.empty()) {
            ADD_FAILURE() << "unexpected file chooser";
            return {};
        }
        auto name = m_files.front();
        m_files.pop_front();
        return name;
    }

    std::deque<Answer> m_answers;
    std::deque<std::optional<QString>> m_files;
};

} // namespace screenkit
