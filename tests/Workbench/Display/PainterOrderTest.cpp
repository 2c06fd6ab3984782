#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "Workbench/Display/PainterOrder.hpp"
#include "Workbench/Display/ViewBody.hpp"

namespace Merivane::Workbench {
namespace {

using Host::Coordinate;
using Host::Coordinate3D;

/// A face over these places on the paper, in the plane z = level + slopeX x + slopeY y.
PaintedFace Face(std::vector<Coordinate> ring, double level, double slopeX, double slopeY,
                 std::size_t look) {
    PaintedFace face;
    face.rings = {std::move(ring)};
    const double length = std::sqrt(slopeX * slopeX + slopeY * slopeY + 1.0);
    face.normal = {-slopeX / length, -slopeY / length, 1.0 / length};
    face.offset = level / length;
    face.look = look;
    return face;
}

std::vector<Coordinate> Square(double x, double y, double size) {
    return {{x, y}, {x + size, y}, {x + size, y + size}, {x, y + size}};
}

double DepthOf(const PaintedFace& face, const Coordinate& place) {
    return (face.offset - face.normal.x * place.x - face.normal.y * place.y) / face.normal.z;
}

/// What is seen at a place: the face painted last there; null for the paper.
const PaintedFace* SeenAt(const std::vector<PaintedFace>& order, const Coordinate& place) {
    const PaintedFace* seen = nullptr;
    for (const PaintedFace& face : order) {
        seen = IsInside(face.rings, place) ? &face : seen;
    }
    return seen;
}

/// At places all over the paper the nearest of the given faces must be seen.
void ExpectRight(const std::vector<PaintedFace>& faces) {
    const std::vector<PaintedFace> order = PaintOrder(faces);
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(-1.0, 11.0);
    for (int i = 0; i < 3000; ++i) {
        const Coordinate at = {place(random), place(random)};
        double nearest = -HUGE_VAL;
        double second = -HUGE_VAL;
        std::size_t look = 999;
        for (const PaintedFace& face : faces) {
            const double depth = IsInside(face.rings, at) ? DepthOf(face, at) : -HUGE_VAL;
            if (depth > nearest) {
                second = nearest;
                nearest = depth;
                look = face.look;
            } else {
                second = std::max(second, depth);
            }
        }
        const PaintedFace* const seen = SeenAt(order, at);
        if (nearest - second > 0.01) { // not on the line where two of them meet
            ASSERT_EQ(seen == nullptr ? 999 : seen->look, look) << at.x << " " << at.y;
        }
    }
}

TEST(PainterOrder, PaintsNearerFacesLater) {
    const std::vector<PaintedFace> order =
        PaintOrder({Face(Square(0, 0, 4), 5.0, 0, 0, 0), Face(Square(1, 1, 4), 1.0, 0, 0, 1),
                    Face(Square(2, 2, 4), 3.0, 0, 0, 2)});
    ASSERT_EQ(order.size(), 3U);
    EXPECT_EQ(order[0].look, 1U);
    EXPECT_EQ(order[1].look, 2U);
    EXPECT_EQ(order[2].look, 0U);
}

TEST(PainterOrder, GoesByWhereFacesOverlapAndNotByTheirMiddles) {
    // A large floor whose middle is nearer than a small thing that stands on its far end.
    const std::vector<PaintedFace> order =
        PaintOrder({Face(Square(4, 8, 1), -2.9, 0, 0, 0), Face(Square(0, 0, 10), 5.0, 0, -1.0, 1)});
    EXPECT_EQ(order[0].look, 1U);
    EXPECT_EQ(order[1].look, 0U);
}

TEST(PainterOrder, LooksThroughHoles) {
    PaintedFace frame = Face(Square(0, 0, 10), 5.0, 0, 0, 0);
    frame.rings.push_back(Square(2, 2, 6));
    ExpectRight({frame, Face(Square(3, 3, 2), 9.0, 0, 0, 1), Face(Square(1, 1, 8), 1.0, 0, 0, 2)});
}

TEST(PainterOrder, CutsFacesThatGoThroughEachOther) {
    const std::vector<PaintedFace> faces = {Face(Square(0, 0, 10), 0.0, 0, 0, 0),
                                            Face(Square(2, 2, 6), -5.0, 1.0, 0, 1)};
    EXPECT_EQ(PaintOrder(faces).size(), 3U);
    ExpectRight(faces);
}

TEST(PainterOrder, KeepsTheEdgesOfEachPieceToItself) {
    PaintedFace through = Face(Square(2, 2, 6), -5.0, 1.0, 0, 1);
    through.edges = {{{2, 2}, {8, 2}}, {{2, 2}, {2, 8}}};
    double length = 0.0;
    for (const PaintedFace& piece : PaintOrder({Face(Square(0, 0, 10), 0.0, 0, 0, 0), through})) {
        for (const auto& [from, to] : piece.edges) {
            length += std::hypot(to.x - from.x, to.y - from.y);
        }
    }
    EXPECT_NEAR(length, 12.0, 1e-9);
}

TEST(PainterOrder, CutsRingsOfFacesThatEachCoverTheNext) {
    // Four bars laid over each other like the flaps of a box.
    const double third = 1.0 / 3.0;
    const std::vector<PaintedFace> faces = {
        Face({{0, 1}, {10, 1}, {10, 3}, {0, 3}}, 5 * third, -third, 0, 0),
        Face({{7, 0}, {9, 0}, {9, 10}, {7, 10}}, 5 * third, 0, -third, 1),
        Face({{0, 7}, {10, 7}, {10, 9}, {0, 9}}, -5 * third, third, 0, 2),
        Face({{1, 0}, {3, 0}, {3, 10}, {1, 10}}, -5 * third, 0, third, 3),
    };
    EXPECT_GT(PaintOrder(faces).size(), 4U);
    ExpectRight(faces);
}

TEST(PainterOrder, IsRightForManySlopingFaces) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::uniform_real_distribution<double> place(0.0, 7.0);
        std::uniform_real_distribution<double> slope(-0.8, 0.8);
        std::vector<PaintedFace> faces;
        for (std::size_t i = 0; i < 12; ++i) {
            faces.push_back(Face(Square(place(random), place(random), 3.0), place(random),
                                 slope(random), slope(random), i));
        }
        ExpectRight(faces);
    }
}

TEST(PainterOrder, OfNothingIsNothing) {
    EXPECT_TRUE(PaintOrder({}).empty());
}

} // namespace
} // namespace Merivane::Workbench
