#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Script/PartModel.hpp"

/// What one statement builds, in the frame of the script [m], before it joins the model.
namespace Merivane::Workbench {

/// Lengths up to this are none [m].
inline constexpr double NoShapeLength = 1e-9;

/// Faces are added as a body that encloses something, also those that the statement leaves out:
/// only so can it be told which side is outside.
struct ShapeSketch {
    FacedBody body;
    std::vector<bool> present; ///< for each face, whether the statement keeps it
    std::vector<std::array<Host::Coordinate3D, 2>> wires;
    bool oriented = false;      ///< the sides are told already, as of a plane shape
    std::size_t faceRoom = 0;   ///< how many faces and wires the model may still take
    std::size_t vertexRoom = 0; ///< and how many vertices
};

/// Why so many faces and vertices can't be added, in Portuguese; empty when they can. Asked before
/// anything is allocated for them.
std::string CheckRoom(const ShapeSketch& sketch, std::size_t faces, std::size_t vertices);

/// The new vertex's number.
std::int32_t AddVertex(ShapeSketch& sketch, const Host::Coordinate3D& place);

/// Adds a face. Vertices that follow on themselves in a contour count once; a contour with fewer
/// than 3 vertices is left out, with an outline of that kind the whole face.
void AddFace(ShapeSketch& sketch, std::vector<std::vector<std::int32_t>> contours,
             std::int32_t surface, bool present = true);

/// Turns the faces around when they look inside, which the volume tells. A sketch that encloses
/// nothing and one that is oriented stay as they are.
void OrientOutwards(ShapeSketch& sketch);

/// Takes out the faces that are not present.
void LeaveOutAbsent(ShapeSketch& sketch);

/// Cuts faces that are not plane into triangles; those with holes stay.
void FlattenFaces(FacedBody& body);

/// Twice the area of a contour, along its normal (Newell).
Host::Coordinate3D DoubledNormal(const FacedBody& body, const std::vector<std::int32_t>& contour);

/// True for a frame that turns left into right.
bool IsMirrored(const ScriptFrame& frame);

/// Brings a sketch from the frame of the script into the part's; where that mirrors, the faces
/// still look outside.
void MoveToPart(ShapeSketch& sketch, const ScriptFrame& frame);

} // namespace Merivane::Workbench
