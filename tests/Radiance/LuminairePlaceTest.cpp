// Where the light is calculated from and where glare looks for it: one place.

#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

#include "Radiance/Installation.hpp"
#include "Radiance/LuminaireSource.hpp"
#include "Radiance/ProcessRunner.hpp"
#include "Simulation/PlacedLuminaire.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Radiance {
namespace {

using Simulation::PlacedLuminaire;
using Simulation::Point3D;
using Simulation::SceneLuminaire;

/// The source's centre and the ends of its three axes.
using Cross = std::array<Point3D, 4>;

/// Coordinates of the polygons in what `xform` wrote.
std::vector<Cross> ReadCrosses(const std::string& text) {
    std::vector<Cross> crosses;
    std::istringstream lines(text);
    for (std::string word; lines >> word;) {
        if (word != "12") { // the number of coordinates
            continue;
        }
        Cross cross;
        for (Point3D& point : cross) {
            lines >> point.x >> point.y >> point.z;
        }
        crosses.push_back(cross);
    }
    return crosses;
}

/// The real `xform` on a cross that stands where `xform` lowers the source from.
std::vector<Cross> PlacedByXform(const SceneLuminaire& luminaire) {
    const Tests::TemporaryFolder folder;
    const Installation installation = FindInstallation(Text::WidePath(Tests::BuildFolder()));
    Tests::WriteBytes(folder.Path() / "cross.rad", "void polygon cross 0 0 12\n0 0 0.0005\n"
                                                   "1 0 0.0005\n0 1 0.0005\n0 0 1.0005\n");
    ProcessJob job;
    job.program = ToolPath(installation.binFolder, "xform");
    for (const std::string& argument : XformArguments(luminaire, "cross.rad")) {
        job.arguments.push_back(std::wstring(argument.begin(), argument.end()));
    }
    job.workingFolder = Text::WidePath(folder.Path());
    job.rayPath = job.workingFolder + L":" + installation.libFolder;
    job.stdoutPath = Text::WidePath(folder.Path() / "placed.rad");
    const ProcessOutcome outcome = RunProcess(job, {});
    EXPECT_EQ(outcome.exitCode, 0U) << outcome.errorText;
    std::vector<Cross> crosses = ReadCrosses(Tests::ReadBytes(folder.Path() / "placed.rad"));
    if (luminaire.mirrored) { // it turns the vertices round, so that a face still looks outwards
        for (Cross& cross : crosses) {
            std::reverse(cross.begin(), cross.end());
        }
    }
    return crosses;
}

Cross CrossOf(const PlacedLuminaire& placed) {
    Cross cross;
    cross.fill(placed.center);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        cross[axis + 1].x += placed.frame[axis];
        cross[axis + 1].y += placed.frame[3 + axis];
        cross[axis + 1].z += placed.frame[6 + axis];
    }
    return cross;
}

void ExpectSame(const Cross& a, const Cross& b) {
    for (std::size_t k = 0; k < a.size(); ++k) {
        EXPECT_NEAR(a[k].x, b[k].x, 2e-6) << k;
        EXPECT_NEAR(a[k].y, b[k].y, 2e-6) << k;
        EXPECT_NEAR(a[k].z, b[k].z, 2e-6) << k;
    }
}

TEST(LuminairePlaces, AreThoseThatXformGives) {
    SceneLuminaire luminaire;
    luminaire.contract.c0Rotation = 30;
    luminaire.contract.tiltDirection = 70;
    luminaire.contract.tiltAngle = 25;
    luminaire.contract.centerX = 0.1;
    luminaire.contract.centerY = -0.2;
    luminaire.contract.centerZ = 0.3;
    luminaire.rotation = 0.6;
    luminaire.x = 1;
    luminaire.y = 2;
    luminaire.z = 2.8;
    luminaire.arrayCountX = 2;
    luminaire.arrayStepX = 1.5;
    luminaire.arrayCountY = 3;
    luminaire.arrayStepY = -0.75;
    for (const bool mirrored : {false, true}) {
        luminaire.mirrored = mirrored;
        const std::vector<Cross> expected = PlacedByXform(luminaire);
        const std::vector<SceneLuminaire> luminaires = {luminaire};
        const std::vector<PlacedLuminaire> placed = Simulation::PlaceLuminaires(luminaires);
        ASSERT_EQ(expected.size(), placed.size());
        for (std::size_t i = 0; i < placed.size(); ++i) {
            SCOPED_TRACE(i);
            ExpectSame(CrossOf(placed[i]), expected[i]);
        }
    }
}

} // namespace
} // namespace Merivane::Radiance
