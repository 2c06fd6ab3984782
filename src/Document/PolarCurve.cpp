#include "Document/PolarCurve.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "Document/SheetText.hpp"
#include "Photometry/CandelaLookup.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Text/Number.hpp"

namespace Merivane::Document {
namespace {

using Drawing::Arc;
using Drawing::HorizontalAnchor;
using Drawing::Point;
using Drawing::Polyline;
using Drawing::TextRun;
using Drawing::VerticalAnchor;

constexpr double SheetWidth = 120.0;
constexpr double SheetHeight = 150.0;
constexpr double Edge = 8.0;
constexpr double Radius = 43.0;
constexpr double PlotMiddle = 80.0; // height of the middle of the plot on the sheet
constexpr double AngleWidth = 9.5;  // what the angles beside the plot take
constexpr double AngleHeight = 5.0; // what those above and below it take
constexpr double KeyHeight = 5.0;   // what the key below a plot takes
constexpr double Degree = std::numbers::pi / 180.0;
constexpr Drawing::Color GridColor{0.72, 0.72, 0.74, 1.0};
constexpr Drawing::Color TransverseColor{0.78, 0.11, 0.11, 1.0};
constexpr Drawing::Color AxialColor{0.08, 0.30, 0.72, 1.0};

// One of the two curves: a plane and the one opposite it.
struct CurvePlane {
    double right; ///< horizontal angle drawn on the right [deg]
    double left;
    const char* name;
    Drawing::Color color;
    std::vector<double> dashes; ///< so that both show where they lie on each other
};

std::array<CurvePlane, 2> CurvePlanes() {
    return {{{0.0, 180.0, "C0–C180", TransverseColor, {}},
             {90.0, 270.0, "C90–C270", AxialColor, {3.0, 1.2}}}};
}

// What is drawn: circles up to `top`, and the halves of the sphere that hold light.
struct Plot {
    Point center;
    double radius = Radius;
    double step = 1.0;   // between circles, in the plotted unit
    double top = 1.0;    // value of the outermost circle
    double factor = 1.0; // candela to the plotted unit
    bool lower = true;
    bool upper = true;
};

// Nadir downwards; `side` +1 to the right, -1 to the left.
Point At(const Plot& plot, double value, double vertical, double side) {
    const double distance = plot.radius * value / plot.top;
    return {plot.center.x + side * distance * std::sin(vertical * Degree),
            plot.center.y - distance * std::cos(vertical * Degree)};
}

// Whole degrees and the table's own angles, where the curve has its corners.
std::vector<double> PlottedAngles(const Photometry::IesFile& file) {
    std::vector<double> angles = file.verticalAngles;
    for (int degree = 0; degree <= 180; ++degree) {
        if (degree >= file.verticalAngles.front() && degree <= file.verticalAngles.back()) {
            angles.push_back(degree);
        }
    }
    std::sort(angles.begin(), angles.end());
    angles.erase(std::unique(angles.begin(), angles.end()), angles.end());
    return angles;
}

double LargestPlotted(const Photometry::IesFile& file, double from, double to) {
    double largest = 0.0;
    for (double vertical : PlottedAngles(file)) {
        if (vertical < from || vertical > to) {
            continue;
        }
        for (const CurvePlane& plane : CurvePlanes()) {
            largest = std::max({largest, Photometry::CandelaAt(file, vertical, plane.right),
                                Photometry::CandelaAt(file, vertical, plane.left)});
        }
    }
    return largest;
}

// The finest of 1, 2, 2.5, 5 times a power of ten that needs at most five circles.
double CircleStep(double largest) {
    const double power = std::pow(10.0, std::floor(std::log10(largest / 5.0)));
    for (double factor : {1.0, 2.0, 2.5, 5.0}) {
        if (5.0 * factor * power >= largest * (1.0 - 1e-9)) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

Plot BuildPlot(const Photometry::IesFile& file, const PolarCurveStyle& style) {
    // Less than a hundredth of the largest intensity would not show as a half of its own.
    constexpr double visible = 0.01;
    const double below = LargestPlotted(file, 0.0, 90.0 - 1e-6);
    const double above = LargestPlotted(file, 90.0 + 1e-6, 180.0);
    const double largest = std::max({below, above, LargestPlotted(file, 90.0, 90.0), 1e-12});
    Plot plot;
    plot.factor = style.perKilolumen ? 1000.0 / Photometry::TotalFlux(file) : 1.0;
    plot.lower = below >= visible * largest || above < visible * largest;
    plot.upper = above >= visible * largest;
    plot.step = CircleStep(largest * plot.factor);
    plot.top = plot.step * std::ceil(largest * plot.factor / plot.step - 1e-9);
    return plot;
}

// Puts the middle of what a plot shows at a place.
void CenterPlot(Plot& plot, const Point& middle) {
    plot.center = middle;
    if (plot.lower != plot.upper) {
        plot.center.y += plot.lower ? 0.5 * plot.radius : -0.5 * plot.radius;
    }
}

// Puts a plot into a rectangle, as large as it fits with its angles around it.
void PlacePlot(Plot& plot, const Drawing::Box& area) {
    const double halves = plot.lower && plot.upper ? 2.0 : 1.0;
    const double width = area.right - area.left - 2.0 * AngleWidth;
    const double height = area.top - area.bottom - 2.0 * AngleHeight;
    plot.radius = std::min(0.5 * width, height / halves);
    CenterPlot(plot, {0.5 * (area.left + area.right), 0.5 * (area.bottom + area.top)});
}

std::string ShortNumber(double value) {
    std::string text = Text::FormatGeneral(value);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

void AppendGrid(Drawing::Layer& layer, const Plot& plot) {
    const Drawing::Stroke fine{0.13, GridColor, {}};
    const int circles = static_cast<int>(std::lround(plot.top / plot.step));
    const double start = plot.lower ? std::numbers::pi : 0.0;
    const double sweep = (plot.lower && plot.upper ? 2.0 : 1.0) * std::numbers::pi;
    for (int k = 1; k <= circles; ++k) {
        layer.elements.emplace_back(
            Arc{plot.center, plot.radius * k / circles, start, start + sweep, fine});
    }
    for (int vertical = 0; vertical <= 180; vertical += 30) {
        if ((vertical < 90 && !plot.lower) || (vertical > 90 && !plot.upper)) {
            continue;
        }
        for (double side : {1.0, -1.0}) {
            if (side < 0.0 && vertical % 180 == 0) {
                continue;
            }
            layer.elements.emplace_back(
                Polyline{{plot.center, At(plot, plot.top, vertical, side)}, false, fine});
            TextRun angle = SheetText(std::to_string(vertical) + "°", 0.0, 0.0, 1.9);
            angle.position = At(plot, plot.top * (1.0 + 3.2 / plot.radius), vertical, side);
            angle.horizontal = vertical % 180 == 0 ? HorizontalAnchor::Center
                               : side > 0.0        ? HorizontalAnchor::Left
                                                   : HorizontalAnchor::Right;
            angle.vertical = VerticalAnchor::Middle;
            angle.color = Muted;
            layer.elements.emplace_back(angle);
        }
    }
}

// Intensities stand along the horizontal, where most luminaires have none, so that they keep clear
// of the curves.
void AppendCircleLabels(Drawing::Layer& layer, const Plot& plot) {
    constexpr double least = 6.4; // [mm] that a readable number takes
    const int circles = static_cast<int>(std::lround(plot.top / plot.step));
    const double spacing = plot.radius / circles;
    const int stride = static_cast<int>(std::ceil(least / spacing));
    const bool under = plot.upper && !plot.lower;
    // The outermost circle always has its number; near the middle there may be no room for one.
    for (int k = circles - (std::max(circles / stride, 1) - 1) * stride; k <= circles;
         k += stride) {
        TextRun label = FittingText(ShortNumber(k * plot.step), plot.center.x - spacing * k + 0.6,
                                    plot.center.y + (under ? -0.9 : 0.9),
                                    spacing * std::min(stride, k) - 1.2, {1.7, 0.6});
        label.vertical = under ? VerticalAnchor::Top : VerticalAnchor::Base;
        label.halo = 0.4;
        layer.elements.emplace_back(label);
    }
}

void AppendCurve(Drawing::Layer& layer, const Plot& plot, const Photometry::IesFile& file,
                 const CurvePlane& plane) {
    const std::vector<double> angles = PlottedAngles(file);
    Polyline line;
    line.stroke = {0.45, plane.color, plane.dashes};
    // From the left plane's end through the nadir to the right plane's end.
    for (auto angle = angles.rbegin(); angle != angles.rend(); ++angle) {
        const double value = Photometry::CandelaAt(file, *angle, plane.left);
        line.points.push_back(At(plot, std::max(value * plot.factor, 0.0), *angle, -1.0));
    }
    for (double angle : angles) {
        const double value = Photometry::CandelaAt(file, angle, plane.right);
        line.points.push_back(At(plot, std::max(value * plot.factor, 0.0), angle, 1.0));
    }
    // Beyond the table there is no light: its ends fall to the middle.
    if (angles.back() < 180.0 - 1e-6) {
        line.points.insert(line.points.begin(), plot.center);
        line.points.push_back(plot.center);
    }
    layer.elements.emplace_back(std::move(line));
}

void AppendTitle(Drawing::Layer& layer, const PolarCurveStyle& style) {
    constexpr double width = SheetWidth - 2.0 * Edge;
    double y = SheetHeight - Edge - 3.4;
    layer.elements.emplace_back(
        FittingText(style.title, Edge, y, width, {3.4, 2.2}, Drawing::TextWeight::Bold));
    y -= 4.6;
    TextRun subtitle = FittingText(style.subtitle, Edge, y, width, {2.2, 1.8});
    subtitle.color = Muted;
    layer.elements.emplace_back(subtitle);
}

// Which line is which plane, from `x` to the right.
void AppendPlaneNames(Drawing::Layer& layer, double x, double y) {
    for (const CurvePlane& plane : CurvePlanes()) {
        layer.elements.emplace_back(
            Polyline{{{x, y + 1.0}, {x + 9.0, y + 1.0}}, false, {0.45, plane.color, plane.dashes}});
        layer.elements.emplace_back(SheetText(plane.name, x + 11.0, y, 2.2));
        x += 34.0;
    }
}

void AppendKey(Drawing::Layer& layer, double y, const std::string& unit) {
    AppendPlaneNames(layer, Edge, y);
    TextRun unitText = SheetText("Intensidades em " + unit, SheetWidth - Edge, y, 1.8);
    unitText.horizontal = HorizontalAnchor::Right;
    unitText.color = Muted;
    layer.elements.emplace_back(unitText);
}

void AppendFigures(Drawing::Layer& layer, const Photometry::IesFile& file) {
    using Simulation::FormatDecimal;
    const double flux = Photometry::TotalFlux(file);
    const std::optional<double> halfAngle = Photometry::FindBeamHalfAngle(file);
    struct Figure {
        const char* name;
        std::string value;
    };
    const Figure figures[] = {
        {"Fluxo luminoso", flux < 0.0 ? "—" : FormatDecimal(flux, 0) + " lm"},
        {"Intensidade máxima", FormatDecimal(Photometry::PeakCandela(file), 0) + " cd"},
        {"Semiângulo do facho (50 %)",
         halfAngle ? FormatDecimal(*halfAngle, 1) + "°" : "não se aplica"},
    };
    double y = Edge + 8.8;
    layer.elements.emplace_back(
        Polyline{{{Edge, y + 4.4}, {SheetWidth - Edge, y + 4.4}}, false, {0.18, Muted, {}}});
    for (const Figure& figure : figures) {
        TextRun name = SheetText(figure.name, Edge, y, 2.4);
        name.color = Muted;
        TextRun value =
            SheetText(figure.value, SheetWidth - Edge, y, 2.4, Drawing::TextWeight::Bold);
        value.horizontal = HorizontalAnchor::Right;
        layer.elements.emplace_back(name);
        layer.elements.emplace_back(value);
        y -= 4.4;
    }
}

bool CheckPhotometry(const Photometry::IesFile& file, const PolarCurveStyle& style,
                     std::string& error) {
    const double peak = Photometry::PeakCandela(file);
    if (file.photometricType != 1) {
        error = "A curva polar precisa de fotometria do tipo C.";
    } else if (!(peak > 0.0)) {
        error = "A curva polar precisa de intensidade acima de 0 cd.";
    } else if (!std::isfinite(peak)) {
        error = "A curva polar precisa de intensidades finitas.";
    } else if (style.perKilolumen && !(Photometry::TotalFlux(file) > 0.0)) {
        error = "A curva polar em cd/klm precisa de fluxo acima de 0 lm.";
    } else {
        return true;
    }
    return false;
}

} // namespace

bool BuildPolarCurve(const Photometry::IesFile& file, const PolarCurveStyle& style,
                     Drawing::DisplayList& list, std::string& error) {
    if (!CheckPhotometry(file, style, error)) {
        return false;
    }
    Plot plot = BuildPlot(file, style);
    CenterPlot(plot, {0.5 * SheetWidth, PlotMiddle});
    Drawing::Layer grid{"Malha polar", {}};
    Drawing::Layer curves{"Curvas", {}};
    Drawing::Layer texts{"Textos", {}};
    AppendGrid(grid, plot);
    for (const CurvePlane& plane : CurvePlanes()) {
        AppendCurve(curves, plot, file, plane);
    }
    AppendCircleLabels(texts, plot);
    AppendTitle(texts, style);
    AppendKey(texts, Edge + 16.5, style.perKilolumen ? "cd/klm" : "cd");
    AppendFigures(texts, file);
    list = {style.title,
            SheetWidth,
            SheetHeight,
            {std::move(grid), std::move(curves), std::move(texts)}};
    return true;
}

bool AppendPolarPlot(const Photometry::IesFile& file, const Drawing::Box& area,
                     Drawing::Layer& layer, std::string& error) {
    if (!CheckPhotometry(file, {}, error)) {
        return false;
    }
    Plot plot = BuildPlot(file, {});
    PlacePlot(plot, {area.left, area.bottom + KeyHeight, area.right, area.top});
    AppendGrid(layer, plot);
    for (const CurvePlane& plane : CurvePlanes()) {
        AppendCurve(layer, plot, file, plane);
    }
    AppendCircleLabels(layer, plot);
    AppendPlaneNames(layer, 0.5 * (area.left + area.right) - 30.0, area.bottom);
    return true;
}

} // namespace Merivane::Document
