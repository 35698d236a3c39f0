#include "datastore/frmDelete.h"

#include "datastore/deletion.h"
#include "datastore/paths.h"
#include "screenkit/trouble.h"

namespace datastore {

using namespace screenkit;

// No button is the default one: after a search, Enter must not begin a deletion.
frmDelete::frmDelete(Workplace& workplace)
    : ClientsScreen(workplace, "frmDelete", "Delete Client File", Grid::Picking::one) {
    body(column(
        {clientList(), row({spring(), button("cmdDelete", "&Delete", [this] { deleteChosen(); }), okButton()})}));
}

/// After the list has been read again nobody is chosen: the line may now be another client's.
void frmDelete::filled() {
    ClientsScreen::filled();
    list()->pick({});
}

void frmDelete::deleteChosen() {
    const auto chosen = picked();
    if (chosen.empty()) return list()->setFocus(Qt::OtherFocusReason);
    const ClientLine client = *chosen.front(); // the list may be read again while the question is open
    if (m_work.desk.box(BoxStyle::question, "ARE YOU SURE YOU WANT TO DELETE THIS FILE !", "Confirm Delete !",
                        Buttons::yesNo, Answer::no) != Answer::yes)
        return;
    const BusyCursor busy;
    guarded(m_work.desk, tr("delete the client"), [&] { deleteClient(m_work.paths.DataDbPath, client); });
    readAgain();
    list()->pick({});
    list()->setFocus(Qt::OtherFocusReason);
}

} // namespace datastore
