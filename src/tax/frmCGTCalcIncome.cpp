#include "tax/frmCGTCalcIncome.h"

#include <QLabel>
#include <algorithm>
#include <iterator>

#include "assessment/newasset.h"
#include "assessment/tables.h"
#include "base/day.h"
#include "tax/capitalgainhelp.h"

// The page and its rules; the panels are in frmCGTPanels.cpp.
namespace tax {

using namespace screenkit;
using assessment::CGTAssetRecord;

namespace {

constexpr double firstSaleDay = 46082;  // 1 March 2026: the tax year's first day
constexpr double lastDayBefore = 37164; // bought later than this, an asset has no value on 1 October 2001
constexpr const char* types[] = {assessment::unitTrustAsset, assessment::residenceAsset, assessment::smallBusinessAsset,
                                 assessment::otherAsset};

const NumberKind hectares{"# ##0.00##", false, 7};
const NumberKind share = percent.upTo(100, "Only a maximum of 100% can be entered!", {});

QString shownDay(double day) { return QString::fromStdString(base::formatDate(day)); }

} // namespace

frmCGTCalcIncome::frmCGTCalcIncome(Workplace& workplace)
    : ListScreen(workplace, "frmCGTCalcIncome", "Capital Gains Tax Calculator 2026",
                 workplace.record.changed.CGTChanged),
      m_gains(workplace.record.capitalGains), m_list(m_gains) {
    buildHelp();
    const int size = assessment::sizeOf(assessment::cgtDetailsTable(), &asset(), asset().AssetDesc);
    m_description = text("txtDescription",
                         {[this] { return QString::fromStdString(asset().AssetDesc); },
                          [this](const QString& typed) { m_list.describe(typed.toStdString()); }},
                         size);
    auto* asset = row({Item(column({typeGroup(), spring()}), 1), Item(column({baseCostGroup(), spring()}), 1),
                       Item(column({disposalGroup(), spring()}), 1)});
    m_notCounted = note({});
    body(
        column({form({{"Desc&ription", m_description}}), asset, knownGainsGroup(), m_notCounted, spring(), buttons()}));
    defaultButton(m_calculate);
    buildSummary();
    buildPrintPanel();
}

NumberField* frmCGTCalcIncome::figure(const QString& name, double Asset::*place, const NumberKind& kind) {
    auto* field = number(name,
                         {[this, place] { return asset().*place; },
                          [this, place](double typed) { asset().*place = narrowed<double>(typed); }},
                         kind);
    m_always.push_back(field);
    return field;
}

DateField* frmCGTCalcIncome::day(const QString& name, double Asset::*place, const DateKind& kind) {
    auto* field = date(
        name, {[this, place] { return asset().*place; }, [this, place](double day) { asset().*place = day; }},
        kind.worded("The date entered is not valid please enter a date using the dd/mm/yyyy format.", "Invalid Date"));
    m_always.push_back(field);
    return field;
}

OptionGroup* frmCGTCalcIncome::choice(const QString& name, const QStringList& captions, Bound<int> place) {
    auto* group = options(name, captions, std::move(place), [this](int) { work(); });
    m_always.push_back(group);
    return group;
}

OptionGroup* frmCGTCalcIncome::oneOrTwo(const QString& name, const QStringList& captions, std::int16_t Asset::*place) {
    return choice(name, captions,
                  {[this, place] { return asset().*place - 1; },
                   [this, place](int option) { asset().*place = static_cast<std::int16_t>(option + 1); }});
}

QWidget* frmCGTCalcIncome::typeGroup() {
    m_type =
        choice("Option4", {"Unit trusts, stocks && shares", "Primary residence", "Small business", "Other asset etc."},
               {[this] {
                    const auto found = std::find(std::begin(types), std::end(types), asset().CGTAsset);
                    return found == std::end(types) ? -1 : static_cast<int>(found - std::begin(types));
                },
                [this](int option) { asset().CGTAsset = types[option]; }});
    m_qualifies = choice("Option5", {"No", "Yes"},
                         {[this] { return asset().SBFiveDed == "Yes"  ? 1
                                          : asset().SBFiveDed == "No" ? 0
                                                                      : -1; },
                          [this](int option) { asset().SBFiveDed = option == 1 ? "Yes" : "No"; }});
    m_size = figure("numSize", &Asset::Size, hectares);
    m_residency = figure("numResOccPerc", &Asset::ResOccPerc, share);
    m_deduction = figure("numSB750PortDed", &Asset::SB750PortDed, money);
    auto* askedDeduction = note("How much of the S.B. deduction do you qualify for?");
    askedDeduction->setBuddy(m_deduction);
    m_deduction->setAccessibleName(askedDeduction->text());
    return group("fraType", "Asset",
                 column({row({m_type, Item(column({help(aboutTypes), spring()}))}),
                         form({{"Si&ze", row({m_size, new QLabel("hectares"), help(aboutResidence)})},
                               {"Residenc&y period", row({m_residency, new QLabel("%"), help(aboutResidencyPeriod)})}}),
                         note("Do you qualify for R 1 800 000 deduction? :"), m_qualifies, askedDeduction,
                         row({m_deduction, help(aboutSmallBusiness), spring()})}));
}

QWidget* frmCGTCalcIncome::baseCostGroup() {
    m_acquired = day("dtAquired", &Asset::DateAquired, acquiredRange());
    auto* price = figure("numOrigPurPrice", &Asset::OrigPurPrice, money);
    auto* costs = figure("numAcquiCost", &Asset::AcquiCost, money);
    m_appraised = figure("numAppVal", &Asset::AppVal, money);
    m_deemed = figure("numDeemVal", &Asset::DeemVal, money);
    m_apportioned = new QLabel("(using time-apportioned method)");
    m_apportioned->setObjectName("lblDeemVal");
    m_improvedBefore = figure("numImproveMadeBefore", &Asset::ImproveMadeBefore, money);
    m_improved = figure("numImproveMade", &Asset::ImproveMade, money);
    auto* aboutBaseCost = helpButton("cmdInfo_Two", baseCostTitle, [this] { m_baseCostHelp->open(); });
    return group("fraBaseCost", "Base cost",
                 column({form({{"Date ac&quired", row({m_acquired, aboutBaseCost, spring()})},
                               {"Original p&urchase price", price},
                               {"Acqu&isition costs", costs},
                               {"Appraised &value on 01/10/2001", m_appraised},
                               {"Dee&med value on 01/10/2001", m_deemed},
                               {"", m_apportioned},
                               {"Improvements b&efore 01/10/2001", m_improvedBefore},
                               {"Improvements af&ter 01/10/2001", m_improved}})}));
}

QWidget* frmCGTCalcIncome::disposalGroup() {
    m_sold = day("dtSale", &Asset::DateSale, saleRange());
    auto* price = figure("numSellPrice", &Asset::SellPrice, money);
    auto* costs = figure("numSaleCost", &Asset::SaleCost, money);
    auto* percentage = figure("numPerShare", &Asset::PerShare, share);
    m_shareShown = result("numPerShareAns", m_share, percent);
    auto* place = oneOrTwo("optLocForeign", {"Local Asset", "Foreign Asset"}, &Asset::LocForeign);
    auto* split = oneOrTwo("optExclCOPSplit", {"No", "Yes"}, &Asset::ExclCOPSplit);
    auto* splitLabel = new QLabel("CoP split?");
    splitLabel->setObjectName("lblCOPSplit");
    splitLabel->setBuddy(split);
    m_capGain = result("numCapGain", {[this] { return asset().CapGain + 0.0; }, [](double) {}}, money);
    m_method = new QLabel;
    m_method->setObjectName("lblGainMethod");
    m_limitation = note(lossLimitationText);
    m_limitation->setObjectName("Text5");
    m_user = figure("numCapGainUser", &Asset::CapGainUser, money);
    showsCalculated(m_capGain);
    return group(
        "fraDisposal", "Disposal",
        column({form({{"Date of sa&le", row({m_sold, spring()})},
                      {"Sellin&g price", price},
                      {"Sale costs", costs},
                      {"Perce&ntage share", row({percentage, new QLabel("%"), help(aboutPartnerships)})},
                      {"Share taxed", m_shareShown, "%"}}),
                row({place, column({row({splitLabel, help(aboutCopSplit), spring()}), split})}),
                form({{"Capital gain", m_capGain}, {"", m_method}, {"Your capital gain", m_user}}), m_limitation}));
}

QWidget* frmCGTCalcIncome::knownGainsGroup() {
    const auto known = [this](double assessment::CapitalGains::*place) {
        return Bound<double>{[this, place] { return m_gains.*place; },
                             [this, place](double typed) { m_gains.*place = narrowed<double>(typed); }};
    };
    m_local = number("numAdditionalCapGain", known(&assessment::CapitalGains::AdditCapGainLocal), money);
    m_foreign = number("numAdditionalCapGainForeign", known(&assessment::CapitalGains::AdditCapGainForeign), money);
    m_loss = number("sidbEdit1", m_gains.CarryOverCapGainPrev, money);
    m_loss->setToolTip("Only negative numbers can be entered here");
    m_itemise = button("cmdItemise", "Itemise", [this] { openKnownGains(); });
    m_total = result("numTotCapGain", m_totals.YearCapGain, money);
    showsCalculated(m_total);
    return group(
        "fraKnown", "Known gains",
        row({form({{"&Known capital gain/loss from shares, trust etc. Local", row({m_local, m_itemise, spring()})},
                   {"Known capital gain/loss from shares, trust etc. Foreign",
                    row({m_foreign, help(aboutKnownGains), spring()})}}),
             form({{"CGT loss brought forward from last year ", m_loss}, {"Total of Capital Gains", m_total}})}));
}

QLayout* frmCGTCalcIncome::buttons() {
    auto* newAsset = button("cmdAdd", "&Add", [this] { add(); });
    auto* frame = new QWidget;
    frame->setObjectName("Frame2");
    frame->setLayout(row({newAsset}));
    frame->layout()->setContentsMargins({});
    m_delete = cancelButton("cmdDelete", "&Delete", [this] { remove(); });
    m_back = button("cmdBack", "&Back", [this] { step(-1); });
    m_forward = button("cmdForward", "&Forward", [this] { step(1); });
    m_calculate = button("cmdCalculate", "&Calculate", [this] {
        calculate();
        announce(asset().AssetDesc.empty() ? std::vector{m_total} : std::vector{m_capGain, m_total});
    });
    m_summaryButton = button("cmdSummary", "&Summary", [this] {
        calculate();
        m_summary->open(m_summaryOk);
    });
    m_print = button("cmdPrint", "&Print", [this] {
        calculate();
        m_printPanel->open();
    });
    return row({frame, m_delete, m_back, m_forward, m_calculate, m_summaryButton, m_print, spring(), okButton()});
}

DateKind frmCGTCalcIncome::acquiredRange() {
    return DateKind{}.where(
        [this](double day) { return !base::isShownOnScreen(asset().DateSale) || day <= asset().DateSale; },
        [this] {
            return Complaint{"The date entered is out of range please enter a date before " +
                                 shownDay(asset().DateSale),
                             "Incorrect Date"};
        });
}

DateKind frmCGTCalcIncome::saleRange() {
    return DateKind{}.where([this](double day) { return day >= std::max(asset().DateAquired, firstSaleDay); },
                            [this] {
                                const bool isKnown = base::isShownOnScreen(asset().DateAquired);
                                return Complaint{
                                    "The date entered is out of range! \nPlease enter a date that is after the \n"
                                    "Date acquired (" +
                                        (isKnown ? shownDay(asset().DateAquired) : QString("__/__/____")) +
                                        ") and after 01/03/2026",
                                    "Date out of range"};
                            });
}

void frmCGTCalcIncome::clientReplaced() {
    m_list.restart();
    m_results = {};
    ListScreen::clientReplaced();
}

bool frmCGTCalcIncome::commitPendingEdits() {
    if (!ListScreen::commitPendingEdits()) return false;
    m_list.workOutShown();
    if (m_list.dropEmptyLast()) refill();
    return true;
}

void frmCGTCalcIncome::wentBehind() {
    for (DateField* field : {m_acquired, m_sold})
        if (const auto refused = field->dropRefused()) // told later: no box may open while windows change places
            QTimer::singleShot(
                0, this, [this, refused] { m_work.desk.tell(BoxStyle::critical, refused->text, refused->title); });
}

void frmCGTCalcIncome::closing() {
    m_list.workOutShown();
    m_list.dropEmptyLast();
    dropPositiveLoss(m_gains);
}

void frmCGTCalcIncome::filled() {
    m_lossTold = m_gains.CarryOverCapGainPrev > 0;
    work();
}

void frmCGTCalcIncome::edited() {
    m_share = shareShown(asset());
    m_shareShown->fill();
    showPlace();
    applyRules();
}

void frmCGTCalcIncome::settled(Field* field) {
    if (field != m_loss) return;
    const bool isWrong = m_gains.CarryOverCapGainPrev > 0;
    if (isWrong && !m_lossTold) {
        m_work.desk.tell(BoxStyle::critical, "Only negative numbers can be entered here.", "Wrong Value");
        m_loss->takeFocus(); // a pressed button acts all the same
    }
    m_lossTold = isWrong;
}

void frmCGTCalcIncome::work() {
    m_totals = m_list.ADDITCGTCALC();
    m_gain = CGTCALC(asset());
    showGain();
    showPlace();
    applyRules();
    calculated();
}

void frmCGTCalcIncome::calculate() {
    work();
    m_results = CGTTotalCalc(annualGain(m_gains, m_totals, m_work.record.details.Deceased), m_results);
    for (NumberField* field : m_resultFields)
        field->fill();
}

void frmCGTCalcIncome::showGain() {
    m_share = m_gain.PerShareAns;
    for (NumberField* field : {m_shareShown, m_capGain, m_deemed, m_total})
        field->fill();
    setRowVisible(m_apportioned, asset().DeemVal > 0);
    m_method->setText(gainLabel(m_gain.method, asset()));
    m_limitation->setVisible(m_gain.asksUser());
    setRowVisible(m_user, m_gain.asksUser());
}

void frmCGTCalcIncome::showPlace() {
    const int count = m_list.CGTMaxNum();
    setWindowTitle(count == 0 ? QString("Capital Gains Tax Calculator 2026")
                              : QString("Capital Gains Tax Calculator For Natural Person:  Asset number %1 of %2")
                                    .arg(m_list.CurrentAsset())
                                    .arg(count));
    const int notCounted = m_list.notCounted();
    m_notCounted->setText(tr("The last %1 assets are kept, but only the first 1000 are counted.").arg(notCounted));
    m_notCounted->setVisible(notCounted > 0);
}

void frmCGTCalcIncome::applyRules() {
    const Asset& shown = asset();
    const bool isDescribed = !shown.AssetDesc.empty();
    const bool isUnitTrust = shown.CGTAsset == assessment::unitTrustAsset;
    const bool isResidence = shown.CGTAsset == assessment::residenceAsset;
    const bool isBusiness = shown.CGTAsset == assessment::smallBusinessAsset;
    const bool isOld = shown.DateAquired <= lastDayBefore;
    for (QWidget* field : m_always)
        field->setEnabled(isDescribed);
    m_size->setEnabled(isDescribed && isResidence);
    m_residency->setEnabled(isDescribed && isResidence);
    m_qualifies->setEnabled(isDescribed && isBusiness);
    m_deduction->setEnabled(isDescribed && isBusiness);
    m_appraised->setEnabled(isDescribed && isOld);
    m_improvedBefore->setEnabled(isDescribed && isOld && !isUnitTrust);
    m_improved->setEnabled(isDescribed && !isUnitTrust);
    m_user->setEnabled(isDescribed && m_gain.asksUser());
    for (QPushButton* work : {m_calculate, m_summaryButton, m_print})
        work->setEnabled(isPrintable(m_gains, shown));
    const bool hasOthers = m_list.CGTMaxNum() > 1;
    if (!hasOthers && (m_delete->hasFocus() || m_back->hasFocus() || m_forward->hasFocus())) m_description->takeFocus();
    for (QPushButton* walk : {m_delete, m_back, m_forward})
        walk->setEnabled(isDescribed && hasOthers);
    const bool isItemised = m_gains.ItemiseAdditCapGain == 1;
    m_local->setLocked(isItemised);
    m_foreign->setLocked(isItemised);
    showInUse(m_itemise, isItemised);
}

void frmCGTCalcIncome::add() {
    switch (m_list.add()) {
    case AssetList::Added::noDescription: return m_description->takeFocus();
    case AssetList::Added::full:
        return m_work.desk.tell(BoxStyle::warning, tr("A client can have %1 assets at most.").arg(mostAssets),
                                "Marlowbeck");
    case AssetList::Added::yes: break;
    }
    m_work.record.changed.CGTChanged = 1;
    refill();
    m_description->takeFocus();
}

void frmCGTCalcIncome::remove() {
    m_list.remove();
    m_work.record.changed.CGTChanged = 1;
    refill();
}

void frmCGTCalcIncome::step(int direction) {
    direction > 0 ? m_list.forward() : m_list.back();
    refill();
}

} // namespace tax
