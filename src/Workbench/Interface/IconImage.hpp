#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Drawing/DisplayList.hpp"

/// Icons as the add-on's resources have them: SVG of lines, rectangles, circles and polygons.
namespace Merivane::Workbench {

/// One shape [units of the image, y downwards].
struct IconShape {
    std::vector<Drawing::Point> points; ///< of a line or polygon; one, the centre, of a circle
    double radius = 0.0;                ///< above 0 = a circle
    bool closed = false;
    std::optional<Drawing::Color> fill;
    std::optional<Drawing::Color> stroke;
    double strokeWidth = 1.0;
};

struct IconImage {
    double width = 0.0;
    double height = 0.0;
    std::vector<IconShape> shapes; ///< the lowest first
};

/// Reads the image. Returns false and sets `error` to one Portuguese sentence for what is no such
/// image: elements, attributes and colours other than those that the add-on's icons use.
bool ParseIconImage(std::string_view svg, IconImage& image, std::string& error);

} // namespace Merivane::Workbench
