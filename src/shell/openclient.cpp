#include <QMenu>

#include "assessment/assessment.h"
#include "base/day.h"
#include "datastore/clientlist.h"
#include "datastore/load.h"
#include "datastore/paths.h"
#include "screenkit/desk.h"
#include "screenkit/screen.h"
#include "screenkit/trouble.h"
#include "shell/mainwindow.h"
#include "shell/recentclients.h"
#include "store/error.h"

// How a client from the file replaces the current one.
namespace shell {

using screenkit::BoxStyle;
using screenkit::BusyCursor;

namespace {
constexpr const char* browseTitle = "BROWSE ?";
} // namespace

void MDIForm1::mnuBrowse_Click() {
    m_decided.reset();
    if (!settleChanges()) return;
    m_decided = std::make_unique<assessment::Assessment>(m_work.record);
    auto* present = qobject_cast<screenkit::Screen*>(screen("frmBrowse"));
    open("frmBrowse");
    if (present != nullptr) present->refill(); // even if it was in front already: after a failure its list may be empty
}

bool MDIForm1::settleChanges() {
    bool failed = false;
    return askAboutChanges(browseTitle, [&] { failed = !Save(); }) != Changes::kept && !failed;
}

bool MDIForm1::mayBeReplaced() {
    if (!allEditsCommitted()) return false;
    assessment::CheckChanges(m_work.record);
    // Changes that the user discarded or saved on the way to the list are not asked about a second time.
    return (m_decided != nullptr && *m_decided == m_work.record) || settleChanges();
}

bool MDIForm1::openClient(double key) {
    if (!mayBeReplaced()) return false;
    const BusyCursor busy;
    bool vanished = false;
    const bool loaded = screenkit::guarded(m_work.desk, tr("load the client"), [&] {
        try {
            datastore::load(m_work.record, m_work.paths, key);
        } catch (const store::Error& error) {
            vanished = error.is(store::Number::noCurrentRecord);
            throw;
        }
    });
    if (!loaded) {
        if (!vanished) return false; // otherwise the client on the screens is still there
        refillScreens();             // the record is blank: no screen may show the old client
        showClientName();
        return false;
    }
    m_decided.reset();
    CLEARLOAD();
    open("frmPersDet");
    showClientName();
    rememberClient();
    return true;
}

// ---- the clients opened last

void MDIForm1::rememberClient() const {
    const assessment::Assessment& record = m_work.record;
    RecentClients(m_work.paths.DataDbPath)
        .remember({record.DCLNO, QString::fromStdString(record.client.Name), record.client.BirthDate});
}

void MDIForm1::listRecentClients(QMenu* file) {
    qDeleteAll(m_recent);
    m_recent.clear();
    const auto insert = [&](QAction* item) {
        file->insertAction(m_actions["mnuExit"], item);
        m_recent << item;
    };
    const auto separator = [&] {
        auto* line = new QAction(this);
        line->setSeparator(true);
        insert(line);
    };
    int number = 0;
    for (const RecentClient& client : RecentClients(m_work.paths.DataDbPath).list()) {
        if (number == 0) separator();
        QString name = fontMetrics().elidedText(client.name.simplified(), Qt::ElideRight, width() / 3);
        if (name.isEmpty()) name = tr("Client %1, without a name").arg(client.DCLNO);
        auto* item = new QAction(QString("&%1 %2").arg(++number).arg(name.replace('&', "&&")), this);
        item->setObjectName(QString("mnuRecent%1").arg(number));
        connect(item, &QAction::triggered, this, [this, client] { act([&] { openRecent(client); }); });
        insert(item);
    }
    if (number > 0) separator();
}

/// The key may belong to another client by now, if the file was restored from a backup or changed on another computer.
void MDIForm1::openRecent(const RecentClient& client) {
    const auto now = datastore::readClientLine(m_work.paths.DataDbPath, client.DCLNO);
    if (now && RecentClient{now->DCLNO, QString::fromStdString(now->Name), now->BirthDate} == client) {
        m_decided.reset();
        openClient(client.DCLNO);
        return;
    }
    RecentClients(m_work.paths.DataDbPath).forget(client.DCLNO);
    const QString born = now && base::isShownOnScreen(now->BirthDate)
                             ? tr(", born %1").arg(QString::fromStdString(base::formatDate(now->BirthDate)))
                             : QString();
    const QString change =
        now ? tr("Client %1 of the file is now %2%3.").arg(now->DCLNO).arg(QString::fromStdString(now->Name), born)
            : tr("Client %1 is no longer in the file.").arg(client.DCLNO);
    m_work.desk.tell(BoxStyle::information,
                     tr("%1 was not opened.\n%2\nThe File menu no longer lists this client; Browse Files finds every "
                        "client in the file.")
                         .arg(client.name, change),
                     "Marlowbeck");
}

} // namespace shell
