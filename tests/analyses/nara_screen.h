#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QTableView>

#include "shell/running_program.h"

namespace naratest {

using screenkit::Answer;
using shelltest::RunningProgram;

/// A needs analysis in the running program.
class NeedsTest : public testing::Test {
protected:
    QLabel* captionOf(const QString& field) {
        for (auto* label : run.front()->findChildren<QLabel*>())
            if (label->buddy() == run.control(field)) return label;
        return nullptr;
    }
    /// Fills a list from its first cell on, row after row, and takes it.
    void itemise(int index, const QStringList& cells) {
        run.click(QString("cmdItemise(%1)").arg(index));
        for (const QString& cell : cells) {
            for (const QChar letter : cell) // the first one opens the cell
                RunningProgram::keys(QApplication::focusWidget(), QString(letter));
            run.key(Qt::Key_Tab);
        }
        run.click("cmdOKItemise");
    }
    std::vector<QStringList> gridRows() {
        auto* model = run.control<QTableView>("grdPayments")->model();
        std::vector<QStringList> rows(static_cast<std::size_t>(model->rowCount()));
        for (int row = 0; row < model->rowCount(); ++row)
            for (int column = 0; column < model->columnCount(); ++column)
                rows[static_cast<std::size_t>(row)] << model->index(row, column).data().toString();
        return rows;
    }
    RunningProgram run;
};

/// The retirement analysis in front, on a client of 45 (the desk's day is in November 2026).
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
        run.type("numAgeOfRetirement", "65");
        run.type("numMonIncPD", "10000");
        run.type("numCoverReq", "20");
        run.type("numInflationRate", "5");
        run.type("numBankInvRate", "8");
        run.type("numASS(0)", "1500000");
        run.type("numLIB(4)", "250000");
    }
    assessment::NARetirement& needs() { return run.record().retirement; }
    std::int16_t& changed() { return run.record().changed.NARAChanged; }
};

} // namespace naratest
