#include "shell/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QSessionManager>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <utility>

#include "assessment/assessment.h"
#include "base/text.h"
#include "datastore/paths.h"
#include "datastore/reset.h"
#include "datastore/startup.h"
#include "reports/report.h"
#include "screenkit/accesskeys.h"
#include "screenkit/desk.h"
#include "screenkit/icon.h"
#include "screenkit/look.h"
#include "screenkit/screen.h"
#include "screenkit/trouble.h"
#include "shell/commands.h"
#include "shell/datacare.h"
#include "shell/frmBrowser.h"
#include "shell/menuactions.h"
#include "shell/menukeys.h"
#include "shell/placing.h"
#include "shell/saving.h"
#include "shell/screens.h"
#include "shell/statusline.h"

namespace shell {

using screenkit::Answer;
using screenkit::BoxStyle;
using screenkit::BusyCursor;
using screenkit::Buttons;
using screenkit::Screen;

namespace {
constexpr const char* unsavedChanges = "Current changes have not been saved. Do you want to save them. ?";
} // namespace

MDIForm1::MDIForm1(assessment::Assessment& record, datastore::Paths& paths, screenkit::Desk& desk,
                   reports::Engine& reports)
    : m_paths(paths), m_work{record, paths, desk, reports, *this}, m_area(new QMdiArea(this)),
      m_status(new StatusLine(this, record)) {
    setObjectName("MDIForm1");
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setBackground(palette().window().color().darker(108));
    m_area->setActivationOrder(QMdiArea::ActivationHistoryOrder); // a closed graph gives way to its calculator
    setCentralWidget(m_area);
    setContextMenuPolicy(Qt::NoContextMenu); // Qt's own menu would hide the toolbar without updating the menu item
    new screenkit::AccessKeys(this);
    new MenuKeys(this);
    buildMenu();
    buildToolbar();
    connect(m_area, &QMdiArea::subWindowActivated, this, &MDIForm1::activated);
    reports.setHelp([this] {
        openGuide("Reports and export");
        activateWindow(); // the preview is in front of the main window
    });
    connect(qApp, &QGuiApplication::commitDataRequest, this, &MDIForm1::sessionEnds, Qt::DirectConnection);
}

MDIForm1::~MDIForm1() {
    m_work.reports.setHelp({});
    // Screens may call their shell while they close; Qt itself would destroy them when the shell is gone.
    m_area->disconnect(this);
    delete m_area;
}

void MDIForm1::buildMenu() {
    QHash<QString, QMenu*> menus;
    QSet<QString> parents;
    for (const MenuItem& item : menuItems())
        if (item.parent != nullptr) parents.insert(item.parent);
    for (const MenuItem& item : menuItems()) {
        const bool popUp = item.parent == nullptr;
        QMenu* under = popUp ? nullptr : menus.value(item.parent);
        if (parents.contains(item.name)) {
            auto* menu = new QMenu(item.caption, this);
            menu->setToolTipsVisible(true); // only disabled items have one
            menu->setObjectName(item.name);
            menus[item.name] = menu;
            m_actions[item.name] = menu->menuAction();
            if (under != nullptr) under->addMenu(menu);
            if (under == nullptr && !popUp) menuBar()->addMenu(menu);
            continue;
        }
        QAction* action = addItem(item);
        if (under != nullptr)
            under->addAction(action);
        else
            menuBar()->addAction(action);
    }
    connect(menus["mnuFile"], &QMenu::aboutToShow, this, [this, file = menus["mnuFile"]] { listRecentClients(file); });
    m_actions["mnuViewToolBar"]->setCheckable(true);
    m_actions["mnuViewToolBar"]->setChecked(true);
}

QAction* MDIForm1::addItem(const MenuItem& item) {
    auto* action = new QAction(item.caption, this);
    action->setObjectName(item.name);
    action->setShortcut(QKeySequence(item.shortcut));
    m_actions[item.name] = action;
    const MenuAction* command = menuAction(item.name);
    if (command == nullptr && screenEntry(item.screen) == nullptr) {
        action->setEnabled(false); // its screen or action does not exist yet
        action->setToolTip(tr("Not in this version yet"));
    } else if (command == nullptr)
        connect(action, &QAction::triggered, this,
                [this, screen = QString(item.screen)] { act([this, &screen] { open(screen); }); });
    else if (command->run != nullptr)
        connect(action, &QAction::triggered, this, [this, command] { act([this, command] { command->run(*this); }); });
    return action;
}

void MDIForm1::buildToolbar() {
    m_toolbar = addToolBar("Toolbar");
    m_toolbar->setObjectName("Toolbar2");
    m_toolbar->setMovable(false);
    m_toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    connect(m_actions["mnuViewToolBar"], &QAction::toggled, m_toolbar, &QToolBar::setVisible);
    for (const ToolButton& entry : toolButtons()) {
        QAction* item = m_actions.value(entry.item);
        auto* action = m_toolbar->addAction(screenkit::icon(entry.icon), entry.tip);
        action->setData(entry.item);
        action->setObjectName(QString("tb_") + entry.icon);
        action->setEnabled(item->isEnabled());
        auto* button = qobject_cast<QToolButton*>(m_toolbar->widgetForAction(action));
        button->setAccessibleName(entry.tip);
        if (item->menu() != nullptr) {
            const auto entries = item->menu()->actions();
            action->setMenu(item->menu());
            action->setEnabled(std::any_of(entries.begin(), entries.end(), [](auto* a) { return a->isEnabled(); }));
            button->setPopupMode(QToolButton::InstantPopup);
            for (QAction* choice : entries)
                connect(choice, &QAction::triggered, this, &MDIForm1::afterToolbarCommand);
        } else {
            connect(action, &QAction::triggered, this, [this, item] {
                item->trigger();
                afterToolbarCommand();
            });
        }
    }
    showTips();
}

void MDIForm1::showTips() {
    for (QAction* button : m_toolbar->actions()) {
        const QKeySequence shortcut = m_actions[button->data().toString()]->shortcut();
        QString tip = button->text();
        if (!button->isEnabled())
            tip += tr(": not in this version yet");
        else if (!m_toolbar->isEnabled())
            tip += tr(": not while a list of clients or Save As is open");
        else if (!shortcut.isEmpty())
            tip += " (" + shortcut.toString(QKeySequence::NativeText) + ")";
        button->setToolTip(tip);
    }
}

void MDIForm1::act(const std::function<void()>& command) {
    Screen* front = activeScreen();
    if (front != nullptr && !front->checkFields()) return;
    screenkit::guarded(m_work.desk, tr("carry out the command"), command);
}

void MDIForm1::afterToolbarCommand() {
    while (QGuiApplication::overrideCursor() != nullptr)
        QGuiApplication::restoreOverrideCursor();
    if (screens().size() == 2) cascade(m_area); // so that two open screens are both visible
}

QList<Screen*> MDIForm1::screens() const {
    QList<Screen*> open;
    for (QMdiSubWindow* window : m_area->subWindowList())
        if (auto* screen = qobject_cast<Screen*>(window->widget()); screen != nullptr && window->isVisible())
            open << screen;
    return open;
}

QWidget* MDIForm1::screen(const QString& name) {
    for (Screen* open : screens())
        if (open->objectName() == name) return open;
    return nullptr;
}

Screen* MDIForm1::activeScreen() const {
    return m_front != nullptr && m_front->isVisible() ? qobject_cast<Screen*>(m_front->widget()) : nullptr;
}

void MDIForm1::open(const QString& name) {
    const BusyCursor busy;
    auto* present = qobject_cast<Screen*>(screen(name));
    if (present == nullptr) {
        const ScreenEntry* entry = screenEntry(name);
        if (entry == nullptr) return;
        place(entry->build(m_work));
        return;
    }
    auto* window = qobject_cast<QMdiSubWindow*>(present->parentWidget());
    if (window->isMinimized()) window->showNormal();
    bringIntoView(m_area, window);
    m_area->setActiveSubWindow(window);
    window->raise();
}

void MDIForm1::place(Screen* screen) {
    QMdiSubWindow* window = m_area->addSubWindow(screen);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setObjectName(screen->objectName() + "Window");
    placeAtTopLeft(m_area, window);
    window->show();
    m_area->setActiveSubWindow(window);
}

void MDIForm1::activated(QMdiSubWindow* window) {
    // Null means that another program or a message box is in front. When the window returns to the same screen, the
    // screen must not be refilled over what the user was typing.
    if (window == nullptr || window == m_front) return;
    const QPointer<QMdiSubWindow> before = std::exchange(m_front, window);
    if (auto* behind = before != nullptr ? qobject_cast<Screen*>(before->widget()) : nullptr; behind != nullptr)
        behind->wentBehind();
    auto* screen = qobject_cast<Screen*>(window->widget());
    if (screen != nullptr) screenkit::guarded(m_work.desk, tr("show the screen"), [&] { screen->activate(); });
}

bool MDIForm1::exists(const QString& screen) { return screenEntry(screen) != nullptr; }

void MDIForm1::refillScreens() {
    m_work.lent.forget();
    for (Screen* open : screens())
        open->clientReplaced();
}

void MDIForm1::showClientName() { m_status->showClientName(); }

void MDIForm1::announce(const QString& said) { m_status->announce(said); }

void MDIForm1::enableToolbar(bool on) {
    m_toolbarHolders += on ? -1 : 1; // two screens that disable it may be open at once
    m_toolbar->setEnabled(m_toolbarHolders == 0);
    showTips();
}

bool MDIForm1::allEditsCommitted() const {
    const auto open = screens();
    return std::all_of(open.begin(), open.end(), [](Screen* screen) { return screen->commitPendingEdits(); });
}

MDIForm1::Changes MDIForm1::askAboutChanges(const QString& title, const std::function<void()>& save) {
    if (!allEditsCommitted()) return Changes::kept;
    assessment::CheckChanges(m_work.record);
    if (m_work.record.ClientChanged != 1) return Changes::none;
    switch (m_work.desk.box(BoxStyle::question, unsavedChanges, title, Buttons::yesNoCancel)) {
    case Answer::yes: {
        const BusyCursor busy;
        save();
        return Changes::saved;
    }
    case Answer::no: return Changes::dropped;
    default: return Changes::kept;
    }
}

void MDIForm1::mnuNewFile_Click() { startNewClient(*this); }

void MDIForm1::mnuSave_Click() {
    const BusyCursor busy;
    if (!base::trim(m_work.record.client.Name).empty()) {
        Save();
        return;
    }
    m_work.record.SaveThenNew = 0; // a later plain save must not blank the client
    m_work.desk.tell(BoxStyle::warning, "To save a file a Name is required !", "No Name !");
    open("frmPersDet");
}

bool MDIForm1::Save() {
    if (!allEditsCommitted()) return false;
    const auto saved = saveClient(m_work);
    if (saved) rememberClient();
    if (saved == datastore::Saved::thenNew) NEWUNLOAD();
    if (saved) m_status->showSaved();
    return saved.has_value();
}

bool MDIForm1::NEWUNLOAD() {
    const BusyCursor busy;
    const bool blank = screenkit::guarded(m_work.desk, tr("start a new client"),
                                          [this] { datastore::ResetAssessment(m_work.record, m_work.paths); });
    if (blank) CLEARLOAD();
    return blank;
}

void MDIForm1::CLEARLOAD() {
    const BusyCursor busy;
    m_work.lent.forget(); // the figure was the old client's: a closing screen must not restore it into the new one
    for (const char* name : clientScreens())
        if (auto* open = qobject_cast<Screen*>(screen(name)); open != nullptr) open->drop();
    refillScreens(); // no screen may show the old client's figures beside the new client
    m_status->clear();
}

void MDIForm1::useClientDb(const std::filesystem::path& dataDbPath) {
    const BusyCursor busy;
    datastore::useClientDb(m_paths, dataDbPath, m_work.record);
    for (const char* name : screensOfTheFile())
        if (auto* open = qobject_cast<Screen*>(screen(name)); open != nullptr) open->drop();
}

bool MDIForm1::mayExit() {
    if (m_exitWithoutAsking || !m_sessionMayEnd.hasExpired()) return true;
    if (Screen* front = activeScreen(); front != nullptr && !front->checkFields()) return false;
    if (m_work.desk.box(BoxStyle::question, "Are you sure you want to exit ?", "EXIT ?", Buttons::yesNo) != Answer::yes)
        return false;
    if (!allEditsCommitted()) return false;
    assessment::CheckChanges(m_work.record);
    if (m_work.record.ClientChanged != 1) return true;
    // Only two answers, unlike New and Browse: to keep the changes the user answers No and saves. No is the default, so
    // that pressing Enter twice on the way out does not lose a client's changes.
    return m_work.desk.box(BoxStyle::question, "Current changes have not been saved. Do you still want to exit. ?",
                           "Exit ?", Buttons::yesNo, Answer::no) == Answer::yes;
}

void MDIForm1::sessionEnds(QSessionManager& session) {
    if (!session.allowsInteraction()) return; // nothing can be asked: changes are lost, but the file is intact
    if (mayExit())
        m_sessionMayEnd.setRemainingTime(
            std::chrono::minutes(1)); // the close that follows does not ask again; one after a cancelled log-out does
    else
        session.cancel();
    session.release();
}

void MDIForm1::closeEvent(QCloseEvent* event) {
    if (!mayExit()) {
        event->ignore();
        return;
    }
    m_exitWithoutAsking = true;
    m_work.reports.closePreviews();
    event->accept();
}

void MDIForm1::help() {
    const Screen* front = activeScreen();
    const ScreenEntry* entry = front != nullptr ? screenEntry(front->objectName()) : nullptr;
    const bool isGuide = entry != nullptr && front == screen("frmBrowser");
    openGuide(entry != nullptr && !isGuide ? entry->chapter : "");
}

void MDIForm1::openGuide(const QString& chapter) {
    open("frmBrowser");
    if (auto* guide = qobject_cast<frmBrowser*>(screen("frmBrowser"))) guide->showChapter(chapter);
}

} // namespace shell
