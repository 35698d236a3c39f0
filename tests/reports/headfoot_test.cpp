#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using screenkit::Buttons;
using shelltest::RunningProgram;

constexpr const char* lines = "SELECT [HEADERV0],[HEADERV1],[HEADERV2],[HEADERV3],[footv0],[footv1],[footv2],[footv3] "
                              "FROM [HeadFoot]";
constexpr const char* shipped = "||||This report was prepared in accordance with |information supplied by the "
                                "undersigned client.||";

class HeadFoot : public testing::Test {
protected:
    HeadFoot() { run.menu("mnuPrep"); }
    RunningProgram run;
};

TEST_F(HeadFoot, ShowsTheStoredLinesAndClosesWithoutAQuestion) {
    EXPECT_EQ(run.front()->windowTitle(), "Header & Footer Setup");
    EXPECT_EQ(run.shown("sitxEdit2(0)"), "This report was prepared in accordance with ");
    EXPECT_EQ(run.shown("sitxEdit2(1)"), "information supplied by the undersigned client.");
    QStringList notes;
    for (auto* label : run.front()->findChildren<QLabel*>())
        notes << label->text();
    for (const char* part : {"Header", "Footer"})
        EXPECT_TRUE(notes.contains(QString("These four lines will apear on all printouts as a %1.").arg(part)));
    run.click("cmdOk");
    EXPECT_FALSE(run.isOpen("frmHeadFoot"));
    run.menu("mnuPrep");
    run.type("sitxEdit1(0)", "Botha");
    run.front()->parentWidget()->close(); // this, too, and discards the entries
    RunningProgram::settle();
    EXPECT_FALSE(run.isOpen("frmHeadFoot"));
    EXPECT_EQ(run.inClients(lines), shipped);
    EXPECT_TRUE(run.desk.boxes.empty());
}

TEST_F(HeadFoot, CancelStaysNoWarnsAndKeepsTheStoredLinesAndYesStoresAllEightInBothDatabases) {
    run.type("sitxEdit2(2)", "Botha");
    const auto box = run.desk.asked(Answer::cancel, [this] { run.click("cmdOk"); });
    EXPECT_EQ(box.text, "Changes have been made to the Header/Footer. Do you want to save them. ?");
    EXPECT_EQ(box.title, "Header/Footer Changes !");
    EXPECT_EQ(box.buttons, Buttons::yesNoCancel);
    EXPECT_EQ(run.focused(), "sitxEdit1(0)");
    EXPECT_EQ(run.shown("sitxEdit2(2)"), "Botha");
    run.desk.expect(Answer::no);
    run.desk.expect(Answer::ok);
    run.click("cmdOk");
    EXPECT_EQ(run.desk.last().text, "WARNING CHANGES HAVE NOT BEEN SAVED BUT WILL STILL APPEAR ON PRINTOUTS UNTIL "
                                    "PROGRAMME IS EXITED ! ");
    EXPECT_EQ(run.desk.last().title, "WARNING CHANGES");
    EXPECT_FALSE(run.isOpen("frmHeadFoot"));
    EXPECT_EQ(run.inClients(lines), shipped);
    EXPECT_EQ(run.inPrint(lines), shipped);

    run.menu("mnuPrep");
    EXPECT_EQ(run.shown("sitxEdit2(2)"), "");
    const std::string longest = std::string(78, 'x') + "ḓÊ"; // eighty letters
    run.type("sitxEdit1(0)", "Botha & Seun <b>");
    run.type("sitxEdit1(3)", "O'Brien's \"best\"");
    run.type("sitxEdit2(3)", QString::fromStdString(longest + "more"));
    EXPECT_EQ(run.shown("sitxEdit2(3)").toStdString(), longest);
    run.desk.asked(Answer::yes, [this] { run.click("cmdOk"); });
    EXPECT_FALSE(run.isOpen("frmHeadFoot"));
    const std::string stored = "Botha & Seun <b>|||O'Brien's \"best\"|This report was prepared in accordance with "
                               "|information supplied by the undersigned client.||" +
                               longest;
    EXPECT_EQ(run.inClients(lines), stored);
    EXPECT_EQ(run.inPrint(lines), stored);
    assessment::CheckChanges(run.record());
    EXPECT_EQ(run.record().ClientChanged, 0); // the lines belong to the practice, not the client
}

} // namespace
