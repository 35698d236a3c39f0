#pragma once

#include <string>
#include <utility>
#include <vector>

#include "clientfile/partlists.h"
#include "store/error.h"

namespace clientfile {

inline void printAll(const Print& print, const datastore::Printout& printout) { print(printout); }
inline void printAll(const Print& print, const std::vector<datastore::Printout>& printouts) {
    for (const datastore::Printout& each : printouts)
        print(each);
}

/// Several sentences of one remark.
inline std::string joined(const std::vector<std::string>& sentences) {
    std::string all;
    for (const std::string& sentence : sentences)
        all += (all.empty() ? "" : " ") + sentence;
    return all;
}

/// The part of a screen that works a result out and prints it. `Of` has three static functions:
///
///     bool isEntered(const assessment::Assessment&): whether it holds anything that a person entered for this client;
///     options and results alone do not count
///     std::optional<...> result(const Source&): what the screen would print; nothing if it would print nothing
///     feed(const Source&, const Choices&, result): feeds it, and returns the printout, or several
///
/// Settings of the practice that can't be read are no reason to leave the part out, since nobody would miss it:
/// printing it tells what is wrong with them.
template <class Of>
Part partOf(const char* name, const char* title, std::vector<Choice> choices = {},
            std::string (*remark)(const Source&) = nullptr) {
    const auto whyNot = [](const Source& source) -> std::string {
        if (!Of::isEntered(source.record)) return nothingEntered;
        try {
            return Of::result(source) ? "" : noResult;
        } catch (const store::Error&) {
            return {};
        }
    };
    const auto printIt = [](const Source& source, const Choices& chosen, const Print& print) {
        if (const auto result = Of::result(source)) printAll(print, Of::feed(source, chosen, *result));
    };
    return {name, title, std::move(choices), whyNot, printIt, remark};
}

} // namespace clientfile
