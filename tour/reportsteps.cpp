#include <QFile>
#include <QPainter>

#include "reports/previewwindow.h"
#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// The reports: viewed, and exported in each format.
namespace tour {

namespace {

QByteArray bytesOf(const QString& name) {
    QFile file(name);
    check(file.open(QIODevice::ReadOnly), name + " was not written");
    return file.readAll();
}

/// Exports the front report with Ctrl+E as NAME.pdf and so on, and checks how each file begins.
void exportAll(Hands& hands, const QString& name) {
    struct Kind {
        const char* ending;
        const char* beginning;
    };
    for (const auto& [ending, beginning] :
         {Kind{".pdf", "%PDF-"}, Kind{".html", "<"}, Kind{".odt", "PK"}, Kind{".csv", ""}, Kind{".xlsx", "PK"}}) {
        hands.desk().expectFile(name + ending);
        hands.key(Qt::Key_E, Qt::ControlModifier);
        check(bytesOf(name + ending).startsWith(beginning), name + ending + " is not what its name says");
    }
}

/// Ends the tour unless the file contains the text; all kinds of blanks count as equal.
void checkHolds(const QString& file, const QString& text) {
    const QString page = QString::fromUtf8(bytesOf(file)).replace(QChar::Nbsp, ' ').replace("&nbsp;", " ");
    check(page.contains(text.toHtmlEscaped()), file + " lacks \"" + text + "\"");
}

/// A picture of the report beside the main window, as on a real screen.
QPixmap desktop(Hands& hands) {
    constexpr QSize screen(1280, 692);
    constexpr QPoint mainAt(0, 0);
    constexpr QPoint reportAt(680, 32);
    auto* report = hands.preview();
    report->resize(screen.width() - reportAt.x(), screen.height() - reportAt.y());
    hands.settle();
    QPixmap both(screen);
    both.fill(QColor(96, 112, 128));
    QPainter painter(&both);
    painter.drawPixmap(mainAt, hands.window().grab());
    painter.fillRect(QRect(reportAt, report->size()).adjusted(-3, -3, 3, 3), QColor(0, 0, 0, 60));
    painter.drawPixmap(reportAt, report->grab());
    return both;
}

} // namespace

void exportPdf(Hands& hands, const QString& name) {
    picture(hands.preview(), name);
    hands.desk().expectFile(name + ".pdf");
    hands.key(Qt::Key_E, Qt::ControlModifier);
    check(bytesOf(name + ".pdf").startsWith("%PDF-"), name + ".pdf is no PDF");
    hands.closePreview();
}

void exportLoanReport(Hands& hands) {
    say("Print, with the monthly amortisation: the report on screen.");
    hands.click("cmdPrint");
    hands.key(Qt::Key_Space); // "Include Amortization" has the focus
    hands.click("Option1(1)");
    picture(&hands.window(), "print-panel");
    hands.click("cmdVR");
    auto* report = hands.preview();
    say(QString("  report: %1, %2 pages").arg(report->windowTitle()).arg(report->report().layout.count()));
    picture(report, "loan-report");
    exportAll(hands, "loan report");
    checkHolds("loan report.html", hands.shown("numMonRePay"));
    checkHolds("loan report.html", "Baobab Financial Planning");
    checkHolds("loan report.csv", "\n" + hands.shown("numPeriod") + ","); // the line of the last month
    picture(desktop(hands), "desktop");
    hands.closePreview();
}

void exportPersonalDetails(Hands& hands) {
    say("Personal Details, Print with the notes.");
    hands.menu({"mnuPersDet"});
    hands.expectFront("frmPersDet");
    hands.click("cmdPrint");
    hands.click("Check3");
    hands.click("cmdVR");
    auto* report = hands.preview();
    say(QString("  report: %1, %2 pages").arg(report->windowTitle()).arg(report->report().layout.count()));
    picture(report, "personal-details-report");
    exportAll(hands, "personal details");
    const auto& record = hands.record();
    for (const std::string& text : {record.details.CLName, record.client.IDNumber, record.details.DEP[1]})
        for (const char* file : {"personal details.html", "personal details.csv"})
            checkHolds(file, QString::fromStdString(text));
    hands.closePreview();
}

} // namespace tour
