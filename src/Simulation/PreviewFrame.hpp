#pragma once

#include <string>
#include <vector>

#include "Simulation/Geometry.hpp"

/// How a preview of a dialog shows a plane: what stands where, how large, and what its title says.
namespace Merivane::Simulation {

/// Size of a preview [points, 96 to the inch].
inline constexpr double PreviewWidth = 320.0;
inline constexpr double PreviewHeight = 210.0;

/// A preview's window on its plane. Picture points count from the upper left corner, y downwards;
/// at zoom 1 and without pan `middle` stands in the middle of the picture.
struct PreviewFrame {
    Point2D middle;       ///< [m]
    double scale = 100.0; ///< points to the metre at zoom 1
    double zoom = 1.0;    ///< 0.5 to 200
    Point2D pan;          ///< [points]
};

/// The frame at zoom 1 that holds all points, with a margin. Nothing to hold, or a single place,
/// gives 100 points to the metre.
PreviewFrame FrameAll(const std::vector<Point2D>& points);

/// True while the user has neither zoomed nor moved.
bool IsUntouched(const PreviewFrame& frame);

/// A point of the plane [m, y upwards] in the picture, and back.
Point2D ToPicture(const PreviewFrame& frame, const Point2D& point);
Point2D ToPlane(const PreviewFrame& frame, const Point2D& point);

/// Zooms by a notch of the wheel each, in above 0, and keeps what stands at `cursor` [picture
/// points] there. The zoom stops at its limits.
void ZoomAt(PreviewFrame& frame, const Point2D& cursor, int notches);

/// Moves the picture by so many points.
void Pan(PreviewFrame& frame, const Point2D& by);

/// The longest of 1, 2 and 5 times a power of ten [m] that is at most 80 points long.
double ScaleBarLength(const PreviewFrame& frame);

/// A scale bar's length: "2 m", "5 cm", "0.5 mm".
std::string ScaleBarText(double length);

/// A length [m] in centimetres: "12,50 cm".
std::string CentimetreText(double length);

} // namespace Merivane::Simulation
