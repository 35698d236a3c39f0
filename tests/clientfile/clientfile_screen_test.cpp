#include <QAbstractButton>
#include <QFile>
#include <QFileInfo>

#include "reports/previewwindow.h"
#include "reports/report_support.h"
#include "screenkit/choice.h"
#include "screenkit/usersettings.h"
#include "shell/running_program.h"

using screenkit::Answer;
using shelltest::RunningProgram;

namespace {

QString textOf(const QString& pdf, const QStringList& options = {}) {
    return reporttest::runTool("pdftotext", options + QStringList{"-layout", pdf, "-"});
}

/// The program with the client Botha, a loan, and the screen of the client's file.
class ClientFileScreen : public testing::Test {
protected:
    ClientFileScreen() {
        screenkit::userSettings().remove("clientFile");
        run.desk.day = {2026, 11, 23};
        run.saveClient("Botha");
        run.menu("mnuLoansCalc");
        run.typeAll("numPrinAmount 100000, numPeriod 120, numIntRate 12");
        run.click("cmdCalculate");
        run.menu("mnuSave");
        run.menu("mnuClientFile");
    }
    QCheckBox* tick(const QString& name) { return run.control<QCheckBox>(name); }
    QString why(const QString& part) {
        auto* label = run.control<QLabel>(QString("lblWhy(%1)").arg(part));
        return label->isHidden() ? QString() : label->text();
    }
    QString path(const QString& name) { return QString::fromStdString((run.folder / name.toStdString()).string()); }
    /// Presses a button that saves, under this name.
    void save(const QString& button, const QString& name) {
        run.desk.expectFile(path(name));
        run.click(button);
    }

    RunningProgram run;
};

} // namespace

TEST_F(ClientFileScreen, GreysWhatHoldsNothingAndRemembersTheTicksOfTheRest) {
    EXPECT_EQ(run.control<QLabel>("lblKey")->text(), "Key for the command line: 1");
    EXPECT_TRUE(tick("chkPart(loans)")->isEnabled());
    EXPECT_EQ(why("loans"), "");
    EXPECT_FALSE(tick("chkPart(inflation)")->isEnabled());
    EXPECT_EQ(why("inflation"), "Nothing is entered yet.");
    EXPECT_FALSE(tick("chkPart(advice)")->isEnabled());
    EXPECT_FALSE(tick("chkChoice(loans.monthly)")->isEnabled()); // which table, but there is none yet
    run.click("chkChoice(loans.amortisation)");
    EXPECT_TRUE(tick("chkChoice(loans.monthly)")->isEnabled());
    run.click("chkChoice(loans.monthly)");
    run.click("chkPart(cover)");
    run.click("chkPart(loans)");
    EXPECT_FALSE(tick("chkChoice(loans.amortisation)")->isEnabled());
    run.click("cmdOK");
    run.menu("mnuClientFile");
    for (const char* off : {"chkPart(cover)", "chkPart(loans)"})
        EXPECT_FALSE(tick(off)->isChecked()) << off;
    for (const char* on : {"chkPart(contents)", "chkChoice(loans.amortisation)", "chkChoice(loans.monthly)"})
        EXPECT_TRUE(tick(on)->isChecked()) << on;
    run.click("chkPart(cover)");
    EXPECT_TRUE(screenkit::userSettings().value("clientFile/parts/cover").toBool());
    run.click("cmdAll");
    EXPECT_TRUE(tick("chkPart(loans)")->isChecked());
    EXPECT_EQ(run.record().ClientChanged, 0); // a tick is no edit of the client
    run.click("cmdNone");
    run.desk.expect(Answer::ok);
    run.click("cmdPreview");
    EXPECT_EQ(run.desk.last().text, "There is nothing to print. Tick at least one part that is not greyed.");
}

TEST_F(ClientFileScreen, KeepsTheAdvisersTextsWithTheClient) {
    const char* const fields[] = {"txtBasis", "txtConsidered", "txtRecommendation", "txtReplacement", "txtDecision"};
    for (const char* field : fields)
        run.type(field, QString("Words of %1").arg(field));
    EXPECT_TRUE(tick("chkPart(advice)")->isEnabled());
    EXPECT_EQ(run.record().ClientChanged, 1);
    run.menu("mnuSave");
    run.saveClient("Zulu");
    EXPECT_TRUE(run.record().fileTexts.isEmpty());
    run.loadClient("Botha");
    run.menu("mnuClientFile");
    for (const char* field : fields)
        EXPECT_EQ(run.control<QPlainTextEdit>(field)->toPlainText(), QString("Words of %1").arg(field));
    const assessment::FileTexts& texts = run.record().fileTexts;
    EXPECT_EQ(texts.basis + texts.considered, "Words of txtBasisWords of txtConsidered");
    EXPECT_EQ(texts.recommendation + texts.replacement + texts.decision,
              "Words of txtRecommendationWords of txtReplacementWords of txtDecision");
}

TEST_F(ClientFileScreen, ShowsAndSavesTheDocumentUnderTheClientsNameAndDay) {
    run.type("txtRecommendation", "Keep the bond.");
    run.click("cmdPreview");
    const auto previews = run.program.reports().previews();
    ASSERT_EQ(previews.size(), 1U);
    EXPECT_EQ(previews.front()->report().fileClient + previews.front()->report().fileTitle,
              "Bothaclient file 2026-11-23");
    const int pages = previews.front()->report().layout.count();
    EXPECT_GE(pages, 5); // cover, contents, personal details, loan, texts
    save("cmdPDF", "file.pdf");
    EXPECT_EQ(run.desk.suggestedName, "Botha - client file 2026-11-23.pdf");
    const QString text = textOf(path("file.pdf"));
    reporttest::expectWords(text, {"Botha", "Contents", "Personal Detail", "120", "Keep the bond."});
    EXPECT_EQ(text.count(QString("of %1").arg(pages)), pages);
    save("cmdODT", "file.odt");
    EXPECT_EQ(run.desk.suggestedName, "Botha - client file 2026-11-23.odt");
    EXPECT_GT(QFileInfo(path("file.odt")).size(), 1000);
}

TEST_F(ClientFileScreen, PrintsTheMonthlyTaxWhileItsScreenHoldsFigures) {
    EXPECT_EQ(why("monthlyTax"), "Its screen holds no figures, and the file has none.");
    run.menu("mnuPAYE");
    run.typeAll("silgEdit9 45, numSalRemun 40000");
    run.menu("mnuClientFile");
    EXPECT_EQ(why("monthlyTax"), "");
    save("cmdPDF", "file.pdf");
    reporttest::expectWords(textOf(path("file.pdf")), {"PAYE Monthly Calculation", "40 000"});
    EXPECT_EQ(run.record().changed.any(), false); // printing a month taxes no client
}

TEST_F(ClientFileScreen, LocksThePdfByThePasswordAndAsksBeforeAnOpenOdt) {
    run.type("txtPassword", "Blou berg 7");
    save("cmdPDF", "file.pdf");
    EXPECT_FALSE(textOf(path("file.pdf")).contains("Botha"));
    EXPECT_TRUE(textOf(path("file.pdf"), {"-upw", "Blou berg 7"}).contains("Botha"));
    run.desk.expect(Answer::no);
    run.click("cmdODT");
    EXPECT_TRUE(run.desk.last().text.contains("can't carry a password"));
    EXPECT_EQ(run.focused(), "txtPassword");
    run.saveClient("Zulu"); // another client's mail must not have it
    run.menu("mnuClientFile");
    EXPECT_EQ(run.shown("txtPassword"), "");
}

TEST_F(ClientFileScreen, NamesThePartThatFailsAndKeepsTheOldDocument) {
    save("cmdPDF", "file.pdf");
    const auto before = storetest::bytesOf(run.folder / "file.pdf");
    QFile::remove(path("PersDetl.rpt"));
    run.desk.expect(Answer::ok);
    save("cmdPDF", "file.pdf");
    EXPECT_TRUE(run.desk.last().text.contains("Personal Details")) << run.desk.last().text.toStdString();
    EXPECT_EQ(storetest::bytesOf(run.folder / "file.pdf"), before);
}

TEST_F(ClientFileScreen, SaysWhichStoredResultsDifferAndPrintsThemBehindTheContents) {
    EXPECT_TRUE(run.control<QLabel>("lblRemarks")->isHidden());
    run.record().loans.Num4 = 1; // another program's repayment
    run.click("cmdOK");
    run.menu("mnuClientFile");
    const QString remark = "The loan stored is not the one that its own figures give.";
    EXPECT_EQ(run.control<QLabel>("lblRemarks")->text(), remark);
    const auto pagesOf = [this](const QString& file) {
        save("cmdPDF", file);
        return textOf(path(file)).split('\f');
    };
    EXPECT_TRUE(pagesOf("with.pdf").at(2).contains(remark));
    run.click("chkPart(loans)"); // nobody asks for the remark without the part
    EXPECT_FALSE(pagesOf("without.pdf").join(' ').contains(remark));
}
