#include "Workbench/Script/ScriptRun.hpp"

#include <utility>

#include "Text/ShownText.hpp"
#include "Workbench/Script/ScriptMachine.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

namespace Merivane::Workbench {

namespace {

std::string_view ScriptWord(ScriptKind kind) {
    switch (kind) {
    case ScriptKind::Property:
        return "script de propriedades";
    case ScriptKind::Plan:
        return "script 2D";
    case ScriptKind::Model:
        return "script 3D";
    case ScriptKind::Interface:
        return "script de interface";
    case ScriptKind::Parameter:
        return "script de parâmetros";
    case ScriptKind::Master:
        return "script mestre";
    }
    return "script";
}

void StartMachine(ScriptMachine& machine, const ScriptEnvironment& environment, ScriptKind kind) {
    machine.environment = &environment;
    machine.kind = kind;
    machine.model.shapeLimit = environment.limits.shapes;
    machine.model.vertexLimit = environment.limits.vertices;
    machine.model.solidBudget.left = environment.limits.solidWork;
    machine.look.plan.pen = environment.symbolPen;
}

std::optional<ScriptError> RunMachine(ScriptMachine& machine, const ScriptPart& part) {
    PartFrame frame;
    frame.part = &part;
    frame.programs = &ProgramsOf(machine, part);
    machine.outermost = &frame;
    if (RunPart(machine, frame)) {
        return std::nullopt;
    }
    return machine.error;
}

} // namespace

std::string DescribeScriptError(const ScriptError& error) {
    std::string text = "A peça " + Text::QuotedText(error.part) + " parou no ";
    text.append(ScriptWord(error.script)).append(", linha ").append(std::to_string(error.line));
    if (!error.statement.empty()) {
        text += ", instrução " + Text::ShownText(error.statement);
    }
    return text + ": " + error.explanation + ".";
}

std::optional<ScriptError> RunPlanScript(const ScriptPart& part,
                                         const ScriptEnvironment& environment,
                                         PlanSymbolDrawing& drawing) {
    ScriptMachine machine;
    StartMachine(machine, environment, ScriptKind::Plan);
    machine.drawing = &drawing;
    return RunMachine(machine, part);
}

std::optional<ScriptError> RunModelScript(const ScriptPart& part,
                                          const ScriptEnvironment& environment, PartModel& model) {
    ScriptMachine machine;
    StartMachine(machine, environment, ScriptKind::Model);
    std::optional<ScriptError> error = RunMachine(machine, part);
    FinishModel(machine);
    model = std::move(machine.model.model);
    return error;
}

std::optional<ScriptError> RunParameterScript(const ScriptPart& part,
                                              const ScriptEnvironment& environment,
                                              ParameterRules& rules) {
    ScriptMachine machine;
    StartMachine(machine, environment, ScriptKind::Parameter);
    std::optional<ScriptError> error = RunMachine(machine, part);
    rules = std::move(machine.rules);
    return error;
}

} // namespace Merivane::Workbench
