#include "tax/frmRATaxAdv.h"

#include <QLabel>
#include <QLineEdit>
#include <cmath>

#include "datastore/paths.h"
#include "screenkit/website.h"
#include "tax/rataxreport.h"

namespace tax {

using namespace screenkit;

namespace {

const NumberKind years = whole.between(0, 150, "Please enter an age from 0 to 150 years.", "Incorrect Age");
const NumberKind notNegative = money.from(0, "Please enter an amount that is not negative.", "Incorrect Amount");
const InfoNames infoNames{"fraInfo_One", "cmdOK_Info_One"};
const PrintNames printNames{.cancel = "cmdCancel", .panel = "Frame1"};

const Topic information{
    "General Information",
    "Remuneration income includes all salary, fringe benefits amounts used in determining PAYE at salary source.  "
    "Remuneration does not include any withdrawal or retrenchment or retirement lump sums and also does not include "
    "any portion of any capital gains."
    "\n\n"
    "Taxable income including capital gains includes the portion of any capital gains profit added to taxable income "
    "for tax.  This is 40% of the balance of any profit from capital gains after subtracting the R50K annual "
    "exclusion.  Taxable income utilizes all allowable deductions excluding RF deduction."
    "\n\n"
    "The program will select the greater between the amounts you enter for Remuneration (excluding capital gains) and "
    "for Taxable income for the 27.5% rule."
    "\n\n"
    "The program will work out the difference in tax due on taxable income, without RF contributions and with RF "
    "contributions, to calculate your tax saving."};

} // namespace

frmRATaxAdv::frmRATaxAdv(Workplace& workplace)
    : ResultScreen(workplace, "frmRATaxAdv", "R/F Advantage calculator", workplace.record.changed.RATaxAdvChanged),
      m_language(static_cast<int>(datastore::readReportLanguage(workplace.paths.DefaultDbPath))) {
    const auto inform = infoPanel(infoNames);
    auto* video = button("cmdVideo", "&Video Info",
                         [this] { m_work.desk.openOnDesktop(pageOfTheMakers("/rf-advantage-videos/")); });
    auto* help = button("cmdInfo", "Help &Info", [inform] { inform(information); });
    body(column({note("This calculator shows the annual amounts including allowable deduction for R/F investment "
                      "contributions as per the taxpayer's annual ITR12 assessment calculation.  "),
                 buildInputs(), buildAnswers(), spring(),
                 buttonLine({video, help}, {.calculate = "cmdRAdvCalculate", .ok = "cmdOkLC"})}));
    auto* language = options("optRptLanguage", {"&English", "Afri&kaans"}, m_language);
    prints({form({{"Report language", language}})}, {language}, printNames);
    lend(m_work.record.tax.Salary, "frmKwikTax");
}

QWidget* frmRATaxAdv::buildInputs() {
    auto* name = text("txtLastName", m_inputs.RASurname, 200, 40);
    auto* age = number("numTaxPayerAge", m_inputs.RATaxPayerAge, years);
    auto* remuneration = number("numRemuneration", m_inputs.RARemuneration, notNegative);
    auto* taxable = number("numTaxableInc", m_inputs.RATaxableInc, notNegative);
    auto* gains = number("numTaxCGT", m_inputs.TaxCGT, notNegative);
    auto* proposed = number("numProposedRF", m_inputs.ProposedRF, notNegative);
    m_inputFields = {name, age, remuneration, taxable, gains, proposed};
    return group("fraInputs", "Taxpayer",
                 form({{"&Name", name},
                       {"A&ge", age},
                       {"&Remuneration (annual)", remuneration},
                       {"&Taxable income (annual)", taxable},
                       {"Taxable capital gain&s", gains},
                       {"Proposed total R/F contri&butions", proposed}}));
}

QWidget* frmRATaxAdv::buildAnswers() {
    m_percent = shown("lblPerAns", 8);
    m_percent->setAccessibleName(tr("Percentage paid by SARS"));
    showsCalculated(m_percent);
    m_belowThreshold = note("Income is below the tax threshold therefore no tax saving can be calculated.");
    m_belowThreshold->setObjectName("Label1(6)");
    QSizePolicy place = m_belowThreshold->sizePolicy();
    place.setRetainSizeWhenHidden(true); // nothing moves when it appears
    m_belowThreshold->setSizePolicy(place);
    m_belowThreshold->hide();
    auto* bySARS = answer("numPropRFPaidSARS", m_result.paidBySARS);
    return group("fraSavings", "Summary of savings",
                 column({form({{"Maximum allowable RF contributions (27.5%)", answer("numMaxBen", m_result.maximum),
                                "(capped at R430,000 annually)"},
                               {"Tax savings", answer("numTaxSave", m_result.saving)},
                               {"Portion of R/F investment effectively paid by SARS", row({bySARS, m_percent})},
                               {"Portion of R/F investment paid by taxpayer",
                                answer("numPropRFPaidTaxPayer", m_result.paidByTaxpayer)}}),
                         m_belowThreshold}));
}

void frmRATaxAdv::work() {
    assessment::KwikTax& scale = m_work.record.tax;
    m_work.lent.during(scale.Salary, [&] { m_result = calculateRATaxAdvantage(m_inputs, scale); });
    m_percent->setText(QString::fromStdString(m_result.percentText()));
    m_belowThreshold->setVisible(m_result.isBelowThreshold());
    showAnswers(std::isfinite(m_result.saving) && std::isfinite(m_result.paidBySARS));
}

void frmRATaxAdv::calculate() {
    if (m_work.record.raTaxAdvantage != m_inputs) m_work.record.changed.RATaxAdvChanged = 1;
    edited();
    work();
    // The user asked for it, so the income taxed last stays, as quick tax shows it.
    if (m_result.outcome == RATaxOutcome::saving || m_result.outcome == RATaxOutcome::fallsBelow)
        m_work.lent.keep(m_work.record.tax.Salary);
}

std::optional<datastore::Printout> frmRATaxAdv::feed() {
    const auto language = static_cast<datastore::ReportLanguage>(m_language);
    if (datastore::readReportLanguage(m_work.paths.DefaultDbPath) != language)
        datastore::writeReportLanguage(m_work.paths.DefaultDbPath, language);
    return PrintRATaxAdvantage(m_work.paths.PrintDbPath, m_work.record.client.Name, m_inputs, m_result, language);
}

void frmRATaxAdv::filled() {
    m_inputs = startingRATaxAdvantage(m_work.record, today());
    for (Field* field : m_inputFields)
        field->fill();
    work();
}

void frmRATaxAdv::edited() { m_work.record.raTaxAdvantage = m_inputs; }

} // namespace tax
