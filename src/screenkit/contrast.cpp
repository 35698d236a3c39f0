#include "screenkit/contrast.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace screenkit {

namespace {

/// Relative luminance of a colour, 0 to 1.
double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The ink mixed with the first of the papers as far as it stays readable on all of them.
QColor greyed(const QColor& ink, const std::vector<QColor>& papers) {
    constexpr double readable = 3.3; // the guidelines ask for 3, but letters have soft edges
    constexpr int steps = 20;
    const QColor& paper = papers.front();
    for (int step = steps; step > 0; --step) {
        const auto mixed = [step](int from, int to) { return from + (to - from) * step / steps; };
        const QColor grey(mixed(ink.red(), paper.red()), mixed(ink.green(), paper.green()),
                          mixed(ink.blue(), paper.blue()));
        const auto canBeRead = [&](const QColor& each) { return contrast(grey, each) >= readable; };
        if (std::all_of(papers.begin(), papers.end(), canBeRead)) return grey;
    }
    return ink;
}

} // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool makeGreyedReadable(QPalette& palette) {
    std::vector<QColor> papers;
    for (const auto paper : {QPalette::Window, QPalette::Base, QPalette::Button})
        for (const auto group : {QPalette::Disabled, QPalette::Active})
            papers.push_back(palette.color(group, paper));
    bool changed = false;
    for (const auto ink : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        const QColor grey = greyed(palette.color(QPalette::Active, ink), papers);
        changed = changed || grey != palette.color(QPalette::Disabled, ink);
        palette.setColor(QPalette::Disabled, ink, grey);
    }
    return changed;
}

} // namespace screenkit
