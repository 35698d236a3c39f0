#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabBar>
#include <map>
#include <set>

#include "assessment/newasset.h"
#include "screenkit/panel.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

struct Place {
    const char* item;  ///< menu item that opens the screen
    const char* panel; ///< a button that opens a panel or another screen; "" for the screen itself
};

void PrintTo(const Place& place, std::ostream* out) { *out << place.item << ' ' << place.panel; }

const std::vector<Place> places{
    {"mnuPersDet", ""},
    {"mnuPersDet", "cmdPrint"},
    {"mnuLoansCalc", ""},
    {"mnuLoansCalc", "cmdPrint"},
    {"mnuLoansCalc", "cmdLoanGraph"},
    {"mnuLoansBondBust", ""},
    {"mnuLoansBondAna", ""},
    {"mnuDebtCon", ""},
    {"mnuDebtCon", "cmdPrint"},
    {"mnuPolInvests", ""},
    {"mnuPolInvests", "cmdPrint"},
    {"mnuPolInvests", "cmdCPI"},
    {"mnuPrep", ""},
    {"mnuBrowse", ""},
    {"mnuSaveAs", ""},
    {"mnuDelete", ""},
    {"mnuToA", ""},
    {"mnuFromA", ""},
    {"mnuRemotePath", ""},
    {"mnuContents", ""},
    {"mnuNARA", ""},
    {"mnuNARA", "cmdPrint"},
    {"mnuNARA", "cmdItemise(11)"},
    {"mnuNADeath", ""},
    {"mnuNADeath", "cmdPrint"},
    {"mnuNADisability", ""},
    {"mnuNAEd", ""},
    {"mnuNAEd", "cmdPrint"},
    {"mnuInflation", ""},
    {"mnuInflation", "cmdPrint"},
    {"mnuLifeOfCap", ""},
    {"mnuLifeOfCap", "cmdPrint"},
    {"mnuInvestComp", ""},
    {"mnuInvestComp", "cmdPrint"},
    {"mnuNAEd", "cmdPremium"},
    {"mnuOffShore", ""},
    {"mnuOffShore", "cmdPrint"},
    {"mnuRealRate", ""},
    {"mnuRealRate", "cmdRRROLD"},
    {"mnuDayBal", ""},
    {"mnuNomEffec", ""},
    {"mnuIncShares", ""},
    {"mnuIncShares", "cmdPrint"},
    {"mnuIncShares", "cmdDefaultRates"},
    {"mnuLivAnn", ""},
    {"mnuLivAnn", "cmdCosts"},
    {"mnuLivAnn", "cmdPrint"},
    {"mnuKwikQuotes", ""},
    {"mnuKwikQuotes", "cmdPrint"},
    {"mnuKwikQuotes", "cmdLifeOfCap"},
    {"mnuKwikQuotes", "cmdUnitHist"},
    {"mnuKwikQuotes", "cmdDefault"},
    {"mnuQuickTax", ""},
    {"mnuQuickTax", "cmdPrint"},
    {"mnuPAYE", ""},
    {"mnuPAYE", "cmdPrint"},
    {"mnuPAYE", "cmdSettings"},
    {"mnuPAYE", "cmdInfo"},
    {"mnuTaxLumpSum", ""},
    {"mnuTaxLumpSum", "cmdPrint"},
    {"mnuClientFile", ""},
    {"mnuEstateDutyEstimator", ""},
    {"mnuEstateDutyEstimator", "cmdPrint"},
    {"mnuEstateDutyEstimator", "cmdSettings"},
    {"mnuRATaxAdv", ""},
    {"mnuRATaxAdv", "cmdPrint"},
    {"mnuTravClaim", ""},
    {"mnuTravClaim", "cmdPrint"},
    {"mnuReviewDates", ""},
    {"mnuBirthdays", ""},
    {"mnuPrintBlank", ""},
    {"mnuCRM", ""},
    {"mnuCRM", "cmdCalendar"},
    {"mnuCRM", "cmdDiary"},
    {"mnuActPending", ""},
    {"mnuCapGainsTAx", ""},
    {"mnuCapGainsTAx", "cmdInfo(0)"},
    {"mnuCapGainsTAx", "cmdInfo_Two"},
    {"mnuCapGainsTAx", "cmdItemise"},
    {"mnuCapGainsTAx", "cmdSummary"},
    {"mnuCapGainsTAx", "cmdPrint"},
};

bool isEntry(const QWidget* widget) {
    const auto* line = qobject_cast<const QLineEdit*>(widget);
    return (line != nullptr && !line->isReadOnly()) || qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
           qobject_cast<const screenkit::Grid*>(widget) != nullptr;
}

/// True for a control that a user must be able to reach: an entry, or an active button; in a group the selected option.
bool isStop(const QWidget* widget) {
    if (const auto* option = qobject_cast<const QRadioButton*>(widget)) return option->isChecked();
    return isEntry(widget) || (qobject_cast<const QAbstractButton*>(widget) != nullptr &&
                               (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus);
}

/// The reachable controls in front: of an open panel, else of the screen's current page.
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
        run.record().FinChargeState = "DOWN"; // shows all rows of the loan
        run.record().loans = {"Monthly repayment", 100000, 24, 10, 0};
        run.record().capitalGains.assets = {2, assessment::newAsset()};
        run.record().capitalGains.assets.front().AssetDesc = "Shares"; // usable only with a description
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
    /// Runs a check on each tab page, or on a screen without pages.
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

/// The name of a control for a screen reader.
QString spoken(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name); }

bool isWholeWords(const QString& name) {
    static const QRegularExpression word("[[:alnum:]]{2}");
    return name.contains(word) && name == name.simplified() && !name.contains("&&") && !name.endsWith(':') &&
           name.count('(') == name.count(')');
}

TEST_P(Keyboard, EachEntryHasALabelAndAScreenReaderSaysEachControlInWholeWords) {
    openPanel();
    onEachPage([&](const std::string& page) {
        std::set<const QWidget*> labelled;
        for (auto* label : scope()->findChildren<QLabel*>()) {
            if (label->buddy() == nullptr || label->text().isEmpty()) continue;
            labelled.insert(label->buddy());
            const QString name = label->isVisible() ? spoken(label) : QString();
            EXPECT_TRUE(name == name.simplified() && name.count('(') == name.count(')')) << name.toStdString();
        }
        for (auto* widget : scope()->findChildren<QWidget*>()) {
            const auto* button = qobject_cast<QAbstractButton*>(widget);
            const bool said = button != nullptr || isEntry(widget) || qobject_cast<QLineEdit*>(widget) != nullptr ||
                              qobject_cast<QGroupBox*>(widget) != nullptr;
            if (!widget->isVisible() || !said || nameOf(widget).empty() || nameOf(widget).starts_with("qt_")) continue;
            const bool mustHaveLabel = isEntry(widget) && qobject_cast<screenkit::Grid*>(widget) == nullptr;
            const bool isCell = widget->accessibleName().contains(", "); // of a matrix: named after both heads
            EXPECT_TRUE(!mustHaveLabel || isCell || labelled.contains(widget)) << nameOf(widget) << " " << page;
            const QString name = spoken(widget);
            EXPECT_TRUE(isWholeWords(name)) << nameOf(widget) << " \"" << name.toStdString() << "\" " << page;
            EXPECT_TRUE(button == nullptr || !button->text().contains("&&") || name.contains(" & ")) << nameOf(widget);
        }
    });
}

/// The only captions that may use a letter of the menu bar: their letters were fixed before the menu's.
const std::set<std::string> shadowing{
    "frmLoans &Fin. charges",        "frmLoans &Annual Amort.",   "frmNARA &Amortisation", "frmNADeath &Amortisation",
    "frmNADisability &Amortisation", "frmDebtCon &Annual Amort.", "frmCGTCalcIncome &Add", "frmCGTCalcIncome &Forward"};
/// ... and those that every screen with a print panel has.
const QStringList shadowingAnywhere{"&Print", "C&ancel"};

/// The access keys in use, each with its captions.
std::map<QKeySequence, QStringList> lettersOf(const QWidget* scope) {
    std::map<QKeySequence, QStringList> letters;
    const auto note = [&](const QString& caption) {
        const QKeySequence letter = QKeySequence::mnemonic(caption);
        if (!letter.isEmpty()) letters[letter] << caption;
    };
    for (auto* button : scope->findChildren<QAbstractButton*>())
        if (button->isVisible()) note(button->text());
    for (auto* label : scope->findChildren<QLabel*>())
        if (label->isVisible() && label->buddy() != nullptr) note(label->text());
    for (auto* bar : scope->findChildren<QTabBar*>())
        for (int tab = 0; bar->isVisible() && tab < bar->count(); ++tab)
            note(bar->tabText(tab));
    return letters;
}

TEST_P(Keyboard, EachAccessKeyIsOneCaptionsAndNoneOfOursIsTheMenus) {
    openPanel();
    onEachPage([&](const std::string& page) {
        const auto letters = lettersOf(scope());
        for (const auto& [letter, captions] : letters)
            EXPECT_EQ(captions.size(), 1) << captions.join(" | ").toStdString() << " " << page;
        for (const QAction* item : run.window().menuBar()->actions()) {
            const auto taken = letters.find(QKeySequence::mnemonic(item->text()));
            if (taken == letters.end() || taken->first.isEmpty()) continue;
            if (shadowingAnywhere.contains(taken->second.front())) continue;
            const QString caption = run.front()->objectName() + " " + taken->second.front();
            EXPECT_TRUE(shadowing.contains(caption.toStdString())) << caption.toStdString() << " " << page;
        }
    });
}

TEST(MenuKeys, AnItemWithoutAMenuIsChosenByEnter) {
    RunningProgram run;
    const auto press = [](Qt::Key key) {
        QWidget* popup = QApplication::activePopupWidget();
        QWidget* focused = QApplication::focusWidget();
        QTest::keyClick(popup != nullptr ? popup : focused != nullptr ? focused : QApplication::activeWindow(), key);
        RunningProgram::settle();
    };
    press(Qt::Key_F10);
    for (int i = 0; i < 5; ++i)
        press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_TRUE(run.isOpen("frmCRM"));
}

TEST_P(Keyboard, TheMenuOpensByF10ByAltAloneAndByEachLetterThatTheScreenLeavesIt) {
    openPanel();
    auto* bar = run.window().menuBar();
    const auto opens = [&](const QAction* item, const std::function<void(QWidget*)>& press) {
        QWidget* before = QApplication::focusWidget();
        press(before);
        EXPECT_EQ(bar->activeAction(), item);
        ASSERT_TRUE(item->menu()->isVisible());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        EXPECT_FALSE(item->menu()->isVisible());
        EXPECT_EQ(QApplication::focusWidget(), before);
    };
    opens(bar->actions().front(), [](QWidget* focused) { QTest::keyClick(focused, Qt::Key_F10); });
    opens(bar->actions().front(), [](QWidget* focused) {
        QTest::keyPress(focused, Qt::Key_Alt);
        QTest::keyRelease(focused, Qt::Key_Alt, Qt::AltModifier);
    });
    const auto letters = lettersOf(scope());
    for (const QAction* item : bar->actions()) {
        const QKeySequence letter = QKeySequence::mnemonic(item->text());
        if (letter.isEmpty() || item->menu() == nullptr || letters.contains(letter)) continue;
        opens(item, [&](QWidget* focused) { QTest::keyClick(focused, letter[0].key(), Qt::AltModifier); });
    }
}

TEST(MenuKeys, AltOpensNothingUnlessPressedAlone) {
    RunningProgram run;
    run.menu("mnuQuickTax");
    QWidget* field = QApplication::focusWidget();
    const std::vector<std::function<void()>> between{
        [&] { QTest::keyClick(field, Qt::Key_G, Qt::AltModifier); },
        [&] { QTest::keyClick(field, Qt::Key_Shift, Qt::AltModifier); },
        [&] { QTest::mouseClick(field, Qt::LeftButton, Qt::AltModifier); }};
    for (const auto& more : between) {
        QTest::keyPress(field, Qt::Key_Alt);
        more();
        QTest::keyRelease(field, Qt::Key_Alt, Qt::AltModifier);
        EXPECT_EQ(run.window().menuBar()->activeAction(), nullptr);
    }
}

// A main window on a screen of 1280 x 800 at 200 %.
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
