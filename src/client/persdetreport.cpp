#include "client/persdetreport.h"

#include "assessment/tables.h"
#include "base/day.h"

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

/// An old file may hold a number without a caption.
template <std::size_t Count>
std::string caption(const std::array<const char*, Count>& captions, std::int16_t option) {
    const auto chosen = static_cast<std::size_t>(option);
    return chosen < Count ? captions[chosen] : "";
}

} // namespace

datastore::Printout feedPersonalDetails(const std::filesystem::path& printDbPath, assessment::Assessment& record,
                                        bool notes) {
    const assessment::PersonalDetails& details = record.details;
    datastore::Row row = textsAndDates(record);
    if (!notes) std::erase_if(row, [](const datastore::Field& field) { return field.name == "Comments"; });
    row.push_back({"CMaritalStat", caption(maritalStates, details.CMaritalStat)});
    row.push_back({"SMaritalStat", caption(maritalStates, details.SMaritalStat)});
    row.push_back({"CSmoker", caption(smokerStates, details.CSmoker)});
    row.push_back({"SSmoker", caption(smokerStates, details.SSmoker)});
    datastore::PrintFeed feed(printDbPath, record.client.Name);
    feed.replace("PersDetails", feed.printedOf("PersDetails", std::move(row)));
    feed.commit();
    return {"\\PersDetl.rpt", "Personal Details "};
}

} // namespace client
