#include "tax/frmKwikTax.h"

#include "datastore/paths.h"
#include "reports/report.h"
#include "tax/taxreports.h"

namespace tax {

using namespace screenkit;

namespace {

const QStringList yearCaptions{"Tax Calc for Feb 2026", "Tax Calc for Feb 2027"}; // stored as 0 and 1
// An age may be a fraction, which is compared with 65 and 75 unrounded.
const NumberKind age{"##0.####", false, 8};
const NumberKind rate = percent.shownAs("0.00");
const NumberKind marginalRate = percent.shownAs("0");
const PrintNames printNames{"cmdViewScreen", "cmdPrintDir", "cmdCancel", "&Cancel"};

QString edit(int index) { return QString("sidbEdit1(%1)").arg(index); }

} // namespace

frmKwikTax::frmKwikTax(Workplace& workplace)
    : Screen(workplace, "frmKwikTax", "QuickTax", workplace.record.changed.KwikTaxChanged),
      m_client(workplace.record.tax) {
    buildBody();
    const auto print = [this](Destination to) {
        const auto printout = feed(); // monthly tax may have changed the income while the panel was open
        m_work.reports.run(QString::fromStdString(printout.definition), QString::fromStdString(printout.title), to);
    };
    m_printPanel = printPanel({}, print, printNames);
}

NumberField* frmKwikTax::answer(int index, double& figure, const NumberKind& kind) {
    m_answers.push_back(result(edit(index), figure, kind));
    showsCalculated(m_answers.back());
    return m_answers.back();
}

void frmKwikTax::buildBody() {
    auto* income = number(edit(0), m_client.Salary, money);
    auto* ageField = number(edit(1), m_client.Age, age);
    auto* commitment = answer(7, m_result.TaxCommitment, money);
    const auto workOut = [this, commitment] {
        calculate();
        announce({commitment});
    };
    auto* years = options(
        "grpTaxYear", yearCaptions,
        {[this] { return choosesFebruary2026(m_client) ? 0 : 1; }, [this](int year) { m_client.YR9798 = year; }},
        [workOut](int) { workOut(); });
    years->option(0)->setObjectName("Option1");
    years->option(1)->setObjectName("Option2");
    auto* work = button("cmdCalculate", "&Calculate", workOut);
    auto* atRate = answer(3, m_result.MarginalRate, marginalRate);
    auto* portion = answer(4, m_result.PortionAtRate, money);
    atRate->setAccessibleName(tr("Marginal rate"));
    portion->setAccessibleName(tr("Portion at the marginal rate"));
    body(column({
        row({form({{"Ta&xable Income", income},
                   {"A&ge", ageField},
                   {"Tax on taxable income", answer(2, m_result.TaxOnLowerLimit, money)},
                   {"+ Portion @ M/Rate (", row({atRate, labelled("%)", portion)})},
                   {"Total tax", answer(5, m_result.TotalTax, money)},
                   {"Less rebates", answer(6, m_result.TotalRebates, money)},
                   {"Tax commitment", commitment},
                   {"Average rate before rebates    ", answer(8, m_result.AverageBefore, rate), "%"},
                   {"Average rate after rebates       ", answer(9, m_result.AverageAfter, rate), "%"}}),
             column({group("Frame1", "Tax year", years), spring()})}),
        spring(),
        row({work, button("cmdPrint", "&Print", [this] { openPrint(); }), spring(), okButton()}),
    }));
    enterPresses(work);
    escapeGivesBack({income, ageField});
}

void frmKwikTax::calculate() {
    m_result = quickTax(m_client);
    for (NumberField* field : m_answers)
        field->fill();
    calculated();
}

void frmKwikTax::openPrint() {
    calculate(); // the page must not show the tax of an earlier income
    feed();
    m_printPanel->open();
}

datastore::Printout frmKwikTax::feed() {
    return feedQuickTaxReport(m_work.paths.PrintDbPath, m_work.record.client.Name, m_client, m_result);
}

} // namespace tax
