#pragma once

#include <string>
#include <vector>

#include "Workbench/Script/ScriptRun.hpp"

/// Short ways to run scripts in tests.
namespace Merivane::Tests {

/// A part "Peca" with a plan script, a model script or a parameter script.
Workbench::ScriptPart PlanPart(const std::string& plan, const std::string& master = "");
Workbench::ScriptPart ModelPart(const std::string& model, const std::string& master = "");

/// Runs a plan script that must end without an error.
Workbench::PlanSymbolDrawing DrawPlan(const Workbench::ScriptPart& part,
                                      const Workbench::ScriptEnvironment& environment = {});
Workbench::PlanSymbolDrawing DrawPlan(const std::string& script);

/// Runs a model script that must end without an error.
Workbench::PartModel BuildModel(const Workbench::ScriptPart& part,
                                const Workbench::ScriptEnvironment& environment = {});

/// The texts that a plan script writes, parted by " | ".
std::string WrittenTexts(const std::string& script);

/// What the script's error says; empty for none.
std::string PlanError(const Workbench::ScriptPart& part,
                      const Workbench::ScriptEnvironment& environment = {});
std::string ModelError(const std::string& script);

/// A parameter that is a number or a text.
Host::LibraryParameter NumberParameter(const std::string& name, double number,
                                       Host::ParameterType type = Host::ParameterType::Real);
Host::LibraryParameter TextParameter(const std::string& name, const std::string& text);

/// All shapes of one kind.
template <class Shape> std::vector<Shape> ShapesOf(const Workbench::PlanSymbolDrawing& drawing) {
    std::vector<Shape> shapes;
    for (const Workbench::PlanShape& shape : drawing.shapes) {
        if (const auto* found = std::get_if<Shape>(&shape)) {
            shapes.push_back(*found);
        }
    }
    return shapes;
}

} // namespace Merivane::Tests
