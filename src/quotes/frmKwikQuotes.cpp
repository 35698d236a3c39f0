#include "quotes/frmKwikQuotes.h"

#include <QLabel>
#include <QTabWidget>
#include <limits>

#include "datastore/funds.h"
#include "datastore/paths.h"
#include "quotes/quotereport.h"
#include "reports/frmGraph.h"
#include "reports/report.h"

namespace quotes {

using namespace screenkit;

namespace {

constexpr const char* months = "##";
constexpr const char* figures = "### ### ### ### ###.00";
constexpr double noAnswer = std::numeric_limits<double>::quiet_NaN(); // shows as an error
const NumberKind answerKind{money.mask, false, 22};
const NumberKind quoteTerm = whole.from(0, "The minimum period allowed is 0 months", "Incorrect Period!")
                                 .upTo(longestQuote, "The maximum period allowed is 480 months", "Incorrect Period!");
const NumberKind premiumTerm = whole.from(0, "The Minimum Period is 0 months", "Incorrect Period!")
                                   .upTo(longestPremium, "The Maximum Period is 600 months", "Incorrect Period!");
constexpr double highestSpunRate = 50; // percent a year; a higher one can be typed

int kindIndex(const KwikQuotes& inputs) {
    const auto kind = kindOf(inputs.TYPEINVEST);
    return kind ? static_cast<int>(*kind) : -1;
}

} // namespace

frmKwikQuotes::frmKwikQuotes(Workplace& workplace)
    : CapitalLifeScreen(workplace, "frmKwikQuotes", "Kwik-Quotes", workplace.record.changed.KwikQuotesChanged,
                        finance::moreThanInQuotes),
      m_inputs(workplace.record.quotes), m_premium(workplace.record.premiumQuote), m_funds(workplace.record.funds),
      m_original(datastore::readOriginalFunds(workplace.paths.DefaultDbPath)) {
    datastore::refreshFunds(workplace.record, workplace.paths.DefaultDbPath);
    m_ok = okButton();
    m_pages = tabs("SSIndexTab1", {{"Find Maturity Values", quotePage()}, {"Find Premium", premiumPage()}});
    worksByPage(m_pages);
    body(column({Item(m_pages, 1), buttons()}));
    buildPrintPanel();
    buildLifePanel();
    buildRatesPanel();
    buildHistoryPanel();
}

// ---- the pages

QWidget* frmKwikQuotes::kinds() {
    m_kinds = options(
        "optKind",
        {"&Endowment", "&Retirement Annuity/Superannuation", "&Unit Trust/Mutual Fund type", "&Bank Investments"},
        {[this] { return kindIndex(m_inputs); }, [this](int kind) { m_inputs.TYPEINVEST = kindLetters[kind]; }},
        [this](int) { showQuote(); });
    const char* const names[] = {"optEndow", "optRA", "optUnitTrust", "optBankInvest"};
    for (const int kind : {0, 1, 2, 3})
        m_kinds->option(kind)->setObjectName(names[kind]);
    return group("Frame1", "Kind of investment", m_kinds);
}

QWidget* frmKwikQuotes::investment() {
    m_lumpSum = number("numLumpsum", m_inputs.LUMPSUM, money);
    auto* annual = number("numAnnPay", m_inputs.ANNUALPAYMENT, money);
    auto* monthly = number("numMonPay", m_inputs.regularpayment, money);
    auto* term = number("numTerm", m_inputs.term, quoteTerm);
    auto* rate = number("numIntRate", m_inputs.GrowthRate, percent);
    m_escalation = number("numPremEsc", m_inputs.PaymentEscalation, percent);
    const auto spinner = [this](const QString& name, NumberField* field, double highest, std::function<double()> step) {
        const SpinRule rule{.step = std::move(step),
                            .idleAtZero = true,
                            .floor = 0,
                            .holdsFloor = false,
                            .ceiling = highest,
                            .wrapsTo = highest,
                            .rings = true,
                            .focus = [this] { return m_ok; }};
        return spin(name, field, rule, [this] { showQuote(); });
    };
    auto* spinTerm = spinner("spPeriod", term, longestQuote, [] { return 1.0; });
    auto* spinRate = spinner("spRate", rate, highestSpunRate, [this] { return m_work.record.GRINC; });
    return group("fraInvestment", "Investment",
                 form({{"&Single investment", m_lumpSum},
                       {"Regular annual &investment ", annual},
                       {"Regular mo&nthly investment", monthly},
                       {"Term of in&vestment", row({term, spinTerm}), "Months."},
                       {"Growth ra&te", row({rate, spinRate}), "% a year"},
                       {"Premium investment escalation", m_escalation, "% a year"}}));
}

QWidget* frmKwikQuotes::answers() {
    for (std::size_t i = 0; i < m_answers.size(); ++i) {
        m_answers[i] = result(QString("numAns%1").arg(i + 1), m_answer[i], answerKind);
        showsCalculated(m_answers[i]);
    }
    m_taxNote = new QLabel(taxNote);
    m_taxNote->setObjectName("lblTaxIgnored");
    return group("fraAnswers", "Result",
                 column({form({{"Total investment made", m_answers[0]},
                               {"Estimated maturity value", m_answers[1]},
                               {"Lump sum portion", m_answers[2]},
                               {"Approximate monthly payout", m_answers[3]}}),
                         m_taxNote}));
}

QLayout* frmKwikQuotes::quotePage() {
    auto* kind = kinds();
    return row({column({kind, spring()}), Item(column({investment(), answers(), spring()}), 1)});
}

QLayout* frmKwikQuotes::premiumPage() {
    auto* target = number("numPremEmv", m_premium.PremTarget, money);
    auto* term = number("numPremPeriod", m_premium.PremTerm, premiumTerm);
    auto* rate = number("numPremGR", m_premium.PremGrowth, percent);
    auto* escalation = number("numPremPEsc", m_premium.PremEscalation, percent);
    for (NumberField* input : {target, term, rate, escalation})
        unsavedField(input);
    const char* const names[] = {"numPremAnsEndow", "numPremAnsRA", "numPremAnsUT"};
    for (std::size_t i = 0; i < m_premiums.size(); ++i) {
        m_premiums[i] = result(names[i], m_foundPremium[i], answerKind.shownAs(wholeRand.mask));
        showsCalculated(m_premiums[i]);
    }
    m_unreached = note({});
    m_unreached->setObjectName("lblUnreached");
    m_unreached->hide();
    return column({group("fraPremium", "Investment",
                         form({{"Maturity &value required", target},
                               {"&Term of investment", term, "months"},
                               {"Growth &rate", rate, "% a year"},
                               {"Annual investment &escalation", escalation, "% a year"}})),
                   group("fraPremiumAnswers", "Initial Monthly Investment",
                         column({form({{"Endowment", m_premiums[0]},
                                       {"Retirement Annuity", m_premiums[1]},
                                       {"Unit Trusts with re-invested dividends", m_premiums[2]}}),
                                 m_unreached})),
                   spring()});
}

QLayout* frmKwikQuotes::buttons() {
    auto* work = button("cmdCalculate", "&Calculate", [this] { calculate(); });
    defaultButton(work);
    auto* years = button("cmdAmort", "A&mortisation", [this] { monthTable(); });
    auto* drawing = button("cmdGraph", "&Graph", [this] { graph(); });
    auto* paper = button("cmdPrint", "&Print", [this] {
        showQuote();
        m_printPanel->open();
    });
    connect(m_pages, &QTabWidget::currentChanged, this, [this, years, drawing, paper] {
        for (QPushButton* ofTheQuote : {years, drawing, paper})
            ofTheQuote->setEnabled(!isOnPremiums());
    });
    return column({row({work, years, drawing, paper, spring(), m_ok}),
                   row({button("cmdLifeOfCap", "&Life of Capital", [this] { openLife(); }),
                        button("cmdUnitHist", "Unit Trust Histor&y", [this] { openHistory(); }),
                        button("cmdDefault", "&Default Rates", [this] { openRates(); }), spring()})});
}

bool frmKwikQuotes::isOnPremiums() const { return m_pages->currentIndex() == premiumPageIndex; }

void frmKwikQuotes::filled() {
    showQuote();
    if (m_isLifeShown) calculateLife();
    // A target is kept until the next client, but not what was found for it.
    if (!m_isSearched && !hasPremiumInputs()) calculated(premiumPageIndex);
}

void frmKwikQuotes::edited() {
    if (!m_lifePanel->isHidden()) calculateLife();
}

void frmKwikQuotes::calculate() {
    std::vector<NumberField*> said;
    if (isOnPremiums()) {
        searchPremiums();
        said.assign(m_premiums.begin(), m_premiums.end());
    } else {
        showQuote();
        for (NumberField* line : m_answers)
            if (!line->isHidden()) said.push_back(line);
    }
    announce(said);
}

void frmKwikQuotes::showQuote() {
    m_shown = ShowQuote(m_inputs, m_funds);
    m_escalation->present(m_shown.numPremEsc);
    const std::optional<double> shown[] = {m_shown.numAns1, m_shown.numAns2, m_shown.numAns3, m_shown.numAns4};
    for (std::size_t i = 0; i < m_answers.size(); ++i) {
        m_answer[i] = shown[i].value_or(0);
        m_answers[i]->present(m_shown.isFinite ? m_answer[i] : noAnswer);
        setRowVisible(m_answers[i], shown[i].has_value());
    }
    const bool isUnitTrust = m_shown.quote.kind == Kind::unitTrust;
    setRowLabel(m_answers[2], isUnitTrust ? "EMV - with dividends re-invested" : "Lump sum portion");
    m_taxNote->setVisible(m_shown.ignoresTax);
    calculated(quotePageIndex);
}

bool frmKwikQuotes::hasPremiumInputs() const {
    return m_premium.PremTarget != 0 && m_premium.PremTerm != 0 && m_premium.PremGrowth != 0;
}

void frmKwikQuotes::searchPremiums() {
    m_found = FindPremiums(m_premium, m_funds);
    m_isSearched = true;
    const finance::PremiumFound* const found[] = {&m_found.endowment, &m_found.retirement, &m_found.unitTrust};
    for (std::size_t i = 0; i < m_premiums.size(); ++i) {
        m_foundPremium[i] = shownPremium(*found[i], m_foundPremium[i]);
        m_premiums[i]->fill();
    }
    m_unreached->setText(QString::fromStdString(m_found.unreached()));
    m_unreached->setVisible(!m_unreached->text().isEmpty());
    calculated(premiumPageIndex);
}

// ---- what comes of a quotation

void frmKwikQuotes::monthTable() {
    showQuote();
    const Quote& quote = m_shown.quote;
    if (quote.QuoteEmpty || !m_shown.isFinite) return m_lumpSum->takeFocus();
    const bool isUnitTrust = quote.kind == Kind::unitTrust;
    std::vector<std::vector<double>> rows;
    rows.reserve(quote.QuotePaid.size());
    for (std::size_t month = 1; month < quote.QuotePaid.size(); ++month) {
        rows.push_back({static_cast<double>(month), quote.QuotePaid[month], quote.QuoteValue[month]});
        if (isUnitTrust) rows.back().push_back(quote.QuoteValueDiv[month]);
    }
    std::vector<GridColumn> columns;
    if (isUnitTrust)
        columns = {{" Month ", months},
                   {"    Total investment made  ", figures},
                   {"    Capital growth     ", figures},
                   {"   +Re-invested Divs.  ", figures}};
    else
        columns = {{" Month ", months},
                   {"    Total investment made     ", figures},
                   {"           EMV               ", figures}};
    showGrid("Amortisation", std::move(columns), std::move(rows), m_ok);
}

void frmKwikQuotes::graph() {
    showQuote();
    if (!(m_shown.quote.FundValue > 0) || !m_shown.isFinite) return m_lumpSum->takeFocus();
    const QuoteGraph drawn = InvestProGraphCalc(m_inputs, m_funds);
    m_work.shell.open("frmGraph");
    auto* window = qobject_cast<reports::frmGraph*>(m_work.shell.screen("frmGraph"));
    if (window == nullptr) return;
    const auto period = drawn.inYears ? reports::GraphPeriod::years : reports::GraphPeriod::months;
    // Only a unit trust has two values: its growth alone, and with the dividends re-invested.
    const bool isUnitTrust = m_shown.quote.kind == Kind::unitTrust;
    const std::vector<double> none;
    window->EMVGraph(m_inputs.TYPEINVEST, period, drawn.invested, isUnitTrust ? drawn.value : none,
                     isUnitTrust ? none : drawn.value, drawn.reinvested, drawn.points);
}

void frmKwikQuotes::buildPrintPanel() {
    auto* commissions = check("chkIncComms", "Include Co&mmissions", m_includeCommissions);
    auto* amortised = check("chkIncAmort", "Include Amor&tisation", m_includeAmort);
    for (CheckField* choice : {commissions, amortised})
        untrackedField(choice);
    m_printPanel = printPanel({commissions, amortised}, [this](Destination to) { print(to); });
}

void frmKwikQuotes::print(Destination destination) {
    if (!m_shown.isFinite) return focusLater(m_ok);
    const QuoteReport report{m_inputs, m_funds, m_shown, m_work.record.lifeOfCapital, m_life};
    const auto printout = feedQuote(m_work.paths.PrintDbPath, m_work.record.client.Name, report,
                                    {m_includeCommissions == 1, m_includeAmort == 1});
    m_work.reports.run(QString::fromStdString(printout.definition), QString::fromStdString(printout.title),
                       destination);
}

} // namespace quotes
