#include "ScriptRuns.hpp"

#include <gtest/gtest.h>

namespace Merivane::Tests {

using namespace Workbench;

ScriptPart PlanPart(const std::string& plan, const std::string& master) {
    ScriptPart part;
    part.name = "Peca";
    part.plan = plan;
    part.master = master;
    return part;
}

ScriptPart ModelPart(const std::string& model, const std::string& master) {
    ScriptPart part;
    part.name = "Peca";
    part.model = model;
    part.master = master;
    return part;
}

PlanSymbolDrawing DrawPlan(const ScriptPart& part, const ScriptEnvironment& environment) {
    PlanSymbolDrawing drawing;
    const auto error = RunPlanScript(part, environment, drawing);
    EXPECT_FALSE(error.has_value()) << DescribeScriptError(error.value_or(ScriptError()));
    return drawing;
}

PlanSymbolDrawing DrawPlan(const std::string& script) {
    return DrawPlan(PlanPart(script));
}

PartModel BuildModel(const ScriptPart& part, const ScriptEnvironment& environment) {
    PartModel model;
    const auto error = RunModelScript(part, environment, model);
    EXPECT_FALSE(error.has_value()) << DescribeScriptError(error.value_or(ScriptError()));
    return model;
}

std::string WrittenTexts(const std::string& script) {
    std::string joined;
    for (const PlanText& text : ShapesOf<PlanText>(DrawPlan(script))) {
        joined += joined.empty() ? text.text : " | " + text.text;
    }
    return joined;
}

std::string PlanError(const ScriptPart& part, const ScriptEnvironment& environment) {
    PlanSymbolDrawing drawing;
    const auto error = RunPlanScript(part, environment, drawing);
    return error ? DescribeScriptError(*error) : std::string();
}

std::string ModelError(const std::string& script) {
    PartModel model;
    const auto error = RunModelScript(ModelPart(script), {}, model);
    return error ? DescribeScriptError(*error) : std::string();
}

Host::LibraryParameter NumberParameter(const std::string& name, double number,
                                       Host::ParameterType type) {
    Host::LibraryParameter parameter;
    parameter.name = name;
    parameter.type = type;
    parameter.number = number;
    return parameter;
}

Host::LibraryParameter TextParameter(const std::string& name, const std::string& text) {
    Host::LibraryParameter parameter;
    parameter.name = name;
    parameter.type = Host::ParameterType::String;
    parameter.text = text;
    return parameter;
}

} // namespace Merivane::Tests
