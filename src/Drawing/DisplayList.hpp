#pragma once

#include <string>
#include <variant>
#include <vector>

namespace Merivane::Drawing {

/// A place on the paper [mm], from the lower left corner, y upwards.
struct Point {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const Point&) const = default;
};

/// A colour as the screen shows it (sRGB), every part 0..1; alpha 1 covers what lies below.
struct Color {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;

    bool operator==(const Color&) const = default;
};

inline constexpr Color Black{0.0, 0.0, 0.0, 1.0};
inline constexpr Color White{1.0, 1.0, 1.0, 1.0};

/// How a line is drawn. Corners and the ends of continuous lines are round, so that lines which
/// meet at a corner close it; dashes end bluntly and keep their length.
struct Stroke {
    double width = 0.18; ///< [mm]
    Color color;
    std::vector<double> dashes; ///< dash, gap, dash, gap ... [mm]; empty = continuous
};

/// A line of two points or more.
struct Polyline {
    std::vector<Point> points;
    bool closed = false; ///< the last point is joined to the first
    Stroke stroke;
};

/// A filled region: what an odd number of rings encloses, so that holes are rings too.
struct Area {
    std::vector<std::vector<Point>> rings; ///< closed implicitly; their turn does not matter
    Color fill;
    /// How far the colour runs over the edge on either side [mm]. Neighbours that share an edge
    /// need it: two antialiased edges on the same line let the paper shine through.
    double bleed = 0.0;
};

/// A part of a circle's line, drawn counter-clockwise.
struct Arc {
    Point center;
    double radius = 0.0;                 ///< [mm]
    double start = 0.0;                  ///< [rad], 0 = to the right
    double end = 6.28318530717958647692; ///< [rad]; 2 pi above `start` = the whole circle
    Stroke stroke;
};

enum class TextWeight { Normal, Bold };

/// Letters of their own widths, or all of one width, for records in columns.
enum class TextFace { Proportional, Monospaced };

/// Which point of a text stands at its position. Vertically `Base` is the line that letters stand
/// on, `Middle` half the height of a capital above it, `Top` the head of a capital.
enum class HorizontalAnchor { Left, Center, Right };
enum class VerticalAnchor { Base, Middle, Top };

/// One line of text.
struct TextRun {
    std::string text; ///< UTF-8
    Point position;
    double height = 2.0; ///< of a capital letter [mm]
    TextWeight weight = TextWeight::Normal;
    HorizontalAnchor horizontal = HorizontalAnchor::Left;
    VerticalAnchor vertical = VerticalAnchor::Base;
    double rotation = 0.0; ///< counter-clockwise about the position [deg]
    Color color;
    double halo = 0.0; ///< width of the white border that keeps the text off what is below [mm]
    TextFace face = TextFace::Proportional;
};

using Element = std::variant<Area, Polyline, Arc, TextRun>;

/// Elements that belong together, drawn in order.
struct Layer {
    std::string name;
    std::vector<Element> elements;
};

/// A sheet of paper and what is drawn on it, the first layer at the bottom.
struct DisplayList {
    std::string title;
    double width = 297.0;  ///< [mm]
    double height = 210.0; ///< [mm]
    std::vector<Layer> layers;
};

/// True when a writer can draw the list: a page above 0 and of at most 5000 mm, every coordinate,
/// size and colour finite. Otherwise sets `error` to one Portuguese sentence that names the page
/// or the layer.
bool CheckDisplayList(const DisplayList& list, std::string& error);

} // namespace Merivane::Drawing
