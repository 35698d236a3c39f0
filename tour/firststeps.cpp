#include <filesystem>

#include "datastore/paths.h"
#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// Entering the client and the practice.
namespace tour {

namespace {

constexpr Entry client[] = {
    {"txtCTitle", "Mr"},
    {"txtCFName", "Tshilidzi James"},
    {"txtCInit", "T.J."},
    {"txtCLName", "Ṱhoho-Nḓou"},
    {"dtCDOB", "12/04/1981"},
    {"txtIDNum", "8104125009086"},
    {"txtCOccupation", "Civil engineer"},
    {"txtCEmployer", "Limpopo Roads & Bridges (Pty) Ltd"},
    {"txtEducation", "BEng (Civil)"},
    {"txtDescription", "Referred by Mrs O'Brien"},
    {"txtCTelWork", "015 555 0142"},
    {"txtCTelHome", "015 555 0177"},
    {"txtCCell", "082 555 0163"},
    {"txtCEMail", "tj@thoho-ndou.example"},
};

constexpr Entry spouse[] = {
    {"txtSTitle", "Mrs"},
    {"txtSFName", "Renée"},
    {"txtSInit", "R."},
    {"txtSLName", "Ṱhoho-Nḓou"},
    {"dtSDOB", "30/09/1980"},
    {"txtSSinNum", "8009300123084"},
    {"txtSOccupation", "Pharmacist"},
    {"txtSCell", "083 555 0188"},
};

constexpr Entry addresses[] = {
    {"txtPAdd1", "P.O. Box 417"},  {"txtPAdd2", "Louis Trichardt"},        {"txtPAdd3", "Limpopo"},
    {"txtZipCode", "0920"},        {"txtBank", "First Savings Bank"},      {"txtBranch", "Makhado"},
    {"txtAccNo", "620 0417 2251"}, {"txtExecutors", "Êksteen & Partners"},
};

constexpr Entry dependants[] = {
    {"txtDepName(0)", "Mpho"},
    {"dtDepDOB1", "17/02/2009"},
    {"txtDepName(1)", "Naledi"},
    {"dtDepDOB2", "05/11/2012"},
};

constexpr Entry review[] = {
    {"dtReviewDate", "01/03/2027"},
    {"dtNextApp", "15/01/2027"},
    {"txtMemo", "Wants the bond paid off before Mpho finishes school. Compare a shorter period at the next meeting."},
};

constexpr Entry practiceLines[] = {
    {"sitxEdit1(0)", "Baobab Financial Planning"},
    {"sitxEdit1(1)", "12 Krogh Street, Louis Trichardt"},
    {"sitxEdit1(2)", "Tel. 015 555 0100"},
    {"sitxEdit2(0)", "Prepared by A. Êksteen, financial adviser, from the"},
};

} // namespace

void startAtEmptyFolder(Hands& hands) {
    say("The program starts in a folder with no clients.");
    hands.settle();
    check(hands.front() == nullptr, "a screen is open at the start");
    check(hands.record().ClientOnFile == 0, "there is a client at the start");
    picture(&hands.window(), "start");
}

void recordClient(Hands& hands) {
    say("File, New File: a client and the family.");
    hands.menu({"mnuFile", "mnuNewFile"});
    hands.expectFront("frmPersDet");
    hands.enter(client);
    hands.click("optCMaritalStat(2)");
    hands.click("optCSmoker(2)");
    picture(&hands.window(), "client");
    hands.enter(spouse);
    hands.click("optSMaritalStat(2)");
    hands.click("optSSmoker(2)");
    picture(&hands.window(), "spouse");
    hands.enter(addresses);
    hands.click("cmdCopyPtoR");
    check(hands.shown("txtResAdd1") == hands.shown("txtPAdd1"), "the postal address is not copied");
    picture(&hands.window(), "addresses");
    hands.enter(dependants);
    picture(&hands.window(), "dependants");
    hands.enter(review);
    picture(&hands.window(), "review");
    say("Client: " + QString::fromStdString(hands.record().client.Name));
}

void setPracticeLines(Hands& hands) {
    say("File, Prepared by details: the lines above and below each report.");
    hands.menu({"mnuFile", "mnuPrep"});
    hands.expectFront("frmHeadFoot");
    hands.enter(practiceLines);
    picture(&hands.window(), "practice");
    hands.desk().expect("Header/Footer Changes !", screenkit::Answer::yes);
    hands.click("cmdOk");
    hands.expectFront("frmPersDet");
}

void save(Hands& hands) {
    say("Ctrl+S saves.");
    hands.key(Qt::Key_S, Qt::ControlModifier);
    check(hands.record().ClientOnFile == 1, "the client is not on file after the save");
    check(hands.record().ClientChanged == 0, "the client still counts as changed after the save");
}

} // namespace tour
