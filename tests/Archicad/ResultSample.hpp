#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "Archicad/ResultDrawing.hpp"
#include "AttributeSample.hpp"
#include "Host/Elements.hpp"
#include "Simulation/Study/ZoneDrawing.hpp"
#include "Support/Places.hpp"

/// Made-up results and what tests of their drawing look at.
namespace Merivane::Tests {

/// A rectangle [m].
Simulation::Polygon2D PlanArea(double x, double y, double width, double depth);

/// A Zone "Sala" of 4 x 3 m from the origin, as little as can be drawn: one band of one polygon
/// with a hole, two closed curves of 8 points for 100 and 300 lux, a task limit, and a grid of
/// 7 x 4 nodes, 0.5 m apart from (0.5, 0.5), whose values are 100 i + j, node (6, 3) without one.
Simulation::ZoneDrawing SmallDrawing();

/// The result of a smooth field over any outline, with all that is made from it: bands, curves,
/// limit, statistics; verified against the activity of `taskId` where it is not empty.
Simulation::ZoneDrawing SmoothDrawing(const std::string& name, const Simulation::Polygon2D& outline,
                                      const Simulation::LevelList& levels,
                                      const std::string& taskId);

/// A project as `AttributeTest` opens it, with the result layers made (5 to 10) and the dashed line
/// (2), its log in a folder of its own.
class ResultTest : public AttributeTest {
protected:
    ResultTest();

    /// Makes the structure anew for these options.
    void Prepare();

    /// Runs `draw` in an undo step and expects that it drew something.
    static void Draw(const std::function<void()>& draw);

    /// All elements of a type, in order of creation.
    static std::vector<Workbench::ProjectElement> Elements(Host::ElementType type);
    static std::vector<Workbench::ProjectElement> ElementsOn(Host::AttributeIndex layer);

    /// The texts on a layer, each as the first paragraph reads.
    static Lines TextsOn(Host::AttributeIndex layer);

    /// The lines of the progress file without their times.
    Lines ProgressLines() const;

    Archicad::DrawingOptions options; ///< levels 100 and 300, all drawn
    Archicad::ResultStructure structure;
    std::vector<std::string> warnings;

private:
    TemporaryFolder folder;
};

} // namespace Merivane::Tests
