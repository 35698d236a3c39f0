#include "datastore/frmClients.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <unordered_set>

#include "base/day.h"
#include "datastore/paths.h"
#include "screenkit/trouble.h"
#include "store/error.h"

namespace datastore {

using namespace screenkit;

namespace {

GridCell dateIf(bool isDate, double day) { return isDate ? GridCell(day) : GridCell(); }
GridCell words(const std::string& text) { return QString::fromStdString(text); }

/// The name column shows the surname only, like the text of a line; the first names distinguish people of one surname.
struct Column {
    GridColumn shown;
    GridCell (*cell)(const ClientLine&);
};

const std::vector<Column>& columns() {
    static const std::vector<Column> all{
        {GridColumn::text("Name", 20), [](const ClientLine& c) { return words(c.CLName); }},
        {GridColumn::text("First names", 14), [](const ClientLine& c) { return words(c.firstNames); }},
        {GridColumn::text("ID number", 15), [](const ClientLine& c) { return words(c.IDNumber); }},
        {GridColumn::date("Date of birth"), [](const ClientLine& c) { return dateIf(c.BirthDate > 0, c.BirthDate); }},
        {GridColumn::date("Review date"), [](const ClientLine& c) { return dateIf(c.ReviewDate > 0, c.ReviewDate); }},
        {GridColumn::text("Description"), [](const ClientLine& c) { return words(c.Description); }},
    };
    return all;
}

std::vector<GridColumn> heads() {
    std::vector<GridColumn> shown;
    for (const Column& each : columns())
        shown.push_back(each.shown);
    return shown;
}

} // namespace

ClientsScreen::ClientsScreen(Workplace& workplace, const QString& name, const QString& caption, Grid::Picking picking,
                             const ClientFieldNames& fields)
    : Screen(workplace, name, caption, untracked()), m_fieldNames(fields),
      m_picksAtOnce(picking != Grid::Picking::several) {
    workplace.shell.enableToolbar(false);
    connect(this, &Screen::closed, this, [this] { m_work.shell.enableToolbar(true); });
    m_list = table(
        "List1", tr("Clients"), picking, [this] { showEntry(); }, [this] { lineOpened(); });
    m_list->setSortable(true);
    m_list->setSortedBy(0);
    m_list->setVisibleLines(16);
    m_list->show(heads(), GridRows()); // the column widths decide how wide the window opens
    connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, this, [this] {
        m_read.reset();
        readAgain();
    });
    // When the user comes back from another program, that program may have released the file.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive && m_listed && isVisible()) readAgain();
    });
}

QLayout* ClientsScreen::clientList() {
    m_search = new QLineEdit;
    m_search->setObjectName("txtSearch");
    m_search->setPlaceholderText(tr("Words from names, numbers, e-mail or description"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, this, [this] { narrow(); });
    m_name = shown(m_fieldNames.name, 40);
    m_description = shown(m_fieldNames.description, 40);
    m_birthDate = shown(m_fieldNames.birthDate, 12);
    return column({form({{"&Search", m_search}}), Item(m_list, 1),
                   group("fraClient", tr("Client"),
                         form({{"Name", m_name}, {"Description", m_description}, {"Date of birth", m_birthDate}}))});
}

// ---- reading

void ClientsScreen::filled() {
    const bool first = !std::exchange(m_listed, true);
    read(first);
    if (first && m_clients.empty()) m_work.desk.bell();
}

ClientsScreen::Stamp ClientsScreen::stampNow() const {
    std::error_code ignored; // a missing file has no stamp; reading it reports the error
    const std::filesystem::path& path = m_work.paths.DataDbPath;
    return {path, std::filesystem::last_write_time(path, ignored), std::filesystem::file_size(path, ignored)};
}

void ClientsScreen::read(bool withBox) {
    const Stamp now = stampNow();
    if (m_read == now) return;
    const BusyCursor busy;
    const auto take = [&] {
        try {
            this->take(readClientList(m_work.paths.DataDbPath));
            m_read = now;
            m_trouble.clear();
        } catch (const store::Error& error) {
            m_read.reset();
            m_trouble = QString::fromStdString(error.message());
            if (withBox && !asksAbout(error)) throw;
        }
    };
    guarded(m_work.desk, tr("read the list of clients"), take);
    sayWhyEmpty();
}

/// What was selected stays selected, even if clients were added before it.
void ClientsScreen::take(std::vector<ClientLine> clients) {
    std::unordered_set<double> keys;
    for (const ClientLine* client : picked())
        keys.insert(client->DCLNO);
    m_clients = std::move(clients);
    m_finder.reset();
    const auto cell = [this](std::size_t row, std::size_t place) { return columns()[place].cell(m_clients[row]); };
    const auto spoken = [this](std::size_t row) { return QString::fromStdString(lineText(m_clients[row])); };
    m_list->show(heads(), {m_clients.size(), cell, spoken});
    m_list->sortAsBefore();
    if (!m_search->text().trimmed().isEmpty()) narrow();
    std::vector<std::size_t> stillThere;
    for (std::size_t row = 0; row < m_clients.size() && !keys.empty(); ++row)
        if (keys.contains(m_clients[row].DCLNO)) stillThere.push_back(row);
    if (!stillThere.empty()) m_list->pick(stillThere);
    showEntry();
}

void ClientsScreen::sayWhyEmpty() {
    if (!m_trouble.isEmpty())
        m_list->setEmptyText(tr("The clients could not be read.\n%1\n\nPress F5 to try again.").arg(m_trouble));
    else if (m_clients.empty())
        m_list->setEmptyText(tr("There are no clients in this file yet. Choose File, New File to record the first."));
    else
        m_list->setEmptyText(tr("No client has all of these words. Press Escape to clear the search."));
}

// ---- picking

std::vector<const ClientLine*> ClientsScreen::picked() const {
    std::vector<const ClientLine*> clients;
    for (const std::size_t row : m_list->picked())
        clients.push_back(&m_clients[row]);
    return clients;
}

/// Until the user moves in the list, the first client is shown and none is selected.
void ClientsScreen::showEntry() {
    const auto row = m_list->picked().empty() ? m_list->first() : m_list->current();
    const ClientLine client = row ? m_clients[*row] : ClientLine();
    m_name->setText(QString::fromStdString(client.Name));
    m_description->setText(QString::fromStdString(client.Description));
    m_birthDate->setText(client.BirthDate > 0 ? QString::fromStdString(base::formatDate(client.BirthDate)) : QString());
    pickedAnew();
}

void ClientsScreen::narrow() {
    const std::string words = m_search->text().trimmed().toStdString();
    if (words.empty()) {
        m_list->narrow({});
    } else {
        if (!m_finder) m_finder.emplace(m_clients);
        m_list->narrow(m_finder->find(words));
    }
    narrowed(!words.empty());
    showEntry();
}

QWidget* ClientsScreen::firstField() { return m_search; }

bool ClientsScreen::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || watched != m_search) return Screen::eventFilter(watched, event);
    const auto* press = static_cast<QKeyEvent*>(event);
    const int key = press->key();
    if (key == Qt::Key_Escape && !m_search->text().isEmpty()) {
        m_search->clear();
        return true;
    }
    if (key == Qt::Key_Down || key == Qt::Key_PageDown) {
        m_list->setFocus(Qt::TabFocusReason);
        if (m_picksAtOnce && m_list->picked().empty()) m_list->pickFirst();
        return true;
    }
    const bool sorts = press->modifiers() == Qt::ControlModifier && key >= Qt::Key_1 && key <= Qt::Key_9;
    return sorts ? QCoreApplication::sendEvent(m_list, event) : Screen::eventFilter(watched, event);
}

} // namespace datastore
