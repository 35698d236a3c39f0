#include <QAbstractItemView>

#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// Leaving the program and loading everything again.
namespace tour {

Seen look(Hands& hands) {
    Seen seen;
    hands.menu({"mnuPersDet"});
    hands.expectFront("frmPersDet");
    seen.personalDetails = shownOn(hands.front());
    hands.menu({"mnuCalc", "mnuLoans", "mnuLoansCalc"});
    hands.expectFront("frmLoans");
    seen.loan = shownOn(hands.front());
    hands.menu({"mnuCalc", "mnuNARA"});
    hands.expectFront("frmNARA");
    seen.retirement = shownOn(hands.front());
    hands.menu({"mnuCalc", "mnuNADeath"});
    hands.expectFront("frmNADeath");
    seen.death = shownOn(hands.front());
    hands.menu({"mnuCalc", "mnuNADisability"});
    hands.expectFront("frmNADisability");
    seen.disability = shownOn(hands.front());
    const std::pair<const char*, Figures*> capital[] = {
        {"mnuNAEd", &seen.education}, {"mnuInflation", &seen.inflation}, {"mnuLifeOfCap", &seen.lifeOfCapital}};
    for (const auto& [item, shown] : capital) {
        hands.menu({"mnuCalc", item});
        *shown = shownOn(hands.front());
    }
    hands.menu({"mnuFile", "mnuPrep"});
    hands.expectFront("frmHeadFoot");
    seen.practice = shownOn(hands.front());
    hands.click("cmdOk");
    seen.stored = storedOf(hands.record());
    return seen;
}

void exitProgram(Hands& hands) {
    say("Ctrl+Q leaves the program.");
    hands.desk().expect("EXIT ?", screenkit::Answer::yes, "exit");
    hands.key(Qt::Key_Q, Qt::ControlModifier);
    check(!hands.window().isVisible(), "the program does not end");
    hands.desk().checkDone();
}

void findClient(Hands& hands) {
    say("The program starts again; Ctrl+O browses, a part of the name finds the client.");
    hands.key(Qt::Key_O, Qt::ControlModifier);
    hands.expectFront("frmBrowse");
    hands.type("txtSearch", "nobody of this name", Qt::Key_End);
    const auto* list = hands.control<QAbstractItemView>("List1")->model();
    check(list->rowCount() == 0, "the search finds what is not there");
    hands.type("txtSearch", "ndou", Qt::Key_End);
    check(list->rowCount() == 1, "the search does not find the client");
    say("  found: " + list->index(0, 0).data().toString().simplified());
    picture(&hands.window(), "browse");
    hands.key(Qt::Key_Return);
    hands.expectFront("frmPersDet");
    check(hands.record().ClientOnFile == 1, "the client is not loaded");
}

void compare(Hands& hands, const Seen& before) {
    say("Every value is compared with what it was.");
    const Seen now = look(hands);
    checkSame(before.personalDetails, now.personalDetails, "personal details on screen");
    checkSame(before.loan, now.loan, "loan on screen");
    checkSame(before.retirement, now.retirement, "retirement analysis on screen");
    checkSame(before.death, now.death, "death analysis on screen");
    checkSame(before.disability, now.disability, "disability analysis on screen");
    checkSame(before.education, now.education, "education analysis on screen");
    checkSame(before.inflation, now.inflation, "inflation on screen");
    checkSame(before.lifeOfCapital, now.lifeOfCapital, "life of capital on screen");
    for (const char* sentence : {"txtAns1", "txtAns2"})
        say("  " + now.retirement[sentence]);
    checkSame(before.practice, now.practice, "header and footer lines on screen");
    checkSame(before.stored, now.stored, "the client's record, to the last bit");
    picture(&hands.window(), "loan-again");
}

} // namespace tour
