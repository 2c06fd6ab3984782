#pragma once

#include <string>
#include <variant>
#include <vector>

#include "Host/Types.hpp"

/// What the add-on draws into an item of a dialog that it paints itself.
namespace Merivane::Host {

/// A place in such an item [pixels at 100 %], from its upper left corner, y downwards.
struct ItemPoint {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const ItemPoint&) const = default;
};

/// A line of two points or more.
struct PictureLine {
    std::vector<ItemPoint> points;
    Colour colour;
    double width = 1.0; ///< [pixels]

    bool operator==(const PictureLine&) const = default;
};

/// A filled polygon of three points or more, closed implicitly.
struct PicturePolygon {
    std::vector<ItemPoint> points;
    Colour colour;

    bool operator==(const PicturePolygon&) const = default;
};

/// The line of a circle.
struct PictureCircle {
    ItemPoint center;
    double radius = 0.0; ///< [pixels]
    Colour colour;
    double width = 1.0; ///< [pixels]

    bool operator==(const PictureCircle&) const = default;
};

/// One line of text in the dialog's small font.
struct PictureText {
    std::string text;   ///< UTF-8
    ItemPoint position; ///< its left end, at half the height of its capitals
    Colour colour;

    bool operator==(const PictureText&) const = default;
};

using PictureShape = std::variant<PictureLine, PicturePolygon, PictureCircle, PictureText>;

/// Shapes on a ground, the first at the bottom. What lies outside of the item is cut off.
struct UserPicture {
    Colour ground;
    std::vector<PictureShape> shapes;

    bool operator==(const UserPicture&) const = default;
};

} // namespace Merivane::Host
