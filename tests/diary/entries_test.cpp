#include "diary/entries.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <thread>

#include "base/day.h"
#include "store/store_support.h"

namespace {

namespace fs = std::filesystem;
using namespace diary;
using storetest::rowsOf;

std::string kindsOf(const std::vector<DayKind>& kinds) {
    std::string digits;
    for (const DayKind kind : kinds)
        digits += std::to_string(static_cast<int>(kind));
    return digits;
}

// A digit for each day of the month, worked out by a separate program from a calendar and the table of holidays.
TEST(DayKinds, FollowTheFixedTable) {
    const std::tuple<int, int, std::string> cases[] = {
        {2022, 12, "0011000001100002110000012300001"}, // Sunday 25: the 26th is kind 3, a holiday no more
        {2021, 12, "0001100000110002011000002230000"}, // Sunday 26: the 27th
        {2026, 4, "000110000011200201100000112000"},   // 13 and 16 April, whatever Easter is in 2026
        {2024, 2, "00110000011000001100000110000"},    // a leap year
        {2023, 1, "2300001100000110000011000001100"},  // Sunday 1 January
        {2026, 8, "1100000123000011000001100000110"},
    };
    for (const auto& [year, month, kinds] : cases)
        EXPECT_EQ(kindsOf(dayKinds(year, month)), kinds) << year << "-" << month;
    EXPECT_EQ(weekDay(-1), 5); // 29 December 1899, a Friday
    EXPECT_EQ(later({2026, 11}, 2), (Month{2027, 1}));
    EXPECT_EQ(later({2026, 1}, -1), (Month{2025, 12}));
    EXPECT_EQ(later({9999, 12}, 1), (Month{9999, 12}));
}

TEST(DiaryTimes, AreQuarterHours) {
    EXPECT_EQ(times().size(), 41U);
    for (const auto& [number, text] : std::vector<std::pair<int, std::string>>{{101, "08:00 AM"},
                                                                               {102, "08:15 AM"},
                                                                               {116, "11:45 AM"},
                                                                               {117, "12:00 PM"},
                                                                               {119, "12:30 PM"},
                                                                               {121, "01:00 PM"},
                                                                               {141, "06:00 PM"}}) {
        EXPECT_EQ(times().at(static_cast<std::size_t>(number - 101)), text);
        EXPECT_EQ(timeNumber(static_cast<std::size_t>(number - 101)), number);
    }
}

class Diary : public testing::Test {
protected:
    Diary() { fs::copy_file(fs::path(MARLOWBECK_DATABASE_DIR) / "Diary.mdb", file); }
    std::string in(const std::string& sql) const { return rowsOf(file, sql); }
    void run(const std::string& sql) const {
        store::Database database(file);
        database.execute(sql);
    }
    storetest::Folder folder;
    const fs::path file = folder / "Diary.mdb";
    const double day = *base::dayNumber(2026, 11, 24);
};

TEST_F(Diary, ReplacesAWholeDayAndKeepsWhatNobodyTouched) {
    run("INSERT INTO DiaryDates VALUES ('long before', NULL, NULL, NULL, 46350, 150.5, NULL, 'Golf'),"
        "('08:15 AM', '24/11/2026', 'X', 'y', 46350, 102, 7, 'To Do'), ('other', '', '', '', 46351, 101, 0, '')");
    ASSERT_EQ(day, 46350);
    std::vector<Entry> entries = readDay(file, day);
    ASSERT_EQ(entries.size(), 2U);
    entries.push_back(makeEntry(day, 1, "Mr P O'Brien", 3, "fees; \"all\"", appointment));
    entries.push_back(makeEntry(day, 0, "Ṱhoho-Nḓou", 0, "", birthday));
    SaveDiaryAppoints(file, day, entries);
    const std::string expected = "08:00 AM|24/11/2026|Ṱhoho-Nḓou||46350|101|0|Birthday\n"
                                 "08:15 AM|24/11/2026|X|y|46350|102|7|To Do\n"
                                 "08:15 AM|24/11/2026|Mr P O'Brien|fees; \"all\"|46350|102|3|Appointment\n"
                                 "long before||||46350|150.5||Golf";
    EXPECT_EQ(in("SELECT * FROM DiaryDates WHERE [Real Sort Order]=46350 ORDER BY [Real Sort Order Time], rowid"),
              expected);
    EXPECT_EQ(in("SELECT count(*) FROM DiaryDates WHERE [Name] IS NULL"), "1");
    sortByTime(entries);
    EXPECT_EQ(readDay(file, day), entries);
    EXPECT_TRUE(readDay(file, day + 2).empty());
    EXPECT_EQ(readFrom(file, day).size(), 5U);
    EXPECT_EQ(readFrom(file, day + 1).size(), 1U);

    const Entry moved = makeEntry(day + 1, 4, "Mr P O'Brien", 3, "", appointment);
    entries.erase(entries.begin() + 2);
    run("CREATE TRIGGER stop BEFORE INSERT ON DiaryDates WHEN new.[Time]='09:00 AM' BEGIN SELECT RAISE(ABORT,'no'); "
        "END");
    EXPECT_NE(storetest::errorOf([&] { moveEntry(file, day, entries, moved); }), 0);
    EXPECT_EQ(readDay(file, day).size(), 4U); // both days as they were
    run("DROP TRIGGER stop");
    moveEntry(file, day, entries, moved);
    EXPECT_EQ(readDay(file, day), entries);
    SaveMovedDiaryAppoint(file, moved);
    EXPECT_EQ(in("SELECT [Time] FROM DiaryDates WHERE [Real Sort Order]=46351"), "other\n09:00 AM\n09:00 AM");
}

TEST_F(Diary, MarksTheDaysOfAMonth) {
    const auto add = [&](double on, std::size_t time, const char* type) {
        SaveMovedDiaryAppoint(file, makeEntry(on, time, "n", 0, "", type));
    };
    const double first = *base::dayNumber(2026, 12, 1), christmas = first + 24;
    add(first - 1, 0, appointment);
    add(first, 9, birthday); // the last by time wins, not the last added
    add(first, 3, appointment);
    add(first + 1, 0, appointment);
    add(first + 2, 0, toDo);
    add(christmas, 0, birthday); // wins over a holiday
    add(first + 30, 5, appointment);
    add(first + 31, 0, birthday);
    EXPECT_EQ(kindsOf(ColorAppDates(file, {2026, 12})), "5400110000011002001100005210004");
}

TEST_F(Diary, KeepsThreeTypesOfTheUsersOwn) {
    EXPECT_EQ(LoadDiaryTypes(file), (std::array<UserType, 3>{{{"U.D.D.E. 1"}, {"U.D.D.E. 2"}, {"U.D.D.E. 3"}}}));
    SaveDiaryType(file, 2, "Golf");
    SaveDiaryType(file, 3, "Lunch with the Êksteens");
    SaveDiaryType(file, 2, "Tennis");
    EXPECT_EQ(in("SELECT * FROM Type_Diary_Apps"), "Tennis|2|1\nLunch with the Êksteens|3|1");
    SaveDiaryType(file, 3, "  ");
    EXPECT_EQ(in("SELECT * FROM Type_Diary_Apps"), "Tennis|2|1\nU.D.D.E. 3|3|0");
    EXPECT_EQ(LoadDiaryTypes(file), (std::array<UserType, 3>{{{"U.D.D.E. 1"}, {"Tennis", true}, {"U.D.D.E. 3"}}}));
    SaveDiaryType(file, 1, std::string(60, 'x'));
    EXPECT_EQ(LoadDiaryTypes(file)[0].caption, std::string(50, 'x'));
}

TEST_F(Diary, LosesNoEntryOfAFullDayWhenAMoveIsKilled) {
    std::vector<Entry> full;
    for (int i = 0; i < 1000; ++i)
        full.push_back(makeEntry(day, static_cast<std::size_t>(i % 41), std::to_string(i), 0, "", toDo));
    SaveDiaryAppoints(file, day, full);
    EXPECT_EQ(readDay(file, day).size(), 1000U);
    std::minstd_rand random; // NOLINT: the same pauses each time
    for (int round = 0; round < 15; ++round) {
        storetest::runAndKill(
            [&](auto ready) {
                ready();
                for (double from = day, to = day + 1;; std::swap(from, to)) {
                    const std::vector<Entry> staying = readDay(file, from);
                    moveEntry(file, from, {staying.begin() + 1, staying.end()}, makeEntry(to, 0, "moved", 0, "", toDo));
                }
            },
            [&] { std::this_thread::sleep_for(std::chrono::milliseconds(random() % 40)); });
        EXPECT_EQ(readDay(file, day).size() + readDay(file, day + 1).size(), 1000U) << round;
    }
}

TEST_F(Diary, NeedsItsFile) {
    fs::remove(file);
    EXPECT_EQ(storetest::errorOf([&] { SaveDiaryType(file, 1, "Golf"); }), 3024);
    EXPECT_EQ(storetest::errorOf([&] { readDay(file, day); }), 3024);
    EXPECT_FALSE(fs::exists(file));
    storetest::put(file, "a text");
    EXPECT_EQ(storetest::errorOf([&] { ColorAppDates(file, {2026, 12}); }), 3343);
}

} // namespace
