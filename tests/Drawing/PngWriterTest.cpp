#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>

#include <gtest/gtest.h>

#include <cairo.h>

#include "Drawing/PngWriter.hpp"

namespace Merivane::Drawing {
namespace {

constexpr double DotPerMillimetre = 25.4; // dots per inch at which a dot is a millimetre

cairo_status_t ReadFromString(void* source, unsigned char* data, unsigned int length) {
    auto& bytes = *static_cast<std::string*>(source);
    if (bytes.size() < length) {
        return CAIRO_STATUS_READ_ERROR;
    }
    std::memcpy(data, bytes.data(), length);
    bytes.erase(0, length);
    return CAIRO_STATUS_SUCCESS;
}

// The picture of a list, as any PNG reader sees it. (0, 0) is the upper left dot.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> dots; // 0xRRGGBB

    std::uint32_t At(int x, int y) const {
        return dots[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                    static_cast<std::size_t>(x)];
    }
};

Picture Draw(const DisplayList& list, double dotsPerInch = DotPerMillimetre) {
    std::string bytes;
    std::string error;
    EXPECT_TRUE(WritePng(list, bytes, error, {dotsPerInch})) << error;
    cairo_surface_t* surface = cairo_image_surface_create_from_png_stream(ReadFromString, &bytes);
    EXPECT_EQ(cairo_surface_status(surface), CAIRO_STATUS_SUCCESS);
    Picture picture;
    picture.width = cairo_image_surface_get_width(surface);
    picture.height = cairo_image_surface_get_height(surface);
    const unsigned char* data = cairo_image_surface_get_data(surface);
    for (int y = 0; y < picture.height; ++y) {
        const unsigned char* row =
            data + std::ptrdiff_t{cairo_image_surface_get_stride(surface)} * y;
        for (int x = 0; x < picture.width; ++x) {
            std::uint32_t dot = 0;
            std::memcpy(&dot, row + std::ptrdiff_t{4} * x, 4);
            picture.dots.push_back(dot & 0xFFFFFFU);
        }
    }
    cairo_surface_destroy(surface);
    return picture;
}

std::vector<Point> Square(double left, double bottom, double side) {
    return {
        {left, bottom}, {left + side, bottom}, {left + side, bottom + side}, {left, bottom + side}};
}

DisplayList Sheet(double width, double height, std::vector<Element> elements = {}) {
    return {"Folha", width, height, {{"Camada", std::move(elements)}}};
}

std::uint32_t BigEndian(const std::string& bytes, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t k = 0; k < 4; ++k) {
        number = number << 8 | static_cast<unsigned char>(bytes[at + k]);
    }
    return number;
}

TEST(WritePng, BeginsWithTheSignatureAndHoldsSizeAndResolution) {
    std::string bytes;
    std::string error;
    ASSERT_TRUE(WritePng(Sheet(297, 210), bytes, error, {150}));
    EXPECT_EQ(bytes.substr(0, 8), "\x89PNG\r\n\x1a\n");
    EXPECT_EQ(BigEndian(bytes, 16), 1754U); // 297 mm / 25.4 * 150
    EXPECT_EQ(BigEndian(bytes, 20), 1240U);
    const std::size_t resolution = bytes.find("pHYs");
    ASSERT_NE(resolution, std::string::npos);
    EXPECT_EQ(BigEndian(bytes, resolution + 4), 5906U); // 150 dots per inch in dots per metre
    EXPECT_EQ(bytes[resolution + 12], '\x01');
}

TEST(WritePng, AnEmptyListIsAWhitePage) {
    const Picture picture = Draw({"", 7, 5, {}});
    EXPECT_EQ(picture.width, 7);
    EXPECT_EQ(picture.height, 5);
    EXPECT_EQ(std::count(picture.dots.begin(), picture.dots.end(), 0xFFFFFFU), 35);
}

TEST(WritePng, FillsAnAreaWithExactlyItsColourAndNothingAround) {
    const Picture picture = Draw(Sheet(10, 10, {Area{{Square(2, 5, 3)}, {1.0, 0.6, 0.2, 1.0}}}));
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 10; ++x) {
            const bool inside = x >= 2 && x < 5 && y >= 2 && y < 5; // y 5..8 from the lower edge
            EXPECT_EQ(picture.At(x, y), inside ? 0xFF9933U : 0xFFFFFFU) << x << " " << y;
        }
    }
}

TEST(WritePng, RingsFillByTheEvenOddRuleWhicheverWayTheyTurn) {
    std::vector<Point> reversed = Square(3, 3, 4);
    std::reverse(reversed.begin(), reversed.end());
    for (const std::vector<Point>& hole : {Square(3, 3, 4), reversed}) {
        const Picture picture =
            Draw(Sheet(10, 10, {Area{{Square(1, 1, 8), hole, Square(4, 4, 2)}, Black}}));
        EXPECT_EQ(picture.At(2, 2), 0x000000U);
        EXPECT_EQ(picture.At(3, 3), 0xFFFFFFU);
        EXPECT_EQ(picture.At(5, 5), 0x000000U);
    }
}

TEST(WritePng, NeighboursThatBleedLeaveNoSeamOnASlantedEdge) {
    const Color color{0.2, 0.4, 0.8, 1.0};
    const auto triangles = [&color](double bleed) {
        return Sheet(60, 60,
                     {Area{{{{5, 5}, {55, 11}, {5, 55}}}, color, bleed},
                      Area{{{{55, 11}, {55, 55}, {5, 55}}}, color, bleed}});
    };
    // Between the two, on the edge from (55, 11) to (5, 55).
    const auto seamDots = [](const Picture& picture) {
        int count = 0;
        for (int x = 15; x < 45; ++x) {
            const auto y = static_cast<int>(60.0 - (11.0 + (55.0 - x) * 44.0 / 50.0));
            for (int k = -2; k <= 2; ++k) {
                count += picture.At(x, y + k) >> 16 > 0x33 + 8 ? 1 : 0; // red: towards paper
            }
        }
        return count;
    };
    EXPECT_GT(seamDots(Draw(triangles(0.0))), 20);
    EXPECT_EQ(seamDots(Draw(triangles(0.6))), 0);
}

TEST(WritePng, DrawsDashesAndGapsInTheirLengths) {
    const Polyline line{{{0, 2.5}, {20, 2.5}}, false, {1.0, Black, {3.0, 2.0}}};
    const Picture picture = Draw(Sheet(20, 5, {line}));
    for (int x = 0; x < 20; ++x) {
        EXPECT_EQ(picture.At(x, 2), x % 5 < 3 ? 0x000000U : 0xFFFFFFU) << x;
    }
}

TEST(WritePng, DashesOfOneLineDoNotPassToTheNext) {
    const Polyline dashed{{{0, 7.5}, {10, 7.5}}, false, {1.0, Black, {3.0, 2.0}}};
    const Polyline whole{{{0, 2.5}, {10, 2.5}}, false, {1.0, Black, {}}};
    const Picture picture = Draw(Sheet(10, 10, {dashed, whole}));
    for (int x = 0; x < 10; ++x) {
        EXPECT_EQ(picture.At(x, 7), 0x000000U) << x;
    }
}

TEST(WritePng, AnArcRunsCounterClockwiseOnThePaper) {
    Arc quarter{{10, 10}, 8, 0.0, 1.5707963267948966, {2.0, Black, {}}};
    const Picture picture = Draw(Sheet(20, 20, {quarter}));
    EXPECT_EQ(picture.At(15, 4), 0x000000U);  // upper right, at 45 degrees
    EXPECT_EQ(picture.At(15, 15), 0xFFFFFFU); // lower right
    EXPECT_EQ(picture.At(4, 4), 0xFFFFFFU);   // upper left
    EXPECT_EQ(picture.At(4, 15), 0xFFFFFFU);  // lower left
}

TEST(WritePng, TextStandsUprightOnItsBaseLine) {
    TextRun text;
    text.text = "L"; // a stem on the left, a foot at the bottom
    text.position = {2, 2};
    text.height = 15;
    text.weight = TextWeight::Bold;
    const Picture picture = Draw(Sheet(20, 20, {text}));
    const auto dark = [&picture](int x, int y) { return picture.At(x, y) == 0x000000U; };
    EXPECT_TRUE(dark(5, 4));   // head of the stem, 16 mm above the lower edge
    EXPECT_TRUE(dark(12, 16)); // foot
    EXPECT_FALSE(dark(12, 5)); // right of the stem
    EXPECT_EQ(picture.At(5, 1), 0xFFFFFFU);
    EXPECT_EQ(picture.At(5, 19), 0xFFFFFFU);
}

TEST(WritePng, AHaloKeepsTheTextOffWhatLiesBelow) {
    TextRun text;
    text.text = "I";
    text.position = {10, 10};
    text.height = 12;
    text.horizontal = HorizontalAnchor::Center;
    text.vertical = VerticalAnchor::Middle;
    text.halo = 3.0;
    const Picture picture = Draw(Sheet(20, 20, {Area{{Square(0, 0, 20)}, {1, 0, 0, 1}}, text}));
    EXPECT_EQ(picture.At(9, 9) & 0xFF0000U, picture.At(9, 9) << 16 & 0xFF0000U); // grey to black
    EXPECT_EQ(picture.At(12, 9), 0xFFFFFFU);
    EXPECT_EQ(picture.At(7, 9), 0xFFFFFFU);
    EXPECT_EQ(picture.At(16, 9), 0xFF0000U);
}

TEST(WritePng, RepeatsByteForByte) {
    TextRun text;
    text.text = "Iluminância";
    text.position = {5, 5};
    const DisplayList list = Sheet(40, 20, {text, Polyline{{{1, 1}, {30, 18}}, false, {}}});
    std::string first;
    std::string second;
    std::string error;
    ASSERT_TRUE(WritePng(list, first, error));
    ASSERT_TRUE(WritePng(list, second, error));
    EXPECT_EQ(first, second);
}

TEST(WritePng, RefusesWhatNoImageCanHold) {
    struct Case {
        DisplayList list;
        double dotsPerInch;
        std::string error;
    };
    const Case cases[] = {
        {Sheet(0, 10), 150,
         "A folha do desenho precisa de largura e altura acima de 0 e de até "
         "5000 mm."},
        {Sheet(254, 254), 3000.1,
         "A imagem teria 30001 x 30001 pontos; o limite é de 30000 de cada lado."},
        {Sheet(10, 10), 0, "A resolução da imagem precisa ficar acima de 0 pontos por polegada."},
        {Sheet(10, 10), std::numeric_limits<double>::quiet_NaN(),
         "A resolução da imagem precisa ficar acima de 0 pontos por polegada."},
    };
    for (const Case& c : cases) {
        std::string bytes = "antes";
        std::string error;
        EXPECT_FALSE(WritePng(c.list, bytes, error, {c.dotsPerInch}));
        EXPECT_EQ(error, c.error);
        EXPECT_EQ(bytes, "antes");
    }
}

} // namespace
} // namespace Merivane::Drawing
