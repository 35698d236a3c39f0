#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/day.h"

namespace assessment {

/// Personal details: client, spouse, addresses, bank, dependants. `Name`, `BirthDate` and `IDNumber` are in `Client`,
/// since both client tables store them.
struct PersonalDetails {
    std::string CTitle, CFName, CInit, CLName;
    std::string PAdd1, PAdd2, PAdd3, PAddZip;
    std::string ResAdd1, ResAdd2, ResAdd3;
    std::string COccupation, CEmployer;
    std::string CTelWork, CTelHome, CFaxWork, CFaxHome, CCell, CEMail;
    std::string CEducation, CExecutors;
    std::string CBank, CBranch, CAccNo;
    double ReviewDate = base::blankDate;
    double NextApp = base::blankDate;
    std::int16_t CMaritalStat = 1; ///< option 0 to 4; the spouse's starts at 0
    std::int16_t CSmoker = 0;      ///< option 0 to 2
    std::string Comments;
    std::string STitle, SFName, SInit, SLName;
    double SDOB = base::blankDate;
    std::string SOccupation, SEmployer, SSinNum0, SEducation;
    std::string STelWork, STelHome, SFaxWork, SFaxHome, SCell, SEMail;
    std::int16_t SMaritalStat = 0;
    std::int16_t SSmoker = 0;
    std::array<std::string, 8> DEP; ///< `DEP1` to `DEP8`
    std::array<double, 8> DEPDOB = {base::blankDate, base::blankDate, base::blankDate, base::blankDate,
                                    base::blankDate, base::blankDate, base::blankDate, base::blankDate};
    std::int16_t Deceased = 0; ///< option 0 or 1
    std::string Description;

    bool operator==(const PersonalDetails&) const = default;
};

} // namespace assessment
