#include <gtest/gtest.h>

#include <QLabel>
#include <QRadioButton>
#include <sstream>

#include "assessment/tables.h"
#include "reports/export.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

struct Control {
    std::string name;
    std::string field;
};

std::vector<Control> textControls() {
    std::vector<Control> all{
        {"txtIDNum", "IDNumber"},  {"txtEducation", "CEducation"}, {"txtSSinNum", "SSinNum0"},
        {"txtZipCode", "PAddZip"}, {"txtExecutors", "CExecutors"}, {"txtMemo", "Comments"},
        {"txtBank", "CBank"},      {"txtBranch", "CBranch"},       {"txtAccNo", "CAccNo"},
    };
    std::istringstream sameNames("CTitle CFName CInit CLName COccupation CEmployer CTelWork CTelHome CFaxWork CFaxHome "
                                 "CCell CEMail STitle SFName SInit SLName SOccupation SEmployer SEducation STelWork "
                                 "STelHome SFaxWork SFaxHome SCell SEMail PAdd1 PAdd2 PAdd3 ResAdd1 ResAdd2 ResAdd3 "
                                 "Description");
    for (std::string field; sameNames >> field;)
        all.push_back({"txt" + field, field});
    for (int i = 0; i < 8; ++i)
        all.push_back({"txtDepName(" + std::to_string(i) + ")", "DEP" + std::to_string(i + 1)});
    return all;
}

std::vector<Control> dateControls() {
    std::vector<Control> all{
        {"dtCDOB", "BirthDate"}, {"dtSDOB", "SDOB"}, {"dtReviewDate", "ReviewDate"}, {"dtNextApp", "NextApp"}};
    for (int i = 1; i <= 8; ++i)
        all.push_back({"dtDepDOB" + std::to_string(i), "DEPDOB" + std::to_string(i)});
    return all;
}

const assessment::FieldLine& line(const Control& control) {
    return *assessment::persDetailsTable().field(control.field);
}

store::Value inRecord(RunningProgram& run, const Control& control) {
    return assessment::valueAt(line(control).at(&run.record()));
}

QString textFor(const Control& control) { return QString::fromStdString(control.field).right(8) + "ê"; }

QString textOf(RunningProgram& run, const Control& control) {
    auto* widget = run.control<QWidget>(QString::fromStdString(control.name), "frmPersDet");
    if (auto* memo = qobject_cast<QPlainTextEdit*>(widget)) return memo->toPlainText();
    return qobject_cast<QLineEdit*>(widget)->text();
}

/// Types something of its own into every text and date control. Returns the dates typed, by control.
std::vector<std::pair<Control, double>> typeAll(RunningProgram& run) {
    for (const Control& control : textControls())
        run.type(QString::fromStdString(control.name), textFor(control));
    std::vector<std::pair<Control, double>> dates;
    double day = 36526; // 1 January 2000
    for (const Control& control : dateControls()) {
        run.type(QString::fromStdString(control.name), QString::fromStdString(base::formatDate(day)));
        dates.emplace_back(control, day);
        day += 400;
    }
    return dates;
}

void choose(RunningProgram& run, const QString& option) {
    auto* button = run.control<QRadioButton>(option);
    RunningProgram::turnTo(button);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

TEST(PersDet, EveryControlHoldsItsFieldOnScreenInTheRecordAndInTheFile) {
    RunningProgram run;
    run.menu("mnuNewFile");
    EXPECT_EQ(run.front()->windowTitle(), "Personal details :");
    const auto dates = typeAll(run);
    for (const Control& control : textControls())
        EXPECT_EQ(inRecord(run, control), store::Value(textFor(control).toStdString())) << control.name;
    for (const auto& [control, day] : dates)
        EXPECT_EQ(inRecord(run, control), store::Value(day)) << control.name;
    EXPECT_EQ(run.record().changed.PersDetChanged, 1);

    run.menu("mnuSave");
    run.menu("mnuNewFile");
    for (const Control& control : textControls())
        EXPECT_EQ(textOf(run, control), "") << control.name;
    run.menu("mnuBrowse");
    run.enter("txtSearch", "name");
    run.key(Qt::Key_Return);
    for (const Control& control : textControls())
        EXPECT_EQ(textOf(run, control), textFor(control)) << control.name;
    for (const auto& [control, day] : dates)
        EXPECT_EQ(textOf(run, control).toStdString(), base::formatDate(day)) << control.name;
    EXPECT_EQ(run.record().changed.PersDetChanged, 0);
}

TEST(PersDet, NoControlTakesMoreThanItsFieldHolds) {
    RunningProgram run;
    run.menu("mnuNewFile");
    for (const Control& control : textControls()) {
        if (control.name == "txtMemo") continue;
        const int size = line(control).kind.declared.size;
        run.type(QString::fromStdString(control.name), QString(size, 'x') + "yz");
        EXPECT_EQ(inRecord(run, control), store::Value(std::string(static_cast<std::size_t>(size), 'x')))
            << control.name;
    }
    auto* memo = run.control<QPlainTextEdit>("txtMemo");
    RunningProgram::turnTo(memo);
    memo->insertPlainText(QString(1999, 'x'));
    run.keys(memo, "yz");
    EXPECT_EQ(run.record().details.Comments, std::string(1999, 'x') + "y");
}

TEST(PersDet, TheNameStandsInTheStatusBarAtEachKey) {
    RunningProgram run;
    run.menu("mnuNewFile");
    run.enter("txtCLName", "");
    const std::string surname = "O'Br";
    for (std::size_t i = 0; i < surname.size(); ++i) {
        QTest::keyClick(run.control("txtCLName"), surname[i]);
        EXPECT_EQ(run.clientName(), "  " + surname.substr(0, i + 1));
    }
    run.type("txtCTitle", " Mr ");
    run.type("txtCInit", "P J ");
    run.type("txtCFName", "Patrick"); // no part of the name
    EXPECT_EQ(run.clientName(), "Mr P J O'Br");
    EXPECT_EQ(run.record().client.Name, "Mr P J O'Br");
    run.type("txtCLName", "<b>&\"x\"");
    EXPECT_EQ(run.clientName(), "Mr P J <b>&\"x\"");
}

TEST(PersDet, OptionsKeepTheirIndexAndStartAsTheRecordDoes) {
    const QStringList marital{"Single", "Widow/er", "M. ANC with Accrual", "M. ANC w/out Accrual", "Married COP"};
    const QStringList smoker{"Smoker", "Not smoked for 2 years", "Never smoked"};
    struct Group {
        const char* name;
        const QStringList& captions;
        std::int16_t assessment::PersonalDetails::*place;
        int atFirst;
    };
    using Details = assessment::PersonalDetails;
    const std::vector<Group> groups{{"optCMaritalStat", marital, &Details::CMaritalStat, 1},
                                    {"optSMaritalStat", marital, &Details::SMaritalStat, 0},
                                    {"optCSmoker", smoker, &Details::CSmoker, 0},
                                    {"optSSmoker", smoker, &Details::SSmoker, 0}};
    RunningProgram run;
    run.menu("mnuNewFile");
    for (const Group& group : groups) {
        for (int i = 0; i < group.captions.size(); ++i) {
            const QString name = QString("%1(%2)").arg(group.name).arg(i);
            EXPECT_EQ(run.control<QRadioButton>(name)->text(), group.captions[i]);
            EXPECT_EQ(run.control<QRadioButton>(name)->isChecked(), i == group.atFirst) << name.toStdString();
        }
        EXPECT_EQ(run.front()->findChild<QRadioButton*>(QString("%1(%2)").arg(group.name).arg(group.captions.size())),
                  nullptr);
        for (int i = static_cast<int>(group.captions.size()) - 1; i >= 0; --i) {
            choose(run, QString("%1(%2)").arg(group.name).arg(i));
            EXPECT_EQ(run.record().details.*group.place, i) << group.name;
        }
    }
    EXPECT_TRUE(run.control<QRadioButton>("optActiveClientOther")->isChecked());
    EXPECT_EQ(run.control<QRadioButton>("optActiveClientOther")->text(), "Active client");
    choose(run, "optDeceased");
    EXPECT_EQ(run.record().details.Deceased, 1);
    choose(run, "optActiveClientOther");
    EXPECT_EQ(run.record().details.Deceased, 0);
    EXPECT_EQ(run.record().changed.PersDetChanged, 1);
}

TEST(PersDet, CopiesThePostalAddressToTheResidentialOne) {
    RunningProgram run;
    run.menu("mnuNewFile");
    run.type("txtPAdd1", "Posbus 12");
    run.type("txtPAdd2", "Ermelo");
    run.type("txtResAdd3", "what stood there");
    run.type("txtZipCode", "2350");
    auto* copy = run.control<QAbstractButton>("cmdCopyPtoR");
    EXPECT_EQ(copy->text().remove('&'), "Copy Postal Address to Residential Address :");
    run.click("cmdCopyPtoR");
    EXPECT_EQ(run.shown("txtResAdd1"), "Posbus 12");
    EXPECT_EQ(run.record().details.ResAdd2, "Ermelo");
    EXPECT_EQ(run.record().details.ResAdd3, "");
}

std::string printed(RunningProgram& run, const std::string& field) {
    return run.inPrint("SELECT [" + field + "] FROM [PersDetails]");
}

TEST(PersDetReport, FeedsOneRowWithEveryField) {
    RunningProgram run;
    run.menu("mnuNewFile");
    const auto dates = typeAll(run);
    choose(run, "optSMaritalStat(4)");
    choose(run, "optCSmoker(2)");
    run.click("cmdPrint");
    EXPECT_TRUE(run.control("fraPrint")->isVisible());
    run.click("Check3");
    run.click("cmdVR");
    EXPECT_FALSE(run.control("fraPrint")->isVisible());
    for (const Control& control : textControls())
        EXPECT_EQ(printed(run, control.field), textFor(control).toStdString()) << control.field;
    for (const auto& [control, day] : dates)
        EXPECT_EQ(printed(run, control.field), base::formatDate(day)) << control.field;
    EXPECT_EQ(run.inPrint("SELECT [Name],[CMaritalStat],[SMaritalStat],[CSmoker],[SSmoker] FROM [PersDetails]"),
              "CTitleê CInitê CLNameê|Widow/er|Married COP|Never smoked|Smoker");
    ASSERT_EQ(run.program.reports().previews().size(), 1u);
    EXPECT_EQ(run.program.reports().previews()[0]->windowTitle(), "Personal Details ");
    EXPECT_EQ(run.program.reports().previews()[0]->report().content.title, "Personal details");
}

TEST(PersDet, ADateOfBirthThatIsHardlyOneIsAskedAboutOnceAndTaken) {
    RunningProgram run;
    run.menu("mnuNewFile");
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

TEST(PersDet, AnIDNumberOffersItsDateOfBirthAndSaysWhereTheTwoDiffer) {
    RunningProgram run;
    run.menu("mnuNewFile");
    struct Person {
        const char *number, *birth, *remark, *take;
    };
    for (const Person& who : {Person{"txtIDNum", "dtCDOB", "lblCIDRemark", "cmdCUseIDDate"},
                              {"txtSSinNum", "dtSDOB", "lblSIDRemark", "cmdSUseIDDate"}}) {
        auto* remark = run.control<QLabel>(who.remark);
        auto* take = run.control<QAbstractButton>(who.take);
        run.type(who.number, "8001015009087");
        EXPECT_EQ(remark->text(), "Born on 01/01/1980 by the ID number.");
        EXPECT_EQ(run.control<QLineEdit>(who.number)->accessibleDescription(), remark->text());
        run.click(who.take);
        EXPECT_EQ(run.shown(who.birth), "01/01/1980");
        EXPECT_FALSE(remark->isVisible() || take->isVisible());
        run.type(who.birth, "02/01/1980");
        EXPECT_EQ(remark->text(), "By the ID number the date of birth is 01/01/1980.");
        EXPECT_TRUE(remark->isVisible() && !take->isVisible());
        run.type(who.number, "another country's");
        EXPECT_FALSE(remark->isVisible());
    }
    EXPECT_EQ(run.record().client.BirthDate, 29222);
    EXPECT_EQ(run.record().details.SDOB, 29222);
}

TEST(PersDetReport, PrintsABlankForNoDateAndNoNotesUnlessAskedFor) {
    RunningProgram run;
    run.menu("mnuNewFile");
    run.type("txtMemo", "confidential");
    run.desk.expect(Answer::ok);
    run.type("dtSDOB", "02/01/1800"); // fills a control and prints as none
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(printed(run, "Comments"), "");
    for (const Control& control : dateControls())
        EXPECT_EQ(printed(run, control.field), " ") << control.field;

    run.click("cmdPrint");
    run.click("Check3");
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT count(*), [Comments] FROM [PersDetails]"), "1|confidential");
    EXPECT_EQ(run.record().changed.PersDetChanged, 1);
}

} // namespace
