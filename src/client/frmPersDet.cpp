#include "client/frmPersDet.h"

#include <QLabel>
#include <QTabWidget>

#include "assessment/tables.h"
#include "client/idnumber.h"
#include "client/persdetreport.h"
#include "datastore/paths.h"
#include "reports/report.h"

namespace client {

using namespace screenkit;

namespace {
constexpr int narrow = 10; // characters of a title, initials or a postal code
constexpr int phone = 20;
} // namespace

frmPersDet::frmPersDet(Workplace& workplace)
    : Screen(workplace, "frmPersDet", "Personal details :", workplace.record.changed.PersDetChanged),
      m_details(workplace.record.details), m_client(workplace.record.client) {
    auto* pages = tabs("tabPersDet", {{"&Client", clientPage()},
                                      {"&Spouse", spousePage()},
                                      {"Addresses and ban&k", addressPage()},
                                      {"&Dependants", dependantsPage()},
                                      {"Re&view and notes", notesPage()}});
    body(column({pages, row({disabledButton("cmdOtherAssets", "Other Assets"),
                             opener("cmdPolInvest", "Polic&y/Investments", "frmPolInvest"),
                             button("cmdPrint", "Prin&t", [this] { m_printPanel->open(); }), spring(),
                             okButton("cmOk", "&OK")})}));
    buildPrintPanel();
}

int frmPersDet::room(const std::string& place) {
    return assessment::sizeOf(assessment::persDetailsTable(), &m_work.record, place);
}

TextField* frmPersDet::namePart(const QString& name, std::string& part, int size, int characters) {
    return text(name, Bound<QString>(part).then([this] { NameFunc(); }), size, characters);
}

Item frmPersDet::clientPage() {
    auto& d = m_details;
    auto* person =
        group("fraClient", "Client",
              form({{"T&itle", namePart("txtCTitle", d.CTitle, room(d.CTitle), narrow)},
                    {"First &names", text("txtCFName", d.CFName, room(d.CFName))},
                    {"Initials", namePart("txtCInit", d.CInit, room(d.CInit), narrow)},
                    {"S&urname", namePart("txtCLName", d.CLName, room(d.CLName))},
                    {"Date of &birth", birthDate("dtCDOB", m_client.BirthDate)},
                    {"ID nu&mber", identityNumber(m_ids[0], "txtIDNum", m_client.IDNumber, room(m_client.IDNumber))},
                    {"", identityRemark(m_ids[0], "C")},
                    {"Occupation", text("txtCOccupation", d.COccupation, room(d.COccupation))},
                    {"Employer", text("txtCEmployer", d.CEmployer, room(d.CEmployer))},
                    {"Education", text("txtEducation", d.CEducation, room(d.CEducation))},
                    {"Description", text("txtDescription", d.Description, room(d.Description))}}));
    // 1 is deceased, 0 active. An old file may hold another value, which selects neither option.
    auto* life = options("grpDeceased", {"Active client", "Deceased"}, d.Deceased);
    life->option(0)->setObjectName("optActiveClientOther");
    life->option(1)->setObjectName("optDeceased");
    return page(person,
                {"C", d.CTelWork, d.CTelHome, d.CFaxWork, d.CFaxHome, d.CCell, d.CEMail, d.CMaritalStat, d.CSmoker},
                group("fraDeceased", "Status", life));
}

Item frmPersDet::spousePage() {
    auto& d = m_details;
    auto* person = group("fraSpouse", "Spouse",
                         form({{"T&itle", text("txtSTitle", d.STitle, room(d.STitle), narrow)},
                               {"First &names", text("txtSFName", d.SFName, room(d.SFName))},
                               {"Initials", text("txtSInit", d.SInit, room(d.SInit), narrow)},
                               {"S&urname", text("txtSLName", d.SLName, room(d.SLName))},
                               {"Date of &birth", birthDate("dtSDOB", d.SDOB)},
                               {"ID nu&mber", identityNumber(m_ids[1], "txtSSinNum", d.SSinNum0, room(d.SSinNum0))},
                               {"", identityRemark(m_ids[1], "S")},
                               {"Occupation", text("txtSOccupation", d.SOccupation, room(d.SOccupation))},
                               {"Employer", text("txtSEmployer", d.SEmployer, room(d.SEmployer))},
                               {"Education", text("txtSEducation", d.SEducation, room(d.SEducation))}}));
    return page(person,
                {"S", d.STelWork, d.STelHome, d.SFaxWork, d.SFaxHome, d.SCell, d.SEMail, d.SMaritalStat, d.SSmoker},
                nullptr);
}

Item frmPersDet::page(QWidget* person, const Contact& contact, QWidget* status) {
    const QString who = contact.who;
    const auto line = [&](const QString& name, std::string& place) {
        return text("txt" + who + name, place, room(place), phone);
    };
    auto* telephones = group("fra" + who + "Tel", "Telephone and e-mail",
                             form({{"Wo&rk", line("TelWork", contact.telWork)},
                                   {"Home", line("TelHome", contact.telHome)},
                                   {"Fa&x, work", line("FaxWork", contact.faxWork)},
                                   {"Fax, home", line("FaxHome", contact.faxHome)},
                                   {"Ce&ll", line("Cell", contact.cell)},
                                   {"&E-mail", text("txt" + who + "EMail", contact.email, room(contact.email))}}));
    auto* marital = group(
        "fra" + who + "MaritalStat", "Marital status",
        options("opt" + who + "MaritalStat", QStringList(maritalStates.begin(), maritalStates.end()), contact.marital));
    auto* smoker =
        group("fra" + who + "Smoker", "Smoking",
              options("opt" + who + "Smoker", QStringList(smokerStates.begin(), smokerStates.end()), contact.smoker));
    auto* habits = status != nullptr ? column({smoker, status, spring()}) : column({smoker, spring()});
    auto* left = column({person, spring()});
    auto* right = column({telephones, row({marital, habits}), spring()});
    return row({Item(left, 1), Item(right, 1)});
}

// ---- dates of birth and identity numbers

DateField* frmPersDet::birthDate(const QString& name, double& place) {
    m_births.push_back({date(name, place), &place});
    return m_births.back().field;
}

TextField* frmPersDet::identityNumber(Identity& identity, const QString& name, std::string& place, int size) {
    identity.number = text(name, place, size);
    identity.digits = &place;
    identity.birth = m_births.size() - 1;
    return identity.number;
}

Item frmPersDet::identityRemark(Identity& identity, const QString& who) {
    identity.remark = note({});
    identity.remark->setObjectName("lbl" + who + "IDRemark");
    identity.take = button("cmd" + who + "UseIDDate", "Use th&is date", [this, &identity] {
        identity.number->takeFocus(); // the button with the focus disappears next
        m_births[identity.birth].field->enter(*identity.offered);
        showRemark(identity);
    });
    return row({Item(identity.remark, 1), identity.take});
}

void frmPersDet::showRemark(Identity& identity) {
    const IDCheck check = checkIDNumber(*identity.digits, *m_births[identity.birth].date, today());
    identity.offered = check.offered;
    identity.remark->setText(QString::fromStdString(check.remark));
    identity.number->setAccessibleDescription(identity.remark->text());
    identity.remark->setVisible(!check.remark.empty());
    identity.take->setVisible(check.offered.has_value());
}

void frmPersDet::filled() {
    for (Birth& birth : m_births)
        birth.seen = *birth.date;
    for (Identity& identity : m_ids)
        showRemark(identity);
}

void frmPersDet::settled(Field* field) {
    for (Birth& birth : m_births) {
        if (birth.field != field || birth.seen == *birth.date) continue;
        birth.seen = *birth.date;
        const std::string remark = birthRemark(*birth.date, today());
        if (!remark.empty())
            m_work.desk.tell(BoxStyle::warning, QString::fromStdString(remark), field->widget()->accessibleName());
    }
    for (Identity& identity : m_ids)
        showRemark(identity);
}

Item frmPersDet::addressPage() {
    auto* postal = form({{"Line &1", text("txtPAdd1", m_details.PAdd1, room(m_details.PAdd1))},
                         {"Line &2", text("txtPAdd2", m_details.PAdd2, room(m_details.PAdd2))},
                         {"Line &3", text("txtPAdd3", m_details.PAdd3, room(m_details.PAdd3))},
                         {"Postal cod&e", text("txtZipCode", m_details.PAddZip, room(m_details.PAddZip), narrow)}});
    auto* copy =
        button("cmdCopyPtoR", "Copy Postal Address to Residentia&l Address :", [this] { copyPostalToResidential(); });
    m_residential[0] = text("txtResAdd1", m_details.ResAdd1, room(m_details.ResAdd1));
    m_residential[1] = text("txtResAdd2", m_details.ResAdd2, room(m_details.ResAdd2));
    m_residential[2] = text("txtResAdd3", m_details.ResAdd3, room(m_details.ResAdd3));
    auto* residential =
        form({{"Line 1", m_residential[0]}, {"Line 2", m_residential[1]}, {"Line 3", m_residential[2]}});
    return column(
        {row({group("fraPostal", "Postal address", column({postal, row({copy, spring()})})),
              group("fraResidential", "Residential address", residential)}),
         group("fraBank", "Bank and estate",
               form({{"&Bank", text("txtBank", m_details.CBank, room(m_details.CBank))},
                     {"B&ranch", text("txtBranch", m_details.CBranch, room(m_details.CBranch))},
                     {"Account &number", text("txtAccNo", m_details.CAccNo, room(m_details.CAccNo))},
                     {"E&xecutors", text("txtExecutors", m_details.CExecutors, room(m_details.CExecutors))}})),
         spring()});
}

Item frmPersDet::dependantsPage() {
    std::vector<FormRow> rows;
    for (std::size_t i = 0; i < m_details.DEP.size(); ++i) {
        const auto number = static_cast<int>(i);
        auto* name = text(QString("txtDepName(%1)").arg(number), m_details.DEP[i], room(m_details.DEP[i]));
        auto* birth = birthDate(QString("dtDepDOB%1").arg(number + 1), m_details.DEPDOB[i]);
        rows.emplace_back(QString("Name &%1").arg(number + 1), row({name, labelled("Date of birth", birth)}));
        birth->setAccessibleName(QString("Date of birth %1").arg(number + 1));
    }
    return column({group("fraDependants", "Dependants", form(rows)), spring()});
}

Item frmPersDet::notesPage() {
    return column({group("fraReview", "Review",
                         form({{"&Review date", date("dtReviewDate", m_details.ReviewDate)},
                               {"&Next appointment", date("dtNextApp", m_details.NextApp)}})),
                   Item(group("fraNotes", "Notes",
                              form({{"Co&mments", memo("txtMemo", m_details.Comments, room(m_details.Comments))}})),
                        1)});
}

void frmPersDet::buildPrintPanel() {
    auto* notes = check("Check3", "&Include Notes", m_includeNotes);
    untrackedField(notes);
    m_printPanel = printPanel({notes}, [this](Destination to) { print(to); });
}

void frmPersDet::NameFunc() {
    m_client.Name = assessment::displayName(m_details);
    m_work.shell.showClientName();
}

void frmPersDet::copyPostalToResidential() {
    const std::string* postal[] = {&m_details.PAdd1, &m_details.PAdd2, &m_details.PAdd3};
    for (int line = 0; line < 3; ++line)
        m_residential[line]->enter(QString::fromStdString(*postal[line]));
}

void frmPersDet::print(Destination destination) {
    const auto printout = feedPersonalDetails(m_work.paths.PrintDbPath, m_work.record, m_includeNotes == 1);
    m_work.reports.run(QString::fromStdString(printout.definition), QString::fromStdString(printout.title),
                       destination);
}

} // namespace client
