#pragma once

#include <filesystem>

namespace datastore {

/// The language of the reports that exist in two.
enum class ReportLanguage { English = 0, Afrikaans = 1 };

/// The practice's choice: `RptLanguage` of `Setup` in Default.Mdb, "A" for Afrikaans, anything else for English.
/// Throws store::Error if the file, the table or the row is missing.
ReportLanguage readReportLanguage(const std::filesystem::path& defaultDbPath);

/// If it throws store::Error, the choice is unchanged.
void writeReportLanguage(const std::filesystem::path& defaultDbPath, ReportLanguage language);

} // namespace datastore
