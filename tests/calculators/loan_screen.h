#pragma once

#include <QLabel>
#include <QRadioButton>
#include <QTableView>

#include "shell/running_program.h"

namespace loantest {

using assessment::Loans;
using screenkit::Answer;
using shelltest::RunningProgram;

inline const QStringList entries{"numPrinAmount", "numPeriod", "numIntRate", "numMonRePay"};
inline const QStringList modes{"Monthly repayment", "Principal amount", "Repayment period", "Interest rate"};
inline const std::vector<int> resultOf{3, 0, 1, 2}; // by mode, the entry that is solved

/// The loan calculator, open in a running program.
class LoanScreen : public testing::Test {
protected:
    LoanScreen() { run.menu("mnuLoansCalc"); }

    void pick(int mode) { run.click(QString("optLoanCalc(%1)").arg(mode)); }
    /// Types principal, period, rate and repayment, except the one that the mode solves.
    void typeLoan(int mode, const QStringList& figures) {
        pick(mode);
        for (int i = 0; i < 4; ++i)
            if (i != resultOf[static_cast<std::size_t>(mode)]) run.type(entries[i], figures[i]);
    }
    QStringList figures() {
        QStringList all;
        for (const QString& name : entries)
            all << run.shown(name);
        return all;
    }
    void reopen() {
        run.click("cmdOK");
        ASSERT_FALSE(run.isOpen("frmLoans"));
        run.menu("mnuLoansCalc");
    }
    bool visible(const char* name) { return run.control(name)->isVisible(); }
    QTableView* grid() { return run.control<QTableView>("grdPayments"); }
    std::vector<QStringList> rows() { return RunningProgram::cells(grid()); }
    QString heads() {
        QStringList all;
        for (int column = 0; column < grid()->model()->columnCount(); ++column)
            all << grid()->model()->headerData(column, Qt::Horizontal).toString();
        return all.join(", ");
    }

    RunningProgram run;
};

} // namespace loantest
