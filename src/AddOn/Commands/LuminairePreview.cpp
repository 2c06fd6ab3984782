#include "AddOn/Commands/LuminairePreview.hpp"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "Photometry/PhotometricQuantities.hpp"

namespace Merivane::Commands {

namespace {

using Host::Colour;
using Host::ItemPoint;
using Simulation::Point2D;
using Simulation::Point3D;
using Simulation::PreviewFrame;
using Simulation::PreviewLine;
using Simulation::PreviewView;

struct PreviewColours {
    Colour ground;
    Colour outline; ///< of the object; the scale bar too
    Colour curve;
    Colour opening;
    Colour axis;
    Colour c0;
    Colour ceiling;
};

constexpr PreviewColours LightColours = {{1.00, 1.00, 1.00}, {0.45, 0.45, 0.45}, {0.83, 0.10, 0.10},
                                         {0.10, 0.32, 0.85}, {0.00, 0.55, 0.18}, {0.93, 0.50, 0.00},
                                         {0.52, 0.32, 0.12}};
constexpr PreviewColours DarkColours = {{0.12, 0.13, 0.15}, {0.66, 0.67, 0.69}, {1.00, 0.38, 0.36},
                                        {0.42, 0.62, 1.00}, {0.30, 0.82, 0.45}, {1.00, 0.68, 0.25},
                                        {0.78, 0.58, 0.38}};

Point3D PointOf(const Host::Coordinate3D& place) {
    return {place.x, place.y, place.z};
}

/// How long the file's peak is drawn [m]: of the size of the object, or of the opening where that
/// is not known.
double CurveLength(const LuminairePreview& preview) {
    constexpr double shortest = 0.1;
    constexpr double share = 0.75;
    const Host::Coordinate3D& low = preview.object.lowest;
    const Host::Coordinate3D& high = preview.object.highest;
    const double unit = Photometry::UnitsToMetres(preview.file.unitsType);
    const double extent =
        preview.object.geometryRead
            ? std::max({high.x - low.x, high.y - low.y, high.z - low.z})
            : std::max(std::abs(preview.file.width), std::abs(preview.file.length)) * unit;
    return std::max(share * extent, shortest);
}

/// The lines of the photometry in a view, each with its colour.
using ColouredLine = std::pair<PreviewLine, Colour>;

std::vector<ColouredLine> PhotometricLines(const LuminairePreview& preview, PreviewView view,
                                           const PreviewColours& colours) {
    const double length = CurveLength(preview);
    std::vector<ColouredLine> lines;
    for (PreviewLine& edge : Simulation::OpeningOutlines(preview.file, preview.settings)) {
        lines.emplace_back(std::move(edge), colours.opening);
    }
    lines.emplace_back(Simulation::IntensityOutline(preview.file, preview.settings, view, length),
                       colours.curve);
    if (view == PreviewView::Plan) {
        lines.emplace_back(Simulation::C0Line(preview.settings, length / 2.0), colours.c0);
    }
    lines.emplace_back(Simulation::AxisLine(preview.settings, length), colours.axis);
    return lines;
}

/// Lines on their way into the picture of one view.
struct Sketch {
    PreviewView view;
    const PreviewFrame& frame;
    Host::UserPicture picture;

    ItemPoint Place(const Point3D& point) const {
        const Point2D place = Simulation::ToPicture(frame, Simulation::OnView(view, point));
        return {place.x, place.y};
    }

    void Stroke(std::vector<ItemPoint> points, const Colour& colour, double width = 1.0) {
        if (points.size() >= 2) {
            picture.shapes.emplace_back(Host::PictureLine{std::move(points), colour, width});
        }
    }

    void Draw(const PreviewLine& line, const Colour& colour, double width) {
        std::vector<ItemPoint> points;
        for (const Point3D& point : line) {
            points.push_back(Place(point));
        }
        Stroke(std::move(points), colour, width);
    }
};

/// The head of an arrow at the end of a line that is long enough on the screen.
void DrawArrowHead(Sketch& sketch, const PreviewLine& line, const Colour& colour) {
    constexpr double size = 7.0;
    constexpr double half = 3.0;
    const ItemPoint from = sketch.Place(line.front());
    const ItemPoint to = sketch.Place(line.back());
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    if (length < size) {
        return;
    }
    const double x = (to.x - from.x) / length;
    const double y = (to.y - from.y) / length;
    const ItemPoint back = {to.x - x * size, to.y - y * size};
    sketch.picture.shapes.emplace_back(Host::PicturePolygon{
        {to, {back.x - y * half, back.y + x * half}, {back.x + y * half, back.y - x * half}},
        colour});
}

void DrawCenter(Sketch& sketch, const Photometry::LuminaireSettings& settings,
                const Colour& colour) {
    constexpr double arm = 6.0;
    constexpr double radius = 3.5;
    const ItemPoint center = sketch.Place({settings.centerX, settings.centerY, settings.centerZ});
    sketch.Stroke({{center.x - arm, center.y}, {center.x + arm, center.y}}, colour);
    sketch.Stroke({{center.x, center.y - arm}, {center.x, center.y + arm}}, colour);
    sketch.picture.shapes.emplace_back(Host::PictureCircle{center, radius, colour, 1.0});
}

/// The part's origin stands on the ceiling's face.
void DrawCeiling(Sketch& sketch, const Colour& colour) {
    if (sketch.view != PreviewView::Plan) {
        const double y = sketch.Place({}).y;
        sketch.Stroke({{0.0, y}, {Simulation::PreviewWidth, y}}, colour, 1.5);
    }
}

void DrawScaleBar(Sketch& sketch, const Colour& colour) {
    constexpr double left = 8.0;
    constexpr double bottom = Simulation::PreviewHeight - 9.0;
    constexpr double tick = 4.0;
    constexpr double gap = 6.0;
    const double length = Simulation::ScaleBarLength(sketch.frame);
    const double right = left + length * sketch.frame.scale * sketch.frame.zoom;
    sketch.Stroke({{left, bottom - tick}, {left, bottom}, {right, bottom}, {right, bottom - tick}},
                  colour);
    sketch.picture.shapes.emplace_back(
        Host::PictureText{Simulation::ScaleBarText(length), {right + gap, bottom - tick}, colour});
}

} // namespace

PreviewFrame FrameAll(const LuminairePreview& preview, PreviewView view) {
    const Photometry::LuminaireSettings& settings = preview.settings;
    std::vector<Point2D> points = {
        Simulation::OnView(view, {settings.centerX, settings.centerY, settings.centerZ})};
    if (view != PreviewView::Plan) {
        points.push_back(Simulation::OnView(view, {settings.centerX, settings.centerY, 0.0}));
    }
    if (preview.object.geometryRead) {
        points.push_back(Simulation::OnView(view, PointOf(preview.object.lowest)));
        points.push_back(Simulation::OnView(view, PointOf(preview.object.highest)));
    }
    for (const ColouredLine& line : PhotometricLines(preview, view, LightColours)) {
        for (const Point3D& point : line.first) {
            points.push_back(Simulation::OnView(view, point));
        }
    }
    return Simulation::FrameAll(points);
}

Host::UserPicture DrawPreview(const LuminairePreview& preview, PreviewView view,
                              const PreviewFrame& frame, bool dark) {
    constexpr double strong = 1.5;
    const PreviewColours& colours = dark ? DarkColours : LightColours;
    Sketch sketch{view, frame, {colours.ground, {}}};
    DrawCeiling(sketch, colours.ceiling);
    for (const Archicad::PreviewEdge& edge : preview.object.edges) {
        sketch.Draw({PointOf(edge.from), PointOf(edge.to)}, colours.outline, 1.0);
    }
    for (const auto& [line, colour] : PhotometricLines(preview, view, colours)) {
        sketch.Draw(line, colour, strong);
    }
    const double length = CurveLength(preview);
    DrawArrowHead(sketch, Simulation::AxisLine(preview.settings, length), colours.axis);
    if (view == PreviewView::Plan) {
        DrawArrowHead(sketch, Simulation::C0Line(preview.settings, length / 2.0), colours.c0);
    }
    DrawCenter(sketch, preview.settings, colours.axis);
    DrawScaleBar(sketch, colours.outline);
    return std::move(sketch.picture);
}

} // namespace Merivane::Commands
