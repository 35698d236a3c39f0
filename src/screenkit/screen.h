#pragma once

#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
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

/// Names of a print panel and its buttons, for a screen that needs its own.
struct PrintNames {
    QString view = "cmdVR", direct = "cmdPD", cancel = "cmdPrintCancel";
    QString cancelCaption = "C&ancel";
    QString panel = "fraPrint";
};

/// Names of a settings panel and its two buttons.
struct SettingsNames {
    QString panel, ok, cancel;
    QString title = "Settings", okCaption = "&OK", cancelCaption = "&Cancel";
};

/// Names of an information panel, its button, its text and its title.
struct InfoNames {
    QString panel = "fraInfo", ok = "cmdOKInfo", text = "txtInfo", title = "lblInfo";
};

/// A topic of an information panel.
struct Topic {
    QString title, text;
};

/// A child screen: a live view of the record, made of declarations.
///
/// It fills itself when it comes to the front, without changing its changed flag. Each edit goes into the record at
/// once. A field's limits are checked when the user leaves it and before any button, menu or close acts; a failed check
/// shows its message, puts the focus back and stops the action. Enter moves to the next field, from the last one it
/// presses the default button.
class Screen : public QWidget {
    Q_OBJECT
public:
    /// changed: the screen's flag in the record; screens that set none pass `untracked()`.
    Screen(Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed);
    ~Screen() override;

    /// Called when it comes to the front: fills itself from the record.
    void activate();
    /// Fills every field again, without changing the changed flag.
    void refill();
    /// Called when the record holds another client, or none: shows it. Screens with copies must copy again.
    virtual void clientReplaced();
    /// Checks every field; false after showing the first complaint.
    bool checkFields();
    /// Call it before the record is saved or replaced: commits or drops what the screen holds apart from the record, as
    /// the user decides, and restores borrowed figures. False if the user cancels.
    virtual bool commitPendingEdits();
    /// Called when another screen has come to the front before it.
    virtual void wentBehind() {}
    /// Closes without asking or checking, since its client is gone.
    void drop();
    QSize sizeHint() const override;

signals:
    void closed(Screen* screen);

protected:
    // The controls that a screen declares.
    NumberField* number(const QString& name, Bound<double> place, const NumberKind& kind);
    NumberField* result(const QString& name, Bound<double> place, const NumberKind& kind);
    TextField* text(const QString& name, Bound<QString> place, int size, int characters = 0);
    MemoField* memo(const QString& name, Bound<QString> place, int size);
    DateField* date(const QString& name, Bound<double> place, const DateKind& kind = {});
    /// Without an orientation each option is placed separately, beside other fields: `group->option(0)`.
    OptionGroup* options(const QString& name, const QStringList& captions, Bound<int> place,
                         std::function<void(int)> picked = {},
                         std::optional<Qt::Orientation> orientation = Qt::Vertical);
    CheckField* check(const QString& name, const QString& caption, Bound<int> place,
                      std::function<void(bool)> ticked = {});
    /// A table that the user fills; pass its rows to `present`. Its edits change the record unless it is made an
    /// `untrackedField`.
    EditGrid* editGrid(const QString& name);
    /// A read-only table in the body of the screen; pass its rows to `show`. picked: another line was picked. opened: a
    /// double click or Enter on a line; without it Enter presses the default button. headPressed: a click on a head or
    /// its key, for a table that the screen itself puts in order.
    Grid* table(const QString& name, const QString& spokenName, Grid::Picking picking,
                std::function<void()> picked = {}, std::function<void()> opened = {},
                std::function<void(int)> headPressed = {});
    /// A button that acts only if every field passes its check.
    QPushButton* button(const QString& name, const QString& caption, std::function<void()> action);
    /// A button that leaves or cancels: no check stops it, and moving to it shows no message.
    QPushButton* cancelButton(const QString& name, const QString& caption, std::function<void()> action);
    /// Closes the screen.
    QPushButton* okButton(const QString& name = "cmdOK", const QString& caption = "&OK");
    /// Opens another screen; disabled while that screen does not exist.
    QPushButton* opener(const QString& name, const QString& caption, const QString& screen);
    /// The button of a function that does not exist yet: disabled.
    QPushButton* disabledButton(const QString& name, const QString& caption);
    /// A line that shows a text; nothing can be entered.
    QLineEdit* shown(const QString& name, int characters);
    /// A line for the sentence that answers the screen's question: the strongest text on the screen.
    QLineEdit* answerLine(const QString& name, int characters);
    /// Spin buttons that step a field by the rule and then call `stepped` (recalculate). The field's Up and Down keys
    /// do the same; the focus stays in the field.
    SpinButtons* spin(const QString& name, NumberField* field, const SpinRule& rule,
                      std::function<void()> stepped = {});
    /// A heading in bold.
    QLabel* heading(const QString& name);
    /// A warning that covers a field while shown; hidden at first.
    QLabel* over(QWidget* field, const QString& name, const QString& text);
    /// For choices such as how to print: they are no edits of the client's record.
    void untrackedField(Field* field);
    /// For an input that is not stored with the client: an edit sets no changed flag.
    void unsavedField(Field* field);
    /// A line or table that shows calculated results: it looks out of date from an edit of an input until `calculated`.
    /// Has no effect while the line itself is an entry.
    void showsCalculated(QWidget* shown) { m_calculated.push_back(shown); }
    /// For a date or figure that no calculation uses: editing it does not make results look out of date.
    void notCalculatedFrom(Field* field) { m_asides.push_back(field); }
    /// Call it after a calculation: the results now match the fields, but for those that it left as they were, which
    /// look out of date until another calculation reaches them. page: see `worksByPage`.
    void calculated(int page = 0, std::set<QWidget*> leftAsTheyWere = {});
    /// Call it when results no longer match although no field changed, for example after a change of settings.
    void outdated(int page = 0);
    /// Each page of this book is a calculation of its own: its results depend on its own fields alone, and Enter in its
    /// last field presses the default button instead of moving to the next page.
    void worksByPage(QTabWidget* book) { m_workedByPage = book; }
    QTabWidget* tabs(const QString& name, const std::vector<std::pair<QString, Item>>& pages);
    void body(QLayout* content);
    void defaultButton(QPushButton* button) { m_default = button; }
    /// Enter presses this button from every field, instead of moving to the next one.
    void enterPresses(QPushButton* button);
    /// Escape restores the previous value of the one of these fields that was entered last.
    void escapeGivesBack(std::initializer_list<NumberField*> fields) { m_givingBack = fields; }

    /// For a figure that this screen's calculations overwrite but the user enters on another screen, the owner. Run
    /// them through `m_work.lent`; on save and on close the figure is restored and the owner's screen updated.
    void lend(double& figure, const QString& owner);

    /// A panel over the screen; `buttons` are at its bottom, and Escape presses the last one.
    Panel* panel(const QString& name, const QString& title, const Item& content,
                 std::initializer_list<QPushButton*> buttons);
    /// `fraPrint`: the screen's own choices, view, print and cancel. `print` runs under the busy cursor with "
    /// PROCESSING !" shown; the panel is hidden afterwards, also after a failure.
    PrintPanel* printPanel(std::initializer_list<Item> choices, std::function<void(Destination)> print,
                           const PrintNames& names = {});
    /// A panel with a long explanation: a title, a text that scrolls, and a button that closes it. The returned
    /// function opens it on a topic, with the focus on the text. Several help buttons of a screen
    /// share one panel.
    std::function<void(const Topic&)> infoPanel(const InfoNames& names = {});
    /// A panel of the practice's settings; its entries are no edits of the client. Its fields are bound to `entered`, a
    /// copy of the current settings made whenever the panel opens. OK stores it with `store`, makes it current and
    /// calls `stored`; if storing fails the panel stays open with the entries. Cancel drops the copy. The returned
    /// function opens the panel.
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

    /// Has a screen reader say the requested results, each with its name: once for each press of Calculate, never when
    /// a screen fills itself. `of` is said before them if the names alone could be taken for the inputs' names.
    void announce(const std::vector<NumberField*>& results, const QString& of = {});
    void announce(const QString& said);

    /// The field with the focus when the screen opens; by default the first one.
    virtual QWidget* firstField();
    /// Today as a day number, from the desk's clock.
    double today() const;
    /// Moves the focus after the current event (such as a closing panel).
    static void focusLater(QWidget* widget);
    /// Called after the fields are filled: run a calculation, set what depends on them. Changes made here are no edits.
    virtual void filled() {}
    /// Called when the screen has come to the front and is filled. Unlike in `filled`, a change of its flag stays.
    virtual void cameToFront() {}
    /// Called when the user has edited a field.
    virtual void edited() {}
    /// Called when a field has passed its check and the user leaves it or presses a button. For actions that a
    /// half-typed figure must not trigger.
    virtual void settled(Field*) {}
    /// The user asks to close, and all fields have passed their checks. False keeps the screen open.
    virtual bool mayClose() { return true; }
    /// It closes now, whoever closes it: restore what must not outlive it.
    virtual void closing() {}

    Workplace& m_work;

    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Marks a button that no failed check stops.
    static constexpr const char* leavesFreely = "leavesFreely";

    template <class F>
    F* keep(F* field);
    /// Runs the action of an event; a failure shows its message and ends there.
    bool attempt(const QString& what, const std::function<void()>& action);
    void leave(Field* field);
    void checkLeft();
    /// False for a control that can't be corrected now: covered by a panel, in a closed panel, or hidden by the screen.
    bool inReach(const QWidget* widget) const;
    bool complain(Field* field);
    /// Lists below the fields the values outside their limits that the user did not enter.
    void tellFaults();
    /// The page whose calculation this control belongs to; 0 for all if the screen does not work by page.
    int calculationOf(const QWidget* control) const;
    /// The inputs of a calculation in the fields; not those of a panel, which has results of its own or none.
    std::vector<std::optional<double>> inputs(int page) const;
    void takeEdit();
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
    /// A cell editor closes when the user goes to another screen, and takes the focus with it. Controls under a panel
    /// can't have the focus. Without this no key would work when the user comes back.
    void recoverFocus();
    void enterPressed();
    void pressDefault();
    /// The next entry field in the tab order; after the last one of a page the first of the next page that has any;
    /// nothing after the last one of all.
    QWidget* nextEntry(const QWidget* from) const;
    QWidget* entryBehind(const QWidget* from, const QWidget* within) const;

    std::int16_t& m_changed;
    std::vector<Field*> m_fields;
    std::vector<Panel*> m_panels;
    std::vector<std::pair<double*, QString>> m_lent; ///< borrowed figures, each with its owner's screen
    Panel* m_gridPanel = nullptr;
    Grid* m_grid = nullptr;
    QWidget* m_afterGrid = nullptr;
    std::vector<QWidget*> m_calculated;
    std::map<int, std::set<QWidget*>> m_leftAsTheyWere; ///< results that the last calculation did not reach, by page
    std::vector<Field*> m_asides;
    std::map<int, std::vector<std::optional<double>>> m_workedFrom; ///< inputs of the last calculation, by page
    QTabWidget* m_workedByPage = nullptr;
    std::vector<Field*> m_left; ///< the user has left them; their checks are due
    QTimer m_leaving;
    QScrollArea* m_area = nullptr;
    QLabel* m_faults = nullptr;
    QPushButton* m_default = nullptr;
    std::vector<NumberField*> m_givingBack;
    NumberField* m_enteredLast = nullptr; ///< one of these fields
    bool m_enterWalks = true;
    bool m_dropped = false;
    bool m_complaining = false;
    bool m_filling = false;
    bool m_opened = false;
};

/// A flag for screens that track no changes.
std::int16_t& untracked();

} // namespace screenkit
