#include <QScrollArea>
#include <QTextBrowser>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

struct Rates {
    double first = 0, last = 0;
};

/// A screen too low for its settings, with two help buttons.
class SettingsScreen : public Screen {
public:
    explicit SettingsScreen(Workplace& work)
        : Screen(work, "frmSettings", "Settings", work.record.changed.LoansChanged) {
        std::vector<FormRow> lines;
        std::vector<Field*> fields;
        const auto add = [&](const QString& label, double& rate) {
            auto* field = number(QString("numRate%1").arg(fields.size()), rate, percent);
            fields.push_back(field);
            lines.emplace_back(label, field, "%");
        };
        add("&First", entered.first);
        for (double& rate : between)
            add("Rate", rate);
        add("&Last", entered.last);
        open = settingsPanel<Rates>(
            {"fraCosts", "cmdOKCosts", "cmdCancelCosts"}, form(lines), fields, inForce, entered,
            [this](const Rates& rates) {
                if (isFull) throw store::Error(store::Number::diskFull, "/practice/Default.Mdb");
                stored.push_back(rates.last);
            },
            [this] { seenByStored.push_back(inForce.last); });
        const auto inform = infoPanel();
        body(column({form({{"A&mount", number("numAmount", work.record.loans.Num1, money)}}),
                     row({button("cmdInfo(0)", "&Base cost",
                                 [inform] {
                                     inform({"  Base cost", "What it cost.\n"});
                                 }),
                          button("cmdInfo(1)", "&Gain",
                                 [inform] {
                                     inform({"Gain", QString("What it brought.\n").repeated(90)});
                                 }),
                          button("cmdSettings", "&Settings", [this] { open(); }), okButton()})}));
        printPanel({}, [](Destination) {}, {.cancel = "cmdNo", .panel = "Frame4"});
    }

    Rates inForce{1, 2}, entered;
    std::array<double, 30> between{};
    std::vector<double> stored, seenByStored;
    bool isFull = false;
    std::function<void()> open;
};

struct SettingsTest : KitTest {
    void open() {
        shown->open();
        settle();
    }
    SettingsScreen* shown = bring(new SettingsScreen(bench.workplace), {0, 0, 500, 420});
};

TEST_F(SettingsTest, whatIsEnteredIsInForceOnceItIsStored) {
    const std::tuple<const char*, const char*, bool, bool, double> turns[] = {
        {"7", "cmdCancelCosts", false, false, 2},
        {"7", "cmdOKCosts", true, true, 2},
        {"", "cmdOKCosts", false, false, 7},
        {"8.5", "cmdCancelCosts", false, false, 7}};
    for (const auto& [typed, leave, isFull, stays, inForce] : turns) {
        if (!get("fraCosts")->isVisible()) {
            open();
            EXPECT_EQ(focus(), "numRate0");
            EXPECT_EQ(get<NumberField>("numRate31")->value(), shown->inForce.last) << "not what was dropped";
        }
        enter("numRate31", typed);
        shown->isFull = isFull;
        if (isFull) desk.expect(Answer::ok);
        click(leave);
        EXPECT_EQ(get("fraCosts")->isVisible(), stays);
        EXPECT_EQ(shown->inForce.last, inForce);
        EXPECT_EQ(shown->inForce.first, 1);
    }
    EXPECT_TRUE(desk.last().text.contains("could not store the settings"));
    EXPECT_EQ(shown->stored, std::vector{7.0});
    EXPECT_EQ(shown->seenByStored, std::vector{7.0}) << "the calculation that follows works with the new ones";
    EXPECT_EQ(changed(), 0) << "the practice's settings are no fact about the client";
}

TEST_F(SettingsTest, aPanelTooTallScrollsAfterTheFocus) {
    open();
    ASSERT_LT(get("fraCosts")->height(), shown->height() + 1);
    EXPECT_FALSE(isSeenWhole("numRate31"));
    const std::pair<const char*, const char*> moves[] = {{"Alt+L", "numRate31"},
                                                         {"Backtab", "numRate30"},
                                                         {"Alt+F", "numRate0"},
                                                         {"Backtab", "cmdCancelCosts"},
                                                         {"Backtab Backtab", "numRate31"}};
    for (const auto& [move, field] : moves) {
        EXPECT_EQ(after(move), field);
        for (const char* seen : {field, "cmdOKCosts", "cmdCancelCosts"})
            EXPECT_TRUE(isSeenWhole(seen)) << seen;
        EXPECT_GT(get("numRate0")->mapTo(get("fraCosts"), QPoint()).x(), 0) << "nothing goes sideways";
    }
    key(Qt::Key_Escape);
    open();
    EXPECT_TRUE(isSeenWhole("numRate0")) << "it opens at its top again";
}

TEST_F(SettingsTest, onePanelExplainsWhateverItIsOpenedOn) {
    const struct {
        const char *button, *title, *spoken, *begins;
    } topics[] = {{"cmdInfo(1)", "Gain", "Gain", "What it brought."},
                  {"cmdInfo(0)", "  Base cost", "Base cost", "What it cost."},
                  {"cmdInfo(1)", "Gain", "Gain", "What it brought."}};
    for (const auto& topic : topics) {
        EXPECT_EQ(after("@" + QString(topic.button)), "txtInfo");
        auto* page = get<QTextBrowser>("txtInfo");
        EXPECT_EQ(get<QLabel>("lblInfo")->text(), topic.title);
        EXPECT_EQ(get("fraInfo")->accessibleName(), topic.spoken);
        EXPECT_TRUE(page->toPlainText().startsWith(topic.begins));
        EXPECT_EQ(page->verticalScrollBar()->value(), 0);
        EXPECT_EQ(after("End Tab"), "cmdOKInfo");
        EXPECT_EQ(after("@cmdOKInfo"), topic.button);
    }
    EXPECT_EQ(shown->findChildren<QTextBrowser*>().size(), 1);
    EXPECT_NE(get("Frame4"), nullptr);
}

// Two screens overwrite a figure that belongs to a third; in any order of closing the owner's figure is restored.
TEST(LentFigures, areGivenBackUnlessTheUserWantedThemOtherwise) {
    const auto taxes = [](LentFigures& lent, double& figure, double income) {
        lent.during(figure, [&] { figure = income; });
    };
    const std::tuple<const char*, std::function<void(LentFigures&, double&)>, double, bool> cases[] = {
        {"looked", [&](auto& lent, double& f) { taxes(lent, f, 1); }, 500, true},
        {"it came out the same", [&](auto& lent, double& f) { taxes(lent, f, 500); }, 500, true},
        {"asked for", [&](auto& lent, double& f) { taxes(lent, f, 1), lent.keep(f); }, 1, false},
        {"asked for, looked", [&](auto& lent, double& f) { taxes(lent, f, 1), lent.keep(f), taxes(lent, f, 2); }, 2,
         false},
        {"entered anew", [&](auto& lent, double& f) { taxes(lent, f, 1), f = 7; }, 7, false},
        {"entered anew, looked", [&](auto& lent, double& f) { taxes(lent, f, 1), f = 7, taxes(lent, f, 1); }, 7, true},
        {"another client", [&](auto& lent, double& f) { taxes(lent, f, 1), lent.forget(); }, 1, false},
        {"failed half way",
         [&](auto& lent, double& f) {
             EXPECT_ANY_THROW(lent.during(f, [&] {
                 f = 3;
                 throw store::Error(store::Number::diskFull, "");
             }));
         },
         500, true}};
    for (const auto& [when, happens, left, givenBack] : cases) {
        LentFigures lent;
        double figure = 500;
        happens(lent, figure);
        EXPECT_EQ(lent.giveBack(figure), givenBack) << when;
        EXPECT_EQ(figure, left) << when;
        EXPECT_FALSE(lent.giveBack(figure)) << when;
    }
}

} // namespace
} // namespace screenkit
