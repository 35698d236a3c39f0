#include "screenkit/grid.h"
#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// An adviser's morning: the day's entries, who is to be reviewed, whose birthday it is, and the forms for a meeting.
namespace tour {

namespace {

/// Types into a list that drops down.
void choose(Hands& hands, const QString& list, const QString& text) {
    hands.control<QWidget>(list)->setFocus(Qt::TabFocusReason);
    hands.write(text);
    hands.key(Qt::Key_Tab);
}

int lines(Hands& hands, const QString& list) { return hands.control<screenkit::Grid>(list)->model()->rowCount(); }

void planTheDay(Hands& hands) {
    say("Diary: two entries for today, 15 June, of which one is moved to Thursday.");
    hands.menu({"mnuCRM"});
    hands.click("cmdCalendar");
    hands.expectFront("frmCalendar");
    choose(hands, "cboSelectTime", "09:30 AM");
    hands.type("txtDiaryName", "Mr P O'Brien");
    hands.type("txtAppointmentDetail", "Sign the annuity forms");
    hands.click("cmdAddUpdateDD");
    choose(hands, "cboSelectTime", "02:00 PM");
    hands.type("txtDiaryName", "Naledi Botha");
    hands.click("optTypeDiaryEntry(2)");
    hands.click("cmdAddUpdateDD");
    check(lines(hands, "ListView1") == 2, "today does not have its two entries");
    picture(&hands.window(), "diary");
    hands.control<screenkit::Grid>("ListView1")->pick({0});
    hands.click("cmdCutMove");
    hands.type("txtDateSelected", "18/06/2026");
    hands.click("cmdAddUpdateDD");
    check(lines(hands, "ListView1") == 1, "the entry is not on Thursday");
    hands.click("cmdOK");
    hands.click("cmdOK"); // CRM
    hands.menu({"mnuActPending"});
    check(lines(hands, "ListView1") == 2, "the entries are not pending");
    picture(&hands.window(), "activities-pending");
    hands.click("cmdOK");
}

void followUp(Hands& hands) {
    say("Review dates: who is to be reviewed on death between April and June 2027.");
    hands.menu({"mnuFile", "mnuReviewDates"});
    hands.click("Option3");
    hands.enter(std::vector<Entry>{{"dtNextRevDateStart", "01/04/2027"}, {"dtNextRevDateEnd", "30/06/2027"}});
    hands.click("cmdSearch");
    check(lines(hands, "DBGrid1") == 1, "the client to be reviewed is not found");
    picture(&hands.window(), "review-dates");
    hands.click("cmdPrint");
    hands.click("cmdVR");
    exportPdf(hands, "review-dates-report");
    hands.click("cmdOK");
    say("Birthdays: the clients' in April.");
    hands.menu({"mnuFile", "mnuBirthdays"});
    choose(hands, "Combo1", "A");
    hands.click("cmdSearch");
    check(lines(hands, "DBGrid1") == 1, "the client's birthday is not found");
    picture(&hands.window(), "birthdays");
    hands.click("cmdPrint");
    hands.click("cmdVR");
    exportPdf(hands, "birthdays-report");
    hands.click("cmdOK");
}

void takeForms(Hands& hands) {
    say("Blank questionnaires for a meeting.");
    hands.menu({"mnuFile", "mnuPrintBlank"});
    hands.click("chkDeathDisa");
    hands.click("cmdVR");
    exportPdf(hands, "blank-questionnaire");
    hands.click("cmdOk");
}

} // namespace

void followClientsUp(Hands& hands) {
    planTheDay(hands);
    followUp(hands);
    takeForms(hands);
}

} // namespace tour
