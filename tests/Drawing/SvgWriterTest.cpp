#include <limits>

#include <gtest/gtest.h>

#include "Drawing/SvgWriter.hpp"

namespace Merivane::Drawing {
namespace {

std::string Svg(const DisplayList& list) {
    std::string bytes;
    std::string error;
    EXPECT_TRUE(WriteSvg(list, bytes, error)) << error;
    return bytes;
}

bool Holds(const std::string& text, const std::string& piece) {
    return text.find(piece) != std::string::npos;
}

TEST(WriteSvg, AnEmptyListIsAWhitePageOfItsRealSize) {
    EXPECT_EQ(Svg({"Vazio", 297, 210, {}}),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\" "
              "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" width=\"297mm\" "
              "height=\"210mm\" viewBox=\"0 0 297 210\" "
              "font-family=\"'DejaVu Sans', Verdana, sans-serif\" xml:space=\"preserve\" "
              "fill=\"none\" stroke-linejoin=\"round\" stroke-linecap=\"round\">\n"
              "<title>Vazio</title>\n"
              "<rect width=\"297\" height=\"210\" fill=\"#ffffff\"/>\n"
              "</svg>\n");
}

TEST(WriteSvg, GivesEachLayerAGroupWithItsName) {
    const std::string svg = Svg({"", 10, 10, {{"Cor \"falsa\" & <mais>", {}}, {"Isolux", {}}}});
    EXPECT_TRUE(Holds(svg, "<g id=\"camada-1\" inkscape:groupmode=\"layer\" "
                           "inkscape:label=\"Cor &quot;falsa&quot; &amp; &lt;mais&gt;\">\n</g>\n"
                           "<g id=\"camada-2\" inkscape:groupmode=\"layer\" "
                           "inkscape:label=\"Isolux\">\n</g>\n"));
}

TEST(WriteSvg, TurnsTheHeightOverAndFillsByEvenOdd) {
    const Area area{{{{1, 1}, {9, 1}, {9, 9}}, {{2, 1.5}, {3, 1.5}, {3, 2.25}}},
                    {1.0, 0.5, 0.0, 0.25}};
    EXPECT_TRUE(Holds(Svg({"", 10, 10, {{"", {area}}}}),
                      "<path d=\"M1 9L9 9L9 1ZM2 8.5L3 8.5L3 7.75Z\" fill-rule=\"evenodd\" "
                      "fill=\"#ff8000\" fill-opacity=\"0.25\"/>\n"));
}

TEST(WriteSvg, AnAreaThatBleedsHasALineOfItsOwnColour) {
    const Area area{{{{1, 1}, {9, 1}, {9, 9}}}, {0.0, 0.0, 1.0, 1.0}, 0.1};
    EXPECT_TRUE(Holds(Svg({"", 10, 10, {{"", {area}}}}),
                      "fill=\"#0000ff\" stroke=\"#0000ff\" stroke-width=\"0.2\"/>\n"));
}

TEST(WriteSvg, WritesLinesWithTheirDashes) {
    const Polyline open{{{0, 0}, {5, 10.0004}}, false, {0.18, Black, {3, 1.5}}};
    const Polyline closed{{{0, 0}, {5, 10}, {0.12345, 5}}, true, {0.5, White, {}}};
    const std::string svg = Svg({"", 10, 10, {{"", {open, closed}}}});
    EXPECT_TRUE(Holds(svg, "<path d=\"M0 10L5 0\" stroke=\"#000000\" stroke-width=\"0.18\" "
                           "stroke-dasharray=\"3 1.5\" stroke-linecap=\"butt\"/>\n"));
    EXPECT_TRUE(
        Holds(svg, "<path d=\"M0 10L5 0L0.123 5Z\" stroke=\"#ffffff\" stroke-width=\"0.5\"/>\n"));
}

TEST(WriteSvg, WritesCirclesAndArcs) {
    const double pi = 3.14159265358979323846;
    const Arc circle{{4, 3}, 2, 0, 2 * pi, {0.2, Black, {}}};
    const Arc quarter{{4, 3}, 2, 0, pi / 2, {0.2, Black, {}}};
    const Arc threeQuarters{{4, 3}, 2, pi / 2, 0, {0.2, Black, {}}};
    const std::string svg = Svg({"", 10, 10, {{"", {circle, quarter, threeQuarters}}}});
    EXPECT_TRUE(Holds(svg, "<circle cx=\"4\" cy=\"7\" r=\"2\" stroke=\"#000000\""));
    EXPECT_TRUE(Holds(svg, "<path d=\"M6 7A2 2 0 0 0 4 5\" stroke=\"#000000\""));
    EXPECT_TRUE(Holds(svg, "<path d=\"M4 5A2 2 0 1 0 6 7\" stroke=\"#000000\""));
}

TEST(WriteSvg, WritesTextsAsTextWhateverTheyHold) {
    struct Case {
        std::string text;
        std::string written;
    };
    const Case cases[] = {
        {"Iluminância (lx)", ">Iluminância (lx)</text>"},
        {"< 50 & > \"10\"", ">&lt; 50 &amp; &gt; &quot;10&quot;</text>"},
        {"≥ 1000", ">≥ 1000</text>"},
        {"a\x01\n\xFF", ">a  \xEF\xBF\xBD</text>"}, // nothing that XML refuses
    };
    for (const Case& c : cases) {
        TextRun text;
        text.text = c.text;
        EXPECT_TRUE(Holds(Svg({"", 10, 10, {{"", {text}}}}), c.written)) << c.text;
    }
}

TEST(WriteSvg, AHaloIsATextOfItsOwnBelow) {
    TextRun text;
    text.text = "150 lx";
    text.halo = 0.4;
    const std::string svg = Svg({"", 10, 10, {{"", {text}}}});
    const std::size_t halo = svg.find("stroke=\"#ffffff\" stroke-width=\"0.8\">150 lx</text>");
    const std::size_t letters = svg.find("fill=\"#000000\">150 lx</text>");
    EXPECT_LT(halo, letters);
    EXPECT_NE(letters, std::string::npos);
}

TEST(WriteSvg, TurnsATextAboutItsOrigin) {
    TextRun text;
    text.text = "A";
    text.position = {3, 4};
    text.rotation = 90;
    text.weight = TextWeight::Bold;
    const std::string svg = Svg({"", 10, 10, {{"", {text}}}});
    EXPECT_TRUE(Holds(svg, "<text x=\"3\" y=\"6\""));
    EXPECT_TRUE(Holds(svg, "font-weight=\"bold\" transform=\"rotate(-90 3 6)\""));
}

TEST(WriteSvg, RepeatsByteForByte) {
    TextRun text;
    text.text = "Área de tarefa";
    const DisplayList list{
        "T", 100, 80, {{"A", {text, Arc{}, Polyline{{{1, 2}, {3, 4}}, true, {}}}}}};
    EXPECT_EQ(Svg(list), Svg(list));
}

TEST(WriteSvg, SetsLettersOfOneWidthInTheirOwnFont) {
    TextRun text;
    text.text = "0,15";
    text.face = TextFace::Monospaced;
    EXPECT_TRUE(Holds(Svg({"", 10, 10, {{"", {text}}}}),
                      "font-family=\"'DejaVu Sans Mono', Consolas, monospace\""));
}

TEST(WriteSvgElement, HasNothingThatTwoImagesOfAPageMayNotShare) {
    std::string element;
    std::string error;
    const DisplayList list{"Planta", 100, 80, {{"A", {Polyline{{{1, 2}, {3, 4}}, true, {}}}}}};
    ASSERT_TRUE(WriteSvgElement(list, element, error)) << error;
    EXPECT_EQ(element.substr(0, 36), "<svg role=\"img\" viewBox=\"0 0 100 80\"");
    EXPECT_TRUE(Holds(element, "<title>Planta</title>"));
    EXPECT_FALSE(Holds(element, " id="));
    EXPECT_FALSE(Holds(element, "http"));
    EXPECT_TRUE(Holds(element, "<path d=\"M1 78L3 76Z\""));
    element = "antes";
    EXPECT_FALSE(WriteSvgElement({"", 0, 10, {}}, element, error));
    EXPECT_EQ(element, "antes");
}

TEST(WriteSvg, RefusesWhatIsNoNumber) {
    std::string bytes = "antes";
    std::string error;
    const Arc arc{{0, 0}, std::numeric_limits<double>::infinity(), 0, 1, {}};
    EXPECT_FALSE(WriteSvg({"", 10, 10, {{"Curvas", {arc}}}}, bytes, error));
    EXPECT_EQ(error, "A camada \"Curvas\" do desenho tem uma medida que não é um número válido.");
    EXPECT_EQ(bytes, "antes");
}

} // namespace
} // namespace Merivane::Drawing
