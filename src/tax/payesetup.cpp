#include "tax/payesetup.h"

#include <limits>

#include "datastore/settings.h"

namespace tax {

namespace {

struct Range {
    const char* field;
    double highest; ///< the lowest is always 0
    const char* words;
};

constexpr Range ranges[] = {
    {"EmployeeUIF", 100, "a percentage from 0 to 100"},
    {"EmployerUIF", 100, "a percentage from 0 to 100"},
    {"SkillLevy", 100, "a percentage from 0 to 100"},
    {"UIFLimit", std::numeric_limits<double>::max(), "an amount that is not negative"},
    {"TAIncRate8020", 1, "a fraction from 0 to 1"},
};

} // namespace

const assessment::FieldTable<PAYESetup>& payeSetupTable() {
    using assessment::Double, assessment::in;
    static const assessment::FieldTable<PAYESetup> table("PAYESetup",
                                                         {{"EmployeeUIF", Double, in<&PAYESetup::EmployeeUIF>},
                                                          {"EmployerUIF", Double, in<&PAYESetup::EmployerUIF>},
                                                          {"SkillLevy", Double, in<&PAYESetup::SkillLevy>},
                                                          {"UIFLimit", Double, in<&PAYESetup::UIFLimit>},
                                                          {"TAIncRate8020", Double, in<&PAYESetup::TAIncRate8020>}});
    return table;
}

PAYESetup readPAYESetup(const std::filesystem::path& defaultDbPath) {
    const datastore::SettingsRow row = datastore::readSettings(defaultDbPath, payeSetupTable().name());
    for (const auto& [field, highest, words] : ranges)
        row.requireBetween(field, 0, highest, words);
    PAYESetup setup;
    row.fill(payeSetupTable(), &setup);
    return setup;
}

void writePAYESetup(const std::filesystem::path& defaultDbPath, const PAYESetup& setup) {
    datastore::writeSettings(defaultDbPath, payeSetupTable().name(), datastore::rowOf(payeSetupTable(), setup));
}

} // namespace tax
