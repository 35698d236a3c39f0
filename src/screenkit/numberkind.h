#pragma once

#include <optional>
#include <vector>

#include "screenkit/field.h"

namespace screenkit {

/// How a number is typed and shown and what range it may take. Kinds are values: `whole.upTo(600, "...", "...")`; each
/// limit adds to those that stand, and the first that does not hold has its say.
struct NumberKind {
    const char* mask;     ///< see base::formatNumber; a literal, so that the kinds below stand before any code runs
    bool isWhole = false; ///< what is typed is rounded half to even: 3.5 is 4
    int characters = 16;  ///< width of the field
    std::vector<Limit> limits = {};

    NumberKind from(double minimum, const QString& text, const QString& title) const;
    NumberKind upTo(double maximum, const QString& text, const QString& title) const;
    NumberKind between(double minimum, double maximum, const QString& text, const QString& title) const;
    /// For an end that moves with another field.
    NumberKind where(std::function<bool(double)> holds, const QString& text, const QString& title) const;
    /// With words that are worked out when they are shown, another field that the focus goes to, or no box at all.
    NumberKind where(std::function<bool(double)> holds, std::function<Complaint()> complaint) const;
    /// Where the limit added last does not hold, the field goes back to this.
    NumberKind orElse(std::function<double()> value) const;
    NumberKind orElse(double value) const;
    NumberKind shownAs(const char* otherMask) const;

    struct Reading {
        double value = 0;
        std::optional<Complaint> refusal; ///< no figure
    };
    /// A text as typed or pasted, limits apart.
    Reading read(const QString& typed) const;
    QString format(double value) const;
    /// The first limit that does not hold; nothing if they all do.
    const Limit* brokenBy(double value) const;
};

extern const NumberKind money;     ///< rand, shown with cents and grouped by blanks
extern const NumberKind wholeRand; ///< rand, shown without cents
extern const NumberKind whole;     ///< a count: months, years, an age
extern const NumberKind percent;   ///< percent a year to three places

} // namespace screenkit
