#pragma once

#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "screenkit/choice.h"
#include "screenkit/datefield.h"
#include "screenkit/desk.h"
#include "screenkit/editgrid.h"
#include "screenkit/grid.h"
#include "screenkit/layout.h"
#include "screenkit/numberfield.h"
#include "screenkit/panel.h"
#include "screenkit/spinbuttons.h"
#include "screenkit/textfield.h"
#include "screenkit/workplace.h"

class QLabel;
class QScrollArea;
class QTabWidget;

namespace screenkit {

/// A print panel and its buttons, where a screen has names of its own for them.
struct PrintNames {
    QString view = "cmdVR", direct = "cmdPD", cancel = "cmdPrintCancel";
    QString cancelCaption = "C&ancel";
    QString panel = "fraPrint";
};

/// A settings panel and its two buttons.
struct SettingsNames {
    QString panel, ok, cancel;
    QString title = "Settings", okCaption = "&OK", cancelCaption = "&Cancel";
};

/// An information panel, its button, its text and its title.
struct InfoNames {
    QString panel = "fraInfo", ok = "cmdOKInfo", text = "txtInfo", title = "lblInfo";
};

/// What an information panel may be opened on.
struct Topic {
    QString title, text;
};

/// A child screen: a live view of the record, made of declarations.
///
/// It fills itself when it comes to the front and keeps its changed flag over that. Each edit is in the record at once.
/// A field's limits are checked when the user leaves it and before any button, menu or close acts; a failed check shows
/// its box, puts the focus back and stops what was asked for. Enter moves to the next field, from the last one it
/// presses the default button.
class Screen : public QWidget {
    Q_OBJECT
public:
    /// changed: the screen's flag in the record; screens that set none pass `untracked()`.
    Screen(Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed);
    ~Screen() override;

    /// Another child screen was in front before: fill from the record.
    void activate();
    /// Fills every field again, with the changed flag as it was.
    void refill();
    /// The record holds another client now, or none: show that one. Screens with a copy of their own take it afresh.
    virtual void clientReplaced();
    /// Checks every field; false after showing the first complaint.
    bool checkFields();
    /// Before the record is saved or replaced: what the screen holds apart from it goes in or is dropped, as the user
    /// says, and what it has borrowed of it is given back. False if he would rather go on.
    virtual bool commitPendingEdits();
    /// Closes without asking or checking (the client it shows is gone).
    void drop();
    QSize sizeHint() const override;

signals:
    void closed(Screen* screen);

protected:
    // What a screen is declared with.
    NumberField* number(const QString& name, Bound<double> place, const NumberKind& kind);
    NumberField* result(const QString& name, Bound<double> place, const NumberKind& kind);
    TextField* text(const QString& name, Bound<QString> place, int size, int characters = 0);
    MemoField* memo(const QString& name, Bound<QString> place, int size);
    DateField* date(const QString& name, Bound<double> place, const DateKind& kind = {});
    /// Without an orientation each option is placed on its own, beside other fields: `group->option(0)`.
    OptionGroup* options(const QString& name, const QStringList& captions, Bound<int> place,
                         std::function<void(int)> picked = {},
                         std::optional<Qt::Orientation> orientation = Qt::Vertical);
    CheckField* check(const QString& name, const QString& caption, Bound<int> place,
                      std::function<void(bool)> ticked = {});
    /// A table that the user fills; give it its rows with `present`. It counts as an edit of the record unless it is
    /// made an `untrackedField`.
    EditGrid* editGrid(const QString& name);
    /// A table to look at and pick from, in the body of the screen; give it its rows with `show`. picked: another line
    /// was picked. opened: a double click or Enter on one; without it Enter is the default button's.
    Grid* table(const QString& name, const QString& spokenName, Grid::Picking picking,
                std::function<void()> picked = {}, std::function<void()> opened = {});
    /// A button that acts only when every field stands its check.
    QPushButton* button(const QString& name, const QString& caption, std::function<void()> action);
    /// A button that leaves or drops: no check stops it, and going to it raises no complaint.
    QPushButton* cancelButton(const QString& name, const QString& caption, std::function<void()> action);
    /// Closes the screen.
    QPushButton* okButton(const QString& name = "cmdOK", const QString& caption = "&OK");
    /// Opens another screen; greyed out while that screen does not exist.
    QPushButton* opener(const QString& name, const QString& caption, const QString& screen);
    /// A button of what does not exist yet: greyed out, so that nothing pretends.
    QPushButton* disabledButton(const QString& name, const QString& caption);
    /// A line that shows a text and takes none.
    QLineEdit* shown(const QString& name, int characters);
    /// A line for the sentence that answers what the screen was asked: the strongest text on it.
    QLineEdit* answerLine(const QString& name, int characters);
    /// Spin buttons that step a field by the rule, then `stepped` (recalculate). The field's Up and Down keys do the
    /// same, and leave the focus there.
    SpinButtons* spin(const QString& name, NumberField* field, const SpinRule& rule,
                      std::function<void()> stepped = {});
    /// A line in bold above what it heads.
    QLabel* heading(const QString& name);
    /// A warning that covers a field while it is shown; hidden at first.
    QLabel* over(QWidget* field, const QString& name, const QString& text);
    /// Choices of how to print and the like: no edit of the client's record.
    void untrackedField(Field* field);
    /// A line that shows what a calculation gave: from an edit of what went into it the line looks out of date, until
    /// `calculated`. A field that takes entries just now is no result, and does not.
    void showsCalculated(QLineEdit* line) { m_calculated.push_back(line); }
    /// A date or figure that no calculation takes: it leaves the results as they are.
    void notCalculatedFrom(Field* field) { m_asides.push_back(field); }
    /// The results on the screen are worked out from what its fields hold now.
    void calculated();
    /// They no longer are, whatever the fields hold: settings have changed.
    void outdated();
    QTabWidget* tabs(const QString& name, const std::vector<std::pair<QString, Item>>& pages);
    void body(QLayout* content);
    void defaultButton(QPushButton* button) { m_default = button; }
    /// Enter presses this button from every field, rather than to walk on to the next one.
    void enterPresses(QPushButton* button);
    /// Escape gives the one of these fields that was entered last the value back that it held then.
    void escapeGivesBack(std::initializer_list<NumberField*> fields) { m_givingBack = fields; }

    /// The calculations of this screen write over a figure that the user enters on another one, the owner. Run them
    /// through `m_work.lent`; at a save and at the close the figure is given back, and the owner's screen shows it.
    void lend(double& figure, const QString& owner);

    /// A panel over the screen; `buttons` stand at its foot, the last being the one that Escape presses.
    Panel* panel(const QString& name, const QString& title, const Item& content,
                 std::initializer_list<QPushButton*> buttons);
    /// `fraPrint`: choices of the screen's own, view, print and cancel. `print` runs under the busy cursor with
    /// " PROCESSING !" shown; the panel is hidden afterwards, whatever came of it.
    PrintPanel* printPanel(std::initializer_list<Item> choices, std::function<void(Destination)> print,
                           const PrintNames& names = {});
    /// A panel that explains something at length: a title, a text to scroll through, and the button that puts it away.
    /// The function that comes back opens it on a topic, with the focus on the text; a screen with several buttons for
    /// help has one panel for all of them.
    std::function<void(const Topic&)> infoPanel(const InfoNames& names = {});
    /// A panel of the practice's settings, of which no entry is an edit of the client's. Its fields are bound to
    /// `entered`, a copy of those in force that is made whenever the panel opens. OK stores it with `store`, puts it in
    /// force and runs `stored`; where storing fails the panel stays, with what was entered. Cancel drops the copy. The
    /// function that comes back opens the panel.
    template <class Settings>
    std::function<void()> settingsPanel(const SettingsNames& names, const Item& content, std::vector<Field*> fields,
                                        Settings& inForce, Settings& entered,
                                        std::function<void(const Settings&)> store, std::function<void()> stored = {}) {
        return settings(names, content, std::move(fields),
                        {[&inForce, &entered] { entered = inForce; },
                         [&inForce, &entered, store = std::move(store)] {
                             store(entered);
                             inForce = entered;
                         },
                         std::move(stored)});
    }
    /// `fraGrid`: a table of figures, `grdPayments`, with its OK; closing it clears it and puts the focus on
    /// focusAfter.
    void showGrid(const QString& title, std::vector<GridColumn> columns, std::vector<std::vector<double>> rows,
                  QWidget* focusAfter);

    /// Has a screen reader say what the user has asked the screen to work out: each result with its name. Once for
    /// each press of Calculate, never when a screen only fills itself.
    void announce(const std::vector<NumberField*>& results);
    void announce(const QString& said);

    /// The field that has the focus when the screen is opened; by default the first one.
    virtual QWidget* firstField();
    /// The desk's day as a day number.
    double today() const;
    /// Moves the focus once what is under way (a panel that closes) is done.
    static void focusLater(QWidget* widget);
    /// After the fields are filled: run a calculation, set what depends on them. Edits made here do not count.
    virtual void filled() {}
    /// A field was edited by the user.
    virtual void edited() {}
    /// A field's content stands its check, and the user has left it or asks for something: the moment for what a half
    /// typed figure must not set off.
    virtual void settled(Field*) {}
    /// The user asks to close; false stays. Fields have passed their checks.
    virtual bool mayClose() { return true; }

    Workplace& m_work;

    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Marks a button that no failed check may hold back.
    static constexpr const char* leavesFreely = "leavesFreely";

    template <class F>
    F* keep(F* field);
    /// Runs what an event has called for; a failure shows its box and goes no further.
    bool attempt(const QString& what, const std::function<void()>& action);
    void leave(Field* field);
    void checkLeft();
    /// False for what can't be put right just now: under a panel, in a panel that is gone, hidden by the screen.
    bool inReach(const QWidget* widget) const;
    bool complain(Field* field);
    /// Says below the fields what lies outside its limits though the user did not put it there.
    void tellFaults();
    /// What the fields hold that a calculation takes; a panel's are copies until they are confirmed.
    std::vector<std::optional<double>> inputs() const;
    void showWhatIsStale();
    template <class Kind>
    Kind* addPanel(const QString& name, const QString& title);
    struct SettingsSteps {
        std::function<void()> copy, store, stored;
    };
    std::function<void()> settings(const SettingsNames& names, const Item& content, std::vector<Field*> fields,
                                   const SettingsSteps& steps);
    void giveBackLent();
    void runPrint(PrintPanel* panel, const std::function<void(Destination)>& print, Destination destination);
    void bringToView(QWidget* widget);
    void followFocus(QWidget* focused);
    /// A cell in edit closes when the user goes to another screen, and takes the focus with it. What the panel covers
    /// can't have it, so that no key would reach anything on the way back.
    void recoverFocus();
    void enterPressed();
    void pressDefault();
    /// The entry that follows in the tab order, from the last one of a page the first of the next page that has any;
    /// nothing from the last one of all.
    QWidget* nextEntry(const QWidget* from) const;
    QWidget* entryBehind(const QWidget* from, const QWidget* within) const;

    std::int16_t& m_changed;
    std::vector<Field*> m_fields;
    std::vector<Panel*> m_panels;
    std::vector<std::pair<double*, QString>> m_lent; ///< figures borrowed, each with its owner's screen
    Panel* m_gridPanel = nullptr;
    Grid* m_grid = nullptr;
    QWidget* m_afterGrid = nullptr;
    std::vector<QLineEdit*> m_calculated;
    std::vector<Field*> m_asides;
    std::vector<std::optional<double>> m_workedFrom; ///< inputs of the last calculation
    std::vector<Field*> m_left;                      ///< left by the user, their checks still to come
    QTimer m_leaving;
    QScrollArea* m_area = nullptr;
    QLabel* m_faults = nullptr;
    QPushButton* m_default = nullptr;
    std::vector<NumberField*> m_givingBack;
    NumberField* m_enteredLast = nullptr; ///< one of them
    bool m_enterWalks = true;
    bool m_dropped = false;
    bool m_complaining = false;
    bool m_filling = false;
    bool m_opened = false;
};

/// A flag for screens that track no changes.
std::int16_t& untracked();

} // namespace screenkit
