#include "tour/needs.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTableView>
#include <cmath>

#include "reports/frmGraph.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/figures.h"
#include "tour/journal.h"

namespace tour {

namespace {

constexpr double oneRand = 1; // the tables show no cents

void checkYears(const QAbstractItemModel* table, const std::function<double(int)>& added) {
    const auto left = [table](int row) {
        return cellOf(table, row, 1) + cellOf(table, row, 2) + cellOf(table, row, 3) - cellOf(table, row, 4);
    };
    const int last = table->rowCount() - 1;
    for (int row = 1; row <= last; ++row) {
        check(std::abs(cellOf(table, row, 1) - left(row - 1) - added(row)) < 3 * oneRand, // four rounded figures
              QString("year %1 does not follow").arg(row + 1));
    }
    check(left(last - 1) >= 0 && left(last) < 0, "the capital does not end where the sentence says");
}

void checkPdf(const QString& file, const QString& text) {
    QFile pdf(file);
    check(pdf.open(QIODevice::ReadOnly) && pdf.readAll().startsWith("%PDF-"), file + " is no PDF");
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        return say("  not read back: there is no pdftotext here");
    QProcess reader;
    reader.start("pdftotext", {"-layout", file, "-"});
    check(reader.waitForFinished() && reader.exitCode() == 0, file + " cannot be read back");
    const QString pages = QString::fromUtf8(reader.readAllStandardOutput()).replace(QChar::Nbsp, ' ');
    check(pages.contains(text), file + " lacks \"" + text + "\"");
}

} // namespace

void itemise(Hands& hands, const QString& button, const Rows& rows, const QString& pictureName) {
    hands.click(button);
    double total = 0;
    for (const QStringList& row : rows) {
        total += row[1].toDouble();
        for (const QString& cell : row) {
            hands.write(cell);
            hands.key(Qt::Key_Tab);
        }
    }
    hands.expectFigure("numItemiseTotal", total);
    if (!pictureName.isEmpty()) picture(&hands.window(), pictureName);
    hands.key(Qt::Key_Return, Qt::ControlModifier);
    say(QString("  %1 rows, R %2").arg(rows.size()).arg(total, 0, 'f', 0));
}

int Sentences::years() const {
    static const QRegularExpression lasting("^Funds available will provide income for (\\d+) year(/s|s)\\.$");
    return lasting.match(lasts).captured(1).toInt();
}

double Sentences::more() const {
    static const QRegularExpression needing("^([\\d ]+) additional cover required\\.$");
    return needing.match(needed).captured(1).remove(' ').toDouble();
}

Sentences sentences(Hands& hands) { return {hands.shown("txtAns1"), hands.shown("txtAns2")}; }

void checkCover(Hands& hands, int yearsWanted) {
    const Sentences before = sentences(hands);
    const double had = hands.figure("numASS(4)");
    const auto suffices = [&](double capital) {
        hands.type("numASS(4)", QString::number(capital, 'f', 0));
        hands.key(Qt::Key_C, Qt::AltModifier);
        return sentences(hands).years() == yearsWanted && sentences(hands).more() == 0;
    };
    check(before.more() > 0 && suffices(had + before.more()) && !suffices(had + before.more() - 10000),
          "the cover required is not what it takes");
    suffices(had);
    check(sentences(hands) == before, "the sentences do not come back with the capital");
}

void showYears(Hands& hands, const QString& graphButton, double first, const std::function<double(int)>& added,
               const QString& pictureName) {
    const QString screen = hands.front()->objectName();
    hands.click("cmdAmort");
    const auto* table = hands.control<QTableView>("grdPayments")->model();
    const int years = sentences(hands).years();
    const int rows = table->rowCount();
    check(rows == years + 1, QString("the table has %1 rows for %2 years").arg(rows).arg(years));
    const char* netWorth = first == 1 ? "numNetCap" : "numNETCAP";
    check(cellOf(table, 0, 0) == first && std::abs(cellOf(table, 0, 1) - hands.figure(netWorth)) < oneRand &&
              std::abs(cellOf(table, 0, 4) - 12 * hands.figure("numIncReqFV")) < oneRand,
          "the first year is not the one on the screen");
    checkYears(table, added);
    picture(&hands.window(), pictureName + "-years");
    hands.key(Qt::Key_Escape);
    hands.click(graphButton);
    hands.expectFront("frmGraph");
    const auto& graph = qobject_cast<reports::frmGraph*>(hands.front())->graph();
    check(graph.points == years && graph.series.size() == 4, "the graph does not show each year");
    picture(&hands.window(), pictureName + "-graph");
    hands.click("cmdOK");
    hands.expectFront(screen);
}

void exportSet(Hands& hands, const QString& folder) {
    const QString screen = hands.front()->objectName();
    const Sentences told = sentences(hands);
    hands.click("cmdPrint");
    for (const char* box : {"Check1", "Check3", "Check4", "chkPolInvestSchudule"})
        hands.click(box);
    picture(&hands.window(), folder + "-print-panel");
    hands.click("cmdVR");
    const QString client = QString::fromStdString(hands.record().client.Name);
    check(QDir().mkpath(folder), "the folder of the set cannot be made");
    // The report that ran last is in front.
    for (const QString name : {"policies schedule", "itemised particulars", "needs analysis"}) {
        auto* report = hands.preview();
        say(QString("  report: %1, %2 pages").arg(report->windowTitle()).arg(report->report().layout.count()));
        picture(report, folder + "-" + QString(name).replace(' ', '-') + "-report");
        const QString file = folder + "/" + name + ".pdf";
        hands.desk().expectFile(file);
        hands.key(Qt::Key_E, Qt::ControlModifier);
        checkPdf(file, client);
        if (name == "needs analysis") checkPdf(file, told.lasts);
        hands.closePreview();
    }
    hands.expectFront(screen);
}

} // namespace tour
