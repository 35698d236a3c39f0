#include <gtest/gtest.h>

#include <QLabel>
#include <QListView>
#include <QMdiArea>
#include <QRadioButton>
#include <QTabBar>
#include <map>
#include <set>

#include "screenkit/panel.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

struct Place {
    const char* item;  ///< menu item that opens the screen
    const char* panel; ///< button that opens a panel over it; "" for the screen itself
};

void PrintTo(const Place& place, std::ostream* out) { *out << place.item << ' ' << place.panel; }

const std::vector<Place> places{
    {"mnuPersDet", ""},
    {"mnuPersDet", "cmdPrint"},
    {"mnuLoansCalc", ""},
    {"mnuLoansCalc", "cmdPrint"},
    {"mnuPolInvests", ""},
    {"mnuPolInvests", "cmdPrint"},
    {"mnuPolInvests", "cmdCPI"},
    {"mnuPrep", ""},
    {"mnuBrowse", ""},
    {"mnuSaveAs", ""},
    {"mnuContents", ""},
    {"mnuNARA", ""},
    {"mnuNARA", "cmdPrint"},
    {"mnuNARA", "cmdItemise(11)"},
    {"mnuQuickTax", ""},
    {"mnuQuickTax", "cmdPrint"},
    {"mnuPAYE", ""},
    {"mnuPAYE", "cmdPrint"},
    {"mnuPAYE", "cmdSettings"},
    {"mnuPAYE", "cmdInfo"},
};

bool isEntry(const QWidget* widget) {
    const auto* line = qobject_cast<const QLineEdit*>(widget);
    return (line != nullptr && !line->isReadOnly()) || qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
           qobject_cast<const QListView*>(widget) != nullptr;
}

/// What a user must be able to get at: entries, and buttons that do something. Of a group of options, the chosen one.
bool isStop(const QWidget* widget) {
    if (const auto* option = qobject_cast<const QRadioButton*>(widget)) return option->isChecked();
    return isEntry(widget) || (qobject_cast<const QAbstractButton*>(widget) != nullptr &&
                               (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus);
}

/// The stops of what is in front: the panel if one is open, else the screen as its page shows it.
std::vector<QWidget*> stopsOf(QWidget* scope) {
    std::vector<QWidget*> stops;
    for (auto* widget : scope->findChildren<QWidget*>())
        if (widget->isVisible() && widget->isEnabled() && isStop(widget) && !widget->objectName().startsWith("qt_"))
            stops.push_back(widget);
    return stops;
}

std::string nameOf(const QWidget* widget) { return widget->objectName().toStdString(); }

class Keyboard : public testing::TestWithParam<Place> {
protected:
    Keyboard() {
        run.record().FinChargeState = "DOWN"; // all rows of the loan
        run.menu(GetParam().item);
    }
    void openPanel() {
        if (*GetParam().panel != 0) run.click(GetParam().panel);
    }
    QWidget* scope() {
        for (auto* panel : run.front()->findChildren<screenkit::Panel*>())
            if (panel->isVisible()) return panel;
        return run.front();
    }
    /// Runs a check on each tab page of the screen, or on the screen itself.
    template <class Check>
    void onEachPage(Check check) {
        auto* book = run.front()->findChild<QTabWidget*>();
        if (book == nullptr || scope() != run.front()) return check("");
        for (int page = 0; page < book->count(); ++page) {
            book->setCurrentIndex(page);
            RunningProgram::settle();
            check(book->tabText(page).toStdString());
        }
    }
    RunningProgram run;
};

TEST_P(Keyboard, TabReachesEveryEntryAndButton) {
    openPanel();
    onEachPage([&](const std::string& page) {
        const auto stops = stopsOf(scope());
        ASSERT_FALSE(stops.empty());
        stops.front()->setFocus(Qt::TabFocusReason);
        std::set<QWidget*> reached{QApplication::focusWidget()};
        for (std::size_t press = 0; press < 3 * stops.size() + 10; ++press) {
            run.key(Qt::Key_Tab);
            reached.insert(QApplication::focusWidget());
        }
        for (QWidget* stop : stops)
            EXPECT_TRUE(reached.contains(stop)) << nameOf(stop) << " " << page;
        for (QWidget* widget : reached)
            EXPECT_TRUE(scope()->isAncestorOf(widget)) << nameOf(widget) << " " << page;
    });
}

TEST_P(Keyboard, EveryEntryHasALabelAndAName) {
    openPanel();
    onEachPage([&](const std::string& page) {
        std::set<const QWidget*> buddies;
        for (auto* label : scope()->findChildren<QLabel*>())
            if (label->buddy() != nullptr && !label->text().isEmpty()) buddies.insert(label->buddy());
        for (QWidget* stop : stopsOf(scope())) {
            if (!isEntry(stop)) continue;
            EXPECT_FALSE(stop->accessibleName().isEmpty()) << nameOf(stop) << " " << page;
            if (qobject_cast<QListView*>(stop) == nullptr) {
                EXPECT_TRUE(buddies.contains(stop)) << nameOf(stop) << " " << page;
            }
        }
    });
}

TEST_P(Keyboard, NoAccessKeyStandsTwiceOnAPage) {
    openPanel();
    onEachPage([&](const std::string& page) {
        std::map<std::string, std::vector<std::string>> keys;
        const auto note = [&](const QString& caption) {
            const QKeySequence key = QKeySequence::mnemonic(caption);
            if (!key.isEmpty()) keys[key.toString().toStdString()].push_back(caption.toStdString());
        };
        for (auto* button : scope()->findChildren<QAbstractButton*>())
            if (button->isVisible()) note(button->text());
        for (auto* label : scope()->findChildren<QLabel*>())
            if (label->isVisible() && label->buddy() != nullptr) note(label->text());
        for (auto* bar : scope()->findChildren<QTabBar*>())
            for (int tab = 0; tab < bar->count(); ++tab)
                note(bar->tabText(tab));
        for (const auto& [key, captions] : keys)
            EXPECT_EQ(captions.size(), 1u) << key << " " << testing::PrintToString(captions) << " " << page;
    });
}

// A screen of 1280 x 800 at twice the usual scale leaves this much to the main window.
TEST_P(Keyboard, OnASmallScreenEveryControlCanBeBroughtIntoView) {
    run.front()->drop();
    RunningProgram::settle();
    run.window().resize(640, 400);
    RunningProgram::settle();
    EXPECT_EQ(run.window().size(), QSize(640, 400));
    run.menu(GetParam().item);
    openPanel();
    const QWidget* child = run.front()->parentWidget();
    const auto* area = run.window().findChild<QMdiArea*>();
    EXPECT_TRUE(area->viewport()->rect().contains(child->geometry()));
    onEachPage([&](const std::string& page) {
        for (QWidget* stop : stopsOf(scope())) {
            QApplication::focusWidget()->clearFocus();
            stop->setFocus(Qt::TabFocusReason);
            RunningProgram::settle();
            const QRect seen = stop->visibleRegion().boundingRect();
            // A memo or a list may be taller than the window; it scrolls by itself.
            const QSize needed = qobject_cast<QAbstractScrollArea*>(stop) != nullptr ? QSize(80, 30) : stop->size();
            EXPECT_GE(seen.height(), needed.height()) << nameOf(stop) << " " << page;
            EXPECT_GE(seen.width(), std::min(needed.width(), 400)) << nameOf(stop) << " " << page;
        }
    });
}

std::string placeName(const testing::TestParamInfo<Place>& info) {
    std::string name = std::string(info.param.item) + info.param.panel;
    std::erase_if(name, [](unsigned char letter) { return std::isalnum(letter) == 0; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(Screens, Keyboard, testing::ValuesIn(places), placeName);

} // namespace
