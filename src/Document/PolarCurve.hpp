#pragma once

#include <string>

#include "Drawing/DisplayList.hpp"
#include "Drawing/TextSize.hpp"
#include "Photometry/IesFile.hpp"

namespace Merivane::Document {

/// How a polar curve is drawn.
struct PolarCurveStyle {
    std::string title;         ///< name of the luminaire
    std::string subtitle;      ///< maker, catalogue number, file; may be empty
    bool perKilolumen = false; ///< cd/klm instead of cd; needs a flux above 0
};

/// Draws the polar curve of a luminaire with its key figures as a data sheet does: planes
/// C0-C180 and C90-C270, circles of intensity, a ray every 30 degrees, flux, peak and beam, on a
/// sheet of 120 x 150 mm.
///
/// Only files of photometric type C with an intensity above 0 have a curve: for others `list` is
/// untouched, `error` holds one Portuguese sentence and the answer is false.
bool BuildPolarCurve(const Photometry::IesFile& file, const PolarCurveStyle& style,
                     Drawing::DisplayList& list, std::string& error);

/// Draws the plot of a polar curve alone, in cd, into a rectangle of another sheet, at least 60 mm
/// wide: circles, rays, both planes and their names along its foot. Refuses as `BuildPolarCurve`;
/// `layer` is then untouched.
bool AppendPolarPlot(const Photometry::IesFile& file, const Drawing::Box& area,
                     Drawing::Layer& layer, std::string& error);

} // namespace Merivane::Document
