#pragma once

#include "clientfile/parts.h"

/// The parts by subject; parts() puts them in the order of the document.
namespace clientfile {

/// Why a part can't be printed.
inline constexpr const char* nothingEntered = "Nothing is entered yet.";
inline constexpr const char* nothingOnScreen = "Its screen holds no figures, and the file has none.";
inline constexpr const char* noResult = "The figures give no result that can be printed.";

std::vector<Part> clientParts();     ///< personal details and policies
std::vector<Part> analysisParts();   ///< the needs analyses and the quotation
std::vector<Part> calculatorParts(); ///< loans, banking, investments, annuities
std::vector<Part> taxParts();        ///< the tax workbench
std::vector<Part> adviceParts();     ///< what the advice rests on, with the lines for both signatures

} // namespace clientfile
