// Headers of the standard library that nearly every core file includes, parsed once.
#pragma once
#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>
