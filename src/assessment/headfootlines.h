#pragma once

#include <array>
#include <string>

namespace assessment {

/// The practice's own lines on every report, at most 80 characters each.
struct HeadFootLines {
    std::array<std::string, 4> HeaderV;
    std::array<std::string, 4> FootV;
};

} // namespace assessment
