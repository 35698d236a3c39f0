#include "datastore/frmBrowse.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>

#include "base/day.h"
#include "base/fold.h"
#include "datastore/load.h"
#include "datastore/paths.h"
#include "screenkit/look.h"
#include "screenkit/trouble.h"

namespace datastore {

using namespace screenkit;

/// The list lines, narrowed to those that hold the text searched for. Lines are made as they are painted, so that a
/// file of a hundred thousand clients opens at once.
class ClientListModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void setClients(std::vector<ClientLine> clients) {
        m_clients = std::move(clients);
        m_folded.clear();
        narrow({});
    }

    void narrow(const std::string& text) {
        beginResetModel();
        m_shown.clear();
        const std::string wanted = base::folded(text);
        if (!wanted.empty() && m_folded.empty())
            for (const ClientLine& client : m_clients)
                m_folded.push_back(base::folded(client.CLName + '\n' + client.Name + '\n' + client.Description));
        for (std::size_t i = 0; i < m_clients.size(); ++i)
            if (wanted.empty() || m_folded[i].find(wanted) != std::string::npos) m_shown.push_back(i);
        endResetModel();
    }

    bool empty() const { return m_clients.empty(); }
    const ClientLine& at(int row) const { return m_clients[m_shown[static_cast<std::size_t>(row)]]; }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole) return {};
        return QString::fromStdString(lineText(at(index.row())));
    }

private:
    std::vector<ClientLine> m_clients;
    std::vector<std::string> m_folded; ///< made when the first search is typed
    std::vector<std::size_t> m_shown;
};

frmBrowse::frmBrowse(Workplace& workplace)
    : Screen(workplace, "frmBrowse", "Browse Through Database.", untracked()), m_model(new ClientListModel(this)) {
    workplace.shell.enableToolbar(false);
    connect(this, &Screen::closed, this, [this] { m_work.shell.enableToolbar(true); });
    buildBody();
    fillList();
}

void frmBrowse::buildBody() {
    m_search = new QLineEdit;
    m_search->setObjectName("txtSearch");
    m_search->setPlaceholderText(tr("Part of a surname, name or description"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_list = new QListView;
    m_list->setObjectName("List1");
    m_list->setAccessibleName(tr("Clients"));
    m_list->setModel(m_model);
    m_list->setUniformItemSizes(true);
    m_list->setMinimumSize(m_list->fontMetrics().averageCharWidth() * 60, look::lineHeight(m_list) * 18);
    m_list->installEventFilter(this);
    m_name = shown("txtName", 40);
    m_description = shown("txtDescription", 40);
    m_birthDate = shown("dtBirthDate", 12);
    auto* ok = button("cmdOK", "&OK", [this] { load(); });
    body(column({form({{"&Search", m_search}}), Item(m_list, 1),
                 group("fraClient", tr("Client"),
                       form({{"Name", m_name}, {"Description", m_description}, {"Date of birth", m_birthDate}})),
                 row({spring(), ok, cancelButton("cmdCancel", "&Cancel", [this] { drop(); })})}));
    defaultButton(ok);
    connect(m_search, &QLineEdit::textEdited, this, &frmBrowse::narrow);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (chosen().isValid()) showEntry(m_model->at(chosen().row()));
    });
    connect(m_list, &QListView::doubleClicked, this, [this] { load(); });
}

void frmBrowse::fillList() {
    guarded(m_work.desk, tr("read the list of clients"),
            [this] { m_model->setClients(readClientList(m_work.paths.DataDbPath)); });
    if (m_model->empty())
        m_work.desk.bell();
    else
        showEntry(m_model->at(0)); // shown, not chosen: OK asks for a choice
}

void frmBrowse::showEntry(const ClientLine& client) {
    m_name->setText(QString::fromStdString(client.Name));
    m_description->setText(QString::fromStdString(client.Description));
    m_birthDate->setText(client.BirthDate > 0 ? QString::fromStdString(base::formatDate(client.BirthDate)) : QString());
}

void frmBrowse::narrow(const QString& text) {
    m_model->narrow(text.trimmed().toStdString());
    if (m_model->rowCount() == 0) return showEntry({});
    showEntry(m_model->at(0));
    if (!text.trimmed().isEmpty()) choose(0);
}

void frmBrowse::choose(int row) { m_list->setCurrentIndex(m_model->index(row)); }

/// The selection tells, not the current line: a list that gets the focus makes its first line current on its own.
QModelIndex frmBrowse::chosen() const { return m_list->selectionModel()->selectedIndexes().value(0); }

QWidget* frmBrowse::firstField() { return m_search; }

bool frmBrowse::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return Screen::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        load();
        return true;
    }
    if (watched == m_search && key == Qt::Key_Escape) {
        m_search->clear();
        narrow({});
        return true;
    }
    if (watched == m_search && (key == Qt::Key_Down || key == Qt::Key_PageDown)) {
        m_list->setFocus(Qt::TabFocusReason);
        if (!chosen().isValid()) choose(0);
        return true;
    }
    if (watched == m_list && key == Qt::Key_Down && !chosen().isValid()) {
        choose(0); // not the second: nothing was chosen yet
        return true;
    }
    return Screen::eventFilter(watched, event);
}

void frmBrowse::load() {
    const QModelIndex line = chosen();
    if (!line.isValid()) return m_list->setFocus(Qt::OtherFocusReason);
    const double key = m_model->at(line.row()).DCLNO;
    Workplace& work = m_work; // this screen is among those that the load closes
    const BusyCursor busy;
    if (!guarded(work.desk, tr("load the client"), [&] { datastore::load(work.record, work.paths, key); })) {
        work.shell.refillScreens(); // the record may be blank now: no screen shows the old client any longer
        work.shell.showClientName();
        return;
    }
    work.shell.CLEARLOAD();
    work.shell.open("frmPersDet");
    work.shell.showClientName();
}

} // namespace datastore
