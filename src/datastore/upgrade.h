#pragma once

#include "datastore/paths.h"
#include "store/database.h"

/// Bringing an older client database up to date.
namespace datastore {

inline constexpr double currentVersion = 18;
/// Up to this version `InitPercRequire` is a percentage, after it an amount in rand.
inline constexpr double lastPercentageVersion = 3;

/// Version of an open client database. Error 3011 without the table, 3021 without a row, 94 if it is Null.
double readVersion(store::Database& database);

/// Adds the row of report lines, the footer's two sentences in it, if there is none.
void UpgradeHeadFoot(store::Database& database);
/// Null escalations of the required monthly income become 0.
void UpgradeRnaMonIncReq(store::Database& database);
/// Clients from before the shares screen (`InvestAmount` Null) get its blank values. A 0 is left.
void UpgradeData(store::Database& database);
/// The income to draw from shares, from percent of the capital to whole rand. Must run once only.
void UpgradeInitPercRequire(store::Database& database);
/// Copies the report lines of an open client database into Print.mdb.
void CopyHeadFootToPrintDb(store::Database& database, const std::filesystem::path& printDbPath);

/// Brings a file of a version below 18 to 18 in one go, or throws and leaves it as it was: Print.mdb may fail after the
/// percentages are converted, and a second start must not convert them twice. Returns the version afterwards.
double bringUpToDate(store::Database& database, const Paths& paths);

} // namespace datastore
