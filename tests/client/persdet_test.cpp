#include <QLabel>
#include <QRadioButton>
#include <map>

#include "client/bound_controls.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using namespace clienttest;
using shelltest::RunningProgram;

/// Goes through the columns: a text of its own for each, as long as the field takes, or a date after 1 January 2000.
std::vector<BoundControl> allControls() {
    const std::map<QString, QString> otherNames{{"IDNumber", "txtIDNum"},       {"CEducation", "txtEducation"},
                                                {"SSinNum0", "txtSSinNum"},     {"PAddZip", "txtZipCode"},
                                                {"CExecutors", "txtExecutors"}, {"Comments", "txtMemo"},
                                                {"CBank", "txtBank"},           {"CBranch", "txtBranch"},
                                                {"CAccNo", "txtAccNo"},         {"BirthDate", "dtCDOB"}};
    std::vector<BoundControl> all;
    double day = 36526;
    for (const auto& line : assessment::persDetailsTable().fields()) {
        const QString field = QString::fromStdString(line.name);
        const bool isDate = line.kind.declared.type == store::Type::Date;
        QString control = (isDate ? "dt" : "txt") + field;
        if (const auto other = otherNames.find(field); other != otherNames.end()) control = other->second;
        if (field.startsWith("DEPDOB")) control = "dtDepDOB" + field.right(1);
        if (field.startsWith("DEP") && !isDate) control = QString("txtDepName(%1)").arg(field.back().digitValue() - 1);
        const QString text = (field.right(8) + "ê").leftJustified(line.kind.declared.size, 'x', true);
        if (isDate)
            all.push_back({&line, control, QString::fromStdString(base::formatDate(day += 400)), day});
        else
            all.push_back({&line, control, text, text.toStdString()});
    }
    return all;
}

/// The screen in front, on a new client.
class PersDet : public testing::Test {
protected:
    PersDet() { run.menu("mnuNewFile"); }
    std::string printed(const std::string& field) { return run.inPrint("SELECT [" + field + "] FROM [PersDetails]"); }
    void print(bool withNotes) {
        run.click("cmdPrint");
        EXPECT_TRUE(run.control("fraPrint")->isVisible());
        if (withNotes) run.click("Check3");
        run.click("cmdVR");
        EXPECT_FALSE(run.control("fraPrint")->isVisible());
    }
    assessment::PersonalDetails& details() { return run.record().details; }
    RunningProgram run;
};

TEST_F(PersDet, EveryControlHoldsItsFieldOnScreenInTheRecordTheReportAndTheFile) {
    EXPECT_EQ(run.front()->windowTitle(), "Personal details :");
    auto controls = allControls();
    keepThoseOn(run.front(), controls);
    EXPECT_GE(controls.size(), 61u);
    for (const BoundControl& each : controls)
        run.type(each.control, each.text + (std::holds_alternative<double>(each.held) ? "" : "no room for this"));
    run.click("optSMaritalStat(4)");
    run.click("optCSmoker(2)");
    expectHeld(controls, run.record());
    EXPECT_EQ(run.record().changed.PersDetChanged, 1);

    run.menu("mnuSave");
    run.menu("mnuNewFile");
    for (const BoundControl& each : controls)
        EXPECT_EQ(textIn(run.control(each.control)), "") << each.field->name;
    run.loadClient("name");
    for (const BoundControl& each : controls)
        EXPECT_EQ(textIn(run.control(each.control, "frmPersDet")), each.text) << each.field->name;
    EXPECT_EQ(run.record().changed.PersDetChanged, 0);

    print(true);
    for (const BoundControl& each : controls)
        EXPECT_EQ(printed(each.field->name), each.text.toStdString()) << each.field->name;
    EXPECT_EQ(run.inPrint("SELECT [Name],[CMaritalStat],[SMaritalStat],[CSmoker],[SSmoker] FROM [PersDetails]"),
              run.record().client.Name + "|Widow/er|Married COP|Never smoked|Smoker");
    ASSERT_EQ(run.program.reports().previews().size(), 1u);
    EXPECT_EQ(run.program.reports().previews()[0]->windowTitle(), "Personal Details ");
    EXPECT_EQ(run.program.reports().previews()[0]->report().content.title, "Personal details");
}

TEST_F(PersDet, TheNameStandsInTheStatusBarAtEachKey) {
    run.enter("txtCLName", "O'Br");
    EXPECT_EQ(run.clientName(), "  O'Br"); // before the field is left
    run.type("txtCTitle", " Mr ");
    run.type("txtCInit", "P J ");
    run.type("txtCFName", "Patrick"); // no part of the name
    EXPECT_EQ(run.clientName(), "Mr P J O'Br");
    EXPECT_EQ(run.record().client.Name, "Mr P J O'Br");
    run.type("txtCLName", "<b>&\"x\"");
    EXPECT_EQ(run.clientName(), "Mr P J <b>&\"x\"");
}

TEST_F(PersDet, OptionsKeepTheirIndexAndStartAsTheRecordDoes) {
    const QStringList marital{"Single", "Widow/er", "M. ANC with Accrual", "M. ANC w/out Accrual", "Married COP"};
    const QStringList smoker{"Smoker", "Not smoked for 2 years", "Never smoked"};
    using Details = assessment::PersonalDetails;
    for (const auto& [group, captions, place, atFirst] :
         {std::tuple{QString("optCMaritalStat"), marital, &Details::CMaritalStat, 1},
          {"optSMaritalStat", marital, &Details::SMaritalStat, 0},
          {"optCSmoker", smoker, &Details::CSmoker, 0},
          {"optSSmoker", smoker, &Details::SSmoker, 0}}) {
        const auto option = [&](qsizetype index) { return QString("%1(%2)").arg(group).arg(index); };
        for (int i = 0; i < captions.size(); ++i) {
            EXPECT_EQ(run.control<QRadioButton>(option(i))->text(), captions[i]);
            EXPECT_EQ(run.control<QRadioButton>(option(i))->isChecked(), i == atFirst) << option(i).toStdString();
        }
        EXPECT_EQ(run.front()->findChild<QRadioButton*>(option(captions.size())), nullptr);
        for (auto i = captions.size() - 1; i >= 0; --i) {
            run.click(option(i));
            EXPECT_EQ(details().*place, i) << group.toStdString();
        }
    }
    EXPECT_TRUE(run.control<QRadioButton>("optActiveClientOther")->isChecked());
    EXPECT_EQ(run.control<QRadioButton>("optActiveClientOther")->text(), "Active client");
    run.click("optDeceased");
    EXPECT_EQ(details().Deceased, 1);
    run.click("optActiveClientOther");
    EXPECT_EQ(details().Deceased, 0);
    EXPECT_EQ(run.record().changed.PersDetChanged, 1);
}

TEST_F(PersDet, CopiesThePostalAddressToTheResidentialOne) {
    run.typeAll("txtPAdd1 Posbus 12, txtPAdd2 Ermelo, txtResAdd3 what stood there, txtZipCode 2350");
    auto* copy = run.control<QAbstractButton>("cmdCopyPtoR");
    EXPECT_EQ(copy->text().remove('&'), "Copy Postal Address to Residential Address :");
    run.click("cmdCopyPtoR");
    EXPECT_EQ(run.shown("txtResAdd1"), "Posbus 12");
    EXPECT_EQ(details().ResAdd2, "Ermelo");
    EXPECT_EQ(details().ResAdd3, "");
}

TEST_F(PersDet, ADateOfBirthThatIsHardlyOneIsAskedAboutOnceAndTaken) {
    for (const char* name : {"dtCDOB", "dtSDOB", "dtDepDOB8"})
        for (const auto& [typed, remark] :
             {std::pair{"05/03/28", "Born in the future ?"}, {"01/01/1900", "More than 120 years old ?"}}) {
            run.desk.expect(Answer::ok);
            run.type(name, typed);
            EXPECT_EQ(run.desk.last().text, remark);
            EXPECT_NE(run.focused(), name);
        }
    EXPECT_EQ(run.record().client.BirthDate, 2);
    run.type("dtCDOB", "22/11/2026"); // today
    run.menu("mnuPolInvests");
    run.menu("mnuPersDet");
    run.click("cmOk");
    EXPECT_EQ(run.desk.boxes.size(), 6u);
}

TEST_F(PersDet, AnIDNumberOffersItsDateOfBirthAndSaysWhereTheTwoDiffer) {
    for (const auto& [number, birth, said, button] : {std::tuple{"txtIDNum", "dtCDOB", "lblCIDRemark", "cmdCUseIDDate"},
                                                      {"txtSSinNum", "dtSDOB", "lblSIDRemark", "cmdSUseIDDate"}}) {
        auto* remark = run.control<QLabel>(said);
        auto* take = run.control<QAbstractButton>(button);
        run.type(number, "8001015009087");
        EXPECT_EQ(remark->text(), "Born on 01/01/1980 by the ID number.");
        EXPECT_EQ(run.control<QLineEdit>(number)->accessibleDescription(), remark->text());
        run.click(button);
        EXPECT_EQ(run.shown(birth), "01/01/1980");
        EXPECT_FALSE(remark->isVisible() || take->isVisible());
        run.type(birth, "02/01/1980");
        EXPECT_EQ(remark->text(), "By the ID number the date of birth is 01/01/1980.");
        EXPECT_TRUE(remark->isVisible() && !take->isVisible());
        run.type(number, "another country's");
        EXPECT_FALSE(remark->isVisible());
    }
    EXPECT_EQ(run.record().client.BirthDate, 29222);
    EXPECT_EQ(details().SDOB, 29222);
}

TEST_F(PersDet, PrintsABlankForNoDateAndNoNotesUnlessAskedFor) {
    run.type("txtMemo", "confidential");
    run.desk.expect(Answer::ok);
    run.type("dtSDOB", "02/01/1800"); // fills the field, but prints as a blank
    print(false);
    EXPECT_EQ(printed("Comments"), "");
    for (const BoundControl& each : allControls()) {
        if (!std::holds_alternative<double>(each.held)) continue;
        EXPECT_EQ(printed(each.field->name), " ") << each.field->name;
    }
    run.record().changed.PersDetChanged = 0;
    print(true);
    EXPECT_EQ(run.inPrint("SELECT count(*), [Comments] FROM [PersDetails]"), "1|confidential");
    EXPECT_EQ(run.record().changed.PersDetChanged, 0);
}

} // namespace
