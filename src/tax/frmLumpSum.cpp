#include "tax/frmLumpSum.h"

#include "datastore/paths.h"
#include "tax/lumpsumreport.h"

namespace tax {

using namespace screenkit;

namespace {

constexpr const char* captions[] = {"01/03/2009 to 28/02/2021", "01/03/2021 to 28/02/2022", "01/03/2022 to 28/02/2023",
                                    "01/03/2023 to 29/02/2024", "01/03/2024 to 28/02/2025", "01/03/2025 to 28/02/2026",
                                    "01/03/2026 to 28/02/2027"};
constexpr const char* controls[] = {"numRRExGrtCTY0204", "numRetrenchmentLumps", "numRetDeath"};

const Topic information{
    "  Lump Sums",
    "The screen comprises of 3 columns labelled 'Resignation', 'Retrenchment' and 'Retirement or death'.  The columns "
    "allow Lump Sums taken to be entered for previous tax years going back to 2010. Lump sums entered in different "
    "columns may be tax differently and according to Retirement Withdrawal tables or Retirement Benefit tables.  You "
    "must select the 'T for tables' or 'T for taken' button to indicate what set of tables will be used.  In the case "
    "where more than one lump sum is taken in the current tax year then you must select the 'T' button against the "
    "lump sum taken last in the tax year as this is the set of tables to be used where multiple lump sums are taken in "
    "the same tax year.  Obviously, a code 3915 lump sum from an R/A fund or a pension fund at normal retirement must "
    "be entered in the 'retirement or death' column for the tax year in which it was received. A code 3901 severance "
    "package should be entered in the Retrenchment column where it will be taxed in the same way as a retirement lump "
    "sum taken at normal retirement. If the entire amount in the retirement fund is transferred to a preservation fund "
    "then code 3920 may be used on the certificate from the fund and no tax will be deducted in this case.  Do not "
    "enter such an amount in any column on this screen as it is not taxable.  A code 3920 amount may be used for a "
    "pre-retirement withdrawal from a provident fund and treated as a resignation or partial resignation from the "
    "fund. Watch the video lecture for information on terms, conditions and exceptions and how the circumstances "
    "surrounding a lump sum pay-out affects what set of tax tables will apply. You must also select the 'T' button "
    "next to the lump sum amount entered in the current tax year if that was the last (or only) Lump Sum taken in that "
    "tax year. SARS taxes multiple lump sums received in a tax year according to an accumulative method of taxation. "
    "This accumulative method also applies where lump sums were received in previous tax years and the accumulated "
    "total of all lump sums is taxed according to the set of tables that apply to the lump sum taken last in the "
    "current tax year.  Take care to check with the taxpayer regarding any lump sums the taxpayer may have received in "
    "the past and enter them in the program as well.  Changing employment and receiving pension or settlement amounts, "
    "in past years, will mean the program will use SARS’s method of taxing multiple lump sums.  Using the set of "
    "tables for the lump sum indicated as 'T', the tax on all accumulated lump sums taken is calculated and from this "
    "tax is deducted the tax worked out on all lump sums taken previously using the same set of tables.  It is "
    "irrelevant what tax was actually paid on lump sums taken in previous tax years.   Please watch the video tax "
    "lecture on Multiple Lump Sums received."
    "\n\n"
    "Note that lump sums received from government and certain municipal pension funds were all tax-free before 1st "
    "March 1998.  In a case like this only the portion of the lump sum proportionate to the period of pensionable "
    "service after 01/03/1998 must be entered here where it will be subject to normal lump-sum tax.  Be aware that the "
    "lump sum amount you enter on this screen may be reduced by the amount of any contributions paid which were not "
    "eligible as a tax deduction when the contributions were paid - this includes all Provident Fund contributions "
    "made before 1st March 2016.  Only the fund or the tax directive issued by SARS will be able to reveal this "
    "amount."};

} // namespace

frmLumpSum::frmLumpSum(Workplace& workplace)
    : ResultScreen(workplace, "frmLumpSum", "Tax on Lump Sums", workplace.record.changed.LumpSumChanged),
      m_lumpSums(workplace.record.lumpSums) {
    QLayout* grid = buildGrid();
    auto* before = number("numRetireLumpSumBefore", m_lumpSums.RetireLumpSumBefore, money);
    before->setToolTip(tr("Enter the total of all Lump Sum benefits received from Retirement Funds at retirement in "
                          "years between 1/10/2007 and 28/02/2009."));
    const auto inform = infoPanel();
    body(column({note(tr("Enter the total of all Lump Sum withdrawal amounts received from Retirement Funds and select "
                         "'T' to indicate the Tax Tables to be used for the aggregate total...")),
                 group("Frame4", "Lump sums", grid),
                 form({{"At retire&ment, 01/10/2007 to 28/02/2009", before},
                       {"Tax Due on Lump Sums taken this year", answer("numAnsLS2", m_result.taxDue, wholeRand)}}),
                 spring(), buttonLine({button("cmdInfo(14)", "&Info", [inform] { inform(information); })})}));
    prints();
}

QLayout* frmLumpSum::buildGrid() {
    const auto chosen = [this] { return static_cast<int>(chosenReason(m_lumpSums)) - 1; };
    m_taken = options("opt1stLumpTaken", {"T", "T", "T"},
                      {chosen, [this](int column) { m_lumpSums.FstLumpTaken = column + 1; }}, {}, std::nullopt);
    std::vector<MatrixRow> rows;
    for (std::size_t year = firstLumpSumYear; year <= currentLumpSumYear; ++year) {
        MatrixRow row{captions[year - firstLumpSumYear], {}};
        for (int column = 0; column < 3; ++column) {
            const QString name = controls[column] + QString::number(assessment::LumpSums::firstYear + year);
            auto* field = number(name, amountsOf(m_lumpSums, lumpSumReasons[column])[year], money);
            if (year != currentLumpSumYear) {
                row.cells.emplace_back(field);
                continue;
            }
            m_thisYear[column] = field;
            row.cells.emplace_back(screenkit::row({field, m_taken->option(column)}));
            m_taken->option(column)->setEnabled(false);
        }
        rows.push_back(std::move(row));
    }
    return matrix({"&Resignation", "Re&trenchment", "Retirement or &Death"}, rows);
}

double frmLumpSum::takenThisYear(int column) {
    return amountsOf(m_lumpSums, lumpSumReasons[column])[currentLumpSumYear];
}

void frmLumpSum::calculate() {
    m_result = LumpSumCalc(m_lumpSums);
    showAnswers();
}

std::optional<datastore::Printout> frmLumpSum::feed() {
    return LumpSumsPrint(m_work.paths.PrintDbPath, m_work.record.client.Name, m_lumpSums, m_result);
}

void frmLumpSum::filled() {
    // A T that was stored is shown even beside an amount of 0, since to look changes nothing.
    for (int column = 0; column < 3; ++column)
        if (takenThisYear(column) == 0) m_taken->option(column)->setEnabled(false);
    edited();
    calculate();
}

void frmLumpSum::cameToFront() {
    // This screen's flag ends here; what it told is kept in the client's own.
    CheckChanges(m_work.record);
    m_work.record.changed.LumpSumChanged = 0;
}

void frmLumpSum::edited() {
    for (int column = 0; column < 3; ++column)
        if (takenThisYear(column) > 0) m_taken->option(column)->setEnabled(true);
}

void frmLumpSum::settled(Field* field) {
    // Only now: a figure that is being retyped is empty for a moment, and its T must stay.
    for (int column = 0; column < 3; ++column) {
        QRadioButton* option = m_taken->option(column);
        if (field != m_thisYear[column] || takenThisYear(column) != 0 || !option->isEnabled()) continue;
        option->setEnabled(false);
        if (m_taken->chosen() == column) m_lumpSums.FstLumpTaken = 0;
        m_taken->fill();
    }
}

} // namespace tax
