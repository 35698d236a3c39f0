#include <QScrollArea>
#include <QTextBrowser>

#include "screenkit/kit_screen.h"

namespace screenkit {
namespace {

struct Rates {
    double first = 0, last = 0;
};

/// A screen that is too low for its settings, with two buttons for help.
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
    SettingsTest() {
        auto* frame = area.addSubWindow(shown);
        frame->setGeometry(0, 0, 500, 420);
        frame->show();
        area.setActiveSubWindow(frame);
        shown->activate();
        settle();
    }
    ~SettingsTest() override { shown->drop(); }
    template <class T = QWidget>
    T* find(const char* name) {
        return shown->findChild<T*>(name);
    }
    bool isSeenWhole(const char* name) {
        auto* control = find(name);
        return control->visibleRegion().boundingRect().size() == control->size();
    }
    SettingsScreen* shown = new SettingsScreen(bench.workplace);
};

TEST_F(SettingsTest, whatIsEnteredIsInForceOnceItIsStored) {
    const struct {
        const char* typed;
        const char* leave;
        bool isFull, stays;
        double inForce;
    } turns[] = {{"7", "cmdCancelCosts", false, false, 2},
                 {"7", "cmdOKCosts", true, true, 2},
                 {"", "cmdOKCosts", false, false, 7},
                 {"8.5", "cmdCancelCosts", false, false, 7}};
    for (const auto& turn : turns) {
        if (!find("fraCosts")->isVisible()) {
            shown->open();
            settle();
            EXPECT_EQ(focus(), "numRate0");
            EXPECT_EQ(find<NumberField>("numRate31")->value(), shown->inForce.last) << "not what was dropped";
        }
        find("numRate31")->setFocus(Qt::TabFocusReason);
        type(turn.typed);
        shown->isFull = turn.isFull;
        if (turn.isFull) desk.expect(Answer::ok);
        click(find(turn.leave));
        EXPECT_EQ(find("fraCosts")->isVisible(), turn.stays);
        EXPECT_EQ(shown->inForce.last, turn.inForce);
        EXPECT_EQ(shown->inForce.first, 1);
    }
    EXPECT_TRUE(desk.last().text.contains("could not store the settings"));
    EXPECT_EQ(shown->stored, std::vector{7.0});
    EXPECT_EQ(shown->seenByStored, std::vector{7.0}) << "the calculation that follows works with the new ones";
    EXPECT_EQ(changed(), 0) << "the practice's settings are no fact about the client";
}

TEST_F(SettingsTest, aPanelTooTallScrollsAfterTheFocus) {
    shown->open();
    settle();
    ASSERT_LT(find("fraCosts")->height(), shown->height() + 1);
    EXPECT_FALSE(isSeenWhole("numRate31"));
    const std::pair<std::function<void()>, const char*> moves[] = {
        {[this] { key(Qt::Key_L, Qt::AltModifier); }, "numRate31"},
        {[this] { key(Qt::Key_Backtab); }, "numRate30"},
        {[this] { key(Qt::Key_F, Qt::AltModifier); }, "numRate0"},
        {[this] { key(Qt::Key_Backtab); }, "cmdCancelCosts"},
        {[this] {
             key(Qt::Key_Backtab);
             key(Qt::Key_Backtab);
         },
         "numRate31"}};
    for (const auto& [move, field] : moves) {
        move();
        EXPECT_EQ(focus(), field);
        for (const char* seen : {field, "cmdOKCosts", "cmdCancelCosts"})
            EXPECT_TRUE(isSeenWhole(seen)) << seen;
        EXPECT_EQ(find("numRate0")->mapTo(find("fraCosts"), QPoint()).x() > 0, true) << "nothing goes sideways";
    }
    key(Qt::Key_Escape);
    shown->open();
    settle();
    EXPECT_TRUE(isSeenWhole("numRate0")) << "it opens at its top again";
}

TEST_F(SettingsTest, onePanelExplainsWhateverItIsOpenedOn) {
    const struct {
        const char *button, *title, *spoken, *begins;
    } topics[] = {{"cmdInfo(1)", "Gain", "Gain", "What it brought."},
                  {"cmdInfo(0)", "  Base cost", "Base cost", "What it cost."},
                  {"cmdInfo(1)", "Gain", "Gain", "What it brought."}};
    for (const auto& topic : topics) {
        click(find(topic.button));
        auto* page = find<QTextBrowser>("txtInfo");
        EXPECT_EQ(focus(), "txtInfo");
        EXPECT_EQ(find<QLabel>("lblInfo")->text(), topic.title);
        EXPECT_EQ(find("fraInfo")->accessibleName(), topic.spoken);
        EXPECT_TRUE(page->toPlainText().startsWith(topic.begins));
        EXPECT_EQ(page->verticalScrollBar()->value(), 0);
        key(Qt::Key_End);
        click(find("cmdOKInfo"));
        EXPECT_EQ(focus(), topic.button);
    }
    EXPECT_EQ(shown->findChildren<QTextBrowser*>().size(), 1);
    EXPECT_NE(find("Frame4"), nullptr);
}

// Two screens work over one figure of a third one's; whichever goes first, the owner has his figure back.
TEST(LentFigures, areGivenBackUnlessTheUserWantedThemOtherwise) {
    const auto taxes = [](LentFigures& lent, double& figure, double income) {
        lent.during(figure, [&] { figure = income; });
    };
    const struct {
        const char* when;
        std::function<void(LentFigures&, double&)> happens;
        double left;
        bool givenBack;
    } cases[] = {
        {"looked", [&](auto& lent, double& f) { taxes(lent, f, 1); }, 500, true},
        {"looked twice", [&](auto& lent, double& f) { taxes(lent, f, 1), taxes(lent, f, 2); }, 500, true},
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
    for (const auto& c : cases) {
        LentFigures lent;
        double figure = 500;
        c.happens(lent, figure);
        EXPECT_EQ(lent.giveBack(figure), c.givenBack) << c.when;
        EXPECT_EQ(figure, c.left) << c.when;
        EXPECT_FALSE(lent.giveBack(figure)) << c.when;
    }
}

} // namespace
} // namespace screenkit
