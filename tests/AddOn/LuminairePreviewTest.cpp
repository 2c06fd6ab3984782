#include "AddOn/Commands/LuminairePreview.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "Photometry/IesSamples.hpp"

namespace Merivane::Commands {
namespace {

using Host::Colour;
using Host::ItemPoint;
using Simulation::PreviewFrame;
using Simulation::PreviewLine;
using Simulation::PreviewView;

constexpr PreviewView Views[] = {PreviewView::Front, PreviewView::Side, PreviewView::Plan};
constexpr double Strong = 1.5;     // [points], of all but outline, centre and scale bar
constexpr double PeakLength = 0.6; // [m], three quarters of the box's depth

/// Ground, outline, curve, opening, axis, C0, ceiling.
constexpr Colour Light[] = {{1.00, 1.00, 1.00}, {0.45, 0.45, 0.45}, {0.83, 0.10, 0.10},
                            {0.10, 0.32, 0.85}, {0.00, 0.55, 0.18}, {0.93, 0.50, 0.00},
                            {0.52, 0.32, 0.12}};
constexpr Colour Dark[] = {{0.12, 0.13, 0.15}, {0.66, 0.67, 0.69}, {1.00, 0.38, 0.36},
                           {0.42, 0.62, 1.00}, {0.30, 0.82, 0.45}, {1.00, 0.68, 0.25},
                           {0.78, 0.58, 0.38}};
constexpr const Colour& Outline = Light[1];
constexpr const Colour& Curve = Light[2];
constexpr const Colour& Opening = Light[3];
constexpr const Colour& Axis = Light[4];
constexpr const Colour& C0 = Light[5];
constexpr const Colour& Ceiling = Light[6];

/// 100 points to the metre about a place beside the origin.
const PreviewFrame Frame = {{0.25, -0.5}, 100.0, 1.0, {4.0, -3.0}};

/// A light that is another in every plane, in a box from (0.1, 0.2, -0.3) to (0.5, 1.0, 0.1).
LuminairePreview Sample() {
    LuminairePreview preview;
    preview.object.lowest = {0.1, 0.2, -0.3};
    preview.object.highest = {0.5, 1.0, 0.1};
    preview.object.geometryRead = true;
    preview.object.edges = {{{0.1, 0.2, -0.3}, {0.5, 1.0, 0.1}}};
    preview.file = Tests::MakeTable({0, 30, 60, 90}, {0, 90, 180, 270}, [](double v, double h) {
        return 900.0 - 8.0 * v - v * h / 60.0;
    });
    preview.file.unitsType = 2;
    preview.file.width = 0.2;
    preview.file.length = 0.5;
    preview.settings.centerX = 0.3;
    preview.settings.centerY = 0.6;
    preview.settings.centerZ = -0.25;
    return preview;
}

LuminairePreview Aimed() {
    LuminairePreview preview = Sample();
    preview.settings.tiltAngle = 35.0;
    preview.settings.tiltDirection = 25.0;
    preview.settings.c0Rotation = 70.0;
    return preview;
}

std::vector<ItemPoint> Shown(PreviewView view, const PreviewLine& line,
                             const PreviewFrame& frame = Frame) {
    std::vector<ItemPoint> points;
    points.reserve(line.size());
    for (const auto& point : line) {
        const auto place = Simulation::ToPicture(frame, Simulation::OnView(view, point));
        points.push_back({place.x, place.y});
    }
    return points;
}

/// The shapes of one kind that have a colour, in their order.
template <typename Shape>
std::vector<Shape> ShapesOf(const Host::UserPicture& picture, const Colour& colour) {
    std::vector<Shape> shapes;
    for (const Host::PictureShape& shape : picture.shapes) {
        const auto* const wanted = std::get_if<Shape>(&shape);
        if (wanted && wanted->colour == colour) {
            shapes.push_back(*wanted);
        }
    }
    return shapes;
}

std::vector<Host::PictureLine> StrongLines(const Host::UserPicture& picture, const Colour& colour) {
    auto lines = ShapesOf<Host::PictureLine>(picture, colour);
    std::erase_if(lines, [](const Host::PictureLine& line) { return line.width != Strong; });
    return lines;
}

void ExpectNear(const std::vector<ItemPoint>& points, const std::vector<ItemPoint>& expected) {
    ASSERT_EQ(points.size(), expected.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        EXPECT_NEAR(points[i].x, expected[i].x, 1e-9) << i;
        EXPECT_NEAR(points[i].y, expected[i].y, 1e-9) << i;
    }
}

TEST(DrawPreview, ShowsInEachViewTheCurveOfItsPlane) {
    const LuminairePreview preview = Aimed();
    std::vector<std::vector<ItemPoint>> curves;
    for (const PreviewView view : Views) {
        const auto lines = StrongLines(DrawPreview(preview, view, Frame, false), Curve);
        ASSERT_EQ(lines.size(), 1U);
        ExpectNear(lines[0].points,
                   Shown(view, Simulation::IntensityOutline(preview.file, preview.settings, view,
                                                            PeakLength)));
        curves.push_back(lines[0].points);
    }
    EXPECT_NE(curves[0], curves[1]);
    EXPECT_NE(curves[0], curves[2]);
    EXPECT_NE(curves[1], curves[2]);
}

TEST(DrawPreview, DrawsThePeakAsLongAsFitsTheObject) {
    struct Case {
        const char* story;
        bool read;
        double size; // of the box in x [m]
        int units;   // 1 feet, 2 metres
        double width;
        double length;
        double expected; // [m]
    };
    const Case cases[] = {
        {"three quarters of the longest side", true, 0.8, 2, 5.0, 5.0, 0.6},
        {"a small object", true, 0.1, 2, 5.0, 5.0, 0.1},
        {"the opening where there is no object", false, 0.8, 2, 0.2, 0.5, 0.375},
        {"the wider way", false, 0.8, 2, 0.6, 0.5, 0.45},
        {"in feet", false, 0.8, 1, 1.0, 2.0, 0.75 * 2.0 * 0.3048},
        {"a round one", false, 0.8, 2, -0.4, 0.0, 0.3},
        {"none at all", false, 0.8, 2, 0.0, 0.0, 0.1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.story);
        LuminairePreview preview = Sample();
        preview.object.geometryRead = c.read;
        preview.object.lowest = {0.0, 0.0, 0.0};
        preview.object.highest = {c.size, c.size / 2.0, c.size / 3.0};
        preview.file.unitsType = c.units;
        preview.file.width = c.width;
        preview.file.length = c.length;
        const auto picture = DrawPreview(preview, PreviewView::Front, Frame, false);
        const ItemPoint center = Shown(PreviewView::Front, {{0.3, 0.6, -0.25}})[0];
        const auto curve = StrongLines(picture, Curve);
        ASSERT_EQ(curve.size(), 1U);
        EXPECT_NEAR(curve[0].points[0].x, center.x, 1e-9); // straight down is the first, the peak
        EXPECT_NEAR(curve[0].points[0].y, center.y + 100.0 * c.expected, 1e-9);
        const auto axis = StrongLines(picture, Axis);
        ASSERT_EQ(axis.size(), 1U);
        ExpectNear(axis[0].points, {center, {center.x, center.y + 100.0 * c.expected}});
        const auto c0 = StrongLines(DrawPreview(preview, PreviewView::Plan, Frame, false), C0);
        ASSERT_EQ(c0.size(), 1U);
        EXPECT_NEAR(c0[0].points[1].x - c0[0].points[0].x, 50.0 * c.expected, 1e-9);
    }
}

TEST(DrawPreview, ShowsTheCeilingAtThePartsOriginAcrossTheWholeView) {
    for (const PreviewView view : {PreviewView::Front, PreviewView::Side}) {
        const auto lines =
            ShapesOf<Host::PictureLine>(DrawPreview(Aimed(), view, Frame, false), Ceiling);
        ASSERT_EQ(lines.size(), 1U);
        // 105 is the middle, which stands for -0.5 m, and moved up by 3.
        ExpectNear(lines[0].points, {{0.0, 52.0}, {320.0, 52.0}});
        EXPECT_EQ(lines[0].width, Strong);
    }
    EXPECT_TRUE(
        ShapesOf<Host::PictureLine>(DrawPreview(Aimed(), PreviewView::Plan, Frame, false), Ceiling)
            .empty());
}

TEST(DrawPreview, ShowsOpeningAxisAndC0WhereTheyAreAimed) {
    const LuminairePreview preview = Aimed();
    for (const PreviewView view : Views) {
        const auto picture = DrawPreview(preview, view, Frame, false);
        const auto opening = StrongLines(picture, Opening);
        const auto expected = Simulation::OpeningOutlines(preview.file, preview.settings);
        ASSERT_EQ(opening.size(), expected.size());
        ExpectNear(opening[0].points, Shown(view, expected[0]));
        const auto axis = StrongLines(picture, Axis);
        ASSERT_EQ(axis.size(), 1U);
        ExpectNear(axis[0].points, Shown(view, Simulation::AxisLine(preview.settings, PeakLength)));
        const auto c0 = StrongLines(picture, C0);
        ASSERT_EQ(c0.size(), view == PreviewView::Plan ? 1U : 0U);
        if (view == PreviewView::Plan) {
            ExpectNear(c0[0].points,
                       Shown(view, Simulation::C0Line(preview.settings, PeakLength / 2.0)));
        }
    }
}

TEST(DrawPreview, ShowsAnUntiltedLightByPlainFigures) {
    const auto front = DrawPreview(Sample(), PreviewView::Front, Frame, false);
    const auto plan = DrawPreview(Sample(), PreviewView::Plan, Frame, false);
    // Centre at (169, 77) from the front and (169, -8) in plan; the opening 0.5 m along X.
    ExpectNear(StrongLines(front, Opening)[0].points,
               {{194, 77}, {144, 77}, {144, 77}, {194, 77}, {194, 77}});
    ExpectNear(StrongLines(plan, Opening)[0].points,
               {{194, -18}, {144, -18}, {144, 2}, {194, 2}, {194, -18}});
    ExpectNear(StrongLines(front, Axis)[0].points, {{169, 77}, {169, 137}});
    ExpectNear(StrongLines(plan, C0)[0].points, {{169, -8}, {199, -8}});
    ExpectNear(ShapesOf<Host::PictureLine>(front, Outline)[0].points, {{149, 82}, {189, 42}});
    EXPECT_EQ(ShapesOf<Host::PictureLine>(front, Outline)[0].width, 1.0);
}

TEST(DrawPreview, EndsAxisAndC0InArrowHeads) {
    const auto front = ShapesOf<Host::PicturePolygon>(
        DrawPreview(Sample(), PreviewView::Front, Frame, false), Axis);
    ASSERT_EQ(front.size(), 1U);
    ExpectNear(front[0].points, {{169, 137}, {166, 130}, {172, 130}});
    const auto plan = DrawPreview(Sample(), PreviewView::Plan, Frame, false);
    EXPECT_TRUE(ShapesOf<Host::PicturePolygon>(plan, Axis).empty()); // it looks at the reader
    const auto c0 = ShapesOf<Host::PicturePolygon>(plan, C0);
    ASSERT_EQ(c0.size(), 1U);
    ExpectNear(c0[0].points, {{199, -8}, {192, -5}, {192, -11}});
    const auto aimed =
        ShapesOf<Host::PicturePolygon>(DrawPreview(Aimed(), PreviewView::Plan, Frame, false), Axis);
    ASSERT_EQ(aimed.size(), 1U);
    const auto line = Shown(PreviewView::Plan, Simulation::AxisLine(Aimed().settings, PeakLength));
    ExpectNear({aimed[0].points[0]}, {line[1]});
}

TEST(DrawPreview, LeavesArrowHeadsOutOfLinesThatAreTooShort) {
    PreviewFrame small = Frame;
    small.scale = 20.0; // the axis 12 points, C0 6
    const auto plan = DrawPreview(Sample(), PreviewView::Plan, small, false);
    EXPECT_TRUE(ShapesOf<Host::PicturePolygon>(plan, C0).empty());
    EXPECT_EQ(ShapesOf<Host::PicturePolygon>(
                  DrawPreview(Sample(), PreviewView::Front, small, false), Axis)
                  .size(),
              1U);
}

TEST(DrawPreview, MarksTheCentreByACrossAndACircle) {
    for (const PreviewView view : Views) {
        const auto picture = DrawPreview(Aimed(), view, Frame, false);
        const ItemPoint center = Shown(view, {{0.3, 0.6, -0.25}})[0];
        auto arms = ShapesOf<Host::PictureLine>(picture, Axis);
        std::erase_if(arms, [](const Host::PictureLine& line) { return line.width != 1.0; });
        ASSERT_EQ(arms.size(), 2U);
        ExpectNear(arms[0].points, {{center.x - 6, center.y}, {center.x + 6, center.y}});
        ExpectNear(arms[1].points, {{center.x, center.y - 6}, {center.x, center.y + 6}});
        const auto circles = ShapesOf<Host::PictureCircle>(picture, Axis);
        ASSERT_EQ(circles.size(), 1U);
        ExpectNear({circles[0].center}, {center});
        EXPECT_EQ(circles[0].radius, 3.5);
        EXPECT_EQ(circles[0].width, 1.0);
    }
}

TEST(DrawPreview, DrawsAScaleBarAsLongAsItSays) {
    struct Case {
        double zoom;
        double points;
        const char* text;
    };
    const Case cases[] = {{1.0, 50.0, "50 cm"}, {0.5, 50.0, "1 m"},    {1.25, 62.5, "50 cm"},
                          {2.0, 40.0, "20 cm"}, {5.0, 50.0, "10 cm"},  {25.0, 50.0, "2 cm"},
                          {80.0, 80.0, "1 cm"}, {100.0, 50.0, "5 mm"}, {200.0, 40.0, "2 mm"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.zoom);
        PreviewFrame frame = Frame;
        frame.zoom = c.zoom;
        const auto picture = DrawPreview(Sample(), PreviewView::Side, frame, false);
        const auto bar = ShapesOf<Host::PictureLine>(picture, Outline).back();
        ExpectNear(bar.points, {{8, 197}, {8, 201}, {8 + c.points, 201}, {8 + c.points, 197}});
        EXPECT_EQ(bar.width, 1.0);
        const auto text = ShapesOf<Host::PictureText>(picture, Outline);
        ASSERT_EQ(text.size(), 1U);
        EXPECT_EQ(text[0].text, c.text);
        EXPECT_NEAR(text[0].position.x, 8 + c.points + 6, 1e-9);
        EXPECT_NEAR(text[0].position.y, 197, 1e-9);
    }
}

TEST(DrawPreview, HasItsOwnColoursInTheDarkInterface) {
    for (const PreviewView view : Views) {
        Host::UserPicture expected = DrawPreview(Aimed(), view, Frame, false);
        const auto darken = [](Colour& colour) {
            const auto* const found = std::find(std::begin(Light), std::end(Light), colour);
            ASSERT_NE(found, std::end(Light));
            colour = Dark[found - std::begin(Light)];
        };
        darken(expected.ground);
        for (Host::PictureShape& shape : expected.shapes) {
            std::visit([&darken](auto& each) { darken(each.colour); }, shape);
        }
        EXPECT_EQ(DrawPreview(Aimed(), view, Frame, true), expected);
    }
}

} // namespace
} // namespace Merivane::Commands
