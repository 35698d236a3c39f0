#include <QMimeData>
#include <QPlainTextEdit>

#include "base/text.h"
#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

const std::string emoji = "\U0001F4C8"; // one character, two units in the toolkit, four bytes in the file

std::string repeated(const std::string& one, std::size_t times) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i)
        all += one;
    return all;
}

TEST_F(KitTest, aTextTakesAsManyCharactersAsItsPlaceHolds) {
    const struct {
        const char* what;
        std::string typed;
        std::string kept;
    } cases[] = {{"plain", "abcdefghijkl", "abcdefghij"},
                 {"accents", repeated("ê", 12), repeated("ê", 10)},
                 {"combined accents", repeated("T\u032D", 6), repeated("T\u032D", 5)},
                 {"beyond the first plane", repeated(emoji, 12), repeated(emoji, 10)},
                 {"mixed", "abcdefghi" + emoji + "x", "abcdefghi" + emoji},
                 {"markup", "<b>&\"x\"'%1", "<b>&\"x\"'%1"}};
    for (const auto& c : cases)
        for (const bool pasted : {false, true}) {
            SCOPED_TRACE(c.what);
            go("txtName");
            if (pasted)
                paste(QString::fromStdString(c.typed));
            else
                type(QString::fromStdString(c.typed));
            EXPECT_EQ(places.name, c.kept);
            EXPECT_EQ(text("txtName"), c.kept);
        }
}

TEST_F(KitTest, whatFindsNoRoomIsCutOffWhereItIsPutIn) {
    places.name = "abcdefghij";
    refresh();
    changed() = 0;
    go("txtName");
    get<QLineEdit>("txtName")->setCursorPosition(3);
    type("X");
    EXPECT_EQ(places.name, "abcdefghij");
    EXPECT_EQ(changed(), 0) << "a key that is not taken is no edit";
    key(Qt::Key_Backspace);
    EXPECT_EQ(places.name, "abdefghij");
    paste("XYZ");
    EXPECT_EQ(places.name, "abXdefghij");
}

TEST_F(KitTest, aTextFromTheFileIsKeptWholeHoweverLong) {
    places.name = "a text longer than ten";
    refresh();
    go("txtName");
    key(Qt::Key_End);
    type("!");
    EXPECT_EQ(places.name, "a text longer than ten");
    key(Qt::Key_Backspace);
    EXPECT_EQ(places.name, "a text longer than te");
}

TEST_F(KitTest, notesTakeTheirCharactersAndNoMore) {
    auto* notes = get<QPlainTextEdit>("txtNotes");
    go("txtNotes");
    type("line one");
    key(Qt::Key_Return);
    type("line two");
    EXPECT_EQ(places.notes, "line one\nline two");
    EXPECT_EQ(screen->runs, 0) << "Enter belongs to the notes";

    paste(QString::fromStdString(repeated(emoji, 2100)));
    EXPECT_EQ(base::characterCount(places.notes), 2000U);
    EXPECT_EQ(places.notes, "line one\nline two" + repeated(emoji, 2000 - 17));
    type("x");
    EXPECT_EQ(base::characterCount(places.notes), 2000U);
    notes->moveCursor(QTextCursor::Start);
    paste("in front of it all: no room");
    EXPECT_EQ(places.notes.substr(0, 8), "line one");
    notes->undo();
    EXPECT_EQ(places.notes, notes->toPlainText().toStdString()) << "the record follows an undo";

    key(Qt::Key_Tab);
    EXPECT_EQ(focus().substr(0, 7), "optMode");
    EXPECT_EQ(changed(), 1);
}

TEST_F(KitTest, notesStandAnEmptyClipboard) {
    go("txtNotes");
    type("kept");
    for (auto* source : {new QMimeData, static_cast<QMimeData*>(nullptr)}) {
        QApplication::clipboard()->setMimeData(source); // the program that was copied from has closed
        key(Qt::Key_V, Qt::ControlModifier);
        key(Qt::Key_Insert, Qt::ShiftModifier);
    }
    QMimeData nothing; // as of a wheel press or a drop
    QDropEvent drop({5, 5}, Qt::CopyAction, &nothing, Qt::LeftButton, {});
    QApplication::sendEvent(get<QPlainTextEdit>("txtNotes")->viewport(), &drop);
    EXPECT_EQ(places.notes, "kept");
}

TEST_F(KitTest, longerNotesFromTheFileAreKeptWhole) {
    const std::string held = repeated("ê\r\n", 2500);
    places.notes = held;
    refresh();
    go("txtNotes");
    key(Qt::Key_End, Qt::ControlModifier);
    key(Qt::Key_Tab);
    EXPECT_EQ(places.notes, held);
    EXPECT_EQ(changed(), 0);

    go("txtNotes");
    key(Qt::Key_End, Qt::ControlModifier);
    key(Qt::Key_Backspace);
    EXPECT_EQ(base::characterCount(places.notes), 4999U);
    EXPECT_EQ(changed(), 1);
    type("xy");
    EXPECT_LE(base::characterCount(places.notes), base::characterCount(held));
}

TEST_F(KitTest, aRefillLeavesTheCursorInUnchangedNotes) {
    places.notes = "one\r\ntwo";
    refresh();
    auto* notes = get<QPlainTextEdit>("txtNotes");
    notes->moveCursor(QTextCursor::End);
    refresh();
    EXPECT_EQ(notes->textCursor().position(), 7);
}

} // namespace
} // namespace screenkit
