#include "bench.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>

#include <QApplication>

#include "screenkit/look.h"

namespace bench {

std::vector<Bench>& registry() {
    static std::vector<Bench> benches;
    return benches;
}

std::filesystem::path emptyFolder(const std::string& name) {
    const std::filesystem::path folder = std::filesystem::path(BENCH_FOLDER) / name;
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    return folder;
}

} // namespace bench

namespace {

struct Measured {
    double floor = 0;
    double ours = 0;
};

double median(std::vector<double> figures) {
    const auto middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
    std::nth_element(figures.begin(), middle, figures.end());
    return *middle;
}

/// The medians of several rounds. Floor and program are measured in turns, so that a busy machine slows both equally.
Measured measure(const bench::Bench& bench) {
    std::vector<double> floor;
    std::vector<double> ours;
    for (int round = 0; round < bench.rounds; ++round) {
        if (bench.floor) floor.push_back(bench.floor());
        ours.push_back(bench.ours());
    }
    return {floor.empty() ? 0 : median(floor), median(ours)};
}

/// Prints the line; true if the goal is met.
bool report(const bench::Bench& bench) {
    const Measured m = measure(bench);
    const char* unit = bench.unit.c_str();
    if (!bench.floor) {
        const bool met = m.ours <= bench.goal;
        std::printf("| %s | | %.4g %s | | at most %.4g %s | %s |\n", bench.name.c_str(), m.ours, unit, bench.goal, unit,
                    met ? "met" : "**missed**");
        return met;
    }
    const double ratio = m.ours / m.floor;
    const bool met = ratio <= bench.goal;
    std::printf("| %s | %.4g %s | %.4g %s | %.2f | at most %.4g times | %s |\n", bench.name.c_str(), m.floor, unit,
                m.ours, unit, ratio, bench.goal, met ? "met" : "**missed**");
    return met;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    screenkit::look::apply(application);
    std::puts("| What | Floor | Ours | Ratio | Goal | |\n|---|---|---|---|---|---|");
    bool allMet = true;
    const std::string wanted = argc > 1 ? argv[1] : ""; // part of a name, to repeat a single line
    for (const bench::Bench& bench : bench::registry()) {
        if (bench.name.find(wanted) == std::string::npos) continue;
        allMet = report(bench) && allMet;
        std::fflush(stdout);
    }
    return allMet ? 0 : 1;
}
