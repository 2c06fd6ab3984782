#include <limits>

#include <gtest/gtest.h>

#include "Drawing/DisplayList.hpp"

namespace Merivane::Drawing {
namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(CheckDisplayList, AcceptsPagesUpToFiveMetres) {
    struct Case {
        double width;
        double height;
        bool accepted;
    };
    const Case cases[] = {
        {297, 210, true},        {0.001, 0.001, true},  {5000, 5000, true}, {5000.001, 10, false},
        {10, 5000.001, false},   {0, 10, false},        {10, 0, false},     {-1, 10, false},
        {NotANumber, 10, false}, {10, Infinity, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.width << " x " << c.height);
        std::string error;
        EXPECT_EQ(CheckDisplayList({"", c.width, c.height, {}}, error), c.accepted);
        EXPECT_EQ(error, c.accepted ? ""
                                    : "A folha do desenho precisa de largura e altura acima de 0 "
                                      "e de até 5000 mm.");
    }
}

TEST(CheckDisplayList, NamesTheLayerOfWhatCannotBeDrawn) {
    TextRun text;
    text.rotation = Infinity;
    const Element bad[] = {
        Area{{{{0, 0}, {1, NotANumber}, {1, 1}}}, Black},
        Area{{}, {0, NotANumber, 0, 1}},
        Area{{}, Black, Infinity},
        Polyline{{{Infinity, 0}, {1, 1}}, false, {}},
        Polyline{{{0, 0}, {1, 1}}, false, {NotANumber, Black, {}}},
        Polyline{{{0, 0}, {1, 1}}, false, {0.2, Black, {0.0, 0.0}}},
        Polyline{{{0, 0}, {1, 1}}, false, {0.2, Black, {3.0, -1.0}}},
        Arc{{0, 0}, NotANumber, 0, 1, {}},
        text,
    };
    for (const Element& element : bad) {
        std::string error;
        const DisplayList list{"", 100, 100, {{"Boa", {Polyline{}}}, {"Ruim", {element}}}};
        EXPECT_FALSE(CheckDisplayList(list, error)) << element.index();
        EXPECT_EQ(error, "A camada \"Ruim\" do desenho tem uma medida que não é um número válido.");
    }
}

TEST(CheckDisplayList, AcceptsElementsWithoutPoints) {
    std::string error;
    const DisplayList list{"", 100, 100, {{"", {Area{}, Polyline{}, Arc{}, TextRun{}}}, {}}};
    EXPECT_TRUE(CheckDisplayList(list, error)) << error;
}

} // namespace
} // namespace Merivane::Drawing
