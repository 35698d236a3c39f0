#include "analyses/persdetreport.h"

#include <array>
#include <utility>

#include "base/day.h"
#include "datastore/printfeed.h"

namespace analyses {

namespace {

using assessment::PersonalDetails;
using TextMember = std::pair<const char*, std::string PersonalDetails::*>;
using DateMember = std::pair<const char*, double PersonalDetails::*>;

constexpr std::array texts{
    TextMember{"CTitle", &PersonalDetails::CTitle},
    TextMember{"CFName", &PersonalDetails::CFName},
    TextMember{"CInit", &PersonalDetails::CInit},
    TextMember{"CLName", &PersonalDetails::CLName},
    TextMember{"PAdd1", &PersonalDetails::PAdd1},
    TextMember{"PAdd2", &PersonalDetails::PAdd2},
    TextMember{"PAdd3", &PersonalDetails::PAdd3},
    TextMember{"PAddZip", &PersonalDetails::PAddZip},
    TextMember{"ResAdd1", &PersonalDetails::ResAdd1},
    TextMember{"ResAdd2", &PersonalDetails::ResAdd2},
    TextMember{"ResAdd3", &PersonalDetails::ResAdd3},
    TextMember{"COccupation", &PersonalDetails::COccupation},
    TextMember{"CEmployer", &PersonalDetails::CEmployer},
    TextMember{"CTelWork", &PersonalDetails::CTelWork},
    TextMember{"CTelHome", &PersonalDetails::CTelHome},
    TextMember{"CFaxWork", &PersonalDetails::CFaxWork},
    TextMember{"CFaxHome", &PersonalDetails::CFaxHome},
    TextMember{"CCell", &PersonalDetails::CCell},
    TextMember{"CEMail", &PersonalDetails::CEMail},
    TextMember{"CEducation", &PersonalDetails::CEducation},
    TextMember{"CExecutors", &PersonalDetails::CExecutors},
    TextMember{"CBank", &PersonalDetails::CBank},
    TextMember{"CBranch", &PersonalDetails::CBranch},
    TextMember{"CAccNo", &PersonalDetails::CAccNo},
    TextMember{"STitle", &PersonalDetails::STitle},
    TextMember{"SFName", &PersonalDetails::SFName},
    TextMember{"SInit", &PersonalDetails::SInit},
    TextMember{"SLName", &PersonalDetails::SLName},
    TextMember{"SOccupation", &PersonalDetails::SOccupation},
    TextMember{"SEmployer", &PersonalDetails::SEmployer},
    TextMember{"SSinNum0", &PersonalDetails::SSinNum0},
    TextMember{"SEducation", &PersonalDetails::SEducation},
    TextMember{"STelWork", &PersonalDetails::STelWork},
    TextMember{"STelHome", &PersonalDetails::STelHome},
    TextMember{"SFaxWork", &PersonalDetails::SFaxWork},
    TextMember{"SFaxHome", &PersonalDetails::SFaxHome},
    TextMember{"SCell", &PersonalDetails::SCell},
    TextMember{"SEMail", &PersonalDetails::SEMail},
    TextMember{"Description", &PersonalDetails::Description},
};

constexpr std::array dates{
    DateMember{"ReviewDate", &PersonalDetails::ReviewDate},
    DateMember{"NextApp", &PersonalDetails::NextApp},
    DateMember{"SDOB", &PersonalDetails::SDOB},
};

} // namespace

void feedPersonalDetails(const std::filesystem::path& printDbPath, const assessment::Client& client,
                         const PersonalDetails& details, const PersDetWords& words) {
    datastore::Row row{{"Name", client.Name},
                       {"IDNumber", client.IDNumber},
                       {"BirthDate", base::reportDate(client.BirthDate)},
                       {"CMaritalStat", words.clientMarital},
                       {"SMaritalStat", words.spouseMarital},
                       {"CSmoker", words.clientSmoker},
                       {"SSmoker", words.spouseSmoker},
                       {"Comments", words.notes ? details.Comments : std::string()}};
    for (const auto& [field, member] : texts)
        row.push_back({field, details.*member});
    for (const auto& [field, member] : dates)
        row.push_back({field, base::reportDate(details.*member)});
    for (std::size_t i = 0; i < details.DEP.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        row.push_back({"DEP" + number, details.DEP[i]});
        row.push_back({"DEPDOB" + number, base::reportDate(details.DEPDOB[i])});
    }
    datastore::PrintFeed feed(printDbPath);
    feed.replace("PersDetails", row);
    feed.commit();
}

} // namespace analyses
