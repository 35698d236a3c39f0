#include "datastore/frmBrowse.h"

namespace datastore {

using namespace screenkit;

frmBrowse::frmBrowse(Workplace& workplace)
    : ClientsScreen(workplace, "frmBrowse", "Browse Through Database.", Grid::Picking::one) {
    auto* ok = button("cmdOK", "&OK", [this] { load(); });
    body(column({clientList(), row({spring(), ok, cancelButton("cmdCancel", "&Cancel", [this] { drop(); })})}));
    defaultButton(ok);
}

/// Selects the first match, so that typing a word and Enter loads a client.
void frmBrowse::narrowed(bool bySomeWord) {
    list()->pick({});
    if (bySomeWord) list()->pickFirst();
}

void frmBrowse::load() {
    const auto chosen = picked();
    if (chosen.empty()) return list()->setFocus(Qt::OtherFocusReason);
    if (!m_work.shell.openClient(chosen.front()->DCLNO)) readAgain(); // the client may have been deleted from the file
}

} // namespace datastore
