#pragma once

#include <QString>
#include <algorithm>
#include <cmath>
#include <concepts>
#include <functional>
#include <limits>
#include <string>

namespace screenkit {

/// Stores a number in a record's member, limited to the range of its type, so that a figure that is too large never
/// wraps round. Whole numbers are rounded half to even. A number that is not finite becomes 0: in the record it would
/// keep the client from being saved.
template <class T>
T narrowed(double number) {
    if (std::isnan(number)) return 0;
    if constexpr (std::integral<T>) {
        const double whole = std::nearbyint(number);
        if (!(whole > static_cast<double>(std::numeric_limits<T>::min()))) return std::numeric_limits<T>::min();
        if (!(whole < static_cast<double>(std::numeric_limits<T>::max()))) return std::numeric_limits<T>::max();
        return static_cast<T>(whole);
    } else {
        constexpr double widest = std::numeric_limits<T>::max();
        return static_cast<T>(std::clamp(number, -widest, widest));
    }
}

/// Where a field's value is stored: a member of the record, or a pair of functions where the place changes (the policy
/// shown, a row of a list).
template <class T>
struct Bound {
    std::function<T()> get;
    std::function<void(T)> set;
    /// For a number: the range of the place. A field refuses numbers outside it.
    double lowest = -std::numeric_limits<double>::max();
    double highest = std::numeric_limits<double>::max();

    Bound(std::function<T()> getter, std::function<void(T)> setter) : get(std::move(getter)), set(std::move(setter)) {}

    template <class Member>
    requires std::is_arithmetic_v<Member> && std::is_arithmetic_v<T>
    Bound(Member& member) // NOLINT(google-explicit-constructor): a declaration reads better without it
        : get([&member] { return static_cast<T>(member); }),
          set([&member](T value) { member = narrowed<Member>(static_cast<double>(value)); }),
          lowest(static_cast<double>(std::numeric_limits<Member>::lowest())),
          highest(static_cast<double>(std::numeric_limits<Member>::max())) {}

    Bound(std::string& member) // NOLINT(google-explicit-constructor)
        requires std::same_as<T, QString> : get([&member] { return QString::fromStdString(member); }),
                                            set([&member](const QString& text) { member = text.toStdString(); }) {}

    /// The same place, with an action that runs after each value stored there.
    Bound then(std::function<void()> follow) const {
        return {get, [put = set, follow = std::move(follow)](T value) {
                    put(std::move(value));
                    follow();
                }};
    }
};

/// A place for whole rand: cents may be typed, so that a figure can be copied from another paper; they are dropped, not
/// rounded. A stored figure keeps its cents until it is retyped.
inline Bound<double> withoutCents(double& place) {
    return {[&place] { return place; }, [&place](double typed) { place = std::trunc(typed); }};
}

} // namespace screenkit
