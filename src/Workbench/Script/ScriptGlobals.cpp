#include "Workbench/Script/ScriptGlobals.hpp"

#include <cmath>
#include <numbers>

#include "Text/Ascii.hpp"

namespace Merivane::Workbench {

namespace {

struct GlobalRow {
    std::string_view name;
    double (*value)(const ScriptEnvironment& environment, ScriptKind kind);
};

using Environment = ScriptEnvironment;

constexpr GlobalRow Globals[] = {
    {"GLOB_SCALE", [](const Environment& e, ScriptKind) { return e.scale; }},
    {"GLOB_DRAWING_BGD_PEN", [](const Environment&, ScriptKind) { return 19.0; }},
    {"GLOB_VIEW_TYPE",
     [](const Environment& e, ScriptKind) { return static_cast<double>(e.viewType); }},
    {"GLOB_CONTEXT",
     [](const Environment& e, ScriptKind) { return static_cast<double>(e.context); }},
    {"GLOB_SCRIPT_TYPE",
     [](const Environment&, ScriptKind kind) { return static_cast<double>(kind); }},
    {"GLOB_NORTH_DIR", [](const Environment& e, ScriptKind) { return e.northAngle; }},
    {"GLOB_ELEVATION", [](const Environment& e, ScriptKind) { return e.storyElevation; }},
    {"SYMB_ROTANGLE", [](const Environment& e, ScriptKind) { return e.symbolRotation; }},
    {"SYMB_MIRRORED",
     [](const Environment& e, ScriptKind) { return e.symbolMirrored ? 1.0 : 0.0; }},
    {"SYMB_POS_X", [](const Environment& e, ScriptKind) { return e.symbolPosition[0]; }},
    {"SYMB_POS_Y", [](const Environment& e, ScriptKind) { return e.symbolPosition[1]; }},
    {"SYMB_POS_Z", [](const Environment& e, ScriptKind) { return e.symbolPosition[2]; }},
    {"SYMB_VIEW_PEN",
     [](const Environment& e, ScriptKind) { return static_cast<double>(e.symbolPen); }},
    {"SYMB_LINETYPE", [](const Environment&, ScriptKind) { return 1.0; }},
};

ScriptVariable OneValue(ScriptValue value) {
    ScriptVariable variable;
    variable.values.push_back(std::move(value));
    return variable;
}

double ParameterNumber(const Host::LibraryParameter& parameter, double number) {
    constexpr double halfTurn = 180.0;
    const double value = std::isfinite(number) ? number : 0.0;
    return parameter.type == Host::ParameterType::Angle ? value * halfTurn / std::numbers::pi
                                                        : value;
}

ScriptVariable TableOf(const Host::LibraryParameter& parameter) {
    ScriptVariable table;
    table.isArray = true;
    table.isDynamic = true;
    if (parameter.type == Host::ParameterType::String) {
        for (const std::string& text : parameter.texts) {
            table.values.push_back(TextValue(text));
        }
    } else {
        for (const double number : parameter.numbers) {
            table.values.push_back(NumberValue(ParameterNumber(parameter, number)));
        }
    }
    table.columns = parameter.dim2 > 1 ? static_cast<std::size_t>(parameter.dim2) : 0;
    const std::size_t width = table.columns == 0 ? 1 : table.columns;
    table.rows = (table.values.size() + width - 1) / width;
    table.values.resize(table.rows * width);
    return table;
}

} // namespace

ScriptValue GlobalValue(const ScriptEnvironment& environment, ScriptKind kind,
                        std::string_view name) {
    if (name == "GLOB_MODPAR_NAME") {
        return TextValue("");
    }
    for (const GlobalRow& row : Globals) {
        if (row.name == name) {
            return NumberValue(row.value(environment, kind));
        }
    }
    return NumberValue(0.0);
}

ParameterMap BuildParameterMap(const ScriptPart& part) {
    ParameterMap parameters;
    parameters["A"] = OneValue(NumberValue(part.sizeA));
    parameters["B"] = OneValue(NumberValue(part.sizeB));
    for (const Host::LibraryParameter& parameter : part.parameters) {
        const std::string name = Text::ToUpper(parameter.name);
        if (parameter.isArray) {
            parameters[name] = TableOf(parameter);
        } else if (parameter.type == Host::ParameterType::String) {
            parameters[name] = OneValue(TextValue(parameter.text));
        } else {
            parameters[name] = OneValue(NumberValue(ParameterNumber(parameter, parameter.number)));
        }
    }
    return parameters;
}

const ScriptVariable* FindParameter(const PartFrame& frame, const std::string& name) {
    if (const auto given = frame.given.find(name); given != frame.given.end()) {
        return &given->second;
    }
    const auto own = frame.programs->parameters.find(name);
    return own == frame.programs->parameters.end() ? nullptr : &own->second;
}

} // namespace Merivane::Workbench
