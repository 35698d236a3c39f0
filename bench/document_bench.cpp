#include "bench.h"

#include <QApplication>
#include <QEvent>

#include "datastore/ownprintdb.h"
#include "reports/document.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "screenkit/realdesk.h"

namespace {

namespace fs = std::filesystem;

/// A client file of 15 loans with their tables of 600 months, some 200 pages.
class ClientFile {
public:
    ClientFile() : m_folder(bench::emptyFolder("document")), m_reports(m_desk, m_folder) {
        const fs::path built = fs::path(MARLOWBECK_DATABASE_DIR).parent_path();
        fs::copy_file(built / "databases/Print.mdb", m_folder / "Print.mdb");
        for (const auto& entry : fs::directory_iterator(built / "program"))
            if (entry.path().extension() == ".rpt") fs::copy_file(entry.path(), m_folder / entry.path().filename());
        m_plan.definitions = m_folder;
        datastore::Paths paths;
        paths.PrintDbPath = m_folder / "Print.mdb";
        m_own.emplace(paths);
        m_plan.printDatabase = m_own->path();
        m_plan.chapters.push_back({{}, [this](const reports::PrintSection& print) { addTo(print, 0, "Lonrepa.rpt"); }});
        for (int loan = 1; loan <= 15; ++loan)
            m_plan.chapters.push_back(
                {"Loan " + QString::number(loan),
                 [this, loan](const reports::PrintSection& print) { addTo(print, loan, "LonrepaA.rpt"); }});
    }

    double written() {
        return bench::milliseconds([this] { bench::keep(static_cast<double>(toPdf(makeDocument(m_plan)).size())); });
    }
    double shown() {
        Watch watch;
        const double taken = bench::milliseconds([this, &watch] {
            m_reports.show(std::make_shared<reports::Report>(makeDocument(m_plan)));
            while (!watch.painted)
                QApplication::processEvents();
        });
        m_reports.closePreviews();
        return taken;
    }

private:
    struct Watch : QObject {
        Watch() { qApp->installEventFilter(this); }
        bool eventFilter(QObject* watched, QEvent* event) override {
            if (event->type() == QEvent::Paint && watched->parent() && watched->parent()->objectName() == "pages")
                painted = true;
            return false;
        }
        bool painted = false;
    };

    void addTo(const reports::PrintSection& print, int loan, const char* definition) {
        std::vector<datastore::Row> months;
        for (int month = 1; month <= 600; ++month)
            months.push_back({{"Year", month},
                              {"Capital", 100.1 * loan + month * 7.31},
                              {"Interest", 9000.7 - month * 11.13},
                              {"Required", 1e6 * loan - month * 1234.56}});
        datastore::PrintFeed feed(m_plan.printDatabase, "Ms T. Botha");
        feed.replace("Loans", {{"Heading", "Monthly repayment"},
                               {"Num1", 1e6 * loan},
                               {"Num2", 600},
                               {"Num3", 11.75},
                               {"Num4", 9e3 * loan},
                               {"YearMon", "Month"}});
        feed.replace("Amort", months);
        feed.commit();
        print({definition, "Title"});
    }

    fs::path m_folder;
    std::optional<datastore::OwnPrintDb> m_own; ///< as for every document
    screenkit::RealDesk m_desk;
    reports::Engine m_reports;
    reports::DocumentPlan m_plan{.definitions = {},
                                 .printDatabase = {},
                                 .date = QDate(2026, 11, 23),
                                 .title = "Client file",
                                 .client = "Ms T. Botha",
                                 .fileClient = {},
                                 .fileTitle = {},
                                 .chapters = {}};
};

ClientFile& clientFile() {
    static auto* made = new ClientFile; // never destroyed: its windows must not outlive the application
    return *made;
}

const bench::Register shown({
    .name = "client file of 200 pages made, its first page painted",
    .floor = {},
    .ours = [] { return clientFile().shown(); },
    .goal = 500,
    .rounds = 5,
});

const bench::Register written({
    .name = "client file of 200 pages made and written as PDF",
    .floor = {},
    .ours = [] { return clientFile().written(); },
    .goal = 3000,
    .rounds = 5,
});

} // namespace
