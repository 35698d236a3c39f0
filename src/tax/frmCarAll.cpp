#include "tax/frmCarAll.h"

#include <cmath>

#include "base/day.h"
#include "datastore/paths.h"
#include "tax/travelreport.h"

namespace tax {

using namespace screenkit;
using assessment::CarAll;

namespace {

constexpr const char* wrongDate = "Incorrect Date";
constexpr const char* yearsEnd = "28/02/2027";

const NumberKind notNegative = money.from(0, "Please enter an amount that is not negative.", "Incorrect Amount");
const NumberKind kilometres = NumberKind{"# ### ### ##0.##", false, 12}.from(
    0, "Please enter kilometres that are not negative.", "Incorrect Kilometres");
const NumberKind shownKilometres{"# ### ### ##0.00", false, 12};
const NumberKind dayCount = NumberKind{"##0", true, 4};
const NumberKind cents{"# ### ### ##0.0###", false, 10};
const NumberKind shownRate{"# ### ### ##0.0", false, 14};

Complaint outside(double first, const QString& last) {
    return {QString("The date entered is not correct please enter a date between %1 and %2")
                .arg(QString::fromStdString(base::formatDate(first)), last),
            wrongDate};
}

Bound<double> shownOnly(std::function<double()> figure) {
    return {std::move(figure), [](double) {}};
}

} // namespace

frmCarAll::frmCarAll(Workplace& workplace)
    : ResultScreen(workplace, "frmCarAll", "Travel", untracked()), m_car(workplace.record.car),
      m_language(static_cast<int>(datastore::readReportLanguage(workplace.paths.DefaultDbPath))) {
    auto* vehicle = buildVehicle();
    auto* costs = buildCosts();
    m_deemed = buildDeemed();
    m_actual = buildActual();
    body(column(
        {row({column({vehicle, spring()}), column({costs, m_deemed, m_actual, spring()})}), spring(), buttonLine()}));
    auto* employee = text("Text3", m_car.employee, 50);
    auto* language = options("optRptLanguage", {"&English", "Afri&kaans"}, m_language);
    prints({form({{"E&mployee name :", employee}, {"Report language", language}})}, {employee, language});
}

DateField* frmCarAll::buildDate(const QString& name, double& place, bool isStart) {
    const auto startComplaint = [this] {
        const bool ends = base::isShownOnScreen(m_car.endDate);
        return outside(CarAll::firstDay, ends ? QString::fromStdString(base::formatDate(m_car.endDate)) : yearsEnd);
    };
    const auto endComplaint = [this] {
        return outside(base::isShownOnScreen(m_car.startDate) ? m_car.startDate : CarAll::firstDay, yearsEnd);
    };
    const auto inTheYear = [](double day) { return day >= CarAll::firstDay && day <= CarAll::lastDay; };
    const DateKind kind;
    if (isStart)
        return date(name, place,
                    kind.where(inTheYear, [] { return outside(CarAll::firstDay, yearsEnd); })
                        .notAfter([this] { return m_car.endDate; }, startComplaint));
    return date(name, place,
                kind.where(inTheYear, endComplaint).notBefore([this] { return m_car.startDate; }, endComplaint));
}

QWidget* frmCarAll::buildVehicle() {
    auto* kept = options(
        "fraExpensesKept", {"&Yes", "&No"},
        {[this] { return isByActualCosts() ? 0 : 1; },
         [this](int option) { m_car.expensesKept = option == 0 ? 1 : 0; }},
        [this](int) { calculate(); }, Qt::Horizontal);
    kept->option(0)->setObjectName("Option4");
    kept->option(1)->setObjectName("Option3");
    for (const int option : {0, 1})
        kept->option(option)->setAccessibleName(
            tr("Actual expenses kept, %1").arg(spokenLabel(kept->option(option)->text())));
    m_days = result("silgEdit12", shownOnly([this] { return travelDays(m_car); }), whole);
    auto* description = text("Text1", m_car.description, 50);
    auto* value = number("silgEdit1", m_car.vehicleValue, notNegative);
    auto* allowance = number("silgEdit2", m_car.allowance, notNegative);
    auto* close = number("silgEdit3", m_car.closeKm, kilometres);
    auto* open = number("silgEdit4", m_car.openKm, kilometres);
    auto* business = number("silgEdit5", m_car.businessKm, kilometres);
    m_start = buildDate("dtCarAlStartDate", m_car.startDate, true);
    m_end = buildDate("dtCarAlEndDate", m_car.endDate, false);
    auto* fuel = check("Check1", "Include F&uel Costs", m_car.includeFuel);
    auto* maintenance = check("Check2", "Include &Maintenance Costs", m_car.includeMaintenance);
    return group("fraVehicle", "Vehicle",
                 column({form({{"Ca&r :", description},
                               {"Actual expenses kept", kept},
                               {"Original &value of vehicle ", value},
                               {"Al&lowance received", allowance},
                               {"Clo&se km reading", close},
                               {"Op&en km reading", open},
                               {"&Business km", business, " (if kept)"},
                               {"S&tart Date", m_start},
                               {"En&d Date", m_end},
                               {"Period (number of days)", m_days}}),
                         fuel, maintenance}));
}

NumberField* frmCarAll::cost(const QString& name, double& place, const NumberKind& kind) {
    const auto note = [this, &place] { m_costTyped = &place; };
    return m_costs.emplace_back(number(name, Bound<double>(place).then(note), kind));
}

QWidget* frmCarAll::buildCosts() {
    // Wear and tear, or lease payments: whichever was typed second goes back to 0.
    const auto insteadOf = [this](double& own, double& other) {
        return notNegative
            .where([this, &own, &other](double value) { return value <= 0 || other <= 0 || m_costTyped != &own; },
                   "Only one amount for either Wear & Tear or Lease payments will be accepted", "Single Payment")
            .orElse(0);
    };
    const NumberKind wear = insteadOf(m_car.wearAndTear, m_car.leasePayments);
    const NumberKind lease = insteadOf(m_car.leasePayments, m_car.wearAndTear);
    return group("fraCosts", "Actual expenses",
                 form({{"Fuel/O&il                        ", cost("silgEdit6", m_car.fuel, notNegative)},
                       {"Repairs/Miantenance     ", cost("silgEdit7", m_car.repairs, notNegative)},
                       {"Insurance/Licence         ", cost("silgEdit8", m_car.insurance, notNegative)},
                       {"Other expenses             ", cost("silgEdit9", m_car.otherCosts, notNegative)},
                       {"Wear and tear               ", cost("silgEdit10", m_car.wearAndTear, wear)},
                       {"Lease payments             ", cost("silgEdit11", m_car.leasePayments, lease)}}));
}

QWidget* frmCarAll::buildDeemed() {
    Kilometres& driven = m_result.kilometres;
    const auto named = [](const char* name, NumberField* field) {
        field->setAccessibleName(tr(name));
        return field;
    };
    auto* business = named("Business km", answer("sidbEdit3(0)", driven.business, shownKilometres));
    auto* privateKm = named("Private km", answer("sidbEdit3(1)", driven.privateKm, shownKilometres));
    auto* days = named("Days", answer("silgEdit13(4)", m_result.days, dayCount));
    auto* year = named("Days of a year", answer("silgEdit13(6)", m_daysOfYear, dayCount));
    auto* total = named("Kilometres of the fixed cost", answer("sidbEdit3(4)", driven.total, shownKilometres));
    auto* fixed = named("Fixed cost a km", answer("sidbEdit1(0)", m_result.fixed, cents));
    auto* fuel = named("Fuel a km", answer("sidbEdit1(1)", m_result.fuel, cents));
    auto* maintenance = named("Maintenance a km", answer("sidbEdit1(2)", m_result.maintenance, cents));
    const auto rate = shownOnly([this] { return m_result.shownRate(); });
    return group("fraDeemed", "Claim by deemed costs",
                 form({{"Business, private km", row({business, privateKm})},
                       {"Total km", answer("sidbEdit3(2)", driven.total, shownKilometres)},
                       {"Fixed cost a year", answer("sidbEdit3(3)", m_result.fixedCost)},
                       {"Days, of a year, for km", row({days, year, total})},
                       {"Fixed, fuel, maintenance", row({fixed, fuel, maintenance}), "cents a km"},
                       {"Total rate", answer("sidbEdit1(3)", rate, shownRate), "cents a km"},
                       {"Claim", answer("sidbEdit1(4)", m_result.claim)}}));
}

QWidget* frmCarAll::buildActual() {
    Kilometres& driven = m_result.kilometres;
    return group("fraActual", "Claim by actual expenses",
                 form({{"Business km", answer("sidbEdit2(0)", driven.business, shownKilometres)},
                       {"Private km", answer("sidbEdit2(1)", driven.privateKm, shownKilometres)},
                       {"Total km", answer("sidbEdit2(2)", driven.total, shownKilometres)},
                       {"Total costs", answer("sidbEdit2(3)", m_result.totalCosts)},
                       {"Private use", answer("sidbEdit2(4)", m_result.privateUse)},
                       {"Business use claimed", answer("sidbEdit2(5)", m_result.claim)},
                       {"Claim", answer("sidbEdit2(6)", m_result.claim)}}));
}

void frmCarAll::showMethod() {
    for (NumberField* field : m_costs)
        field->setEnabled(isByActualCosts());
    m_start->setEnabled(!isByActualCosts());
    m_end->setEnabled(!isByActualCosts());
    m_actual->setVisible(isByActualCosts());
    m_deemed->setVisible(!isByActualCosts());
}

void frmCarAll::calculate() {
    showMethod();
    m_result = travelClaim(m_car);
    m_daysOfYear = m_result.method == TravelMethod::none ? 0 : 365;
    showAnswers(std::isfinite(m_result.claim) && std::isfinite(m_result.totalCosts));
}

std::optional<datastore::Printout> frmCarAll::feed() {
    const auto language = static_cast<datastore::ReportLanguage>(m_language);
    if (datastore::readReportLanguage(m_work.paths.DefaultDbPath) != language)
        datastore::writeReportLanguage(m_work.paths.DefaultDbPath, language);
    return PrintCarAll1(m_work.paths.PrintDbPath, m_work.record.client.Name, m_car, m_result, language);
}

void frmCarAll::edited() { m_days->fill(); }

bool frmCarAll::mayClose() {
    // Only an empty date gets here: the fields answer for all others.
    if (isByActualCosts() || travelDays(m_car) > 0) return true;
    m_work.desk.tell(BoxStyle::critical,
                     "The dates entered are not correct please enter a dates between 01/03/2026 and 28/02/2027",
                     wrongDate);
    (base::isShownOnScreen(m_car.startDate) ? m_end : m_start)->takeFocus();
    return false;
}

} // namespace tax
