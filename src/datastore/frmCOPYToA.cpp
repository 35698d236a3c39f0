#include "datastore/frmCOPYToA.h"

#include <QTimer>

#include "datastore/frmMasterDBLocator.h"
#include "datastore/frmMedia.h"
#include "datastore/transfer.h"
#include "datastore/workfiles.h"
#include "screenkit/longwork.h"
#include "store/error.h"

namespace datastore {

using namespace screenkit;

frmCOPYToA::frmCOPYToA(Workplace& workplace)
    : ClientsScreen(workplace, "frmCOPYToA", "Save TO Remote Media", Grid::Picking::several,
                    {"Text1", "Text2", "sidtEdit1"}),
      m_held(workplace.paths.DataDbPath) {
    MakeCopyDb(workplace.paths);
    m_chosen = table("List2", tr("Chosen clients"), Grid::Picking::stretch);
    m_chosen->setVisibleLines(5);
    m_chosen->setEmptyText(tr("Click the clients to be copied, or press Space on them."));
    m_chosen->show({GridColumn::text(tr("To be copied"))}, GridRows());
    auto* copy = button("cmdCopyToA", "&Copy", [this] { copyChosen(); });
    body(column({Item(clientList(), 3), Item(m_chosen, 1),
                 row({spring(), copy, cancelButton("cmdCancel", "Ca&ncel", [this] { drop(); })})}));
}

void frmCOPYToA::pickedAnew() {
    std::vector<QString> lines;
    for (const ClientLine* client : picked())
        lines.push_back(QString::fromStdString(lineText(*client)));
    const std::size_t count = lines.size();
    const auto cell = [shown = std::move(lines)](std::size_t row, std::size_t) { return GridCell(shown[row]); };
    m_chosen->show({GridColumn::text(count == 0 ? tr("To be copied") : tr("To be copied: %1").arg(count))},
                   {count, cell});
}

void frmCOPYToA::copyChosen() {
    std::vector<double> keys;
    for (const ClientLine* client : picked())
        keys.push_back(client->DCLNO);
    if (keys.empty()) {
        m_work.desk.tell(BoxStyle::warning, "There are no Assessments selected to be copied", "Marlowbeck");
        return list()->setFocus(Qt::OtherFocusReason);
    }
    const auto copy = [&](const store::Progress& progress) { copyClients(m_work.paths, keys, progress); };
    if (!runLongWork(tr("Copying the chosen clients"), copy)) return tellCancelled(m_work.desk);
    const auto destination = askDestination(m_work.desk, "Copy File CopyData.Mdb to Destination?", "CopyData.Mdb");
    if (!destination) return tellCancelled(m_work.desk);
    const std::filesystem::path file = WorkFiles(m_work.paths.programFolder).transfer;
    if (writeToMedium(m_work, file, *destination, "There is a problem Writing to the Chosen Media!"))
        m_work.desk.tell(BoxStyle::information,
                         "The File CopyData.Mdb has been copied to the Chosen Media successfully !", "Marlowbeck");
}

/// A file that is missing or is no file of clients: another one can be chosen.
bool frmCOPYToA::asksAbout(const store::Error& error) {
    if (isNotFound(error))
        offerOtherFile("Database can not be found in the default folder!\nDo you want to set the search path?",
                       "Marlowbeck Data Database not found!");
    else if (isNoClientFile(error))
        offerOtherFile("Incorrect File Selected!\nDo you want to reset search path and file name?",
                       " Marlowbeck Data Database not found!");
    else
        return false;
    return true;
}

/// Asked when the window stands: a change of the file closes it, and it opens again on the new file.
void frmCOPYToA::offerOtherFile(const QString& text, const QString& title) {
    QTimer::singleShot(0, this, [this, text, title] {
        if (m_work.desk.box(BoxStyle::question, text, title, Buttons::yesNo) != Answer::yes) return drop();
        Workplace& work = m_work;
        if (locateClientDb(work)) work.shell.open("frmCOPYToA");
    });
}

} // namespace datastore
