#include "shell/running_program.h"

#include <gtest/gtest.h>

namespace {

using shelltest::RunningProgram;
namespace fs = std::filesystem;

TEST(Start, FirstRunMakesTheClientFileAndStandsIdle) {
    RunningProgram run;
    EXPECT_TRUE(fs::exists(run.folder / "Data.Mdb"));
    EXPECT_EQ(storetest::bytesOf(run.folder / "DataPath.txt"), "\"" + (run.folder / "Data.Mdb").string() + "\"\r\n");
    EXPECT_TRUE(run.window().isVisible());
    EXPECT_TRUE(run.window().screens().isEmpty());
    EXPECT_EQ(run.record().ClientOnFile, 0);
    EXPECT_EQ(run.record().changed.InflationChanged, 0);
    EXPECT_EQ(run.record().inflation.PresCostInflation, 0);
    EXPECT_GT(run.record().funds.ESPremCom, 0); // read once, at the start
}

TEST(Start, SecondInstanceIsRefusedBeforeAnyFileIsTouched) {
    RunningProgram first;
    RunningProgram second(false);
    second.desk.expect(screenkit::Answer::ok);
    EXPECT_FALSE(second.start());
    EXPECT_TRUE(second.program.refused());
    EXPECT_EQ(second.desk.last().title, "Marlowbeck Currently Loaded!!!!!");
    EXPECT_FALSE(fs::exists(second.folder / "DataPath.txt"));
    EXPECT_FALSE(fs::exists(second.folder / "Data.Mdb"));
}

TEST(Start, MissingSettingsEndItWithABoxThatNamesTheFile) {
    RunningProgram run(false);
    fs::remove(run.folder / "Default.Mdb");
    run.desk.expect(screenkit::Answer::ok);
    EXPECT_FALSE(run.start());
    EXPECT_EQ(run.desk.last().title, "Marlowbeck");
    EXPECT_TRUE(run.desk.last().text.contains("Default.Mdb"));
    EXPECT_TRUE(run.desk.last().text.contains("3024"));
}

TEST(Start, ExitWithScreensOpenEndsQuietly) {
    for (const char* item : {"mnuBrowse", "mnuSaveAs", "mnuPersDet", "mnuLoansCalc", "mnuPrep"}) {
        RunningProgram run;
        run.menu(item);
        ASSERT_EQ(run.window().screens().size(), 1) << item;
        run.desk.expect(screenkit::Answer::yes);
        run.window().close();
        EXPECT_FALSE(run.window().isVisible()) << item;
    } // a screen that is open to the end talks to the main window while that goes
}

} // namespace
