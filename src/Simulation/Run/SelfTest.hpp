#pragma once

#include <string>

#include "Radiance/Installation.hpp"
#include "Simulation/Run/RunSimulation.hpp"

namespace Merivane::Simulation {

/// What came of calculating a scene whose answer is known in closed form.
struct SelfTestResult {
    bool ran = false;               ///< the calculation ended with results
    bool passed = false;            ///< results within `SelfTestTolerance`
    double calculated = 0.0;        ///< [lux] at the point just below the source
    double exact = 0.0;             ///< [lux] by the formula, there
    double largestDifference = 0.0; ///< relative, over all points
    double seconds = 0.0;
    std::string message; ///< Portuguese, when not `ran`
};

/// Largest relative difference with which the self-test passes.
inline constexpr double SelfTestTolerance = 0.02;

/// Calculates a luminous sphere of 1000 lm, 3 m over a strip of points, with this installation, and
/// compares with I cos(theta) / d2. The work folder is made when missing.
SelfTestResult RadianceSelfTest(const Radiance::Installation& installation,
                                const std::wstring& workFolder, const CancelCallback& cancel);

} // namespace Merivane::Simulation
