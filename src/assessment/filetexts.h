#pragma once

#include <string>

namespace assessment {

/// The adviser's own words in the file that he keeps of his advice.
struct FileTexts {
    std::string basis;          ///< what the advice rests on
    std::string considered;     ///< products considered
    std::string recommendation; ///< what is recommended, and why
    std::string replacement;    ///< what is replaced, and what that costs
    std::string decision;       ///< what the client decided

    bool isEmpty() const {
        return basis.empty() && considered.empty() && recommendation.empty() && replacement.empty() && decision.empty();
    }

    bool operator==(const FileTexts&) const = default;
};

} // namespace assessment
