#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Workbench/Script/ModelStatements.hpp"
#include "Workbench/Script/ScriptValue.hpp"
#include "Workbench/Script/ShapeLoft.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// The solids that CUTPOLY, CUTPOLYA and CUTFORM cut with.
namespace Merivane::Workbench {

/// A polygon drawn along straight lines, one for each of its points, in the part's frame. Each line
/// runs from the polygon (share 0) to where it is drawn to (share 1): the same way for all in a
/// prism, to one place in a pyramid, to an edge in a wedge.
struct CuttingForm {
    Loft loft;
    std::vector<Host::Coordinate3D> base;
    std::vector<Host::Coordinate3D> tops;
    Host::Coordinate3D normal; ///< across the polygon
    double begin = 0.0;        ///< shares between which it cuts
    double end = 1.0;
    bool endlessBegin = false; ///< no matter what `begin` says
    bool endlessEnd = false;
    bool keepsInside = false; ///< cuts off what lies outside
    bool bodySurface = true;  ///< its faces take the look of the body that is cut
    std::int32_t surface = -1;
};

/// Reads the arguments of one of the statements, in the frame and with the look in force.
///   CUTPOLY n, x, y..., [dx, dy, dz]: an endless prism along z or along the direction.
///   CUTPOLYA n, status, d, x, y, mask..., [dx, dy, dz]: the same, from the distance d on along its
///   direction; endless both ways with d = 0. Bit 1 of the status: the body's own look.
///   CUTFORM n, method, status, rx, ry, rz, d, x, y, mask...: method 1 a prism along r, 2 a pyramid
///   to the place r, 3 a wedge to the edge along y through r. Bits of the status: 1 the body's own
///   look, 8 and 16 endless, 16 alone half endless against r from d on, 32 keeps what lies inside.
///   CUTFORM{2}: each row with a material behind its mask.
/// Returns an empty text, or why there is no such solid, in Portuguese.
std::string ReadCuttingForm(std::string_view keyword, const std::vector<ScriptValue>& arguments,
                            const ModelBuild& build, CuttingForm& form);

/// Cuts a sketch, in the part's frame, by the forms in force. In a surface model, and of a body
/// that is open, the cut stays open. Returns an empty text or why it can't be done.
std::string CutByForms(ModelBuild& build, ShapeSketch& sketch);

} // namespace Merivane::Workbench
