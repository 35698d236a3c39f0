#include "shell/clientfiles.h"

#include <QProcess>
#include <set>
#include <stdexcept>

#include "reports/report_support.h"
#include "screenkit/usersettings.h"
#include "shell/running_program.h"

namespace fs = std::filesystem;
using shell::clientFileOrder;
using shelltest::RunningProgram;

namespace {

const QDate today{2026, 11, 23};

std::vector<std::string> writeAll(const shell::ClientFileOrder& order, const fs::path& folder, int expected) {
    std::vector<std::string> told;
    EXPECT_EQ(shell::writeClientFiles(order, folder, today, [&](const std::string& line) { told.push_back(line); }),
              expected);
    for (const std::string& line : told)
        EXPECT_EQ(line.find('\n'), std::string::npos) << line;
    return told;
}

std::set<std::string> filesIn(const fs::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.insert(entry.path().filename().string());
    return names;
}

/// A practice of two clients, open in a running program.
class ClientFiles : public testing::Test {
protected:
    ClientFiles() {
        screenkit::userSettings().remove("clientFile");
        run.saveClient("Botha");
        run.saveClient("Zulu");
        fs::create_directory(out);
    }

    RunningProgram run;
    fs::path out = run.folder / "out";
};

} // namespace

TEST(ClientFileOrder, IsReadFromTheCommandLineOrRefusedWithAReason) {
    const auto order = [](std::vector<const char*> words) { return clientFileOrder(words); };
    EXPECT_FALSE(order({}));
    EXPECT_FALSE(order({"-style", "fusion"})); // the toolkit's own words
    const auto one = order({"--client-file", "7", "--to", "/tmp/a.pdf"});
    ASSERT_TRUE(one);
    EXPECT_EQ(one->key, 7);
    EXPECT_EQ(one->to, "/tmp/a.pdf");
    const auto all = order({"--to", "/tmp", "--all"});
    ASSERT_TRUE(all);
    EXPECT_FALSE(all->key);
    EXPECT_TRUE(order({"--client-file", "--all", "--to", "/tmp"}));
    const std::vector<std::vector<const char*>> wrong{{"--client-file", "7"},
                                                      {"--all"},
                                                      {"--to", "/tmp/a.pdf"},
                                                      {"--client-file", "7", "--all", "--to", "/tmp"},
                                                      {"--client-file", "Botha", "--to", "/tmp/a.pdf"},
                                                      {"--client-file", "0", "--to", "/tmp/a.pdf"},
                                                      {"--client-file", "7", "--to"},
                                                      {"--all", "--to", "/tmp", "--quick"}};
    for (const auto& words : wrong)
        EXPECT_THROW(clientFileOrder(words), std::invalid_argument) << words.front() << " of " << words.size();
}

TEST_F(ClientFiles, OfAllClientsAreWrittenBesideTheOpenProgram) {
    EXPECT_TRUE(writeAll({{}, out}, run.folder.path(), 2).empty());
    EXPECT_EQ(filesIn(out), (std::set<std::string>{"Botha - client file 2026-11-23 (1).pdf",
                                                   "Zulu - client file 2026-11-23 (2).pdf"}));
    const QString text = reporttest::runTool(
        "pdftotext", {QString::fromStdString((out / "Zulu - client file 2026-11-23 (2).pdf").string()), "-"});
    EXPECT_TRUE(text.contains("Zulu"));
    EXPECT_FALSE(text.contains("Botha"));
    EXPECT_TRUE(writeAll({2, out / "z.odt"}, run.folder.path(), 1).empty());
    EXPECT_GT(fs::file_size(out / "z.odt"), 1000U);
}

TEST_F(ClientFiles, OneThatFailsIsToldOnALineAndStopsNoOther) {
    fs::create_directory(out / "Botha - client file 2026-11-23 (1).pdf"); // in the way
    const auto told = writeAll({{}, out}, run.folder.path(), 1);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front().rfind("client 1 (Botha): ", 0), 0U) << told.front();
    EXPECT_TRUE(fs::is_regular_file(out / "Zulu - client file 2026-11-23 (2).pdf"));

    const std::pair<shell::ClientFileOrder, const char*> refused[] = {
        {{9, out / "a.pdf"}, "no longer in the"},
        {{1, out / "a.docx"}, ".pdf or .odt"},
        {{1, out / "a.html"}, ".pdf or .odt"}, // a format of single reports
        {{1, out / "none" / "a.pdf"}, "none"},
        {{{}, out / "none"}, "no such folder"},
    };
    for (const auto& [order, words] : refused) {
        const auto lines = writeAll(order, run.folder.path(), 0);
        ASSERT_EQ(lines.size(), 1U) << words;
        EXPECT_NE(lines.front().find(words), std::string::npos) << lines.front();
    }
    EXPECT_EQ(writeAll({1, out / "a.pdf"}, out, 0).size(), 1U); // no program folder
}
