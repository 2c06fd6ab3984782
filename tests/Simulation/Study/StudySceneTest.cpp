#include <gtest/gtest.h>

#include "Simulation/Study/StudyScene.hpp"
#include "StudySamples.hpp"

namespace Merivane::Simulation {
namespace {

using Tests::OfficeStudy;

TEST(BuildStudyScene, PutsObserversOfGlareBehindTheStudysPoints) {
    const LightingStudy study = OfficeStudy();
    const StudyScene built = BuildStudyScene(study);
    EXPECT_EQ(built.pointCount, 1U);
    ASSERT_EQ(built.observers.size(), 5U); // four at mid-wall and the one placed in the room
    EXPECT_EQ(built.scene.points.size(), 6U);
    EXPECT_TRUE(built.observers.back().placed);
    EXPECT_EQ(built.observers.back().point, 5U);
    EXPECT_EQ(built.notices,
              (std::vector<std::string>{"1 observador(es) UGR fora das Zonas calculadas (ou com o "
                                        "olho fora da altura da Zona): ignorado(s)"}));
}

TEST(BuildStudyScene, LeavesObserversOutWhereGlareIsNotAsked) {
    LightingStudy study = OfficeStudy();
    study.glare = false;
    const StudyScene built = BuildStudyScene(study);
    EXPECT_TRUE(built.observers.empty());
    EXPECT_EQ(built.scene.points.size(), 1U);
    EXPECT_TRUE(built.notices.empty());
}

TEST(WorkPlaneOf, FindsThePlaneOfEachZoneBehindTheSurfacesOfOthers) {
    LightingStudy study = OfficeStudy();
    study.zones[0].calculateWalls = true;
    study.zones[0].calculateFloor = true;
    study.zones.push_back(study.zones[0]);
    const StudyScene built = BuildStudyScene(study);
    ASSERT_EQ(built.planes.size(), 12U); // work plane, four walls, floor; twice
    EXPECT_EQ(WorkPlaneOf(built, 0), 0U);
    EXPECT_EQ(WorkPlaneOf(built, 1), 6U);
    EXPECT_EQ(built.planes[6].kind, PlaneKind::WorkPlane);
}

} // namespace
} // namespace Merivane::Simulation
