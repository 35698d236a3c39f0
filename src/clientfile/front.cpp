#include "clientfile/front.h"

#include <array>

#include "base/day.h"
#include "base/text.h"

namespace clientfile {

namespace {

std::string inWords(double day) {
    constexpr std::array<const char*, 12> months{"January", "February", "March",     "April",   "May",      "June",
                                                 "July",    "August",   "September", "October", "November", "December"};
    const auto date = base::calendarDate(day);
    if (!date) return {};
    return std::to_string(date->day) + " " + months.at(static_cast<std::size_t>(date->month - 1)) + " " +
           std::to_string(date->year);
}

} // namespace

datastore::Printout feedCover(const std::filesystem::path& printDbPath, const assessment::Assessment& record,
                              double today) {
    datastore::PrintFeed feed(printDbPath, record.client.Name);
    feed.replace(
        "ClientFileCover",
        {{"Name", base::trim(record.client.Name)}, {"IDNumber", record.client.IDNumber}, {"DateText", inWords(today)}});
    feed.commit();
    return {"\\ClientFile.rpt", "Client file"};
}

datastore::Printout feedRemarks(const std::filesystem::path& printDbPath, const std::string& client,
                                const std::vector<std::string>& remarks) {
    std::vector<datastore::Row> rows;
    rows.reserve(remarks.size());
    for (const std::string& remark : remarks)
        rows.push_back({{"Remark", remark}});
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("ClientFileRemarks", rows);
    feed.commit();
    return {"\\FileRemarks.rpt", "Results That Differ From the Record"};
}

} // namespace clientfile
