#include "bench.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>

#include "diary/followup.h"
#include "screenkit/grid.h"
#include "screenkit/realdesk.h"
#include "shell/mainwindow.h"
#include "shell/program.h"
#include "store/database.h"

namespace {

namespace fs = std::filesystem;

constexpr int clients = 100000;

/// Surnames of three syllables, spread over the alphabet like a practice's, each shared by a dozen clients.
std::string surname(int number) {
    static const char* const syllables[] = {"ba",  "de", "fou", "gro", "ho",  "ja",  "kru", "le", "mo", "na",
                                            "pie", "ro", "si",  "the", "van", "wes", "xo",  "ye", "zu", "ng"};
    const int mixed = static_cast<int>(number * 7919LL % 8000);
    std::string name = syllables[mixed % 20];
    name += std::string(syllables[mixed / 20 % 20]) + syllables[mixed / 400];
    name[0] = static_cast<char>(name[0] - 'a' + 'A');
    return name;
}

void addClients(store::Database& database) {
    store::Transaction transaction(database);
    store::Statement add = database.prepare(
        "INSERT INTO [PersDetails] ([DCLNO], [Name], [BirthDate], [IDNumber], [CTitle], [CInit], [CLName], "
        "[Description]) VALUES (?, ?, ?, ?, 'Mr', 'A', ?, ?)");
    for (int i = 1; i <= clients; ++i) {
        const std::string name = surname(i);
        add.bind(1, static_cast<double>(i)).bind(2, "Mr A " + name).bind(3, 20000.0 + i % 20000);
        add.bind(4, std::to_string(7000000000000 + i)).bind(5, name).bind(6, "Case " + std::to_string(i)).run();
    }
    database.execute("INSERT INTO [Data] ([DCLNO], [Name], [BirthDate], [IDNumber], [DTHNextReview]) "
                     "SELECT [DCLNO], [Name], [BirthDate], [IDNumber], 46000 + [DCLNO] % 730 FROM [PersDetails]");
    transaction.commit();
}

/// The program with a file of many clients.
class Practice {
public:
    Practice() : m_folder(bench::emptyFolder("list")), m_program(m_desk, m_folder, "marlowbeck-bench-list") {
        for (const char* name : {"Default.Mdb", "Print.mdb", "units.mdb", "Diary.mdb"})
            fs::copy_file(fs::path(MARLOWBECK_DATABASE_DIR) / name, m_folder / name);
        m_program.MDIForm_Load();
        store::Database database(m_program.paths().DataDbPath);
        addClients(database);
    }

    double open() {
        const double taken = untilPainted([this] { m_program.window().open("frmBrowse"); });
        close();
        return taken;
    }
    /// The first search after the list was opened; later ones reuse what it prepared.
    double search() {
        m_program.window().open("frmBrowse");
        QApplication::processEvents();
        auto* field = m_program.window().screen("frmBrowse")->findChild<QLineEdit*>("txtSearch");
        const double taken = untilPainted([&] { field->setText("99 bade 70000"); });
        close();
        return taken;
    }
    double sort() {
        m_program.window().open("frmBrowse");
        QApplication::processEvents();
        auto* list = m_program.window().screen("frmBrowse")->findChild<screenkit::Grid*>("List1");
        const double taken = untilPainted([&] { list->sortByHead(5); });
        close();
        return taken;
    }
    double reviews(const diary::ReviewSearch& wanted) {
        return bench::milliseconds([&] { diary::searchReviews(m_program.paths().DataDbPath, wanted); });
    }
    double birthdays() {
        return bench::milliseconds([&] {
            diary::searchBirthdays(m_program.paths().DataDbPath, {diary::Born::clients, 5}, 46348);
        });
    }

private:
    template <typename Work>
    static double untilPainted(Work&& work) {
        Watch watch;
        return bench::milliseconds([&] {
            work();
            while (!watch.painted)
                QApplication::processEvents();
        });
    }
    void close() {
        m_program.window().CLEARLOAD();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    struct Watch : QObject {
        Watch() { qApp->installEventFilter(this); }
        bool eventFilter(QObject* watched, QEvent* event) override {
            if (event->type() == QEvent::Paint && qobject_cast<QAbstractItemView*>(watched->parent()) != nullptr)
                painted = true;
            return false;
        }
        bool painted = false;
    };

    fs::path m_folder;
    screenkit::RealDesk m_desk;
    shell::Program m_program;
};

Practice& practice() {
    static auto* made = new Practice; // never destroyed: its windows must not outlive the application
    return *made;
}

const bench::Register list({
    .name = "list of 100 000 clients opened and painted",
    .floor = {},
    .ours = [] { return practice().open(); },
    .goal = 300,
    .rounds = 9,
});

const bench::Register search({
    .name = "three words searched in 100 000 clients",
    .floor = {},
    .ours = [] { return practice().search(); },
    .goal = 300,
    .rounds = 9,
});

const bench::Register sorted({
    .name = "100 000 clients sorted by a text",
    .floor = {},
    .ours = [] { return practice().sort(); },
    .goal = 300,
    .rounds = 9,
});

const bench::Register reviews({
    .name = "a quarter's reviews of 100 000 clients",
    .floor = {},
    .ours =
        [] {
            return practice().reviews(
                {diary::ReviewScope::nextReview, diary::NeedsAnalysis::death, 46000, 46090, true});
        },
    .goal = 300,
    .rounds = 9,
});

const bench::Register everyone({
    .name = "all of 100 000 clients in the review list",
    .floor = {},
    .ours = [] { return practice().reviews({}); },
    .goal = 300,
    .rounds = 9,
});

const bench::Register birthdays({
    .name = "birthdays of a month among 100 000 clients",
    .floor = {},
    .ours = [] { return practice().birthdays(); },
    .goal = 300,
    .rounds = 9,
});

} // namespace
