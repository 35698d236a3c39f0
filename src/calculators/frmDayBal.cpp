#include "calculators/frmDayBal.h"

#include "base/day.h"
#include "calculators/dailybalancereport.h"
#include "datastore/paths.h"

namespace calculators {

using namespace screenkit;

namespace {

const NumberKind rate = percent.upTo(40, "The maximum Interest Rate allowed is 40%", "Incorrect Interest Rate!");
const NumberKind value{money.mask, false, 22};
const DateKind day = DateKind{}.worded("The date entered is invalid please enter a valid date.", "INVALID DATE");

/// The message for a date too far from the other one.
Complaint tooFar(const QString& where, double other) {
    return {QString("The date entered is more than 30 years(360 months) %1 %2.")
                .arg(where, QString::fromStdString(base::formatDate(other))),
            "DATE OUT OF RANGE"};
}

} // namespace

frmDayBal::frmDayBal(Workplace& workplace)
    : ResultScreen(workplace, "frmDayBal", "Daily Balance", workplace.record.changed.DayBalChanged),
      m_inputs(workplace.record.dailyBalance) {
    auto* amount = number("numCapAmount", m_inputs.CapAmount, money);
    auto* start = date("dtStartDate", m_inputs.StartDateDB,
                       day.where([this](double from) { return isWithin360Months(from, m_inputs.EndDateDB); },
                                 [this] { return tooFar("before", m_inputs.EndDateDB); }));
    auto* end = date("dtEndDate", m_inputs.EndDateDB,
                     day.where([this](double to) { return isWithin360Months(m_inputs.StartDateDB, to); },
                               [this] { return tooFar("after", m_inputs.StartDateDB); }));
    auto* interestRate = number("numIntRate", m_inputs.IntRate, rate);
    body(column({form({{"Capital a&mount", amount},
                       {"&Start date", start},
                       {"&End date", end},
                       {"Interest &rate", interestRate, "% a year"},
                       {"Interest", answer("numAnsDB1", m_result.interest, value)},
                       {"Days", answer("numAnsDB2", m_result.days, whole)}}),
                 spring(), buttonLine()}));
    prints();
}

void frmDayBal::calculate() {
    m_result = dailyBalance(m_inputs);
    showAnswers();
}

std::optional<datastore::Printout> frmDayBal::feed() {
    return feedDailyBalance(m_work.paths.PrintDbPath, m_work.record.client.Name, m_inputs, m_result);
}

} // namespace calculators
