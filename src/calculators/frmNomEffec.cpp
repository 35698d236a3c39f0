#include "calculators/frmNomEffec.h"

#include "calculators/nominaleffectivereport.h"
#include "datastore/paths.h"

namespace calculators {

using namespace screenkit;

namespace {

constexpr double highestRate = 50;
const NumberKind months = whole.upTo(600, "The Maximum Period is 50 years (600 months)", "Incorrect Period!");
const NumberKind nominalRate =
    percent.upTo(highestRate, "The maximum Nominal Rate allowed is 50%", "Incorrect Nominal Rate!");

} // namespace

frmNomEffec::frmNomEffec(Workplace& workplace)
    : ResultScreen(workplace, "frmNomEffec", "Nominal/Effective", workplace.record.changed.NomEffecChanged),
      m_inputs(workplace.record.nominalEffective) {
    body(column({row({compounding(), Item(column({interest(), spring()}), 1)}), spring(), buttonLine()}));
    prints();
}

QWidget* frmNomEffec::compounding() {
    auto* options =
        Screen::options("Option1", {"Monthly", "Daily", "Bi-monthly (twice a month)", "3-monthly", "Semi-Annually"},
                        {[this] { return static_cast<int>(compoundingOf(m_inputs.IntComp)); },
                         [this](int picked) { m_inputs.IntComp = periodsAYear(static_cast<Compounding>(picked)); }},
                        [this](int) {
                            snapPeriod(m_inputs);
                            m_period->fill();
                        });
    return group("fraCompounding", "Interest is compounded", options);
}

QLayout* frmNomEffec::interest() {
    auto* amount = number("numAmount", m_inputs.amount, money);
    m_period = number("numPeriod", m_inputs.PeriodNomEff, months);
    auto* rate = number("numNomRate", m_inputs.NomRate, nominalRate);
    auto* spinRate = spin("spRate", rate,
                          {.step = [this] { return m_work.record.GRINC; },
                           .idleAtZero = true,
                           .floor = 0,
                           .holdsFloor = false,
                           .ceiling = highestRate,
                           .wrapsTo = highestRate,
                           .rings = true,
                           .focus = [this] { return m_ok; }},
                          [this] { solve(); });
    return form({{"A&mount", amount},
                 {"P&eriod", m_period, "months"},
                 {"&Nominal rate", row({rate, spinRate}), "% a year"},
                 {"Effective rate", answer("numAns1", m_result.EffRate, percent), "% a year"},
                 {"Simple rate", answer("numAns2", m_result.SimpleRate, percent), "% a year"},
                 {"Interest earned", answer("numAns3", m_result.IntEarned)}});
}

void frmNomEffec::filled() {
    // Looking at the screen must not change the saved period, but the answers belong to the period that is used. An
    // empty period stays empty: with 12 in the field the first Calculate would answer 0.
    assessment::NominalEffective copy = m_inputs;
    m_result = NomEffCalc(copy);
    if (m_inputs.PeriodNomEff != 0) m_period->present(copy.PeriodNomEff);
    showAnswers(m_result.isFinite());
}

void frmNomEffec::calculate() {
    solve();
    if (!m_result.isComplete) m_ok->setFocus(Qt::OtherFocusReason);
}

void frmNomEffec::solve() {
    const assessment::NominalEffective before = m_inputs;
    m_result = NomEffCalc(m_inputs);
    if (m_inputs != before) m_work.record.changed.NomEffecChanged = 1;
    m_period->fill();
    showAnswers(m_result.isFinite());
}

std::optional<datastore::Printout> frmNomEffec::feed() {
    return feedNominalEffective(m_work.paths.PrintDbPath, m_work.record.client.Name, m_inputs, m_result);
}

} // namespace calculators
