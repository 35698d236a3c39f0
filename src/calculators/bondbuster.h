#pragma once

#include "assessment/assessment.h"

namespace calculators {

/// What became of the extra payment.
enum class ExtraPayment {
    none,       ///< none was typed: the bond is repaid as agreed
    applied,    ///< the bond is repaid with it
    tooHigh,    ///< more than ten times the repayment: nothing was worked out with it
    neverClears ///< with it no term clears the bond, for lack of money or since less than a month is needed
};

/// A home loan as agreed, and the same with an extra payment each month. Rand; terms in months.
struct BondBuster {
    double BondRep = 0; ///< the agreed repayment a month
    double TotInt = 0;  ///< interest over the agreed term, not below 0
    double TotPaid = 0; ///< all repayments over the agreed term, not below 0

    ExtraPayment extra = ExtraPayment::none;
    double VOLUN = 0;   ///< the extra payment, raised by cents until the bond clears in whole months
    double NewTerm = 0; ///< 0 if it never clears
    double NewRep = 0;
    double XTotInt = 0, XTotPaid = 0; ///< not below 0
    double Saving = 0;

    /// True if the extra payment gave figures to show: else `NewTerm` to `Saving` mean nothing.
    bool hasNewFigures() const { return extra == ExtraPayment::none || extra == ExtraPayment::applied; }
    /// The extra payment to show and keep: the typed one where it gave no figures.
    double keptExtra(double typed) const { return hasNewFigures() ? VOLUN : typed; }
    /// False for a rate so near 0, or figures so large, that no double holds the answer.
    bool isFinite() const;
};

/// What an extra payment of VOLUN a month saves on a bond of BMBP2 rand over OMBP3 months at BMBP4 percent a year.
///
/// The new term is the number of whole months that repayment and extra fully cover; the extra is then raised by cents
/// until the bond clears in that term (see `periodFor`). An extra that shows as 0.00 is none. It may be below 0. Any of
/// the three figures of the bond at 0 gives a repayment of 0.
BondBuster BBCalc(const assessment::Bond& bond);

/// Keeps the raised extra payment in the bond, where the figures have one. Returns whether that changed it.
bool keepExtra(assessment::Bond& bond, const BondBuster& result);

} // namespace calculators
