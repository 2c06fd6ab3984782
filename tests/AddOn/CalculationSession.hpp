#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "Workbench/Project/Project.hpp"

namespace Merivane::Tests {

/// A project of one room of 2 m x 2 m on the ground floor, 3 m high, with walls, a floor, two
/// lamps, and a Zone "Sala" in it; on the floor above a Zone "Sala de cima" without a lamp.
Workbench::Project CalculationSample();

/// Numbers of its elements.
inline constexpr std::uint32_t RoomZone = 1;
inline constexpr std::uint32_t UpperZone = 2;
inline constexpr std::uint32_t FirstLamp = 20;

/// A session with that project and the real Radiance, at its quickest, for tests of the main
/// command.
class CalculationSession : public AddOnSession {
protected:
    CalculationSession();

    /// Opens the project anew, with the quickest engine settings.
    void OpenSample(Workbench::Project project = CalculationSample());

    /// What the calculation dialog is answered with: items beside those that make the run short (no
    /// surfaces, no glare).
    static std::string DialogAnswer(const std::string& moreItems = "", int button = 1);
};

/// Elements by layer name and type.
using ElementCounts = std::map<std::pair<std::string, std::int32_t>, int>;
ElementCounts CountElements(const Workbench::Project& project);

/// True when one of the lines is this one; the lines are told where there is none.
::testing::AssertionResult HoldsLine(const std::vector<std::string>& lines,
                                     const std::string& line);

} // namespace Merivane::Tests
