#pragma once

#include <vector>

#include "assessment/assessment.h"
#include "assessment/fieldtable.h"
#include "assessment/headfootlines.h"

/// The tables of the client database.
namespace assessment {

/// One row a client: the figures of all calculators and analyses.
const FieldTable<Assessment>& dataTable();
/// One row a client: the front page.
const FieldTable<Assessment>& persDetailsTable();
const FieldTable<Policy>& polsInvestsTable();
const FieldTable<CGTAssetRecord>& cgtDetailsTable();
const FieldTable<CapitalGains>& cgtDetailsOtherTable();
const FieldTable<CGTTrustRow>& cgtTrustOtherTable();
const FieldTable<LumpSums>& lumpSumTaxTable();
const FieldTable<HeadFootLines>& headFootTable();
const FieldTable<Assessment>& cpiDefaultTable();
/// The file's version in its one row.
const TableDescription& dataSetupTable();
/// Scratch for the review and birthday searches, built afresh by each.
const TableDescription& dbSearchTable();
/// What quotations start from, in the settings' database: `MutualFunds`, and `TallowenDefault` with the same fields.
const FieldTable<FundDefaults>& mutualFundsTable();

/// Which analysis an itemised line belongs to.
enum class Analysis { retirement, death, disability };

/// An itemised line of an analysis: its flag in `Data`, its rows in the record and their table. Flags, tables, save and
/// load all follow from the list of these; a screen finds its lines here too.
struct ItemTable {
    Analysis analysis;
    std::string flagField; ///< name of the flag in `Data`
    Binding<Assessment> flag;
    ItemList& (*list)(Itemised&) = nullptr; ///< null for a line that the policies feed: a flag, no rows and no table
    ItemLayout layout = ItemLayout::plain;
    /// Its rows and flag come back from the file. The two investment lists are emptied by each save and stay so.
    bool isKept = true;
    const FieldTable<ItemRow>* table = nullptr;
};

/// All itemised lines in the order of their tables and flags.
const std::vector<ItemTable>& itemTables();

/// All 46 tables in the order of their creation.
const std::vector<const TableDescription*>& clientTables();

} // namespace assessment
