#include "datastore/frmSaveFileAs.h"

#include <tuple>

#include "assessment/tables.h"
#include "screenkit/trouble.h"

namespace datastore {

using namespace screenkit;

frmSaveFileAs::frmSaveFileAs(Workplace& workplace)
    : Screen(workplace, "frmSaveFileAs", "Save File As..", untracked()), m_client(workplace.record.client),
      m_details(workplace.record.details) {
    workplace.shell.enableToolbar(false);
    connect(this, &Screen::closed, this, [this] { m_work.shell.enableToolbar(true); });
    m_name = shown("txtName", 40);
    assessment::PersonalDetails& kept = workplace.record.details;
    const auto room = [&](const std::string& place) {
        return assessment::sizeOf(assessment::persDetailsTable(), &workplace.record, place);
    };
    auto* title = namePart("txtCTitle", m_details.CTitle, room(kept.CTitle));
    auto* initials = namePart("txtCInit", m_details.CInit, room(kept.CInit));
    m_surname = namePart("txtCLName", m_details.CLName, room(kept.CLName));
    auto* ok = button("cmdOK", "&OK", [this] { saveAs(); });
    body(column({form({{"Name", m_name},
                       {"&Title", title},
                       {"&Initials", initials},
                       {"&Surname", m_surname},
                       {"Date of &birth", date("dtCDOB", m_client.BirthDate)},
                       {"&Description", text("txtDescription", m_details.Description, room(kept.Description))}}),
                 note(tr("The client is saved as a new one; the old one stays in the file as it was last saved.")),
                 spring(), row({spring(), ok, cancelButton("cmdCancel", "&Cancel", [this] { drop(); })})}));
    defaultButton(ok);
}

void frmSaveFileAs::clientReplaced() {
    m_client = m_work.record.client;
    m_details = m_work.record.details;
    refill();
}

TextField* frmSaveFileAs::namePart(const QString& name, std::string& part, int size) {
    return text(name, Bound<QString>(part).then([this] { NameFunc(); }), size);
}

void frmSaveFileAs::NameFunc() {
    m_client.Name = assessment::displayName(m_details);
    filled();
}

void frmSaveFileAs::filled() { m_name->setText(QString::fromStdString(m_client.Name)); }

void frmSaveFileAs::saveAs() {
    const BusyCursor busy;
    if (m_details.CLName.empty()) {
        m_work.desk.tell(BoxStyle::warning, "To save a file a Name is required !", "No Last Name !");
        return m_surname->takeFocus();
    }
    assessment::Assessment& record = m_work.record;
    const assessment::Client clientBefore = record.client;
    const assessment::PersonalDetails detailsBefore = record.details;
    const auto flagsBefore = std::pair(record.ClientOnFile, record.ClientChanged);
    takeOver();
    record.ClientChanged = 0;
    record.ClientOnFile = 0; // a client not on file gets a new key
    if (!m_work.shell.Save()) {
        record.client = clientBefore;
        record.details = detailsBefore;
        std::tie(record.ClientOnFile, record.ClientChanged) = flagsBefore;
        return;
    }
    m_work.shell.showClientName();
    m_work.shell.refillScreens();
    drop();
}

void frmSaveFileAs::takeOver() {
    assessment::Assessment& record = m_work.record;
    record.client.Name = m_client.Name;
    record.client.BirthDate = m_client.BirthDate;
    record.details.CTitle = m_details.CTitle;
    record.details.CInit = m_details.CInit;
    record.details.CLName = m_details.CLName;
    record.details.Description = m_details.Description;
}

} // namespace datastore
