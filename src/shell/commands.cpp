#include "shell/commands.h"

namespace shell {

namespace {

constexpr MenuItem items[] = {
    {"mnuFile", "&File", ""},
    {"mnuNewFile", "&New File", "mnuFile", "", "Ctrl+N"},
    {"mnuBrowse", "&Browse Files", "mnuFile", "frmBrowse", "Ctrl+O"},
    {"mnuRetrieve", "&Retrieve File", "mnuFile", "frmBrowse"},
    {"mnuSave", "&Save File", "mnuFile", "", "Ctrl+S"},
    {"mnuSaveAs", "S&ave File As..", "mnuFile", "frmSaveFileAs"},
    {"mnuReviewDates", "Searc&h For Review Dates", "mnuFile", "frmFindSARS"},
    {"mnuBirthdays", "Search For Birthda&ys", "mnuFile", "frmFindBirthdays"},
    {"mnuDelete", "&Delete File", "mnuFile", "frmDelete"},
    {"mnuBackup", "Back Up Database", "mnuFile"},
    {"mnuRestore", "Restore Database", "mnuFile"},
    {"mnuToFromA", "Copy Client File/s To/From Remote Media", "mnuFile"},
    {"mnuToA", "Save TO     Remote Media", "mnuToFromA", "frmCOPYToA"},
    {"mnuFromA", "Read FROM    Remote Media", "mnuToFromA", "frmREADFromA"},
    {"mnuPrep", "&Prepared by details", "mnuFile", "frmHeadFoot"},
    {"mnuPrintSetup", "Printer &Setup", "mnuFile"},
    {"mnuClientFile", "Client file as one document…", "mnuFile", "frmClientFile"},
    {"mnuPrintBlank", "Print Blank Questionnaires", "mnuFile", "frmBlankAnaQuestion"},
    {"mnuRemotePath", "Remote Database Path", "mnuFile", "frmMasterDBLocator"},
    {"mnuExit", "E&xit", "mnuFile", "", "Ctrl+Q"},

    {"mnuPersDet", "&Personal Details", "", "frmPersDet"},

    {"mnuCalc", "C&alculations", ""},
    {"mnuKwikQuotes", "&Kwik-Quotes ", "mnuCalc", "frmKwikQuotes"},
    {"mnuNADeath", "Needs Analysis for Dea&th", "mnuCalc", "frmNADeath"},
    {"mnuNADisability", "Needs Analysis for Disability ", "mnuCalc", "frmNADisability"},
    {"mnuNARA", "Needs Analysis for &Retirement", "mnuCalc", "frmNARA"},
    {"mnuPolInvests", "Policies && Investments", "mnuCalc", "frmPolInvest"},
    {"mnuNAEd", "Needs Analysis for &Education", "mnuCalc", "frmNAEd"},
    {"mnuRATaxAdv", "R/F Advantage calculator", "mnuCalc", "frmRATaxAdv"},
    {"mnuInflation", "In&flation Calculation", "mnuCalc", "frmInflation"},
    {"mnuEstateDutyEstimator", "Estate Duty Estimator", "mnuCalc", "frmEstateDutyEst"},
    {"mnuLoans", "&Loans", "mnuCalc"},
    {"mnuLoansCalc", "Loans &Calculation", "mnuLoans", "frmLoans"},
    {"mnuLoansBondBust", "&Bond Buster", "mnuLoans", "frmBondBuster"},
    {"mnuLoansBondAna", "Bond Anal&ysis", "mnuLoans", "frmBondAna"},
    {"mnuLifeOfCap", "Life of Capital", "mnuCalc", "frmLifeOfCap"},
    {"mnuIncShares", "Income From Shares", "mnuCalc", "frmIncomeShares"},
    {"mnuMainBanking", "Ban&king Calculations", "mnuCalc"},
    {"mnuDayBal", "&Daily Balance", "mnuMainBanking", "frmDayBal"},
    {"mnuNomEffec", "&Nominal/Effective", "mnuMainBanking", "frmNomEffec"},
    {"mnuDebtCon", "De&bt Consolidation", "mnuMainBanking", "frmDebtCon"},
    {"mnuInvestComp", "Investment &Comparison", "mnuCalc", "frmInvestComp"},
    {"mnuOffShore", "&OffShore Investments", "mnuCalc", "frmOffShore"},
    {"mnuLivAnn", "Draw Down Annuity", "mnuCalc", "frmDDLivAnn"},
    {"mnuRealRate", "Real Rate of Return", "mnuCalc", "frmRRRNEW"},
    {"mnuCapGainsTAx", "Capital Gains Tax", "mnuCalc", "frmCGTCalcIncome"},
    {"mnuTaxLumpSum", "Tax On Lump Sums", "mnuCalc", "frmLumpSum"},
    {"mnuPAYE", "PAYE", "mnuCalc", "frmMonthly"},
    {"mnuTravClaim", "Travel Claim", "mnuCalc", "frmCarAll"},
    {"mnuQuickTax", "&QuickTax", "mnuCalc", "frmKwikTax"},
    {"mnuCalculator", "Calc&ulator", "mnuCalc"},

    {"mnuWindow", "&Window", ""},
    {"mnuViewToolBar", "&View Toolbar", "mnuWindow"},
    {"mnuCascade", "&Cascade", "mnuWindow"},
    {"mnuIcon", "&Arrange Icons", "mnuWindow"},
    {"mnuVideoLectures", "Video Lectures", "mnuWindow"},

    {"mnuHelp", "&Help", ""},
    {"mnuContents", "&Contents", "mnuHelp", "frmBrowser", "F1"},
    {"mnuAbout", "&About Marlowbeck", "mnuHelp"},

    {"mnuCRM", "CRM", "", "frmCRM"},
    {"mnuActPending", "Activities Pending", "", "frmActPending"},

    // Pop-up menus of the toolbar; not in the menu bar.
    {"mnuBanking", "Banking", nullptr},
    {"mnuDayBal1", "&Daily Balance", "mnuBanking", "frmDayBal"},
    {"mnuNomEffec1", "&Nominal/Effective", "mnuBanking", "frmNomEffec"},
    {"mnuDebtCon1", "De&bt Consolidation", "mnuBanking", "frmDebtCon"},
    {"mnuLoansTB", "Loans", nullptr},
    {"mnuLoansCalcTB", "Loans &Calculation", "mnuLoansTB", "frmLoans"},
    {"mnuLoansBondBustTB", "&Bond Buster", "mnuLoansTB", "frmBondBuster"},
    {"mnuLoansBondAnaTB", "Bond Anal&ysis", "mnuLoansTB", "frmBondAna"},
    {"mnuNeedsAnalyses", "Needs Analyses", nullptr},
    {"mnuSubNeedsAnalyses(0)", "Needs Analysis for Dea&th", "mnuNeedsAnalyses", "frmNADeath"},
    {"mnuSubNeedsAnalyses(1)", "Needs Analysis for Disability ", "mnuNeedsAnalyses", "frmNADisability"},
    {"mnuSubNeedsAnalyses(2)", "Needs Analysis for &Retirement", "mnuNeedsAnalyses", "frmNARA"},
    {"mnuSubNeedsAnalyses(3)", "Needs Analysis for &Education", "mnuNeedsAnalyses", "frmNAEd"},
};

constexpr ToolButton buttons[] = {
    {"new", "New", "mnuNewFile"},
    {"browse", "Browse", "mnuBrowse"},
    {"save", "Save", "mnuSave"},
    {"persdet", "Personal Details", "mnuPersDet"},
    {"kwikquotes", "Kwik-Quotes", "mnuKwikQuotes"},
    {"needsanalyses", "Needs Analyses", "mnuNeedsAnalyses"},
    {"disability", "Needs Analysis for Disability", "mnuNADisability"},
    {"retirement", "Needs Analysis for Retirement", "mnuNARA"},
    {"policies", "Policies and Investments", "mnuPolInvests"},
    {"education", "Needs Analysis for Education", "mnuNAEd"},
    {"rataxadv", "R/F Advantage calculator", "mnuRATaxAdv"},
    {"estateduty", "Estate Duty Estimator", "mnuEstateDutyEstimator"},
    {"inflation", "Inflation", "mnuInflation"},
    {"loans", "Loans", "mnuLoansTB"},
    {"lifeofcapital", "Life of Capital", "mnuLifeOfCap"},
    {"incomeshares", "Income From Shares", "mnuIncShares"},
    {"banking", "Banking", "mnuBanking"},
    {"investcomp", "Investment Comparison", "mnuInvestComp"},
    {"offshore", "Offshore Investments", "mnuOffShore"},
    {"drawdown", "Draw Down Annuity", "mnuLivAnn"},
    {"realrate", "Real Rate of Return", "mnuRealRate"},
    {"capitalgains", "Capital Gains Tax", "mnuCapGainsTAx"},
    {"lumpsums", "Tax On Lump Sums", "mnuTaxLumpSum"},
    {"paye", "PAYE", "mnuPAYE"},
    {"travel", "Travel Claim", "mnuTravClaim"},
    {"quicktax", "QuickTax", "mnuQuickTax"},
    {"video", "Video Lectures", "mnuVideoLectures"},
};

} // namespace

std::span<const MenuItem> menuItems() { return items; }
std::span<const ToolButton> toolButtons() { return buttons; }

} // namespace shell
