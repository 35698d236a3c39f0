#pragma once

#include <QDeadlineTimer>
#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <memory>

#include "screenkit/workplace.h"

class QMdiArea;
class QMdiSubWindow;
class QSessionManager;

namespace screenkit {
class Screen;
} // namespace screenkit

namespace shell {

class StatusLine;

/// The main window: menu, toolbar, status bar and the area of the child screens. It has no client logic; it passes
/// commands to screens, protects unsaved changes and shows the client's name.
class MDIForm1 : public QMainWindow, public screenkit::Shell {
    Q_OBJECT
public:
    MDIForm1(assessment::Assessment& record, datastore::Paths& paths, screenkit::Desk& desk, reports::Engine& reports);
    ~MDIForm1() override;

    // Used by screens.
    void open(const QString& screen) override;
    QWidget* screen(const QString& name) override;
    bool exists(const QString& screen) override;
    void refillScreens() override;
    void showClientName() override;
    void announce(const QString& said) override;
    void enableToolbar(bool on) override;
    bool Save() override;
    bool openClient(double key) override;
    void CLEARLOAD() override;
    void useClientDb(const std::filesystem::path& dataDbPath) override;

    // Also used by the menu's actions.
    screenkit::Workplace& workplace() { return m_work; }
    void mnuNewFile_Click();
    void mnuBrowse_Click();
    void mnuSave_Click();
    /// Blanks the record and closes the client's screens; false, after a message, if the settings can't be read.
    bool NEWUNLOAD();
    enum class Changes { none, saved, dropped, kept };
    /// Asks whether to save unsaved changes, under this title, before a command replaces the current client. Yes runs
    /// `save`. Kept: the user stays with the client.
    Changes askAboutChanges(const QString& title, const std::function<void()>& save);
    QMdiArea* area() { return m_area; }
    /// Opens the guide at the chapter of the front screen.
    void help();
    /// The guide at a chapter, by its heading; at an empty one where it stood.
    void openGuide(const QString& chapter);

    /// From now on closing asks nothing.
    void exitWithoutAsking() { m_exitWithoutAsking = true; }
    QList<screenkit::Screen*> screens() const;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenu();
    void buildToolbar();
    /// Sets the toolbar's tips, which name the shortcut or the reason why a button is disabled.
    void showTips();
    QAction* addItem(const struct MenuItem& item);
    /// Runs a command after the front screen has passed its checks.
    void act(const std::function<void()>& command);
    void afterToolbarCommand();
    void place(screenkit::Screen* screen);
    void activated(QMdiSubWindow* window);
    screenkit::Screen* activeScreen() const;
    /// False if the user chooses to go on with entries that a screen holds apart from the record.
    bool allEditsCommitted() const;
    /// Asks about changes before a browse; false if the user keeps the current client, or saving failed.
    bool settleChanges();
    /// The same before a load, unless the changes were settled already.
    bool mayBeReplaced();
    void rememberClient() const;
    void listRecentClients(QMenu* file);
    void openRecent(const struct RecentClient& client);
    bool mayExit();
    /// Called when the user logs out or the computer shuts down: asks the same questions as closing.
    void sessionEnds(QSessionManager& session);

    datastore::Paths& m_paths;
    screenkit::Workplace m_work;
    QMdiArea* m_area;
    StatusLine* m_status;
    QToolBar* m_toolbar = nullptr;
    QHash<QString, QAction*> m_actions;
    QList<QAction*> m_recent;                          ///< the File menu's items for the clients opened last
    std::unique_ptr<assessment::Assessment> m_decided; ///< the record when Browse was opened and its changes settled
    QPointer<QMdiSubWindow> m_front; ///< the last front screen, also while another program is in front
    int m_toolbarHolders = 0;        ///< open screens that disable the toolbar
    bool m_exitWithoutAsking = false;
    QDeadlineTimer m_sessionMayEnd; ///< until then, the user has agreed to the end of the session
};

} // namespace shell
