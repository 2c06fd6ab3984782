#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "Archicad/FaceReading.hpp"

namespace Merivane::Archicad {
namespace {

using Simulation::Point3D;
using Contours = std::vector<std::vector<Point3D>>;

/// A unit square, edges 1 to 4 around it; a small square in it, edge 5 from 6 to 5, 6 from 7 to 6,
/// 7 from 8 to 7, 8 from 5 to 8, so that it is walked backwards.
Host::Body SquareBody() {
    Host::Body body;
    body.vertices = {{0, 0, 0},     {1, 0, 0},     {1, 1, 0},     {0, 1, 0},
                     {0.2, 0.2, 0}, {0.4, 0.2, 0}, {0.4, 0.4, 0}, {0.2, 0.4, 0}};
    body.edges = {{1, 2}, {2, 3}, {3, 4}, {4, 1}, {6, 5}, {7, 6}, {8, 7}, {5, 8}};
    return body;
}

const std::vector<Point3D> Square = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
const std::vector<Point3D> Small = {{0.2, 0.2, 0}, {0.4, 0.2, 0}, {0.4, 0.4, 0}, {0.2, 0.4, 0}};

Contours Read(const std::vector<std::int32_t>& edges, const Host::Body& body = SquareBody()) {
    Host::BodyFace face;
    face.edges = edges;
    return ReadContours(body, face);
}

TEST(ReadContours, WalksNegativeEdgesBackwards) {
    EXPECT_EQ(Read({1, 2, 3, 4}), Contours{Square});
    EXPECT_EQ(Read({-5, -6, -7, -8}), Contours{Small});
    EXPECT_EQ(Read({-4, -3, -2, -1}), (Contours{{{0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0}}}));
}

TEST(ReadContours, EndsAContourAtZero) {
    const Contours both = {Square, Small};
    EXPECT_EQ(Read({1, 2, 3, 4, 0, -5, -6, -7, -8}), both);
    EXPECT_EQ(Read({1, 2, 3, 4, 0, -5, -6, -7, -8, 0}), both); // as the host ends its lists
    EXPECT_EQ(Read({0, 1, 2, 3, 4, 0, 0, -5, -6, -7, -8}), both);
    EXPECT_TRUE(Read({}).empty());
    EXPECT_TRUE(Read({0, 0}).empty());
}

TEST(ReadContours, DropsContoursUnderThreeVertices) {
    EXPECT_EQ(Read({1, 2, 3, 4, 0, -5, -6}), Contours{Square});
    EXPECT_EQ(Read({1, 2, 3, 4, 0, -5, -6, 0, -5, -6, -7}).size(), 2U);
    EXPECT_TRUE(Read({1, 2}).empty());
}

TEST(ReadContours, DropsAContourThatNamesWhatTheBodyDoesNotHave) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
    for (const std::int32_t edge : {9, -9, lowest, highest}) {
        EXPECT_EQ(Read({1, 2, 3, 4, 0, -5, -6, -7, edge}), Contours{Square}) << edge;
    }
    for (const std::int32_t vertex : {0, 9, -1, lowest, highest}) {
        Host::Body body = SquareBody();
        body.edges[7] = {1, vertex};
        EXPECT_EQ(Read({1, 2, 3, 4, 0, -5, -6, -7, -8}, body), Contours{Square}) << vertex;
    }
}

TEST(ReadContours, PlacesTheBody) {
    Host::Body body = SquareBody();
    body.vertices[0] = {1, 10, 100};
    body.transform = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    const Contours read = Read({1, 2, 3, 4}, body);
    ASSERT_EQ(read.size(), 1U);
    EXPECT_EQ(read[0][0], (Point3D{325, 773, 1221}));
    EXPECT_EQ(read[0][1], (Point3D{5, 13, 21}));
}

TEST(MeanPlace, IsThatOfTheVertices) {
    EXPECT_EQ(MeanPlace(Square), (Point3D{0.5, 0.5, 0}));
    EXPECT_EQ(MeanPlace({{1, 2, 3}}), (Point3D{1, 2, 3}));
    EXPECT_EQ(MeanPlace({}), Point3D{});
}

} // namespace
} // namespace Merivane::Archicad
