#include "screenkit/numberkind.h"

#include <algorithm>

#include "base/amount.h"
#include "base/numberformat.h"
#include "base/rounding.h"

namespace screenkit {

// Constants, since screens in other files build their own kinds from these before main begins.
constinit const NumberKind money{"# ### ### ##0.00", false, 16};
constinit const NumberKind wholeRand{"# ### ### ##0", false, 16};
constinit const NumberKind whole{"# ### ### ##0", true, 8};
constinit const NumberKind percent{"0.000", false, 8};

NumberKind NumberKind::from(double minimum, const QString& text, const QString& title) const {
    return where([minimum](double value) { return !(value < minimum); }, text, title);
}

NumberKind NumberKind::upTo(double maximum, const QString& text, const QString& title) const {
    return where([maximum](double value) { return !(value > maximum); }, text, title);
}

NumberKind NumberKind::between(double minimum, double maximum, const QString& text, const QString& title) const {
    return from(minimum, text, title).upTo(maximum, text, title);
}

NumberKind NumberKind::where(std::function<bool(double)> holds, const QString& text, const QString& title) const {
    return where(std::move(holds), [text, title] { return Complaint{text, title}; });
}

NumberKind NumberKind::where(std::function<bool(double)> holds, std::function<Complaint()> complaint) const {
    NumberKind kind = *this;
    kind.limits.push_back({std::move(holds), std::move(complaint)});
    return kind;
}

NumberKind NumberKind::orElse(std::function<double()> value) const {
    NumberKind kind = *this;
    kind.limits.back().instead = std::move(value);
    return kind;
}

NumberKind NumberKind::orElse(double value) const {
    return orElse([value] { return value; });
}

NumberKind NumberKind::shownAs(const char* otherMask) const {
    NumberKind kind = *this;
    kind.mask = otherMask;
    return kind;
}

NumberKind::Reading NumberKind::read(const QString& typed) const {
    const base::AmountReading reading = base::readAmount(typed.toStdString(), base::placesOf(mask));
    if (!reading.figure) return {0, Complaint{.text = QString::fromStdString(reading.why), .rings = true}};
    return {isWhole ? base::roundHalfEven(*reading.figure) : *reading.figure, {}};
}

QString NumberKind::format(double value) const { return QString::fromStdString(base::formatNumber(value, mask)); }

const Limit* NumberKind::brokenBy(double value) const {
    const auto found =
        std::find_if(limits.begin(), limits.end(), [value](const Limit& limit) { return !limit.holds(value); });
    return found != limits.end() ? &*found : nullptr;
}

} // namespace screenkit
