#include <gtest/gtest.h>

#include "Document/SurfacePlane.hpp"

namespace Merivane::Document {

TEST(SurfacePlane, MeasuresTheAreaOfAFlatPolygonInAnyPlane) {
    const SurfaceFlatness slanted = MeasureFlatness({{0, 0, 0}, {3, 0, 4}, {3, 2, 4}, {0, 2, 0}});
    EXPECT_NEAR(slanted.area, 10.0, 1e-12);
    EXPECT_NEAR(slanted.deviation, 0.0, 1e-12);
}

TEST(SurfacePlane, IsAsExactFarFromTheOrigin) {
    const double far = 99000.0;
    const SurfaceFlatness flatness =
        MeasureFlatness({{far, far, 0}, {far + 0.1, far, 0}, {far + 0.1, far, 0.1}});
    EXPECT_NEAR(flatness.area, 0.005, 1e-10);
    EXPECT_NEAR(flatness.deviation, 0.0, 1e-10);
}

TEST(SurfacePlane, TellsTheVertexThatStraysFarthest) {
    // A warped quadrilateral: its corners stray by a quarter of the lift each.
    const SurfaceFlatness warped =
        MeasureFlatness({{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0.008}});
    EXPECT_NEAR(warped.deviation, 0.002, 1e-6);
    EXPECT_NEAR(warped.tolerance, 0.001 + 1e-5 * 2.0 * std::sqrt(2.0), 1e-7);
    // One vertex of many: it strays nearly by its whole lift.
    const SurfaceFlatness dented = MeasureFlatness({{0, 0, 0},
                                                    {1, 0, 0},
                                                    {2, 0, 0},
                                                    {3, 0, 0},
                                                    {3, 3, 0},
                                                    {2, 3, 0.01},
                                                    {1, 3, 0},
                                                    {0, 3, 0}});
    EXPECT_EQ(dented.worstVertex, 5U);
    EXPECT_GT(dented.deviation, 0.005);
}

TEST(SurfacePlane, FewVerticesOrOneLineHaveNoArea) {
    EXPECT_EQ(MeasureFlatness({}).area, 0.0);
    EXPECT_EQ(MeasureFlatness({{0, 0, 0}, {1, 0, 0}}).area, 0.0);
    EXPECT_LT(MeasureFlatness({{0, 0, 0}, {1, 1, 1}, {2, 2, 2}}).area, SmallestSurface);
}

} // namespace Merivane::Document
