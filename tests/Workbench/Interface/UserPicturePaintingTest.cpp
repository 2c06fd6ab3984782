#include <limits>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "Workbench/Interface/UserPicturePainting.hpp"

namespace Merivane::Workbench {
namespace {

constexpr double Pixel = 25.4 / 96.0; // mm
constexpr Host::Colour Red = {1.0, 0.0, 0.0};
constexpr PixelBox Place = {20, 10, 100, 50};

/// What is painted between the ground and the edge, on a canvas of 200 x 100.
std::vector<Drawing::Element> Painted(std::vector<Host::PictureShape> shapes) {
    PixelCanvas canvas = MakeCanvas(200, 100, LightTheme());
    DrawUserPicture(canvas, {{0.9, 0.8, 0.7}, std::move(shapes)}, Place);
    std::vector<Drawing::Element> elements = canvas.list.layers.front().elements;
    EXPECT_GE(elements.size(), 2U);
    const auto* const ground = std::get_if<Drawing::Area>(&elements.front());
    EXPECT_TRUE(ground && ground->fill == (Drawing::Color{0.9, 0.8, 0.7, 1.0}));
    return {elements.begin() + 1, elements.end() - 1};
}

Drawing::Point OnPaper(double x, double y) {
    return {x * Pixel, (100.0 - y) * Pixel};
}

void ExpectNear(const Drawing::Point& a, const Drawing::Point& b) {
    EXPECT_NEAR(a.x, b.x, 1e-9);
    EXPECT_NEAR(a.y, b.y, 1e-9);
}

TEST(UserPicture, StandsInItsItem) {
    const auto elements = Painted({Host::PictureLine{{{0, 0}, {50, 25}}, Red, 2.0}});
    ASSERT_EQ(elements.size(), 1U);
    const auto& line = std::get<Drawing::Polyline>(elements[0]);
    ASSERT_EQ(line.points.size(), 2U);
    ExpectNear(line.points[0], OnPaper(20, 10));
    ExpectNear(line.points[1], OnPaper(70, 35));
    EXPECT_EQ(line.stroke.color, (Drawing::Color{1.0, 0.0, 0.0, 1.0}));
    EXPECT_NEAR(line.stroke.width, 2.0 * Pixel, 1e-12);
}

TEST(UserPicture, IsCutOffAtTheItemsEdges) {
    const auto elements =
        Painted({Host::PictureLine{{{-50, 25}, {500, 25}}, Red, 1.0},
                 Host::PictureLine{{{-50, -25}, {500, -25}}, Red, 1.0},
                 Host::PicturePolygon{{{-50, -50}, {500, -50}, {500, 500}, {-50, 500}}, Red},
                 Host::PicturePolygon{{{-50, -50}, {-20, -50}, {-20, -20}}, Red},
                 Host::PictureCircle{{0, 0}, 10.0, Red, 1.0}});
    ASSERT_EQ(elements.size(), 3U);
    ExpectNear(std::get<Drawing::Polyline>(elements[0]).points[0], OnPaper(20, 35));
    ExpectNear(std::get<Drawing::Polyline>(elements[0]).points[1], OnPaper(120, 35));
    EXPECT_EQ(std::get<Drawing::Area>(elements[1]).rings.front().size(), 4U);
    for (const Drawing::Point& point : std::get<Drawing::Polyline>(elements[2]).points) {
        EXPECT_GE(point.x, 20 * Pixel - 1e-9);
        EXPECT_LE(point.y, 90 * Pixel + 1e-9);
    }
}

TEST(UserPicture, ShortensTextsThatDoNotFitAndLeavesOutThoseOutside) {
    const auto elements = Painted(
        {Host::PictureText{"10 cm", {5, 25}, Red},
         Host::PictureText{std::string(100, 'm'), {5, 25}, Red},
         Host::PictureText{"10 cm", {-1, 25}, Red}, Host::PictureText{"10 cm", {5, 1}, Red},
         Host::PictureText{"10 cm", {5, 49}, Red}, Host::PictureText{"10 cm", {99, 25}, Red}});
    ASSERT_EQ(elements.size(), 2U);
    EXPECT_EQ(std::get<Drawing::TextRun>(elements[0]).text, "10 cm");
    EXPECT_TRUE(std::get<Drawing::TextRun>(elements[1]).text.ends_with("m…"));
}

TEST(UserPicture, LeavesOutWhatHasNoPlace) {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(Painted({Host::PictureLine{{{0, 0}, {none, 5}}, Red, 1.0},
                         Host::PicturePolygon{{{0, 0}, {none, 5}, {5, 5}}, Red},
                         Host::PictureCircle{{5, 5}, none, Red, 1.0},
                         Host::PictureText{"x", {none, 5}, Red}})
                    .empty());
}

} // namespace
} // namespace Merivane::Workbench
