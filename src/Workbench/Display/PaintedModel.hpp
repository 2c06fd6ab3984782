#pragma once

#include <cmath>
#include <vector>

#include "Workbench/Display/PaperDrawing.hpp"
#include "Workbench/Display/ShownModel.hpp"
#include "Workbench/Project/Project.hpp"

namespace Merivane::Workbench {

/// How the faces of a model are painted.
struct PaintStyle {
    double nearest = HUGE_VAL;   ///< depth from which on nearer parts are cut off [m]
    double farthest = -HUGE_VAL; ///< bodies that lie wholly behind this depth are left out [m]
    double white = 0.0;          ///< share of white mixed into the colours [0..1]
    bool shaded = true;          ///< faces darken as they turn away from the light
    double edgeWidth = 0.13;     ///< of creases and borders [mm]
};

/// Paints the faces that look at the viewer on the paper, nearer ones over farther ones, glass
/// translucent, each in the colour of its surface and with its creases and borders.
void PaintModel(const Project& project, const std::vector<ShownElement>& shown,
                const PaintStyle& style, PaperDrawing& drawing);

} // namespace Merivane::Workbench
