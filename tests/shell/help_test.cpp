#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
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

TEST_F(Help, EachScreenOpensWholeWithItsChapterAndClosesWithoutAChange) {
    run.saveClient("Botha");
    run.window().resize(947, 692); // as it starts; the test's screen is too small for all of it
    for (const shell::ScreenEntry& entry : shell::screenEntries()) {
        if (entry.name == std::string("frmBrowser")) continue;
        SCOPED_TRACE(entry.name);
        static_cast<screenkit::Shell&>(run.window()).open(entry.name);
        RunningProgram::settle();
        // If it opened scrolled, its tabs or buttons might be out of sight.
        if (const auto* area = run.front()->findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly)) {
            EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
        }
        run.key(Qt::Key_F1);
        ASSERT_EQ(run.front()->objectName(), "frmBrowser");
        EXPECT_EQ(top(), entry.chapter);
        EXPECT_EQ(run.control<QListWidget>("lstContents")->currentItem()->text(), entry.chapter);
        run.screen(entry.name)->parentWidget()->close();
        RunningProgram::settle();
        EXPECT_FALSE(run.isOpen(entry.name));
        assessment::CheckChanges(run.record());
        EXPECT_EQ(run.record().ClientChanged, 0);
    }
    EXPECT_TRUE(run.desk.boxes.empty());
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
