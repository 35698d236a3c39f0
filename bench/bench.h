#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace bench {

/// One line of the table: what is measured, and its floor, the least work that could do the same, measured in the same
/// run.
struct Bench {
    std::string name;
    std::string unit = "ms";       ///< of the two figures: "ms", "MiB"
    std::function<double()> floor; ///< measures the floor once; empty if the goal is a figure in `unit`
    std::function<double()> ours;  ///< measures the program once
    double goal = 0;               ///< at most so many times the floor; without a floor, so many units
    int rounds = 15;               ///< number of measurements of each, taken in turns; the medians count
};

/// All benches of the program, in the order of their files.
std::vector<Bench>& registry();

/// Adds a bench to the table: `const bench::Register loans({...});` at namespace scope.
struct Register {
    explicit Register(Bench bench) { registry().push_back(std::move(bench)); }
};

/// Milliseconds that `work` takes.
template <typename Work>
double milliseconds(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// A folder for the benches in the build folder, emptied first. It is on the disk, since a save in memory would never
/// wait for the disk.
std::filesystem::path emptyFolder(const std::string& name);

/// Keeps the compiler from removing work whose result is not used.
inline void keep(double result) {
    [[maybe_unused]] static volatile double kept;
    kept = result;
}

} // namespace bench
