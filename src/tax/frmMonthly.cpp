#include "tax/frmMonthly.h"

#include <algorithm>

#include "base/rounding.h"
#include "datastore/paths.h"
#include "reports/report.h"
#include "tax/taxreports.h"

namespace tax {

using namespace screenkit;

namespace {

constexpr const char* wrongDate = "Incorrect Date";
constexpr double inclusionRates[] = {0.8, 0.2};

const NumberKind years = whole.between(0, 150, "Please enter an age from 0 to 150 years.", "Incorrect Age");
const NumberKind share = percent.between(0, 100, "Please enter a percentage from 0 to 100.", "Incorrect Percentage");
const NumberKind notNegative = money.from(0, "Please enter an amount that is not negative.", "Incorrect Amount");
const NumberKind persons = whole.between(0, 99, "Please enter 0 to 99 beneficiaries.", "Incorrect Beneficiaries");
const PrintNames printNames{"cmdVR", "cmdPD", "cmdCancel", "&Cancel"};
const SettingsNames settingsNames{
    .panel = "Frame3", .ok = "cmdSetupOK", .cancel = "cmdSetupCancel", .okCaption = "O&K"};
const InfoNames infoNames{"fraInfo_One", "cmdOK_Info_One"};

const Topic information{
    "General Information",
    "The amount entered in the Salary/remuneration field should contain all taxable salary and fringe benefit amounts "
    "except travel allowance or the fringe benefit amount for having the use of a company vehicle.  The employer’s RF "
    "contributions and the employer’s medical aid contributions must be entered in the fields provided for these "
    "amounts. The program will include the employer’s R/Fund contributions and the employer’s medical aid "
    "contributions in with salary/remuneration to determine total income."
    "\n\n"
    "Note that both the employer’s and the employee’s R/Fund contributions qualify as a tax deduction off taxable "
    "income subject to SARS’s formula. A portion of contributions paid by both the employer and the employee to RF "
    "(Pension, R/A and Provident funds) may qualify as a deduction from taxable income. The deduction is limited to "
    "the lessor of contributions paid or 27.5% of remuneration /salary/income.  The deduction is capped at R350,000 "
    "per year.  The field labelled ‘Allowable R/Fund deduction’ will indicate the maximum RF contribution allowed as a "
    "deduction by the employer at salary source. The program will also calculate and display MTC (Medical Tax Credit) "
    "amounts.  Note that, in addition to normal MTC’s for members/beneficiaries, MTC’s for contributions in the case "
    "of taxpayers 65 and older are allowed at salary source."};

/// Displays a figure rounded; the figure itself stays exact.
Bound<double> rounded(const double& figure) {
    return {[&figure] { return base::roundHalfEven(figure); }, [](double) {}};
}

} // namespace

frmMonthly::frmMonthly(Workplace& workplace)
    : Screen(workplace, "frmMonthly", "PAYE Monthly Calculation", untracked()),
      m_setup(readPAYESetup(workplace.paths.DefaultDbPath)) {
    buildBody();
    buildSettings();
    buildPrintPanel();
    lend(m_work.record.tax.Salary, "frmKwikTax");
    work();
}

NumberField* frmMonthly::randWithoutCents(const QString& name, double& place) {
    return number(name, withoutCents(place), wholeRand);
}

NumberField* frmMonthly::answer(const QString& name, double& figure) { return keptAnswer(result(name, figure, money)); }

NumberField* frmMonthly::keptAnswer(NumberField* field) {
    showsCalculated(field);
    m_answers.push_back(field);
    return field;
}

QWidget* frmMonthly::buildInputs() {
    auto* age = number("silgEdit9", m_month.age, years);
    auto* travel = number("silgEdit13", m_month.travel, money);
    auto* taxable = keptAnswer(result("numMTAAns", rounded(m_result.taxableTravel), wholeRand));
    travel->setAccessibleName(tr("Travel"));
    taxable->setAccessibleName(tr("Taxable part of travel"));
    const DateKind dayOfTheMonth = DateKind{}.required(wrongDate);
    m_start = date("dtMStartDate", m_month.startDate, dayOfTheMonth);
    m_end = date("dtMEndDate", m_month.endDate, dayOfTheMonth);
    return group(
        "fraInputs", "Employee",
        form({{"A&ge", age},
              {"Salary/remune&ration", randWithoutCents("numSalRemun", m_month.salary)},
              {"Co&mmissions", randWithoutCents("numComm", m_month.commissions)},
              {"Tra&vel                     R", row({travel, labelled("taxable", taxable)})},
              {"Bon&us", number("silgEdit12", m_month.bonus, money)},
              {"&Employer's R/Fund contributions ", randWithoutCents("numEmpRRFundCont", m_month.employerFund)},
              {"Emplo&yee's R/Fund contributions", randWithoutCents("numEmpERFundCont", m_month.employeeFund)},
              {"Employer's me&d aid contrib.", randWithoutCents("numEmpERMedAidCont", m_month.employerMedical)},
              {"Employee's med aid contri&b.", randWithoutCents("numEmpEEMedAidCont", m_month.employeeMedical)},
              {"Medica&l aid fund beneficiaries", number("numMedAidBens", m_month.medAidBens, persons)},
              {"S&tart date", m_start},
              {"E&nd date", m_end}}));
}

QWidget* frmMonthly::buildAnswers() {
    auto* fund = keptAnswer(result("numAllowableRFundDed", rounded(m_result.allowableFund), wholeRand));
    auto* levy = answer("numMAns3", m_result.skillsLevy);
    levy->setAccessibleName(tr("Skills development levy"));
    return group("fraAnswers", "Month",
                 form({{"Allowable R/Fund deduction", fund},
                       {"UIF contribution Employee", answer("numMAns1", m_result.employeeUIF)},
                       {"UIF contribution Employer", answer("numMAns2", m_result.employerUIF)},
                       {"S.D.L.", levy},
                       {"Tax liability", answer("numMAns", m_result.taxLiability)},
                       {"Tax credits for beneficiaries", answer("numTaxCredit", m_result.beneficiaryCredit)},
                       {"Tax credits for contributions", answer("numMTCForContri", m_result.contributionCredit)},
                       {"Total tax deduction", answer("numTaxLiability", m_result.totalTaxDeduction)}}));
}

void frmMonthly::buildBody() {
    auto* solve = button("cmdCalculate", "&Calculate", [this] {
        if (!calculate()) return;
        m_work.lent.keep(m_work.record.tax.Salary);
        announce({m_answers.back()});
    });
    const auto inform = infoPanel(infoNames);
    body(column({row({buildInputs(), column({buildAnswers(), spring()})}), spring(),
                 row({solve, button("cmdSettings", "&Settings", [this] { m_openSettings(); }),
                      button("cmdInfo", "&Info", [inform] { inform(information); }),
                      button("cmdPrint", "&Print", [this] { openPrint(); }), spring(), okButton()})}));
    defaultButton(solve);
}

void frmMonthly::buildSettings() {
    const auto place = [this] {
        const auto found = std::find(std::begin(inclusionRates), std::end(inclusionRates), m_entered.TAIncRate8020);
        return found == std::end(inclusionRates) ? -1 : static_cast<int>(found - std::begin(inclusionRates));
    };
    auto* inclusion = options("optTAIncRate", {"80%", "20%"},
                              {place, [this](int index) { m_entered.TAIncRate8020 = inclusionRates[index]; }});
    inclusion->option(0)->setObjectName("optTAIncRate80");
    inclusion->option(1)->setObjectName("optTAIncRate20");
    for (const int rate : {0, 1})
        inclusion->option(rate)->setAccessibleName(tr("Inclusion rate %1").arg(inclusion->option(rate)->text()));
    auto* employee = number("numEmpEUIF", m_entered.EmployeeUIF, share);
    auto* employer = number("numEmpRUIF", m_entered.EmployerUIF, share);
    auto* levy = number("numSkillPercent", m_entered.SkillLevy, share);
    auto* limit = number("numUIFLimit", m_entered.UIFLimit, notNegative);
    m_openSettings = settingsPanel<PAYESetup>(
        settingsNames,
        row({form({{"&Employee UIF portion", employee, "%"},
                   {"E&mployer UIF portion", employer, "%"},
                   {"&Skills levy", levy, "%"},
                   {"&UIF monthly limit", limit}}),
             group("fraTAIncRate", "Travel allow/Car FB inclusion rate", inclusion)}),
        {employee, employer, levy, limit, inclusion}, m_setup, m_entered,
        [this](const PAYESetup& entered) { writePAYESetup(m_work.paths.DefaultDbPath, entered); },
        [this] { settingsConfirmed(); });
}

void frmMonthly::buildPrintPanel() {
    auto* name = text("Text1", m_employee, 50);
    m_printPanel = printPanel(
        {form({{"&Employee name : (max.50 chrs.)", name}})}, [this](Destination to) { print(to); }, printNames);
}

bool frmMonthly::complainOfDates() {
    const DateFault fault = dateFault(m_month);
    if (fault == DateFault::none) return false;
    const bool atStart = fault == DateFault::noStart || fault == DateFault::startAfterEnd;
    const char* why = fault == DateFault::otherMonth      ? "The Start and End dates entered must be for the same Month"
                      : fault == DateFault::startAfterEnd ? "The Start date entered must be before the End date"
                                                          : "The Start and End dates must both be entered";
    m_work.desk.tell(BoxStyle::critical, why, wrongDate);
    (atStart ? m_start : m_end)->takeFocus();
    return true;
}

bool frmMonthly::calculate() {
    if (complainOfDates()) return false;
    work();
    return true;
}

void frmMonthly::work() {
    assessment::KwikTax& scale = m_work.record.tax;
    m_work.lent.during(scale.Salary, [&] { m_result = monthlyTax(m_month, m_setup, m_previousInclusionRate, scale); });
    m_calculated = m_month;
    for (NumberField* field : m_answers)
        field->fill();
    calculated();
}

void frmMonthly::settingsConfirmed() {
    m_calculated.reset();
    outdated();
    calculate();
}

void frmMonthly::openPrint() {
    // A page must not show the inputs of one month with the tax of another. A month already calculated is not
    // calculated again: that could allow another deduction than the screen shows.
    if (m_calculated != m_month && !calculate()) return;
    m_printPanel->open();
}

void frmMonthly::print(Destination destination) {
    const auto printout = feedMonthlyReport(m_work.paths.PrintDbPath, m_work.record.client.Name,
                                            {m_employee, m_month, m_setup, m_result});
    m_work.reports.run(QString::fromStdString(printout.definition), QString::fromStdString(printout.title),
                       destination);
}

std::optional<MonthShown> frmMonthly::shown() const {
    if (m_month == MonthlyInputs{} || dateFault(m_month) != DateFault::none) return {};
    MonthShown month{m_employee, m_month, m_setup, m_result};
    if (m_calculated != m_month) {
        double previousInclusionRate = m_previousInclusionRate;
        assessment::KwikTax scale = m_work.record.tax;
        month.result = monthlyTax(m_month, m_setup, previousInclusionRate, scale);
    }
    return month;
}

} // namespace tax
