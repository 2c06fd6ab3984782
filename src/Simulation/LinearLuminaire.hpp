#pragma once

#include <string>
#include <vector>

#include "Photometry/LuminaireContract.hpp"
#include "Simulation/Geometry.hpp"
#include "Simulation/Scene.hpp"

/// Tapes and other linear luminaires. Their photometric file describes one measured piece; a placed
/// one carries its path and is calculated as many pieces along it.
namespace Merivane::Simulation {

/// How a linear luminaire stands along its path.
enum class LinearMounting : int {
    Recessed = 0, ///< in the ceiling, light down
    Cove = 1,     ///< light up
    Lateral = 2,  ///< light to one side
    Pendant = 3,
};

/// What is chosen for a linear luminaire beside its photometric file and its path.
struct LinearSpec {
    LinearMounting mounting = LinearMounting::Recessed;
    double tilt = 90.0;         ///< of the beam from the vertical, lateral ones alone [deg]
    bool lightLeft = true;      ///< lateral: to the left of the path, seen along it
    double profileWidth = 0.02; ///< [m]
    double profileHeight = 0.0; ///< [m]
};

/// Places along a path [m].
using LinearPath = std::vector<Point2D>;

/// The length that a photometric file was measured with.
struct MeasuredLength {
    double length = 1.0;   ///< [m]
    bool alongC0 = true;   ///< the long side lies in the plane C0-C180, else in C90-C270
    bool declared = false; ///< false: the file tells no opening, one metre is taken
};

/// One piece of a path, as long as the measured one or shorter, once slightly longer.
struct LinearPiece {
    Point2D center;
    Point2D direction;     ///< of length 1
    double length = 0.0;   ///< [m]
    double fraction = 0.0; ///< of the measured length
};

/// Reads path and mounting from a part's parameters; the path is relative to the object's origin.
/// Returns false with an empty `error` for a luminaire that is not linear, with one Portuguese
/// sentence for a linear one that can't be read.
bool ReadLinearContract(const std::vector<Photometry::ContractParameter>& parameters,
                        LinearSpec& spec, LinearPath& path, std::string& error);

/// The longer side of the luminous opening.
MeasuredLength MeasuredLengthOf(const Photometry::IesFile& file);

/// Cuts each straight stretch of a path into pieces of `length`, the last one shorter. A rest under
/// `minimumPiece` is added to the piece before it when that lies in the same direction, and left
/// out otherwise.
std::vector<LinearPiece> SplitPath(const LinearPath& path, double length, double minimumPiece);

/// The pieces of a linear luminaire as luminaires of their own, each as bright and as long as its
/// share of the measured piece, the long side along the path. `path` is relative to the object's
/// origin: its rotation and mirroring count for places and aims. None for a path without length and
/// for one that would give more than 100,000 pieces.
std::vector<SceneLuminaire> ExpandLinear(const SceneLuminaire& luminaire, const LinearPath& path,
                                         const LinearSpec& spec);

} // namespace Merivane::Simulation
