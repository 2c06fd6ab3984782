#pragma once

#include <string>
#include <vector>

#include "Workbench/Script/ModelStatements.hpp"
#include "Workbench/Script/ScriptValue.hpp"
#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// From the sketch of one shape to the model.
namespace Merivane::Workbench {

/// An empty sketch with the room that the model has left.
ShapeSketch StartSketch(const ModelBuild& build);

/// Cuts a sketch, in the part's frame, by the planes and forms in force. Returns an empty text, or
/// why that takes too much, in Portuguese.
std::string CutSketch(ModelBuild& build, ShapeSketch& sketch);

/// Adds what a sketch holds, in the part's frame by now: cut by the planes and forms in force, as
/// faces or, with MODEL WIRE, as lines. Returns an empty text, or why the model can't take it, in
/// Portuguese; then nothing was added.
std::string AddToModel(ModelBuild& build, ShapeSketch& sketch);

/// Takes a statement's arguments with the look in force. Returns the refusal in Portuguese, empty
/// when there is none.
std::string ReadShapeInput(const ModelBuild& build, const std::vector<ScriptValue>& arguments,
                           ShapeInput& input);

} // namespace Merivane::Workbench
