#include "shell/menuactions.h"

#include <QStringList>
#include <algorithm>
#include <iterator>

#include "reports/report.h"
#include "screenkit/desk.h"
#include "screenkit/website.h"
#include "shell/datacare.h"
#include "shell/mainwindow.h"
#include "shell/placing.h"
#include "shell/program.h"

namespace shell {

namespace {

using screenkit::BoxStyle;

void startCalculator(MDIForm1& window) {
    static const QStringList calculators{
        "gnome-calculator", "kcalc",       "mate-calc",         "galculator",      "qalculate-gtk", "qalculate-qt",
        "xfce4-calculator", "speedcrunch", "deepin-calculator", "lxqt-calculator", "xcalc"};
    screenkit::Desk& desk = window.workplace().desk;
    if (!desk.startProgram(calculators))
        desk.tell(BoxStyle::warning, "The Microsoft Calculator is not installed or in the Windows directory",
                  "Marlowbeck");
}

void showLectures(MDIForm1& window) {
    window.workplace().desk.openOnDesktop(screenkit::pageOfTheMakers("/lectures"));
}

void showAbout(MDIForm1& window) {
    window.workplace().desk.tell(BoxStyle::information, QString::fromStdString(programCaption()),
                                 MDIForm1::tr("About Marlowbeck"));
}

constexpr MenuAction actions[] = {
    {"mnuNewFile", [](MDIForm1& window) { window.mnuNewFile_Click(); }},
    {"mnuBrowse", [](MDIForm1& window) { window.mnuBrowse_Click(); }},
    {"mnuRetrieve", [](MDIForm1& window) { window.mnuBrowse_Click(); }},
    {"mnuSave", [](MDIForm1& window) { window.mnuSave_Click(); }},
    {"mnuBackup", mnuBackup_Click},
    {"mnuRestore", mnuRestore_Click},
    {"mnuToA", mnuToA_Click},
    {"mnuFromA", mnuFromA_Click},
    {"mnuPrintSetup", [](MDIForm1& window) { window.workplace().reports.setUpPrinter(); }},
    {"mnuExit", [](MDIForm1& window) { window.close(); }},
    {"mnuCalculator", startCalculator},
    {"mnuViewToolBar", nullptr},
    {"mnuCascade", [](MDIForm1& window) { cascade(window.area()); }},
    {"mnuIcon", [](MDIForm1& window) { arrangeIcons(window.area()); }},
    {"mnuVideoLectures", showLectures},
    {"mnuContents", [](MDIForm1& window) { window.help(); }},
    {"mnuAbout", showAbout},
};

} // namespace

const MenuAction* menuAction(const QString& item) {
    const auto found = std::find_if(std::begin(actions), std::end(actions),
                                    [&](const MenuAction& action) { return item == action.item; });
    return found == std::end(actions) ? nullptr : found;
}

} // namespace shell
