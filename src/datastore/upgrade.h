#pragma once

#include "datastore/paths.h"
#include "store/database.h"

/// Updates an older client database.
namespace datastore {

inline constexpr double currentVersion = 18;
/// Up to this version `InitPercRequire` is a percentage, in later ones an amount in rand.
inline constexpr double lastPercentageVersion = 3;

/// Version of an open client database. Error 3011 if the table is missing, 3021 if it is empty, 94 if the version is
/// Null.
double readVersion(store::Database& database);

/// Adds the row of report lines with the footer's two sentences, if there is none.
void UpgradeHeadFoot(store::Database& database);
/// Sets Null escalations of the required monthly income to 0.
void UpgradeRnaMonIncReq(store::Database& database);
/// Gives clients from before the shares screen (`InvestAmount` Null) its blank values. A 0 is left as it is.
void UpgradeData(store::Database& database);
/// Converts the income to draw from shares from percent of the capital to whole rand. Must run only once.
void UpgradeInitPercRequire(store::Database& database);
/// Copies the report lines of an open client database into Print.mdb.
void CopyHeadFootToPrintDb(store::Database& database, const std::filesystem::path& printDbPath);

/// Upgrades a file of a version below 18 to 18 in one transaction, or throws and leaves it unchanged: Print.mdb may
/// fail after the percentages are converted, and the next start must not convert them twice. Returns the new version.
double bringUpToDate(store::Database& database, const Paths& paths);

} // namespace datastore
