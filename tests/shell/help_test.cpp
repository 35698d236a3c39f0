#include <QLabel>
#include <QListWidget>
#include <QTextBlock>
#include <QTextBrowser>

#include "shell/running_program.h"
#include "shell/screens.h"

namespace {

using shelltest::RunningProgram;

class Help : public testing::Test {
protected:
    Help() {
        std::filesystem::copy_file(std::filesystem::path(MARLOWBECK_PROGRAM_DIR) / "guide.md", run.folder / "guide.md");
    }
    QTextBrowser* page() { return run.control<QTextBrowser>("brwHelp"); }
    /// The first visible line of the guide.
    QString top() { return page()->cursorForPosition(QPoint(5, 5)).block().text(); }
    QString found() { return run.control<QLabel>("lblFound")->text(); }

    RunningProgram run;
};

TEST_F(Help, OpensAtTheChapterOfTheScreenInFront) {
    for (const shell::ScreenEntry& entry : shell::screenEntries()) {
        if (entry.name == std::string("frmBrowser")) continue;
        static_cast<screenkit::Shell&>(run.window()).open(entry.name);
        RunningProgram::settle();
        run.key(Qt::Key_F1);
        ASSERT_EQ(run.front()->objectName(), "frmBrowser") << entry.name;
        EXPECT_EQ(top(), entry.chapter) << entry.name;
        EXPECT_EQ(run.control<QListWidget>("lstContents")->currentItem()->text(), entry.chapter);
        run.screen(entry.name)->drop();
    }
}

TEST_F(Help, ContentsAndSearchLeadThroughTheGuide) {
    run.menu("mnuContents");
    EXPECT_EQ(top(), "The Marlowbeck guide");
    auto* contents = run.control<QListWidget>("lstContents");
    EXPECT_GE(contents->count(), 15);
    contents->setCurrentRow(0);
    contents->setFocus();
    run.key(Qt::Key_Down);
    EXPECT_EQ(top(), contents->item(1)->text());

    run.enter("txtSearch", "asterisk");
    EXPECT_EQ(page()->textCursor().selectedText(), "asterisk");
    EXPECT_EQ(contents->currentItem()->text(), "Saving");
    EXPECT_TRUE(page()->viewport()->rect().contains(page()->cursorRect()));
    EXPECT_TRUE(found().startsWith("1 of ")) << found().toStdString();
    run.enter("txtSearch", "program folder");
    const QString all = found().section(' ', 2);
    ASSERT_GE(all.toInt(), 3);
    run.key(Qt::Key_Return);
    EXPECT_EQ(found(), "2 of " + all);
    run.key(Qt::Key_Return, Qt::ShiftModifier);
    run.key(Qt::Key_Enter, Qt::ShiftModifier);
    EXPECT_EQ(found(), all + " of " + all);
    run.enter("txtSearch", "no such words");
    EXPECT_EQ(found(), "Not found");
    run.key(Qt::Key_Return);
    run.key(Qt::Key_Escape);
    EXPECT_EQ(found(), "");
}

} // namespace
