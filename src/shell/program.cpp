#include "shell/program.h"

#include <QApplication>
#include <QScreen>
#include <cstdio>

#include "base/rounding.h"
#include "calculators/inflation.h"
#include "datastore/programfolder.h"
#include "datastore/startup.h"
#include "reports/report.h"
#include "screenkit/desk.h"
#include "screenkit/trouble.h"
#include "shell/instance.h"
#include "shell/mainwindow.h"
#include "shell/placing.h"

namespace shell {

using screenkit::BoxStyle;

namespace {

constexpr double checkedFutureValue = 25937; // 10 000 over ten years at 10 %
constexpr double checkedBuyingPower = 3855;

constexpr const char* alreadyRunning =
    "Marlowbeck is already running(open) on this computer!\n"
    "The First Instance of the program is probably minimised.  Check your Taskbar.\n"
    "Having the program open twice will cause errors in the working of the program.  \n"
    "This second instance will now be closed down!";

constexpr const char* numbersInDoubt =
    "Attention: It seems that a numerical setting in your Windows operating system may affect the accuracy of this "
    "software's results. For guidance on resolving this issue, please refer to our website.";

} // namespace

std::string programCaption() {
    char version[32];
    std::snprintf(version, sizeof version, "%d.%02d.%03d", MARLOWBECK_VERSION_MAJOR, MARLOWBECK_VERSION_MINOR,
                  MARLOWBECK_VERSION_PATCH);
    return std::string("Marlowbeck - software for financial advisers Version : ") + version;
}

Program::Program(screenkit::Desk& desk, std::filesystem::path programFolder, std::string instanceName)
    : m_desk(desk), m_programFolder(std::move(programFolder)), m_instanceName(std::move(instanceName)),
      m_reports(std::make_unique<reports::Engine>(desk, m_programFolder)) {}

Program::~Program() { m_window.reset(); }

bool Program::MDIForm_Load() {
    const screenkit::BusyCursor busy;
    m_instance = std::make_unique<Instance>(m_instanceName);
    if (!m_instance->isFirst()) {
        m_desk.tell(BoxStyle::critical, alreadyRunning, "Marlowbeck Currently Loaded!!!!!");
        m_refused = true;
        return false;
    }
    showWindow();
    const auto notice = [this](const std::string& title, const std::string& text) {
        m_desk.tell(BoxStyle::critical, QString::fromStdString(text), QString::fromStdString(title));
    };
    datastore::StartUpResult result;
    const bool started = screenkit::guarded(m_desk, QObject::tr("start"), [&] {
        datastore::seedProgramFolder(std::filesystem::read_symlink("/proc/self/exe"), m_programFolder);
        result = datastore::startUp(m_programFolder, m_record, notice);
        m_paths = result.paths;
    });
    if (!started) {
        m_window->exitWithoutAsking();
        return false;
    }
    checkArithmetic();
    if (!result.notice.empty()) m_desk.tell(BoxStyle::warning, QString::fromStdString(result.notice), "Marlowbeck");
    return true;
}

void Program::showWindow() {
    m_window = std::make_unique<MDIForm1>(m_record, m_paths, m_desk, *m_reports);
    const QRect place = startGeometry(QGuiApplication::primaryScreen()->availableGeometry());
    m_window->resize(place.size());
    m_window->move(place.topLeft());
    m_window->show();
    QApplication::processEvents(); // painted before the files are searched for
}

void Program::checkArithmetic() {
    assessment::Inflation& inflation = m_record.inflation;
    inflation.PresCostInflation = 10000;
    inflation.PeriodInflation = 10;
    inflation.IntRateInflation = 10;
    const auto results = calculators::LTLINFL(inflation);
    m_record.changed.InflationChanged = 0;
    inflation = {};
    if (base::roundHalfEven(results.futureValue) != checkedFutureValue ||
        base::roundHalfEven(results.buyingPower) != checkedBuyingPower)
        m_desk.tell(BoxStyle::warning, numbersInDoubt, "Regional Settings");
}

} // namespace shell
