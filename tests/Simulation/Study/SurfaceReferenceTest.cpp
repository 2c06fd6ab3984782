#include <gtest/gtest.h>

#include "Simulation/Study/SurfaceReference.hpp"
#include "Simulation/Verification/TaskSearch.hpp"

namespace Merivane::Simulation {
namespace {

struct Plane {
    std::size_t zone;
    PlaneKind kind;
    PointStatistics statistics;
};

std::vector<VerificationRow> RowsOf(const std::vector<Plane>& planes,
                                    const TaskRow* task = nullptr) {
    StudyScene built;
    SimulationResult result;
    for (const Plane& plane : planes) {
        built.planes.push_back({plane.zone, plane.kind, 0});
        result.zones.push_back({"", {}, plane.statistics});
    }
    return SurfaceRows(built, result, 1, task);
}

PointStatistics Joined(const std::vector<Plane>& planes, PlaneKind kind) {
    StudyScene built;
    SimulationResult result;
    for (const Plane& plane : planes) {
        built.planes.push_back({plane.zone, plane.kind, 0});
        result.zones.push_back({"", {}, plane.statistics});
    }
    return PlaneStatistics(built, result, 1, kind);
}

TEST(PlaneStatistics, WeighMeansByPointsAndKeepTheExtremes) {
    const std::vector<Plane> planes = {{1, PlaneKind::Wall, {100, 25, 5, 40, 0.2}},
                                       {1, PlaneKind::Wall, {300, 58, 20, 70, 0.34}},
                                       {0, PlaneKind::Wall, {300, 9, 1, 900, 0.1}}};
    const PointStatistics walls = Joined(planes, PlaneKind::Wall);
    EXPECT_EQ(walls, (PointStatistics{400, 49.75, 5, 70, 5 / 49.75}));
    EXPECT_EQ(Joined(planes, PlaneKind::Floor), PointStatistics());
}

TEST(PlaneStatistics, ArePlainlyThoseOfASinglePlane) {
    const PointStatistics plane = {9, 500, 400, 600, 0.8};
    EXPECT_EQ(Joined({{1, PlaneKind::WorkPlane, plane}}, PlaneKind::WorkPlane), plane);
}

TEST(PlaneStatistics, PassOverPlanesWithoutPoints) {
    const PointStatistics wall = {9, 500, 400, 600, 0.8};
    EXPECT_EQ(Joined({{1, PlaneKind::Wall, {}}, {1, PlaneKind::Wall, wall}}, PlaneKind::Wall),
              wall);
}

TEST(PlaneStatistics, HaveNoUniformityInTheDark) {
    const PointStatistics dark = {4, 0, 0, 0, 0};
    EXPECT_EQ(Joined({{1, PlaneKind::Wall, dark}, {1, PlaneKind::Wall, dark}}, PlaneKind::Wall),
              (PointStatistics{8, 0, 0, 0, 0}));
}

TEST(SurfaceRows, CompareCeilingAndWallsAsPrinted) {
    // Two walls of 100 and 300 points: their mean is 25 / 4 + 3 x 58 / 4 = 49.75.
    const std::vector<VerificationRow> rows =
        RowsOf({{1, PlaneKind::WorkPlane, {9, 500, 400, 600, 0.8}},
                {1, PlaneKind::Wall, {100, 25, 4.95, 40, 0.2}},
                {1, PlaneKind::Wall, {300, 58, 20, 70, 0.34}},
                {0, PlaneKind::Wall, {300, 9, 1, 9, 0.1}}, // of another Zone
                {1, PlaneKind::Floor, {100, 9, 1, 9, 0.1}},
                {1, PlaneKind::Ceiling, {50, 29.4, 2.7, 40, 0.094}}});
    ASSERT_EQ(rows.size(), 4U);
    const auto recommendation = VerificationKind::Recommendation;
    EXPECT_EQ(rows[0], (VerificationRow{"Teto", "29 lx", "≥ 30 lx", true, false, recommendation}));
    EXPECT_EQ(rows[1], (VerificationRow{"Teto U0", "0,09", "≥ 0,10", true, false, recommendation}));
    EXPECT_EQ(rows[2],
              (VerificationRow{"Paredes", "50 lx", "≥ 50 lx", true, true, recommendation}));
    EXPECT_EQ(rows[3],
              (VerificationRow{"Paredes U0", "0,10", "≥ 0,10", true, true, recommendation}));
}

TEST(SurfaceRows, TakeTheReferenceOfTheSection) {
    const std::vector<Plane> planes = {{1, PlaneKind::Wall, {100, 60, 20, 70, 0.33}},
                                       {1, PlaneKind::Ceiling, {100, 60, 20, 70, 0.33}}};
    const std::vector<VerificationRow> rows = RowsOf(planes, FindTask("s22.2"));
    EXPECT_EQ(rows[0].required, "≥ 50 lx");
    EXPECT_EQ(rows[2].required, "≥ 75 lx");
    EXPECT_EQ(RowsOf(planes, FindTask("s1.1"))[2].required, "≥ 50 lx");
}

TEST(SurfaceRows, AreThereOnlyForWhatWasCalculated) {
    EXPECT_TRUE(RowsOf({{1, PlaneKind::WorkPlane, {9, 500, 400, 600, 0.8}}}).empty());
    EXPECT_EQ(RowsOf({{1, PlaneKind::Wall, {1, 60, 20, 70, 0.33}}}).size(), 2U);
}

} // namespace
} // namespace Merivane::Simulation
