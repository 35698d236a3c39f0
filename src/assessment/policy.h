#pragma once

#include <cstdint>
#include <string>

#include "base/day.h"

namespace assessment {

/// One policy or investment of the client's schedule. Escalations are percent a year in single precision, but the file
/// stores the premium's as a whole number.
struct Policy {
    std::string PolInvType, UnderInst, PolRefNum, PolOwner;
    double InceptionDate = base::NoDate; ///< the file keeps `NoDate` too
    std::int16_t WoP = 0, PaidUp = 0;
    double PremInvAmtMonthly = 0;
    float PremInvAmtMonthlyAnnEsc = 0; ///< a whole percent after a load
    double PremInvAmtMonthlyCPI = 0, PremInvAmtAnnual = 0, PremInvAmtSingle = 0;
    std::string PolIncNote, PolIncAddNote;
    double DeathBen = 0, DeathBenSurrVal = 0, DeathBenLoanAgainst = 0, DeathBenMonthly = 0;
    float DeathBenMonEsc = 0;
    double DeathBenYears = 0;
    std::string DeathBenLifeAssured;
    std::int16_t DeathBenPerson = 0; ///< 0 estate, 1 spouse, 2 charity, 3 other
    std::string DeathBenOther;
    double DeathBenAmtCeded = 0;
    std::string DeathBenCededTo;
    double DeathBenCashVal = 0;
    std::int16_t DeathBenCashValAge = 0, DeathBenUseCashAtRet = 0;
    float DeathBenCashValEscFor = 0;
    double DisabilLumpSum = 0, DisabilMonthly = 0;
    float DisabilMonEscAt = 0;
    double TraumlLumpSum = 0, TraumMonthly = 0;
    float TraumMonEscAt = 0;
    std::int16_t IncProYears = 0;
    double IncProMonthly = 0;
    float IncProMonEscAt = 0;
    double RBEMV = 0;
    std::int16_t RBEMVAge = 0;
    float RBEMVEscFor = 0;
    double RBPenLump = 0;
    std::int16_t RBPenLumpAge = 0;
    float RBPenLumpEscFor = 0;
    double RBProvFLump = 0;
    std::int16_t RBProvFLumpAge = 0;
    float RBProvFLumpEscFor = 0;
    double EndowEMV = 0;
    std::int16_t EndowEMVAge = 0, UseEndowEMVAtRet = 0;
    float EndowEMVEscFwd = 0;
    double InvBensCurVal = 0, InvBensCurValLoanAgainst = 0;
    std::int16_t InvBensTakeAtDisa = 0, InvBensTakeFinValAtRet = 0;
    double InvBensMatValLS = 0;
    std::int16_t InvBensMatValLSAtAge = 0;
    float InvBensMatValLSEscAt = 0;
    double RBMonAvaible = 0;
    float RBMonAvaibleEscFor = 0;

    bool operator==(const Policy&) const = default;
};

} // namespace assessment
