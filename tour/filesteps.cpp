#include <QFile>

#include "reports/previewwindow.h"
#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// Everything that was worked out for the client as one document, with the adviser's own words.
namespace tour {

void makeClientFile(Hands& hands) {
    say("All that was worked out goes into one document, with the adviser's reasons and his client's decision.");
    hands.menu({"mnuFile", "mnuClientFile"});
    hands.expectFront("frmClientFile");
    picture(&hands.window(), "client-file");
    hands.click("chkChoice(retirementAnalysis.amortisation)");
    const Entry words[] = {
        {"txtBasis", "What the client told us on 2 November 2026, and his salary slips."},
        {"txtConsidered", "Two retirement annuities and a unit trust."},
        {"txtRecommendation", "Raise the unit trust by R 2 000 a month: the capital then lasts to age 85."},
        {"txtReplacement", "Nothing is replaced."},
        {"txtDecision", "Accepted."}};
    for (const auto& [field, text] : words)
        hands.type(field, text);
    picture(&hands.window(), "client-file-texts");
    hands.click("cmdPreview");
    auto* report = hands.preview();
    const int pages = report->report().layout.count();
    say(QString("  the client file has %1 pages").arg(pages));
    check(pages > 20, "the client file lacks parts");
    picture(report, "client-file-report");
    hands.closePreview();
    hands.desk().expectFile("client file.pdf");
    hands.click("cmdPDF");
    QFile file("client file.pdf");
    check(file.open(QIODevice::ReadOnly) && file.read(5) == "%PDF-", "the client file was not saved");
    hands.click("cmdOK");
}

} // namespace tour
