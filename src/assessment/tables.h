#pragma once

#include <vector>

#include "assessment/assessment.h"
#include "assessment/fieldtable.h"
#include "assessment/headfootlines.h"

/// The tables of the client database.
namespace assessment {

/// One row a client: the figures of all calculators and analyses.
const FieldTable<Assessment>& dataTable();
/// One row a client: the personal details.
const FieldTable<Assessment>& persDetailsTable();
const FieldTable<Policy>& polsInvestsTable();
const FieldTable<CGTAssetRecord>& cgtDetailsTable();
const FieldTable<CapitalGains>& cgtDetailsOtherTable();
const FieldTable<CGTTrustRow>& cgtTrustOtherTable();
const FieldTable<LumpSums>& lumpSumTaxTable();
const FieldTable<HeadFootLines>& headFootTable();
const FieldTable<Assessment>& cpiDefaultTable();
/// The file's version, in a single row.
const TableDescription& dataSetupTable();
/// A working table of the review and birthday searches; each search recreates it.
const TableDescription& dbSearchTable();
/// Starting figures of quotations, in the settings' database: `MutualFunds`, and `TallowenDefault` with equal fields.
const FieldTable<FundDefaults>& mutualFundsTable();

/// Which analysis an itemised line belongs to.
enum class Analysis { retirement, death, disability };

/// An itemised line of an analysis: its flag in `Data`, its rows in the record and their table. The list of these
/// drives the flags, the tables, save and load; a screen finds its lines here too.
struct ItemTable {
    Analysis analysis;
    std::string flagField; ///< name of the flag in `Data`
    Binding<Assessment> flag;
    ItemList& (*list)(Itemised&) = nullptr; ///< null for a line that the policies fill: no rows, no table
    ItemLayout layout = ItemLayout::plain;
    /// False for the two investment lists: each save empties them, so neither rows nor flag are ever loaded.
    bool isKept = true;
    const FieldTable<ItemRow>* table = nullptr;
};

/// All itemised lines in the order of their tables and flags.
const std::vector<ItemTable>& itemTables();

/// All 46 tables in the order of their creation.
const std::vector<const TableDescription*>& clientTables();

} // namespace assessment
