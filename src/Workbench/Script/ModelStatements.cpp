#include "Workbench/Script/ModelStatements.hpp"

#include <cstddef>

#include "Workbench/Script/LowLevelShapes.hpp"
#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeModel.hpp"
#include "Workbench/Script/ShapeTable.hpp"

namespace Merivane::Workbench {

namespace {

std::string SketchStatement(const ModelBuild& build, const ShapeStatement& statement,
                            const std::vector<ScriptValue>& arguments, ShapeSketch& sketch) {
    ShapeInput input;
    if (std::string refusal = ReadShapeInput(build, arguments, input); !refusal.empty()) {
        return refusal;
    }
    if (statement.more && input.numbers.size() < statement.arguments) {
        return "pede pelo menos " + std::to_string(statement.arguments) + " argumentos e tem " +
               std::to_string(input.numbers.size());
    }
    if (!statement.more) {
        if (std::string refusal = CheckRest(input, statement.arguments); !refusal.empty()) {
            return refusal;
        }
    }
    return statement.sketch(input, sketch);
}

} // namespace

bool IsModelShape(std::string_view keyword) {
    return FindShapeStatement(keyword) != nullptr || IsLowLevelStatement(keyword);
}

std::string BuildModelShape(ModelBuild& build, std::string_view keyword,
                            const std::vector<ScriptValue>& arguments) {
    if (IsLowLevelStatement(keyword)) {
        return RunLowLevelStatement(build, keyword, arguments);
    }
    const ShapeStatement* const statement = FindShapeStatement(keyword);
    if (statement == nullptr) {
        return "não é um corpo que se conheça";
    }
    // A shape of its own starts the counting of VERT and its kind anew.
    CloseOpenBody(build);
    ShapeSketch sketch = StartSketch(build);
    if (std::string refusal = SketchStatement(build, *statement, arguments, sketch);
        !refusal.empty()) {
        return refusal;
    }
    OrientOutwards(sketch);
    LeaveOutAbsent(sketch);
    MoveToPart(sketch, build.look.frame);
    return AddToModel(build, sketch);
}

} // namespace Merivane::Workbench
