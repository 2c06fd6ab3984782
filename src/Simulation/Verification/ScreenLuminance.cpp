#include "Simulation/Verification/ScreenLuminance.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>

#include "Simulation/LengthScale.hpp"
#include "Simulation/Verification/TaskSearch.hpp"
#include "Simulation/Verification/TaskTable.hpp"
#include "Text/Ascii.hpp"

namespace Merivane::Simulation {

namespace {

constexpr double Degree = std::numbers::pi / 180.0;

constexpr std::array<double, 3> Elevations = {65.0, 75.0, 85.0}; // from the nadir [deg]
constexpr int Azimuths = 24;
constexpr double AzimuthStep = 15.0; // deg

constexpr std::array<std::string_view, 10> ScreenWords = {
    "dados",  "computador", "computadores", "tela",      "telas",
    "teclar", "cad",        "monitor",      "monitores", "vdt"};

bool IsWordByte(char c) {
    return Text::IsDigit(c) || (c >= 'a' && c <= 'z');
}

/// Direction of the plane C at `azimuth` of an untilted luminaire in the project's plan [deg]. A
/// mirrored object counts its planes the other way round.
double PlanAngle(const SceneLuminaire& luminaire, double azimuth) {
    const double own = luminaire.contract.c0Rotation + azimuth;
    return luminaire.rotation / Degree + (luminaire.mirrored ? 180.0 - own : own);
}

/// Luminance in the direction of `azimuth` and `elevation` [deg]; 0 where no luminous area shows.
double LuminanceTowards(const PlacedLuminaire& luminaire, double azimuth, double elevation) {
    const double plan = PlanAngle(*luminaire.luminaire, azimuth) * Degree;
    const double sideways = std::sin(elevation * Degree);
    const Point3D eye = {luminaire.center.x + std::cos(plan) * sideways,
                         luminaire.center.y + std::sin(plan) * sideways,
                         luminaire.center.z - std::cos(elevation * Degree)};
    double area = 0.0;
    const double intensity = LuminousIntensityTowards(luminaire, eye, area);
    return area > 0.0 ? intensity / area : 0.0;
}

} // namespace

bool SpeaksOfScreens(std::string_view text) {
    const std::string lower = Text::ToLower(text);
    for (auto begin = lower.begin(); begin != lower.end();) {
        begin = std::find_if(begin, lower.end(), IsWordByte);
        const auto end = std::find_if_not(begin, lower.end(), IsWordByte);
        if (std::find(ScreenWords.begin(), ScreenWords.end(), std::string_view(begin, end)) !=
            ScreenWords.end()) {
            return true;
        }
        begin = end;
    }
    return false;
}

std::int32_t ResolveScreens(const ZoneRequirement& requirement) {
    if (requirement.screens >= 0) {
        return requirement.screens;
    }
    const TaskRow* task = FindTask(requirement.taskId);
    return task != nullptr && SpeaksOfScreens(task->activity + " " + task->note) ? ScreensClass1And2
                                                                                 : ScreensNone;
}

double ScreenLuminanceLimit(std::int32_t screens) {
    switch (screens) {
    case 1:
    case 2:
        return 1000.0;
    case 3:
        return 200.0;
    default:
        return 0.0;
    }
}

double MaximumScreenLuminance(const PlacedLuminaire& luminaire, double& gamma, double& c) {
    gamma = 0.0;
    c = 0.0;
    PlacedLuminaire full = luminaire;
    // A piece of a linear run has a piece of the opening too, so its luminance is the whole's.
    full.outputFactor = AppliedLengthScale(*luminaire.luminaire);
    double largest = 0.0;
    for (const double elevation : Elevations) {
        for (int i = 0; i < Azimuths; ++i) {
            const double azimuth = i * AzimuthStep;
            const double luminance = LuminanceTowards(full, azimuth, elevation);
            // All planes of a round luminaire are equal but for rounding: the first is told.
            if (luminance > largest * (1.0 + 1e-9)) {
                largest = luminance;
                gamma = elevation;
                c = azimuth;
            }
        }
    }
    return largest;
}

} // namespace Merivane::Simulation
