#include "datastore/reportlanguage.h"

#include "datastore/settings.h"

namespace datastore {

ReportLanguage readReportLanguage(const std::filesystem::path& defaultDbPath) {
    const bool isAfrikaans = readSettings(defaultDbPath, "Setup").text("RptLanguage") == "A";
    return isAfrikaans ? ReportLanguage::Afrikaans : ReportLanguage::English;
}

void writeReportLanguage(const std::filesystem::path& defaultDbPath, ReportLanguage language) {
    const std::string letter = language == ReportLanguage::Afrikaans ? "A" : "E";
    writeSettings(defaultDbPath, "Setup", {{"RptLanguage", letter}});
}

} // namespace datastore
