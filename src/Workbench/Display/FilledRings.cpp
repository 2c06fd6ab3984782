#include "Workbench/Display/FilledRings.hpp"

#include <numbers>

#include "Workbench/Display/PatternLines.hpp"

namespace Merivane::Workbench {

namespace {

constexpr double FillBleed = 0.02;      // keeps the paper from shining through between fills [mm]
constexpr double PatternDistance = 2.0; // [mm]
constexpr double PatternWidth = 0.13;   // [mm]

void AddPattern(const std::vector<std::vector<Drawing::Point>>& rings, double angle,
                const Drawing::Color& color, std::vector<Drawing::Element>& elements) {
    for (const auto& [from, to] : PatternLines(rings, angle, PatternDistance)) {
        elements.emplace_back(Drawing::Polyline{{from, to}, false, {PatternWidth, color, {}}});
    }
}

} // namespace

void AddFilledRings(const Project& project, Host::AttributeIndex fill, const Drawing::Color& color,
                    const std::vector<std::vector<Drawing::Point>>& rings,
                    std::vector<Drawing::Element>& elements) {
    const auto found = project.fills.find(fill.value);
    const Host::FillKind kind =
        found == project.fills.end() ? Host::FillKind::Solid : found->second.kind;
    if (kind == Host::FillKind::Solid) {
        elements.emplace_back(Drawing::Area{rings, color, FillBleed});
        return;
    }
    if (kind == Host::FillKind::Empty) {
        return;
    }
    AddPattern(rings, std::numbers::pi / 4.0, color, elements);
    if (kind == Host::FillKind::Symbol) {
        AddPattern(rings, -std::numbers::pi / 4.0, color, elements);
    }
}

} // namespace Merivane::Workbench
