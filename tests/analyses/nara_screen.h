#pragma once

#include <QLabel>
#include <QTableView>

#include "shell/running_program.h"

namespace naratest {

using screenkit::Answer;
using shelltest::RunningProgram;

/// A needs analysis in the running program.
class NeedsTest : public testing::Test {
protected:
    QString focus() { return RunningProgram::focused(); }
    void openList(int index) { run.click(QString("cmdItemise(%1)").arg(index)); }
    bool isListOpen() {
        auto* panel = run.front()->findChild<QWidget*>("fraItemise");
        return panel != nullptr && panel->isVisible();
    }
    /// Types into a list's cells, from the current one on, and ends each by a key, if one is given.
    void typeCells(const QStringList& cells, std::optional<Qt::Key> end = Qt::Key_Tab) {
        for (const QString& cell : cells) {
            for (const QChar letter : cell) // the first letter opens the cell
                RunningProgram::keys(QApplication::focusWidget(), QString(letter));
            if (end) run.key(*end);
        }
    }
    /// Fills a list row by row from its first cell and confirms it.
    void itemise(int index, const QStringList& cells) {
        openList(index);
        typeCells(cells);
        run.click("cmdOKItemise");
    }
    std::vector<QStringList> gridRows() { return RunningProgram::cells(run.control<QTableView>("grdPayments")); }

    RunningProgram run;
};

/// The retirement analysis open for a client of 45 (the desk's date is in November 2026).
class NARA : public NeedsTest {
protected:
    NARA() {
        run.record().client.Name = "Ms T. Ṱhoho-Nḓou";
        run.record().client.BirthDate = *base::dayNumber(1981, 3, 15);
        run.record().policies[0].RBMonAvaible = 1000;
        run.record().policies[0].RBEMV = 300000.9;
        run.record().policies[0].RBEMVAge = 65;
    }
    void open() { run.menu("mnuNARA"); }
    void openFilled() {
        open();
        run.typeAll("numAgeOfRetirement 65, numMonIncPD 10000, numCoverReq 20, numInflationRate 5, numBankInvRate 8, "
                    "numASS(0) 1500000, numLIB(4) 250000");
    }
    assessment::NARetirement& needs() { return run.record().retirement; }
    std::int16_t& changed() { return run.record().changed.NARAChanged; }
};

} // namespace naratest
