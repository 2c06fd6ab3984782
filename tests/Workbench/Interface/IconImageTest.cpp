#include <string>

#include <gtest/gtest.h>

#include "Workbench/Interface/IconImage.hpp"

namespace Merivane::Workbench {
namespace {

std::string Svg(const std::string& shapes) {
    return "<svg xmlns=\"x\" width=\"18\" height=\"12\">\n" + shapes + "</svg>\n";
}

TEST(IconImage, ReadsTheShapesOfOurIcons) {
    IconImage image;
    std::string error;
    ASSERT_TRUE(
        ParseIconImage(Svg("<rect x=\"1\" y=\"2\" width=\"3\" height=\"4\" fill=\"#FF8000\"/>\n"
                           "<circle cx=\"5\" cy=\"6\" r=\"2.5\" fill=\"none\" stroke=\"#000000\" "
                           "stroke-width=\"1.5\" stroke-linecap=\"round\"/>"
                           "<line x1=\"0\" y1=\"1\" x2=\"2\" y2=\"3\" stroke=\"#FFFFFF\"/>"
                           "<polygon points=\"0,0 1,0 1,-1.5\" fill=\"#000000\"/>"),
                       image, error))
        << error;
    EXPECT_EQ(image.width, 18.0);
    EXPECT_EQ(image.height, 12.0);
    ASSERT_EQ(image.shapes.size(), 4U);
    EXPECT_EQ(image.shapes[0].points,
              (std::vector<Drawing::Point>{{1, 2}, {4, 2}, {4, 6}, {1, 6}}));
    EXPECT_EQ(image.shapes[0].fill, (Drawing::Color{1.0, 128.0 / 255.0, 0.0, 1.0}));
    EXPECT_FALSE(image.shapes[0].stroke);
    EXPECT_EQ(image.shapes[1].radius, 2.5);
    EXPECT_EQ(image.shapes[1].strokeWidth, 1.5);
    EXPECT_FALSE(image.shapes[1].fill);
    EXPECT_EQ(image.shapes[2].points, (std::vector<Drawing::Point>{{0, 1}, {2, 3}}));
    EXPECT_TRUE(image.shapes[3].closed);
    EXPECT_EQ(image.shapes[3].points.back(), (Drawing::Point{1, -1.5}));
}

TEST(IconImage, RefusesOtherImages) {
    struct Case {
        std::string svg;
        std::string error;
    };
    const Case cases[] = {
        {"", "o ícone não é uma imagem SVG"},
        {"<svg width=\"1\" height=\"1\">", "o ícone não é uma imagem SVG"},
        {"<svg width=\"1\"", "o ícone tem um elemento sem fim"},
        {"<svg width=\"1\"></svg>", "o ícone tem um elemento \"svg\" que não se lê"},
        {Svg("<path d=\"M 0 0\"/>"), "o ícone tem um elemento \"path\" que não se lê"},
        {Svg("<line x1=\"0\"/>"), "o ícone tem um elemento \"line\" que não se lê"},
        {Svg("<circle cx=\"1\" cy=\"1\" r=\"0\"/>"),
         "o ícone tem um elemento \"circle\" que não se lê"},
        {Svg("<polygon points=\"0,0\"/>"), "o ícone tem um elemento \"polygon\" que não se lê"},
        {Svg("<polygon points=\"0 0 1 1\"/>"), "o ícone tem um elemento \"polygon\" que não se lê"},
        {Svg("<rect x=\"1\" y=\"2\" width=\"3\" height=\"4\" fill=\"red\"/>"),
         "o ícone tem um elemento \"rect\" que não se lê"},
        {Svg("<rect x=\"nan\" y=\"2\" width=\"3\" height=\"4\"/>"),
         "o ícone tem um elemento \"rect\" que não se lê"},
    };
    for (const Case& c : cases) {
        IconImage image;
        std::string error;
        EXPECT_FALSE(ParseIconImage(c.svg, image, error)) << c.svg;
        EXPECT_EQ(error, c.error);
    }
}

} // namespace
} // namespace Merivane::Workbench
