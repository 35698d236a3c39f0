#include "datastore/frmREADFromA.h"

#include "datastore/frmMedia.h"
#include "datastore/paths.h"
#include "datastore/transfer.h"
#include "screenkit/longwork.h"

namespace datastore {

using namespace screenkit;

namespace {

constexpr const char* olderVersion = "It appears that you are currently trying to copy data from a \n"
                                     "version of Marlowbeck than is not compatible with this version!\n"
                                     " \n"
                                     "The Copying process has been stopped.\n"
                                     "Please ensure both programs are the same version!";

} // namespace

frmREADFromA::frmREADFromA(Workplace& workplace)
    : Screen(workplace, "frmREADFromA", "Read FROM Remote Media", untracked()) {
    auto* read = button("cmdCopyFromA", "&Read", [this] { readFromMedium(); });
    body(column({note(tr("Adds the clients of a file that Save TO Remote Media made on another computer, usually "
                         "CopyData.Mdb on a memory stick, to your own. Each of them is added as a new client; your "
                         "own clients stay as they are.")),
                 note(tr("Capital gains and lump sums do not travel: they remain on the other computer.")), spring(),
                 row({spring(), read, cancelButton("cmdCancel", "&Cancel", [this] { drop(); })})}));
    defaultButton(read);
}

void frmREADFromA::readFromMedium() {
    removeTransferFile(m_work.paths);
    const auto chosen = askSource(m_work.desk, "Retrieve Assessments from 'Look In:' drive/path!", "CopyData.Mdb");
    if (!chosen) return tellCancelled(m_work.desk);
    bool done = false;
    const auto fetch = [&] {
        done = runLongWork(tr("Copying the file"), [&](const store::Progress& progress) {
            fetchTransferFile(m_work.paths, *chosen, progress);
        });
    };
    if (!untilMediumWorks(m_work.desk, "There is a problem with the Chosen Media!", "Chosen Media Empty/Faulty!",
                          fetch))
        return;
    if (done && transferVersion(m_work.paths) < m_work.paths.UpDateDBValue)
        return m_work.desk.tell(BoxStyle::warning, olderVersion, "Marlowbeck");
    done = done && runLongWork(tr("Reading the clients"),
                               [&](const store::Progress& progress) { readClients(m_work.paths, progress); });
    if (!done) return tellCancelled(m_work.desk);
    m_work.desk.tell(BoxStyle::information, "The File CopyData.Mdb has been READ FROM the Chosen Media successfully !",
                     "Marlowbeck");
    drop();
}

} // namespace datastore
