#include "client/persdetreport.h"

#include "assessment/tables.h"
#include "base/day.h"
#include "datastore/printfeed.h"

namespace client {

namespace {

/// The texts and dates of the client's table under their own names; the options are added as words.
datastore::Row textsAndDates(assessment::Assessment& record) {
    datastore::Row row;
    for (const assessment::FieldLine& line : assessment::persDetailsTable().fields()) {
        if (line.at == nullptr) continue;
        const store::Value value = assessment::valueAt(line.at(&record));
        if (line.kind.declared.type == store::Type::Date)
            row.push_back({line.name, base::reportDate(std::get<double>(value))});
        else if (std::holds_alternative<std::string>(value))
            row.push_back({line.name, value});
    }
    return row;
}

} // namespace

void feedPersonalDetails(const std::filesystem::path& printDbPath, assessment::Assessment& record,
                         const PersDetWords& words) {
    datastore::Row row = textsAndDates(record);
    if (!words.notes) std::erase_if(row, [](const datastore::Field& field) { return field.name == "Comments"; });
    row.push_back({"CMaritalStat", words.clientMarital});
    row.push_back({"SMaritalStat", words.spouseMarital});
    row.push_back({"CSmoker", words.clientSmoker});
    row.push_back({"SSmoker", words.spouseSmoker});
    datastore::PrintFeed feed(printDbPath, record.client.Name);
    feed.replace("PersDetails", feed.printedOf("PersDetails", std::move(row)));
    feed.commit();
}

} // namespace client
