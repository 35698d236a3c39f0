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

/// The one main window: menu, toolbar, status bar and the area of the child screens. It holds no client logic; it
/// routes commands to screens, guards unsaved changes and shows the client's name.
class MDIForm1 : public QMainWindow, public screenkit::Shell {
    Q_OBJECT
public:
    MDIForm1(assessment::Assessment& record, datastore::Paths& paths, screenkit::Desk& desk, reports::Engine& reports);
    ~MDIForm1() override;

    // What screens ask of it.
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

    // What the menu's actions ask of it besides.
    screenkit::Workplace& workplace() { return m_work; }
    void mnuNewFile_Click();
    void mnuBrowse_Click();
    void mnuSave_Click();
    /// Blanks the record and closes the client's screens; false, after a box, if the settings can't be read.
    bool NEWUNLOAD();
    enum class Changes { none, saved, dropped, kept };
    /// Asks what is to become of unsaved changes, under this title, before a command does away with the client in hand.
    /// Yes runs `save`. Kept: the user would rather stay.
    Changes askAboutChanges(const QString& title, const std::function<void()>& save);
    QMdiArea* area() { return m_area; }
    /// The guide, at the chapter of the screen in front.
    void help();
    /// The guide at a chapter, by its heading; at an empty one where it stood.
    void openGuide(const QString& chapter);

    /// Closing asks nothing from here on.
    void exitWithoutAsking() { m_exitWithoutAsking = true; }
    QList<screenkit::Screen*> screens() const;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenu();
    void buildToolbar();
    /// The toolbar's tips name the shortcut, or why a button is greyed out.
    void showTips();
    QAction* addItem(const struct MenuItem& item);
    /// Runs a command once the screen in front has passed its checks.
    void act(const std::function<void()>& command);
    void afterToolbarCommand();
    void place(screenkit::Screen* screen);
    void activated(QMdiSubWindow* window);
    screenkit::Screen* activeScreen() const;
    /// False if the user would rather go on with what a screen holds apart from the record.
    bool allEditsCommitted() const;
    /// The question before a browse; false if the user stays with the present client, or could not be saved.
    bool settleChanges();
    /// The same before a load, but for what was settled already.
    bool mayBeReplaced();
    void rememberClient() const;
    void listRecentClients(QMenu* file);
    void openRecent(const struct RecentClient& client);
    bool mayExit();
    /// The desktop logs the user out or shuts down: the same questions as at the close.
    void sessionEnds(QSessionManager& session);

    datastore::Paths& m_paths;
    screenkit::Workplace m_work;
    QMdiArea* m_area;
    StatusLine* m_status;
    QToolBar* m_toolbar = nullptr;
    QHash<QString, QAction*> m_actions;
    QList<QAction*> m_recent;                          ///< the File menu's lines of clients opened last
    std::unique_ptr<assessment::Assessment> m_decided; ///< the record as Browse was opened, its changes settled
    QPointer<QMdiSubWindow> m_front; ///< the child screen last in front, also while another program is
    int m_toolbarHolders = 0;        ///< open screens that want the toolbar off
    bool m_exitWithoutAsking = false;
    QDeadlineTimer m_sessionMayEnd; ///< the user has agreed to the end of the session that is under way
};

} // namespace shell
