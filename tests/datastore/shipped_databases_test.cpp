// The databases that the build creates, as a first start finds them.
#include "store/store_support.h"

using namespace storetest;

TEST(ShippedDatabases, AreWholeWithTheirFirstRowsAndTheOwnersAlone) {
    // the number of tables, and those with the row that the program only edits
    for (const auto& [file, tables, withARow] :
         {std::tuple{"Default.Mdb", "7",
                     "MutualFunds TallowenDefault Setup IncFromShares livann PAYESetup EstateDutyEst"},
          {"units.mdb", "2", "UTH"},
          {"Diary.mdb", "2", ""},
          {"Print.mdb", "42", "kwiktax RATaxAdvantage traveldeduction PAYESetup HeadFoot PersDetails IRP5Mon"}}) {
        SCOPED_TRACE(file);
        // The copy for packages, which no program has changed.
        const fs::path shipped = fs::path(MARLOWBECK_PROGRAM_DIR) / "../databases" / file;
        EXPECT_EQ(rowsOf(shipped, "SELECT count(*) FROM sqlite_schema WHERE type='table'"), tables);
        EXPECT_EQ(rowsOf(shipped, "PRAGMA integrity_check"), "ok");
        std::istringstream names(withARow);
        for (std::string table; names >> table;)
            EXPECT_EQ(rowsOf(shipped, "SELECT count(*) FROM " + table), "1") << table;
        EXPECT_EQ(modeOf(fs::path(MARLOWBECK_PROGRAM_DIR) / file), 0600U);
    }
}
