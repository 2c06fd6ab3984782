#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "Document/PolarCurve.hpp"
#include "Drawing/PngWriter.hpp"
#include "PlanSamples.hpp"

namespace Merivane::Document {
namespace {

using Drawing::Arc;
using Drawing::Polyline;

// The same intensities in every plane.
Photometry::IesFile FileOf(std::vector<double> angles, std::vector<double> candela) {
    Photometry::IesFile file;
    file.verticalAngles = std::move(angles);
    file.horizontalAngles = {0.0};
    file.candela = {std::move(candela)};
    return file;
}

Photometry::IesFile Downlight() {
    return FileOf({0, 30, 60, 90}, {950, 800, 200, 0});
}

Drawing::DisplayList Draw(const Photometry::IesFile& file, const PolarCurveStyle& style = {}) {
    Drawing::DisplayList list;
    std::string error;
    EXPECT_TRUE(BuildPolarCurve(file, style, list, error)) << error;
    return list;
}

TEST(BuildPolarCurve, DrawsTwoPlanesInTwoColours) {
    const std::vector<Polyline> curves = ElementsOf<Polyline>(Draw(Downlight()), "Curvas");
    ASSERT_EQ(curves.size(), 2U);
    EXPECT_NE(curves[0].stroke.color, curves[1].stroke.color);
    EXPECT_EQ(CountText(Draw(Downlight()), "C0–C180"), 1U);
    EXPECT_EQ(CountText(Draw(Downlight()), "C90–C270"), 1U);
}

TEST(BuildPolarCurve, DistanceFromTheMiddleIsTheIntensity) {
    const Drawing::DisplayList list = Draw(Downlight());
    const std::vector<Arc> circles = ElementsOf<Arc>(list);
    ASSERT_EQ(circles.size(), 5U); // 200 to 1000 cd
    const Arc& outermost = circles.back();
    const Polyline curve = ElementsOf<Polyline>(list, "Curvas").front();
    double farthest = 0.0;
    for (const Drawing::Point& point : curve.points) {
        const double x = point.x - outermost.center.x;
        const double y = point.y - outermost.center.y;
        const double angle = std::atan2(std::abs(x), -y) * 180.0 / 3.14159265358979323846;
        const double candela = std::hypot(x, y) / outermost.radius * 1000.0;
        farthest = std::max(farthest, candela);
        if (std::abs(angle - 30.0) < 1e-6 && candela > 1.0) {
            EXPECT_NEAR(candela, 800.0, 1e-6);
        }
    }
    EXPECT_NEAR(farthest, 950.0, 1e-6);
}

TEST(BuildPolarCurve, PutsC0ToTheRightAndC180ToTheLeft) {
    Photometry::IesFile file;
    file.verticalAngles = {0, 90};
    file.horizontalAngles = {0, 180, 360};
    file.candela = {{100, 100}, {100, 20}, {100, 100}};
    const Drawing::DisplayList list = Draw(file);
    const Drawing::Point middle = ElementsOf<Arc>(list).front().center;
    double right = 0.0;
    double left = 0.0;
    const Polyline outline = ElementsOf<Polyline>(list, "Curvas").front();
    for (const Drawing::Point& point : outline.points) {
        right = std::max(right, point.x - middle.x);
        left = std::max(left, middle.x - point.x);
    }
    EXPECT_GT(right, 2.0 * left);
}

TEST(BuildPolarCurve, ChoosesRoundStepsForItsCircles) {
    struct Case {
        double peak;
        std::vector<std::string> labels;
    };
    const Case cases[] = {
        {950, {"200", "400", "600", "800", "1000"}},
        {1000, {"200", "400", "600", "800", "1000"}},
        {1001, {"250", "500", "750", "1000", "1250"}},
        {1250, {"250", "500", "750", "1000", "1250"}},
        {1251, {"500", "1000", "1500"}},
        {2600, {"1000", "2000", "3000"}},
        {0.42, {"0,1", "0,2", "0,3", "0,4", "0,5"}},
        {26000, {"10000", "20000", "30000"}},
    };
    for (const Case& c : cases) {
        const Drawing::DisplayList list = Draw(FileOf({0, 90}, {c.peak, 0}));
        const std::vector<std::string> texts =
            TextsOf(ElementsOf<Drawing::TextRun>(list, "Textos"));
        EXPECT_EQ(std::vector<std::string>(
                      texts.begin(), texts.begin() + static_cast<std::ptrdiff_t>(c.labels.size())),
                  c.labels)
            << c.peak;
        EXPECT_EQ(ElementsOf<Arc>(list).size(), c.labels.size());
    }
}

TEST(BuildPolarCurve, ShowsOnlyTheHalfThatHoldsLight) {
    struct Case {
        std::vector<double> angles;
        std::vector<double> candela;
        bool lower;
        bool upper;
    };
    const Case cases[] = {
        {{0, 90}, {100, 0}, true, false},
        {{0, 90, 180}, {100, 0, 0.5}, true, false}, // a two-hundredth does not show
        {{0, 90, 180}, {100, 0, 50}, true, true},
        {{90, 180}, {0, 100}, false, true},
        {{0, 90, 180}, {0, 0, 100}, false, true},
    };
    for (const Case& c : cases) {
        const Drawing::DisplayList list = Draw(FileOf(c.angles, c.candela));
        EXPECT_EQ(CountText(list, "0°"), c.lower ? 1U : 0U);
        EXPECT_EQ(CountText(list, "60°"), c.lower ? 2U : 0U);
        EXPECT_EQ(CountText(list, "90°"), 2U);
        EXPECT_EQ(CountText(list, "120°"), c.upper ? 2U : 0U);
        EXPECT_EQ(CountText(list, "180°"), c.upper ? 1U : 0U);
    }
}

TEST(BuildPolarCurve, TellsFluxPeakAndBeam) {
    const double pi = 3.14159265358979323846;
    const Drawing::DisplayList list =
        Draw(FileOf({0, 180}, {1000.0 / (4.0 * pi), 1000.0 / (4.0 * pi)}));
    EXPECT_EQ(CountText(list, "1000 lm"), 1U); // a uniform sphere
    EXPECT_EQ(CountText(list, "80 cd"), 1U);
    EXPECT_EQ(CountText(list, "não se aplica"), 1U); // none found up to 90 degrees
    EXPECT_EQ(CountText(list, "Fluxo luminoso"), 1U);
    EXPECT_EQ(CountText(list, "Intensidade máxima"), 1U);
    EXPECT_EQ(CountText(list, "Semiângulo do facho (50 %)"), 1U);
    EXPECT_EQ(CountText(list, "Intensidades em cd"), 1U);
}

TEST(BuildPolarCurve, PerKilolumenFollowsTheFlux) {
    const double pi = 3.14159265358979323846;
    PolarCurveStyle style;
    style.perKilolumen = true;
    const Drawing::DisplayList list =
        Draw(FileOf({0, 180}, {5000.0 / (4.0 * pi), 5000.0 / (4.0 * pi)}), style);
    EXPECT_EQ(CountText(list, "Intensidades em cd/klm"), 1U);
    EXPECT_EQ(CountText(list, "80"), 1U); // 1000 / (4 pi) = 79.6 cd/klm: circles of 20
}

TEST(BuildPolarCurve, NoTextCoversAnotherAndAllStandOnTheSheet) {
    PolarCurveStyle style;
    style.title = "Luminária de embutir com um nome que não cabe de modo algum numa única linha "
                  "da ficha";
    style.subtitle = "Fabricante – 0123456789 – arquivo com um nome comprido demais para a ficha, "
                     "mesmo em letra pequena.ies";
    for (double peak : {3.0, 999.0, 1250.0, 123456.0}) {
        for (const auto& candela :
             {std::vector<double>{peak, peak, 0, 0}, {peak, 0, 0, peak}, {0, 0, 0, peak}}) {
            const Drawing::DisplayList list = Draw(FileOf({0, 45, 90, 180}, candela), style);
            EXPECT_EQ(OverlappingTexts(list), "");
            for (const Drawing::TextRun& run : ElementsOf<Drawing::TextRun>(list)) {
                const Drawing::Box box = TextBounds(run);
                EXPECT_GE(box.left, 0.0) << run.text;
                EXPECT_LE(box.right, list.width) << run.text;
                EXPECT_GE(box.bottom, 0.0) << run.text;
                EXPECT_LE(box.top, list.height) << run.text;
            }
        }
    }
}

TEST(BuildPolarCurve, BecomesAPictureThatRepeats) {
    std::string first;
    std::string second;
    std::string error;
    ASSERT_TRUE(WritePng(Draw(Downlight()), first, error)) << error;
    ASSERT_TRUE(WritePng(Draw(Downlight()), second, error)) << error;
    EXPECT_EQ(first, second);
}

TEST(BuildPolarCurve, RefusesWhatHasNoCurve) {
    Photometry::IesFile typeB = Downlight();
    typeB.photometricType = 2;
    const Photometry::IesFile dark = FileOf({0, 90}, {0, 0});
    const Photometry::IesFile infinite =
        FileOf({0, 90}, {std::numeric_limits<double>::infinity(), 0});
    struct Case {
        Photometry::IesFile file;
        std::string error;
    };
    const Case cases[] = {
        {typeB, "A curva polar precisa de fotometria do tipo C."},
        {dark, "A curva polar precisa de intensidade acima de 0 cd."},
        {infinite, "A curva polar precisa de intensidades finitas."},
        {{}, "A curva polar precisa de intensidade acima de 0 cd."},
    };
    for (const Case& c : cases) {
        Drawing::DisplayList list;
        list.title = "antes";
        std::string error;
        EXPECT_FALSE(BuildPolarCurve(c.file, {}, list, error));
        EXPECT_EQ(error, c.error);
        EXPECT_EQ(list.title, "antes");
    }
    // Light in one direction alone has no flux.
    PolarCurveStyle style;
    style.perKilolumen = true;
    Drawing::DisplayList list;
    std::string error;
    EXPECT_FALSE(BuildPolarCurve(FileOf({0}, {100}), style, list, error));
    EXPECT_EQ(error, "A curva polar em cd/klm precisa de fluxo acima de 0 lm.");
}

} // namespace
} // namespace Merivane::Document
