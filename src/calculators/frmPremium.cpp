#include "calculators/frmPremium.h"

#include "datastore/funds.h"
#include "datastore/paths.h"

namespace calculators {

using namespace screenkit;
using assessment::CapitalPremium;

namespace {

const NumberKind years = whole.from(0, "The Minimum Period is 0 years", "Incorrect Period!")
                             .upTo(finance::mostPremiumYears, "The Maximum Period is 50 years", "Incorrect Period!");

} // namespace

template <class Figure>
Bound<double> frmPremium::figure(Figure CapitalPremium::*member) {
    return {[this, member] { return static_cast<double>(shown().*member); },
            [this, member](double value) { shown().*member = narrowed<Figure>(value); }};
}

frmPremium::frmPremium(Workplace& workplace) : Screen(workplace, "frmPremium", "Premium Calculation", untracked()) {
    datastore::refreshFunds(m_work.record, m_work.paths.DefaultDbPath);
    auto* target = number("numPremEmv", figure(&CapitalPremium::PremTarget), money);
    m_period = number("numPremPeriod", figure(&CapitalPremium::PremTerm), years);
    m_growth = number("numPremGR", figure(&CapitalPremium::PremGrowth), percent);
    m_escalation = number("numPremPEsc", figure(&CapitalPremium::PremEscalation), percent);
    m_answer = result("numPremAns", figure(&CapitalPremium::premium), money);
    m_said = answerLine("txtAns", 60);
    m_said->setAccessibleName("About the premium");
    for (QLineEdit* line : {static_cast<QLineEdit*>(m_answer), m_said})
        showsCalculated(line);
    auto* work = button("cmdCalculate", "&Calculate", [this] {
        calculate();
        m_said->text().isEmpty() ? announce({m_answer}) : announce(m_said->text());
    });
    body(column({form({{"&Maturity value required", target},
                       {"&Investment period", m_period, "years"},
                       {"&Growth rate", m_growth, "% a year"},
                       {"&Escalation", m_escalation, "% a year"},
                       {"Approximate monthly premium", m_answer}}),
                 group("fraAnswers", "Result", m_said), spring(), row({work, spring(), okButton()})}));
    defaultButton(work);
}

void frmPremium::calculate() {
    const auto solved = finance::solvePremium(shown(), m_work.record.funds);
    m_answer->fill();
    m_said->setText(QString::fromStdString(solved.sentence()));
    showWords();
    calculated();
}

void frmPremium::showWords() {
    const bool isRetirement = m_work.record.premiums.source == 2;
    const finance::PremiumWords& words = isRetirement ? finance::retirementPremium : finance::educationPremium;
    setRowLabel(m_period, QString("&") + (finance::isReduced(shown()) ? words.reducedPeriod : words.period));
    setRowLabel(m_escalation, QString(words.escalation).replace("escalation", "&escalation"));
    setRowLabel(m_answer, words.answer);
}

} // namespace calculators
