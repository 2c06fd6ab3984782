#pragma once

#include <vector>

#include "Photometry/IesFile.hpp"
#include "Photometry/LuminaireContract.hpp"
#include "Simulation/Geometry.hpp"

/// The photometry of a luminaire as lines in its part's own frame, for the previews of dialogs.
namespace Merivane::Simulation {

/// From where a part is looked at: along +Y (X to the right, Z up), along -X (Y to the right, Z
/// up), or from above (X to the right, Y up).
enum class PreviewView { Front, Side, Plan };

/// A point as a view shows it [m]: to the right and up.
Point2D OnView(PreviewView view, const Point3D& point);

/// A line through points [m]; where it is closed, the last is the first.
using PreviewLine = std::vector<Point3D>;

/// The intensities as a polar curve about the photometric centre, closed, a point every 2.5
/// degrees; the file's peak is `peakLength` long. In front and side view the directions of the
/// view's plane; in plan those at the file's beam half angle from the axis, around it. Empty for a
/// file without light or whose table can't be looked up (types A and B).
PreviewLine IntensityOutline(const Photometry::IesFile& file,
                             const Photometry::LuminaireSettings& settings, PreviewView view,
                             double peakLength);

/// The edges of the opening that the file declares, about the photometric centre and aimed as the
/// settings say: a rectangle, or 24 chords where width or length is negative; with a height, one
/// above the other and the edges between. Empty for an opening without size.
std::vector<PreviewLine> OpeningOutlines(const Photometry::IesFile& file,
                                         const Photometry::LuminaireSettings& settings);

/// From the photometric centre `length` [m] along the axis of the light, and along C0.
PreviewLine AxisLine(const Photometry::LuminaireSettings& settings, double length);
PreviewLine C0Line(const Photometry::LuminaireSettings& settings, double length);

} // namespace Merivane::Simulation
