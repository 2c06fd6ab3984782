#pragma once

#include <vector>

#include "Drawing/DisplayList.hpp"
#include "Workbench/Display/BodyCut.hpp"
#include "Workbench/Display/PaperDrawing.hpp"

namespace Merivane::Workbench {

/// How what is cut is drawn.
struct CutLook {
    Drawing::Color fill;
    double outline = 0.18; ///< [mm]
    bool merged = false;   ///< outlines lie under all fills of their kind: what touches is one
};

/// What is cut on one drawing, sorted by how it lies over each other.
struct CutLayers {
    std::vector<Drawing::Element> mergedOutlines; ///< lowest
    std::vector<Drawing::Element> mergedFills;
    std::vector<Drawing::Element> others;
};

inline constexpr CutLook WallCut = {{0.32, 0.32, 0.32, 1.0}, 0.3, true};
inline constexpr CutLook ColumnCut = {{0.15, 0.15, 0.15, 1.0}, 0.3, true};
inline constexpr CutLook LightCut = {{1.0, 1.0, 1.0, 1.0}, 0.18, false};
inline constexpr CutLook GlassCut = {{0.80, 0.91, 0.96, 1.0}, 0.18, false};
inline constexpr CutLook GroundCut = {{0.62, 0.56, 0.48, 1.0}, 0.3, true};

void AddCut(const BodyCut& cut, const CutLook& look, const PaperDrawing& drawing,
            CutLayers& layers);

/// Puts what was collected on the drawing.
void AddCutLayers(CutLayers layers, PaperDrawing& drawing);

} // namespace Merivane::Workbench
