#include "reports/previewwindow.h"
#include "reports/report.h"
#include "reports/report_support.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

TEST(BlankForms, AreViewedOrPrintedAsTicked) {
    RunningProgram run;
    run.inPrint("UPDATE Printout SET Client = 'Mr S. Botha'"); // left by the last printout
    run.menu("mnuPrintBlank");
    reports::Engine& reports = run.window().workplace().reports;
    run.click("cmdVR");
    run.click("cmdPD"); // nothing is ticked: not even the missing printer is mentioned
    EXPECT_TRUE(reports.previews().empty());
    for (const char* copies : {"0", "100"})
        run.expectRefused("numCopies", copies, "The number of copies is between 1 and 99.", "Incorrect Copies!");
    run.type("numCopies", "98");
    auto* copies = run.control<QWidget>("numCopies");
    copies->setFocus();
    for (int up = 0; up < 3; ++up)
        QTest::keyClick(copies, Qt::Key_Up);
    EXPECT_EQ(run.shown("numCopies"), "99");
    const std::pair<const char*, const char*> forms[] = {{"chkPersonalDetails", "Blank Personal Detail"},
                                                         {"chkDeathDisa", "Blank Death/Disability"},
                                                         {"chkRetirement", "Blank Retirement"},
                                                         {"chkPoliciesInvestments", "Policy Investments"}};
    for (const auto& [box, title] : forms) {
        run.click(box);
        run.click("cmdVR");
        ASSERT_EQ(reports.previews().size(), 1U);
        EXPECT_EQ(reports.previews().back()->windowTitle(), title);
        reports.closePreviews();
        RunningProgram::settle();
        run.click(box);
    }
    const QString page = reporttest::textOfPdf(reports.pdf("Blank Retirement.rpt"));
    EXPECT_TRUE(page.contains("Retirement") && !page.contains("Botha")) << page.toStdString();
    run.click("chkRetirement");
    run.click("chkPersonalDetails");
    run.click("cmdVR");
    ASSERT_EQ(reports.previews().size(), 2U);
    EXPECT_EQ(reports.previews().front()->windowTitle(), "Blank Personal Detail"); // the order of the screen
    reports.closePreviews();
    RunningProgram::settle();
    run.desk.told([&] { run.click("cmdPD"); }); // no printer: one box for both
    run.click("cmdOk");
    EXPECT_FALSE(run.isOpen("frmBlankAnaQuestion"));
}

} // namespace
