#include <QGroupBox>
#include <QTabWidget>
#include <limits>

#include "assessment/tables.h"
#include "client/frmPolInvest.h"

// The pages of the policies screen, and how their fields find the record on the screen.
namespace client {

using namespace screenkit;

namespace {

const NumberKind notNegative =
    money.between(0, std::numeric_limits<double>::infinity(), "An amount must be 0 or more", "Incorrect Amount!");
const NumberKind ages = whole.between(0, 99, "The maximum age allowed is 99", "Incorrect Age!");
const NumberKind terms = whole.between(0, 99, "The maximum period allowed is 99 years", "Incorrect Period!");
const NumberKind rates =
    percent.between(0, 100, "The range for the escalation is between 0% and 100%", "Incorrect Escalation!");

const assessment::FieldLine& lineOf(const QString& column) {
    const assessment::FieldLine* line = assessment::polsInvestsTable().field(column.toStdString());
    Q_ASSERT_X(line != nullptr && line->at != nullptr, "frmPolInvest", qPrintable(column));
    return *line;
}

/// Rounds to a whole number where the file stores whole numbers, even if the record could hold more: the field then
/// shows what a load will bring back.
void put(double number, const assessment::FieldLine& line, assessment::Policy& policy) {
    if (line.kind.declared.type == store::Type::Integer) number = narrowed<std::int16_t>(number);
    const auto write = [number]<class Member>(Member* member) {
        if constexpr (std::is_arithmetic_v<Member>) *member = narrowed<Member>(number);
    };
    std::visit(write, line.at(&policy));
}

std::string& textOf(const assessment::FieldLine& line, assessment::Policy& policy) {
    return *std::get<std::string*>(line.at(&policy));
}

} // namespace

Bound<double> frmPolInvest::place(const QString& column) {
    const assessment::FieldLine& line = lineOf(column);
    return {[this, &line] { return std::get<double>(assessment::valueAt(line.at(&policy()))); },
            [this, &line](double number) { put(number, line, policy()); }};
}

NumberField* frmPolInvest::figure(const QString& column, const NumberKind& kind, const QString& spoken) {
    auto* field = number("num" + column, place(column), kind);
    field->setAccessibleName(spoken);
    return field;
}

NumberField* frmPolInvest::amount(const QString& column, const QString& spoken) {
    return figure(column, notNegative, spoken);
}

QLayout* frmPolInvest::remarked(NumberField* field) { return row({field, Item(remarkOn(field), 1)}); }

Remark* frmPolInvest::remarkOn(NumberField* field) {
    m_remarks.push_back({field, new Remark("lblRemark" + field->objectName().mid(3))});
    return m_remarks.back().label;
}

NumberField* frmPolInvest::age(const QString& column, const QString& spoken) { return figure(column, ages, spoken); }

NumberField* frmPolInvest::years(const QString& column, const QString& spoken) { return figure(column, terms, spoken); }

NumberField* frmPolInvest::rate(const QString& column, const QString& spoken) {
    const bool isWhole = lineOf(column).kind.declared.type == store::Type::Integer;
    return figure(column, isWhole ? rates.shownAs("0") : rates, spoken);
}

TextField* frmPolInvest::line(const QString& column) {
    const assessment::FieldLine& line = lineOf(column);
    return text("txt" + column,
                {[this, &line] { return QString::fromStdString(textOf(line, policy())); },
                 [this, &line](const QString& typed) { textOf(line, policy()) = typed.toStdString(); }},
                line.kind.declared.size);
}

CheckField* frmPolInvest::tick(const QString& column, const QString& caption, std::function<void(bool)> ticked) {
    const Bound<double> at = place(column);
    return check("chk" + column, caption, {[at] { return static_cast<int>(at.get()); }, at.set}, std::move(ticked));
}

Item frmPolInvest::policyPage() {
    m_type = line("PolInvType");
    auto* who = form({{"Policy/Investment Type", m_type},
                      {"&Underwriter/Institution", line("UnderInst")},
                      {"Policy/Ref &number", line("PolRefNum")},
                      {"Owner", line("PolOwner")},
                      {"Inception date", date("dtInceptionDate", place("InceptionDate"))}});
    auto* states = row({tick("WoP", "Waiver of premium"),
                        tick("PaidUp", "Paid up", [this](bool paidUp) { lockPremiums(paidUp); }), spring()});
    auto* monthly = amount("PremInvAmtMonthly");
    auto* escalation = rate("PremInvAmtMonthlyAnnEsc");
    auto* indexed = tick("PremInvAmtMonthlyCPI", "CPI used? ");
    auto* annual = amount("PremInvAmtAnnual");
    auto* single = amount("PremInvAmtSingle");
    m_premiums = {monthly, escalation, indexed, annual, single};
    auto* premium = form({{"", states},
                          {"&Monthly", monthly},
                          {"Annual e&scalation", row({escalation, note("%"), indexed, spring()})},
                          {"Annual", annual},
                          {"Sin&gle", single}});
    const auto& note = lineOf("PolIncNote");
    auto* notes = memo("txtPolIncNote",
                       {[this] { return QString::fromStdString(policy().PolIncNote); },
                        [this](const QString& typed) { policy().PolIncNote = typed.toStdString(); }},
                       note.kind.declared.size);
    return column(
        {row({Item(group("fraPolicy", "Identification", who), 1),
              Item(group("fraPremium", "Premium or investment amount", premium), 1)}),
         Item(group("fraNotes", "Notes", form({{"Notes", notes}, {"Additional Notes", line("PolIncAddNote")}})), 1)});
}

Item frmPolInvest::deathPage() {
    auto* benefit = form({{"Death benefit", remarked(amount("DeathBen"))},
                          {"&Surrender value", remarked(amount("DeathBenSurrVal"))},
                          {"Loan a&gainst", amount("DeathBenLoanAgainst")},
                          {"A&mount ceded", amount("DeathBenAmtCeded")},
                          {"Ceded to", line("DeathBenCededTo")},
                          {"Lives assured", line("DeathBenLifeAssured")}});
    const QStringList persons(beneficiaries.begin(), beneficiaries.end());
    const Bound<double> at = place("DeathBenPerson");
    auto* person = options(
        "optDeathBen", persons, {[at] { return static_cast<int>(at.get()); }, at.set},
        [this](int chosen) { m_other->setEnabled(chosen == 3); }, Qt::Horizontal);
    m_other = line("DeathBenOther");
    auto* income = form({{"Mo&nthly", remarked(amount("DeathBenMonthly", "Monthly on death"))},
                         {"Escalation", rate("DeathBenMonEsc", "Escalation on death"), "%"},
                         {"for", years("DeathBenYears", "Years of income on death"), "years"}});
    auto* cash = form({{"Cash val&ue", valueAtAge("Cash value", "DeathBenCashVal", "DeathBenCashValAge",
                                                  "DeathBenCashValEscFor", "Escalate fwd at ")},
                       {"", tick("DeathBenUseCashAtRet", "Use cash value at retirement")}});
    return column(
        {row({Item(group("fraDeathBen", "Death benefit", benefit), 1),
              Item(column({group("fraBeneficiary", "Beneficiary", column({person, form({{"Other", m_other}})})),
                           group("fraDeathIncome", "Income on death", income)}),
                   1)}),
         group("fraCashVal", "Cash value", cash), spring()});
}

Item frmPolInvest::disabilityPage() {
    auto* disability = form({{"Disability lump sum", amount("DisabilLumpSum")},
                             {"&Monthly", amount("DisabilMonthly", "Disability, monthly")},
                             {"e&sc at ", rate("DisabilMonEscAt", "Disability, escalation"), "%"}});
    auto* trauma = form({{"Trauma/Dread disease L&ump sum", remarked(amount("TraumlLumpSum"))},
                         {"Mo&nthly", remarked(amount("TraumMonthly", "Trauma, monthly"))},
                         {"esc at ", rate("TraumMonEscAt", "Trauma, escalation"), "%"}});
    auto* income = form({{"Monthly", remarked(amount("IncProMonthly", "Income protection, monthly"))},
                         {"esc at ", rate("IncProMonEscAt", "Income protection, escalation"), "%"},
                         {"for", years("IncProYears", "Income protection, years"), "years"}});
    return column({row({Item(group("fraDisabil", "Disability", disability), 1),
                        Item(group("fraTrauma", "Trauma/Dread disease", trauma), 1)}),
                   row({Item(group("fraIncPro", "Income Protection", income), 1), spring()}), spring()});
}

Item frmPolInvest::retirementPage() {
    const QString forward = "Escalate fwd at ";
    auto* fund = form(
        {{"R/A &maturity value", valueAtAge("R/A maturity value", "RBEMV", "RBEMVAge", "RBEMVEscFor", forward)},
         {"Pension L&ump Sum", valueAtAge("Pension lump sum", "RBPenLump", "RBPenLumpAge", "RBPenLumpEscFor", forward)},
         {"Provide&nt Lump Sum ",
          valueAtAge("Provident lump sum", "RBProvFLump", "RBProvFLumpAge", "RBProvFLumpEscFor", forward)},
         {"Monthly",
          row({amount("RBMonAvaible", "Monthly pension"),
               labelled("esc at ", rate("RBMonAvaibleEscFor", "Monthly pension, escalation")), note("%"), spring()})}});
    // The tick boxes stand beside their values; below them the page would be taller than the main window at its first
    // size.
    auto* useEndowment = tick("UseEndowEMVAtRet", "Use at retirement");
    auto* takeCurrent = tick("InvBensTakeAtDisa", "Take on disability");
    auto* takeMaturity = tick("InvBensTakeFinValAtRet", "Take at retirement");
    for (CheckField* box : {useEndowment, takeCurrent, takeMaturity}) // lines up the squares of the tick boxes
        box->setMinimumWidth(takeMaturity->sizeHint().width());
    auto* endowment =
        form({{"E&stimated maturity value", valueAtAge("Estimated maturity value", "EndowEMV", "EndowEMVAge",
                                                       "EndowEMVEscFwd", forward, useEndowment)}});
    auto* current = amount("InvBensCurVal");
    auto* loan = amount("InvBensCurValLoanAgainst");
    auto* onCurrent = remarkOn(current);
    m_remarks.push_back({loan, onCurrent}); // one remark per line only, there is no room for a second
    auto* investment =
        form({{"Current value of investment",
               row({current, labelled("Loan a&gainst", loan), Item(onCurrent, 1), takeCurrent})},
              {"Maturity value L/Sum", valueAtAge("Maturity value", "InvBensMatValLS", "InvBensMatValLSAtAge",
                                                  "InvBensMatValLSEscAt", "Escalating at   ", takeMaturity)}});
    return column({group("fraRetirement", "Retirement annuity, pension and provident fund", fund),
                   group("fraEndow", "Endowment type or investment policy", endowment),
                   group("fraInvBens", "Investment", investment), spring()});
}

QLayout* frmPolInvest::valueAtAge(const QString& benefit, const QString& value, const QString& atAge,
                                  const QString& escalation, const QString& escalationCaption, QWidget* taken) {
    auto* sum = amount(value, benefit);
    auto* when = age(atAge, benefit + ", age");
    auto* percentage = rate(escalation, benefit + ", escalation");
    auto* line = row(
        {sum, labelled("at age ", when), labelled(escalationCaption, percentage), note("%"), Item(remarkOn(sum), 1)});
    if (taken != nullptr) line->addWidget(taken);
    return line;
}

NumberField* frmPolInvest::valueField(const QString& name, double& value) {
    m_valueFields.push_back(result(name, value, money));
    return m_valueFields.back();
}

Item frmPolInvest::valuesGroup() {
    auto* values = row({form({{"Cash value", valueField("numCashValAtRet", m_values.cashValue)},
                              {"R/A maturity value", valueField("numRBEMVAtRet", m_values.raMaturity)}}),
                        spring(),
                        form({{"Pension Lump Sum", valueField("numRBPenLumpAtRet", m_values.pensionLump)},
                              {"Provident Lump Sum ", valueField("numRBProvFLumpAtRet", m_values.providentLump)}}),
                        spring(),
                        form({{"Endowment", valueField("numEndowEMVAtRet", m_values.endowment)},
                              {"Investment", valueField("numInvBensAtRet", m_values.investment)}})});
    m_atRetirement = qobject_cast<QGroupBox*>(group("fraAtRetirement", "At retirement", values));
    return m_atRetirement;
}

} // namespace client
