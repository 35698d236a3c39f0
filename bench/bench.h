#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace bench {

/// One line of the table: what is measured, beside the least that could do it in the same run.
struct Bench {
    std::string name;
    std::string unit = "ms";       ///< of the two figures: "ms", "MiB"
    std::function<double()> floor; ///< measures the floor once; empty where the goal is a figure in `unit`
    std::function<double()> ours;  ///< measures ours once
    double goal = 0;               ///< at most so many times the floor, or so many units where there is no floor
    int rounds = 15;               ///< floor and ours are measured by turns this often and the median of each counts
};

/// All benches of the program, by the order of their files.
std::vector<Bench>& registry();

/// Puts a bench into the table: `const bench::Register loans({...});` at namespace scope.
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

/// A folder of the benches' own inside the build's, emptied of what the last run left there: on the disk, since a save
/// in memory would never wait for it.
std::filesystem::path emptyFolder(const std::string& name);

/// Keeps the compiler from leaving out work whose result nobody reads.
inline void keep(double result) {
    [[maybe_unused]] static volatile double kept;
    kept = result;
}

} // namespace bench
