#pragma once

#include "tour/figures.h"
#include "tour/hands.h"

/// The tour's case, step by step. Each step ends where the next one begins.
namespace tour {

/// What the screens showed when the client was saved.
struct Seen {
    Figures personalDetails, loan, retirement, death, disability, education, inflation, lifeOfCapital, practice, stored;
};

// The first session, from an empty program folder.
void startAtEmptyFolder(Hands& hands);
void recordClient(Hands& hands);
void setPracticeLines(Hands& hands);
void solveLoan(Hands& hands);
void showCharges(Hands& hands);
void showTables(Hands& hands);
void showGraph(Hands& hands);
void exportLoanReport(Hands& hands);
void exportPersonalDetails(Hands& hands);
void recordRetirement(Hands& hands);
/// Starts and ends in the retirement analysis. Returns the expected worth of the policies at 65, rand.
double enterPolicies(Hands& hands);
void showRetirementYears(Hands& hands);
void exportRetirementReports(Hands& hands);
void needsOnDeath(Hands& hands);
void needsOnDisability(Hands& hands);
void planEducation(Hands& hands);
/// Starts in the education analysis and closes both.
void seeInflation(Hands& hands);
void lastCapital(Hands& hands);
/// Ends in Kwik-Quotes, where `findPremium` goes on.
void quote(Hands& hands);
void findPremium(Hands& hands);
void compareOffers(Hands& hands);
void investOffshore(Hands& hands);
void convertRate(Hands& hands);
void balanceADeposit(Hands& hands);
void measureReturns(Hands& hands);
void drawFromShares(Hands& hands);
void bustBond(Hands& hands);
void analyseBond(Hands& hands);
void consolidateDebts(Hands& hands);
void taxAMonth(Hands& hands);
void taxAYear(Hands& hands);
void taxLumpSums(Hands& hands);
void estimateEstate(Hands& hands);
void seeFundingAdvantage(Hands& hands);
void taxTheYearsGains(Hands& hands);
void claimTravel(Hands& hands);
void makeClientFile(Hands& hands);
void save(Hands& hands);
Seen look(Hands& hands);
void exitProgram(Hands& hands);

// The second session, which must find everything again.
void findClient(Hands& hands);
void compare(Hands& hands, const Seen& before);
/// The diary, the searches of the file and the blank forms.
void followClientsUp(Hands& hands);
/// Ends with New.
void drawDown(Hands& hands);
/// Ends with a blank client and the file as it was.
void careForClients(Hands& hands);

/// Saves the report in front as name.pdf, with a picture of it, and closes it.
void exportPdf(Hands& hands, const QString& name);
/// Shows the client's loan again, for a picture with another palette or scale.
void showLoan(Hands& hands, const QString& pictureName);

/// The client's needs analyses but retirement, the premium, and the calculators beside the loans once more, the same
/// way.
void showNeeds(Hands& hands, const QString& look);
/// The bonds and the debts once more.
void showDebts(Hands& hands, const QString& look);

} // namespace tour
