#include "diary/frmMonthView.h"
#include "screenkit/combofield.h"
#include "screenkit/grid.h"
#include "shell/running_program.h"

namespace {

using diary::DayKind;
using screenkit::Answer;
using shelltest::RunningProgram;
using Lines = std::vector<QStringList>;

constexpr double today = 46348; // Sunday 22 November 2026

class Calendar : public testing::Test {
protected:
    Calendar() {
        run.inClients("INSERT INTO PersDetails (DCLNO, Name, CLName) VALUES (7, 'Mr P O''Brien', 'O''Brien'), (8, "
                      "'Ms A Êksteen', 'Êksteen')");
    }
    void open() {
        run.window().open("frmCalendar");
        RunningProgram::settle();
    }
    std::string in(const std::string& sql) { return shelltest::rowsOf(run.folder / "Diary.mdb", sql); }
    std::string entries() {
        return in(
            "SELECT [Time], [Diary Date], [Name], [Appointment details], [Real Sort Order], [Real Sort Order Time], "
            "DiaryDCLNO, [Type of Diary Entry] FROM DiaryDates ORDER BY [Real Sort Order], [Real Sort Order Time], "
            "rowid");
    }
    screenkit::Grid* grid() { return run.control<screenkit::Grid>("ListView1"); }
    Lines list() { return RunningProgram::cells(grid()); }
    diary::MonthView* month() { return run.control<diary::MonthView>("MonthView1"); }
    QWidget* push(const char* name) { return run.control<QWidget>(name); }
    void choose(const QString& combo, const QString& text) {
        run.enter(combo, text);
        QTest::keyClick(run.control<QWidget>(combo), Qt::Key_Tab);
        RunningProgram::settle();
    }
    void pick(int line) {
        grid()->pick({static_cast<std::size_t>(line)});
        RunningProgram::settle();
    }
    void write(const QString& time, const QString& name) {
        choose("cboSelectTime", time);
        run.type("txtDiaryName", name);
        run.click("cmdAddUpdateDD");
    }
    RunningProgram run;
};

TEST_F(Calendar, AddsEntriesOfClientsAndTypedNames) {
    open();
    EXPECT_FALSE(push("cmdAddUpdateDD")->isEnabled());
    EXPECT_FALSE(push("cmdEditDD")->isEnabled());
    choose("cboSelectTime", "12:30 pm"); // as typed, in any case
    choose("cboSelectDBName", "mr p o'brien");
    run.enter("txtAppointmentDetail", "Will; \"all\" of it");
    run.click("cmdAddUpdateDD");
    const std::string first = "12:30 PM|22/11/2026|Mr P O'Brien|Will; \"all\" of it|46348|119|7|Appointment";
    EXPECT_EQ(entries(), first);
    EXPECT_FALSE(push("cmdAddUpdateDD")->isEnabled());
    EXPECT_EQ(month()->kindAt(today), DayKind::appointment);
    choose("cboSelectTime", "08:00 AM");
    run.type("txtDiaryName", "Ṱhoho");
    run.click("optTypeDiaryEntry(2)");
    run.click("cmdAddUpdateDD");
    write("12:30 PM", "Second");
    EXPECT_EQ(entries(), "08:00 AM|22/11/2026|Ṱhoho||46348|101|0|To Do\n" + first +
                             "\n12:30 PM|22/11/2026|Second||46348|119|0|Appointment");
    EXPECT_EQ(list(), (Lines{{"08:00 AM", "Ṱhoho", "", "To Do"},
                             {"12:30 PM", "Mr P O'Brien", "Will; \"all\" of it", "Appointment"},
                             {"12:30 PM", "Second", "", "Appointment"}}));
    pick(1);
    run.click("cmdDelDD");
    EXPECT_EQ(list().size(), 2U);
    EXPECT_EQ(in("SELECT count(*) FROM DiaryDates"), "2");
}

TEST_F(Calendar, SaysWhatIsMissing) {
    open();
    const auto told = [&] { return run.desk.told([&] { run.click("cmdAddUpdateDD"); }).text; };
    const QString database = "A valid time must be selected and/or Database Name needs to be Selected.";
    choose("cboSelectTime", "");
    EXPECT_EQ(told(), "Please select valid time");
    EXPECT_EQ(run.desk.told([&] { choose("cboSelectTime", "noon"); }).text,
              "Please Select a valid time frm the drop down list!");
    EXPECT_EQ(run.focused(), "cboSelectTime");
    choose("cboSelectTime", "09:00 AM");
    EXPECT_EQ(told(), database); // neither source
    EXPECT_EQ(run.desk.told([&] { choose("cboSelectDBName", "Nobody"); }).text, "Name Not Selected");
    choose("cboSelectDBName", "Ms A Êksteen");
    run.type("txtDiaryName", "x");
    run.type("txtDiaryName", "");
    EXPECT_EQ(told(), database); // its name is cleared, and the other not chosen again
    run.expectRefused("txtDateSelected", "31/02/2026",
                      "The date entered is in the wrong format\nPlease use the dd/mm/yyyy format.", "Error");
    run.type("txtDateSelected", "23/11/2026");
    EXPECT_EQ(entries(), "");
}

TEST_F(Calendar, EditsAndMovesEntries) {
    open();
    write("08:00 AM", "One");
    write("09:00 AM", "Two");
    pick(0);
    run.click("cmdEditDD");
    EXPECT_EQ(run.control<QAbstractButton>("cmdAddUpdateDD")->text(), "&Update Diary Entry");
    for (const char* name : {"cmdEditDD", "cmdCutMove", "cmdDelDD", "cmdSaveDD"})
        EXPECT_FALSE(push(name)->isEnabled()) << name;
    EXPECT_EQ(run.shown("txtDiaryName"), "One");
    choose("cboSelectTime", "10:00 AM");
    run.click("cmdAddUpdateDD");
    EXPECT_EQ(list(), (Lines{{"09:00 AM", "Two", "", "Appointment"}, {"10:00 AM", "One", "", "Appointment"}}));
    pick(0); // to another day, in one step
    run.click("cmdEditDD");
    run.type("txtDateSelected", "26/11/2026");
    EXPECT_EQ(list(), Lines{});
    EXPECT_EQ(in("SELECT count(*) FROM DiaryDates"), "2");
    run.click("cmdAddUpdateDD");
    EXPECT_EQ(in("SELECT [Name], [Diary Date], [Real Sort Order] FROM DiaryDates ORDER BY [Real Sort Order]"),
              "One|22/11/2026|46348\nTwo|26/11/2026|46352");
    EXPECT_EQ(list(), (Lines{{"09:00 AM", "Two", "", "Appointment"}}));
    EXPECT_EQ(month()->kindAt(today + 4), DayKind::appointment);

    pick(0);
    run.click("cmdCutMove");
    EXPECT_EQ(in("SELECT [Name] FROM DiaryDates"), "One"); // it is only in the form now
    EXPECT_FALSE(grid()->isEnabled());
    run.menu("mnuActPending"); // what is half done stays
    EXPECT_EQ(list(), (Lines{{"22/11/2026", "10:00 AM", "One", "", "Appointment"}}));
    open();
    EXPECT_EQ(run.shown("txtDiaryName"), "Two");
    run.click("cmdNextDay");
    run.click("cmdAddUpdateDD");
    EXPECT_EQ(in("SELECT [Name], [Diary Date] FROM DiaryDates WHERE [Real Sort Order]=46353"), "Two|27/11/2026");
    EXPECT_TRUE(grid()->isEnabled());
    pick(0);
    run.click("cmdCutMove"); // and back to its own day
    run.click("cmdAddUpdateDD");
    EXPECT_EQ(list(), (Lines{{"09:00 AM", "Two", "", "Appointment"}}));
    pick(0);
    run.click("cmdCutMove");
    run.front()->parentWidget()->close(); // an entry in the form only is lost
    EXPECT_EQ(in("SELECT [Name] FROM DiaryDates"), "One");
}

TEST_F(Calendar, KeepsWhatItDoesNotOfferAndWhatItCouldNotWrite) {
    in("INSERT INTO DiaryDates VALUES ('07:00 AM', '22/11/2026', 'Ms A Êksteen', NULL, 46348, 97, 7, 'Golf')");
    open();
    pick(0);
    run.click("cmdEditDD");
    EXPECT_EQ(run.shown("txtDiaryName"), "Ms A Êksteen"); // that name is client 8: a typed name
    run.enter("txtAppointmentDetail", "bring shoes");
    in("CREATE TRIGGER stop BEFORE DELETE ON DiaryDates BEGIN SELECT RAISE(ABORT, 'no'); END");
    run.desk.told([&] { run.click("cmdAddUpdateDD"); });
    EXPECT_EQ(run.control<QPlainTextEdit>("txtAppointmentDetail")->toPlainText(), "bring shoes");
    in("DROP TRIGGER stop");
    run.click("cmdAddUpdateDD");
    EXPECT_EQ(entries(), "07:00 AM|22/11/2026|Ms A Êksteen|bring shoes|46348|97|0|Golf");
}

TEST_F(Calendar, SetsUpTypes) {
    open();
    EXPECT_FALSE(push("optTypeDiaryEntry(4)")->isEnabled());
    run.desk.typed = "Golf & lunch";
    run.click("Label1(7)");
    EXPECT_EQ(run.desk.asking.value(1), "U.D.D.E. 2");
    EXPECT_TRUE(push("optTypeDiaryEntry(4)")->isEnabled());
    run.click("optTypeDiaryEntry(4)");
    write("08:00 AM", "n");
    EXPECT_EQ(in("SELECT [Type of Diary Entry] FROM DiaryDates"), "Golf & lunch");
    run.desk.typed.reset();
    EXPECT_EQ(run.desk.asked(Answer::no, [&] { run.click("Label1(7)"); }).title, "Setup of User Defined Diary Entries");
    EXPECT_EQ(in("SELECT UDDEYesNo FROM Type_Diary_Apps"), "1");
    run.desk.typed = " ";
    run.desk.asked(Answer::yes, [&] { run.click("Label1(7)"); });
    EXPECT_EQ(in("SELECT * FROM Type_Diary_Apps"), "U.D.D.E. 2|2|0");
    EXPECT_FALSE(push("optTypeDiaryEntry(4)")->isEnabled());
}

TEST_F(Calendar, GoesFromDayToDay) {
    in("INSERT INTO DiaryDates VALUES ('x', '', 'n', '', 46410, 101, 0, '')"); // 23 January 2027
    open();
    const auto at = [&] { return run.shown("txtDateSelected"); };
    run.click("cmdPrevDay");
    EXPECT_EQ(at(), "21/11/2026");
    run.click("cmdGotoToDay");
    EXPECT_EQ(at(), "22/11/2026");
    run.type("DTPicker1", "23/01/2027");
    EXPECT_EQ(list().size(), 0U);
    run.click("cmdGoToDate");
    EXPECT_EQ(at(), "23/01/2027");
    EXPECT_EQ(list().size(), 1U);
    EXPECT_EQ(month()->kindAt(46388), DayKind::holiday); // 1 January is shown now
    month()->setFocus();
    for (const auto& [key, date] : {std::pair{Qt::Key_PageUp, "23/12/2026"},
                                    {Qt::Key_End, "31/12/2026"},
                                    {Qt::Key_Right, "01/01/2027"},
                                    {Qt::Key_Up, "25/12/2026"},
                                    {Qt::Key_Home, "01/12/2026"},
                                    {Qt::Key_Left, "30/11/2026"},
                                    {Qt::Key_PageDown, "30/12/2026"},
                                    {Qt::Key_Down, "06/01/2027"},
                                    {Qt::Key_End, "31/01/2027"},
                                    {Qt::Key_PageDown, "28/02/2027"}}) {
        RunningProgram::key(key);
        EXPECT_EQ(at(), date);
    }
    const QRect sunday = month()->placeOf(46430); // 12 February, a Friday
    month()->setFirstDay(1);
    EXPECT_EQ(month()->placeOf(46430).x(), sunday.x() - sunday.width());
    run.click("Option2(2)");
    EXPECT_EQ(month()->kindAt(46504), DayKind::holiday); // 27 April, two months on
}

TEST_F(Calendar, NeedsItsDiaryButNoClients) {
    run.window().open("frmCRM");
    std::filesystem::remove(run.folder / "Data.Mdb");
    RunningProgram::settle();
    run.click("cmdCalendar");
    EXPECT_TRUE(run.isOpen("frmCalendar"));
    run.front()->parentWidget()->close();
    RunningProgram::settle();
    std::filesystem::remove(run.folder / "Diary.mdb");
    run.desk.told([&] { run.click("cmdCalendar"); });
    EXPECT_FALSE(run.isOpen("frmCalendar"));
    EXPECT_FALSE(std::filesystem::exists(run.folder / "Diary.mdb"));
    run.click("cmdDiary");
    run.type("DTPicker1", "05/12/2026");
    EXPECT_EQ(month()->day(), today + 13);
    QTest::mouseClick(month(), Qt::LeftButton, {}, month()->placeOf(today + 24).center());
    EXPECT_EQ(run.shown("DTPicker1"), "16/12/2026");
}

} // namespace
