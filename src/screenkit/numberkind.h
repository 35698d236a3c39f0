#pragma once

#include <optional>
#include <vector>

#include "screenkit/field.h"

namespace screenkit {

/// How a number is typed and shown, and its range. Kinds are values: `whole.upTo(600, "...", "...")`. Each call adds a
/// limit; the first limit that fails shows its message.
struct NumberKind {
    const char* mask;     ///< see base::formatNumber; a literal, so that the kinds below are constants
    bool isWhole = false; ///< round typed numbers half to even: 3.5 is 4
    int characters = 16;  ///< width of the field
    std::vector<Limit> limits = {};

    NumberKind from(double minimum, const QString& text, const QString& title) const;
    NumberKind upTo(double maximum, const QString& text, const QString& title) const;
    NumberKind between(double minimum, double maximum, const QString& text, const QString& title) const;
    /// Adds a limit that depends on another field.
    NumberKind where(std::function<bool(double)> holds, const QString& text, const QString& title) const;
    /// Adds a limit whose message is built when it is shown, may move the focus to another field, or may be absent.
    NumberKind where(std::function<bool(double)> holds, std::function<Complaint()> complaint) const;
    /// If the limit added last fails, the field gets this value.
    NumberKind orElse(std::function<double()> value) const;
    NumberKind orElse(double value) const;
    NumberKind shownAs(const char* otherMask) const;

    struct Reading {
        double value = 0;
        std::optional<Complaint> refusal; ///< why the text is no figure
    };
    /// Reads a typed or pasted text, without checking limits.
    Reading read(const QString& typed) const;
    QString format(double value) const;
    /// The first limit that fails; nothing if none does.
    const Limit* brokenBy(double value) const;
};

extern const NumberKind money;     ///< rand, shown with cents and grouped by blanks
extern const NumberKind wholeRand; ///< rand, shown without cents
extern const NumberKind whole;     ///< a count: months, years, an age
extern const NumberKind percent;   ///< percent a year to three places

} // namespace screenkit
