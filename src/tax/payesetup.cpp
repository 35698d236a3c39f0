#include "tax/payesetup.h"

#include "datastore/settings.h"

namespace tax {

PAYESetup readPAYESetup(const std::filesystem::path& defaultDbPath) {
    const datastore::SettingsRow row = datastore::readSettings(defaultDbPath, "PAYESetup");
    return {row.number("EmployeeUIF"), row.number("EmployerUIF"), row.number("SkillLevy"), row.number("UIFLimit"),
            row.number("TAIncRate8020")};
}

void writePAYESetup(const std::filesystem::path& defaultDbPath, const PAYESetup& setup) {
    datastore::writeSettings(defaultDbPath, "PAYESetup",
                             {{"EmployeeUIF", setup.EmployeeUIF},
                              {"EmployerUIF", setup.EmployerUIF},
                              {"SkillLevy", setup.SkillLevy},
                              {"UIFLimit", setup.UIFLimit},
                              {"TAIncRate8020", setup.TAIncRate8020}});
}

} // namespace tax
