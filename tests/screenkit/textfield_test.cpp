#include <QMimeData>
#include <QPlainTextEdit>

#include "base/text.h"
#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

const std::string emoji = "\U0001F4C8"; // one character, two units of QString, four bytes in the file

std::string repeated(const std::string& one, int times) {
    return QString::fromStdString(one).repeated(times).toStdString();
}

TEST_F(KitTest, aTextTakesAsManyCharactersAsItsPlaceHolds) {
    const std::pair<std::string, std::string> cases[] = {
        {"abcdefghijkl", "abcdefghij"},
        {repeated("ê", 12), repeated("ê", 10)},
        {repeated("T\u032D", 6), repeated("T\u032D", 5)}, // combining accents
        {repeated(emoji, 12), repeated(emoji, 10)},       // beyond the first plane
        {"abcdefghi" + emoji + "x", "abcdefghi" + emoji},
        {"<b>&\"x\"'%1", "<b>&\"x\"'%1"}};
    for (const auto& [typed, kept] : cases)
        for (const bool pasted : {false, true}) {
            go("txtName");
            pasted ? paste(QString::fromStdString(typed)) : type(QString::fromStdString(typed));
            EXPECT_EQ(places.name, kept);
            EXPECT_EQ(text("txtName"), kept);
        }
}

TEST_F(KitTest, textThatDoesNotFitIsCutWhereItIsInserted) {
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

    places.name = "a text longer than ten"; // a text from the file is kept in full
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
    enter("txtNotes", "line one");
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
    EXPECT_EQ(after("Tab"), "optMode(0)");
    EXPECT_EQ(changed(), 1);
}

TEST_F(KitTest, notesSurviveAnEmptyClipboard) {
    enter("txtNotes", "kept");
    for (auto* source : {new QMimeData, static_cast<QMimeData*>(nullptr)}) {
        QApplication::clipboard()->setMimeData(source); // the program copied from was closed
        act("Ctrl+V Shift+Ins");
    }
    QMimeData nothing; // empty data, as dropped by the mouse
    QDropEvent drop({5, 5}, Qt::CopyAction, &nothing, Qt::LeftButton, {});
    QApplication::sendEvent(get<QPlainTextEdit>("txtNotes")->viewport(), &drop);
    EXPECT_EQ(places.notes, "kept");
}

TEST_F(KitTest, longerNotesFromTheFileAreKeptWholeAndTheirCursorWhereItIs) {
    const std::string held = repeated("ê\r\n", 2500);
    places.notes = held;
    refresh();
    go("txtNotes");
    act("Ctrl+End Tab");
    EXPECT_EQ(places.notes, held);
    EXPECT_EQ(changed(), 0);
    refresh();
    EXPECT_EQ(get<QPlainTextEdit>("txtNotes")->textCursor().position(), 5000) << "a refill leaves it there";

    go("txtNotes");
    act("Ctrl+End Backspace");
    EXPECT_EQ(base::characterCount(places.notes), 4999U);
    EXPECT_EQ(changed(), 1);
    type("xy");
    EXPECT_LE(base::characterCount(places.notes), base::characterCount(held));
}

} // namespace
} // namespace screenkit
