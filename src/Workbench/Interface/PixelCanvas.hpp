#pragma once

#include <string_view>
#include <vector>

#include "Drawing/DisplayList.hpp"
#include "Workbench/Interface/DialogLayout.hpp"

/// A display list drawn on in pixels, 96 to the inch, from the upper left corner.
namespace Merivane::Workbench {

/// The host's colours.
struct Theme {
    Drawing::Color frame;
    Drawing::Color titleBar;
    Drawing::Color title;
    Drawing::Color body;
    Drawing::Color text;
    Drawing::Color greyed;
    Drawing::Color field;
    Drawing::Color fieldEdge;
    Drawing::Color button;
    Drawing::Color buttonEdge;
    Drawing::Color groupEdge;
    Drawing::Color header;
    Drawing::Color selection;
    Drawing::Color accent;
    Drawing::Color scrollBar;
};

const Theme& LightTheme();
const Theme& DarkTheme();

struct PixelCanvas {
    Drawing::DisplayList list;
    const Theme* theme = nullptr;
    double height = 0.0;   ///< of the picture [pixels]
    Drawing::Point origin; ///< where pixel 0, 0 of what is drawn now stands
};

/// A canvas of so many pixels with one empty layer.
PixelCanvas MakeCanvas(double width, double height, const Theme& theme);

/// Rectangles with corners of a radius; a width of 0 draws no edge.
void FillBox(PixelCanvas& canvas, const PixelBox& box, const Drawing::Color& color,
             double radius = 0.0);
void StrokeBox(PixelCanvas& canvas, const PixelBox& box, const Drawing::Color& color,
               double radius = 0.0, double width = 1.0);

void StrokeLine(PixelCanvas& canvas, const std::vector<Drawing::Point>& points,
                const Drawing::Color& color, double width = 1.0);
void FillPolygon(PixelCanvas& canvas, const std::vector<Drawing::Point>& points,
                 const Drawing::Color& color);
void StrokeCircle(PixelCanvas& canvas, Drawing::Point center, double radius,
                  const Drawing::Color& color, double width = 1.0);
void FillCircle(PixelCanvas& canvas, Drawing::Point center, double radius,
                const Drawing::Color& color);

/// One line of text; the position is at its side and at half the height of its capitals.
void DrawLine(PixelCanvas& canvas, std::string_view text, Drawing::Point position,
              const FontMeasures& font, const Drawing::Color& color,
              Drawing::HorizontalAnchor anchor = Drawing::HorizontalAnchor::Left);

/// The icon of a number in the middle of a box: the add-on's own, or one of the host's signs (below
/// 0). `greyed` pales it.
void DrawIcon(PixelCanvas& canvas, std::int16_t icon, const PixelBox& box, bool greyed);

} // namespace Merivane::Workbench
