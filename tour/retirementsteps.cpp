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
#include "tour/journal.h"
#include "tour/steps.h"

/// The retirement needs analysis, with the schedule of policies that it uses.
namespace tour {

namespace {

constexpr double oneRand = 1; // the tables show whole rand
constexpr double retireAt = 65, yearsToGo = 20, yearsWanted = 30, inflation = 5.5;
constexpr double providentFund = 650000, providentAge = 67; // it pays after retirement

using Rows = std::vector<QStringList>;

/// Fills the list behind an itemise button, using only the keyboard.
void itemise(Hands& hands, const QString& button, const Rows& rows, const QString& pictureName = {}) {
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

void enterLists(Hands& hands) {
    itemise(hands, "cmdItemise(11)",
            {{"Household and travel", "38000", "6", "65", "74"},
             {"Quieter years", "26000", "6", "75", "84"},
             {"Care at home", "34000", "7", "85", "95"}},
            "itemised-income");
    itemise(hands, "cmdItemise(0)",
            {{"Rent of the shop, Krogh Street", "18000", "6", "65", "80"},
             {"Consulting", "25000", "5", "65", "69"},
             {"Renée's pension", "21000", "5", "70", "95"}});
    itemise(hands, "cmdItemise(1)", {{"Flat 4B, Kerk Street", "1850000"}, {"Plot at Tzaneen", "1200000"}},
            "properties");
    itemise(
        hands, "cmdItemise(10)",
        {{"Naledi's wedding", "250000", "66"}, {"New roof", "180000", "70"}, {"Retirement village", "600000", "78"}},
        "itemised-expenses");
}

struct Sentences {
    QString lasts, needed;
    bool operator==(const Sentences&) const = default;
};

Sentences sentences(Hands& hands) { return {hands.shown("txtAns1"), hands.shown("txtAns2")}; }

const QRegularExpression lasting("^Funds available will provide income for (\\d+) year/s\\.$");
const QRegularExpression needing("^([\\d ]+) additional cover required\\.$");

/// With the additional cover as capital, the capital must suffice; with 10 000 less it must not.
void checkCover(Hands& hands) {
    const Sentences before = sentences(hands);
    const double more = needing.match(before.needed).captured(1).remove(' ').toDouble();
    const double had = hands.figure("numASS(4)");
    const auto with = [&](double capital) {
        hands.type("numASS(4)", QString::number(capital, 'f', 0));
        hands.key(Qt::Key_C, Qt::AltModifier);
        return lasting.match(sentences(hands).lasts).captured(1).toDouble() == yearsWanted &&
               !needing.match(sentences(hands).needed).hasMatch();
    };
    check(more > 0 && with(had + more) && !with(had + more - 10000), "the cover required is not what it takes");
    with(had);
    check(sentences(hands) == before, "the sentences do not come back with the capital");
}

/// Each year must follow from the one before, and only the last one must not be covered.
void checkYears(const QAbstractItemModel* table) {
    const auto left = [table](int row) {
        return cellOf(table, row, 1) + cellOf(table, row, 2) + cellOf(table, row, 3) - cellOf(table, row, 4);
    };
    const int last = table->rowCount() - 1;
    for (int row = 1; row <= last; ++row) {
        const double paidOut = retireAt + row == providentAge ? providentFund : 0;
        check(std::abs(cellOf(table, row, 1) - left(row - 1) - paidOut) < 3 * oneRand, // four rounded figures
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

void recordRetirement(Hands& hands) {
    say("Needs Analysis for Retirement: the ages first, then the capital and the income that it must provide.");
    hands.window().showMaximized();
    hands.settle();
    hands.menu({"mnuCalc", "mnuNARA"});
    hands.expectFront("frmNARA");
    check(hands.figure("numCurrentAge") == retireAt - yearsToGo, "the client is not 45 years old");
    hands.enter(std::vector<Entry>{{"numAgeOfRetirement", "65"},
                                   {"numMonIncPD", "38000"},
                                   {"numCoverReq", "30"},
                                   {"numInflationRate", "5.5"},
                                   {"numBankInvRate", "9"},
                                   {"dtNaraNextReview", "15/06/2027"},
                                   {"txtNote", "Sells the plot at Tzaneen on retirement; Renée works on to 69."},
                                   {"numASS(1)", "420000"},
                                   {"numASS(4)", "150000"},
                                   {"numLIB(2)", "450000"},
                                   {"numLIB(3)", "180000"}});
    const double policiesWorth = std::floor(enterPolicies(hands));
    enterLists(hands);
    hands.click("cmdCalculate");
    hands.expectFigure("numASS(3)", policiesWorth);
    hands.expectFigure("numNETCAP", 3050000 + 420000 + policiesWorth + 150000 - 450000 - 180000 - 1030000);
    hands.expectFigure("numIncReqFV", 38000 * std::pow(1 + inflation / 100, yearsToGo));
    hands.expectFigure("numMonIncAvail", 18000 + 25000 + 14500);
    check(hands.figure("numMonIncPD") == 38000 && hands.figure("numCoverReq") == yearsWanted, "the list is not taken");
    for (const auto& [onPage, name] :
         {Entry{"txtName", "retirement-requirements"}, Entry{"numASS(0)", "retirement-capital"},
          Entry{"numLIB(0)", "retirement-expenses"}, Entry{"txtAns1", "retirement-net-worth"}}) {
        hands.turnTo(onPage);
        picture(&hands.window(), name);
    }
    say("  " + sentences(hands).lasts + "\n  " + sentences(hands).needed);
    checkCover(hands);
}

void showRetirementYears(Hands& hands) {
    say("Amortisation and Graph: the years one by one.");
    hands.click("cmdAmort");
    const auto* table = hands.control<QTableView>("grdPayments")->model();
    const int years = lasting.match(sentences(hands).lasts).captured(1).toInt();
    const int rows = table->rowCount();
    check(rows == years + 1, QString("the table has %1 rows for %2 years").arg(rows).arg(years));
    check(cellOf(table, 0, 0) == retireAt && std::abs(cellOf(table, 0, 1) - hands.figure("numNETCAP")) < oneRand &&
              std::abs(cellOf(table, 0, 4) - 12 * hands.figure("numIncReqFV")) < oneRand,
          "the first year is not the one on the screen");
    checkYears(table);
    picture(&hands.window(), "retirement-years");
    hands.key(Qt::Key_Escape);
    hands.click("cmdNARAGraph");
    hands.expectFront("frmGraph");
    const auto& graph = qobject_cast<reports::frmGraph*>(hands.front())->graph();
    check(graph.points == years && graph.series.size() == 4, "the graph does not show each year");
    picture(&hands.window(), "retirement-graph");
    hands.click("cmdOK");
    hands.expectFront("frmNARA");
}

void exportRetirementReports(Hands& hands) {
    say("Print, with all that goes with it: one set of PDFs for the client.");
    const Sentences told = sentences(hands);
    hands.click("cmdPrint");
    for (const char* box : {"Check1", "Check3", "Check4", "chkPolInvestSchudule"})
        hands.click(box);
    picture(&hands.window(), "retirement-print-panel");
    hands.click("cmdVR");
    const QString client = QString::fromStdString(hands.record().client.Name);
    check(QDir().mkpath("retirement"), "the folder of the set cannot be made");
    // The report that ran last is in front.
    for (const QString name : {"policies schedule", "itemised particulars", "needs analysis"}) {
        auto* report = hands.preview();
        say(QString("  report: %1, %2 pages").arg(report->windowTitle()).arg(report->report().layout.count()));
        picture(report, QString(name).replace(' ', '-') + "-report");
        const QString file = "retirement/" + name + ".pdf";
        hands.desk().expectFile(file);
        hands.key(Qt::Key_E, Qt::ControlModifier);
        checkPdf(file, client);
        if (name == "needs analysis") checkPdf(file, told.lasts);
        hands.closePreview();
    }
    hands.expectFront("frmNARA");
    hands.window().showNormal();
}

} // namespace tour
