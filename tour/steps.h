#pragma once

#include "tour/figures.h"
#include "tour/hands.h"

/// The case, step by step. Each step leaves the program where the next one begins.
namespace tour {

/// What the user saw when the client was saved.
struct Seen {
    Figures personalDetails, loan, retirement, practice, stored;
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
/// From the retirement analysis and back to it; what they are worth at 65 as it should be, rand.
double enterPolicies(Hands& hands);
void showRetirementYears(Hands& hands);
void exportRetirementReports(Hands& hands);
void taxAMonth(Hands& hands);
void taxAYear(Hands& hands);
void save(Hands& hands);
Seen look(Hands& hands);
void exitProgram(Hands& hands);

// The second one, which must find all of it again.
void findClient(Hands& hands);
void compare(Hands& hands, const Seen& before);

/// The client's loan once more, for a picture in another palette or scale.
void showLoan(Hands& hands, const QString& pictureName);

} // namespace tour
