#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Host/LibraryParameter.hpp"
#include "Workbench/Script/PartModel.hpp"
#include "Workbench/Script/PlanSymbolDrawing.hpp"
#include "Workbench/Script/ScriptValue.hpp"

/// Runs the scripts of library parts: the master script first, in front of each of the others.
/// Nothing here throws, loops for ever or grows without bounds: what a script asks for beyond the
/// limits ends that script with an error.
namespace Merivane::Workbench {

enum class ScriptKind : std::int32_t {
    Property = 1,
    Plan = 2,
    Model = 3,
    Interface = 4,
    Parameter = 5,
    Master = 6,
};

/// A part as its scripts need it.
struct ScriptPart {
    std::string name; ///< UTF-8, for errors and macro calls
    std::string master;
    std::string plan;
    std::string model;
    std::string parameter;
    double sizeA = 1.0; ///< [m]
    double sizeB = 1.0;
    std::vector<Host::LibraryParameter> parameters; ///< with the values to run with
};

/// Where a script stops that asks for too much. The numbers are far above what parts need.
struct ScriptLimits {
    std::int64_t statements = 20'000'000;
    std::int32_t depth = 64;         ///< of subroutines and macro calls together
    std::size_t values = 4'000'000;  ///< in arrays and in the parameter buffer, together
    std::size_t textBytes = 1 << 20; ///< of one text
    std::size_t shapes = 500'000;    ///< drawn in plan; faces, wires and hotspots of a body
    std::size_t vertices = 2'000'000;
    std::size_t solidWork = 80'000'000; ///< of operations with solids; see `SolidBudget`
};

/// Attributes that scripts name by number or by name.
enum class ScriptAttribute { LineType, Fill, Surface };

/// What a script can ask of what is around it. Functions may be empty: then the answer is "none".
struct ScriptEnvironment {
    double scale = 100.0;                      ///< GLOB_SCALE
    std::int32_t viewType = 2;                 ///< GLOB_VIEW_TYPE
    std::int32_t context = 2;                  ///< GLOB_CONTEXT
    double symbolRotation = 0.0;               ///< SYMB_ROTANGLE [degrees]
    bool symbolMirrored = false;               ///< SYMB_MIRRORED
    std::array<double, 3> symbolPosition = {}; ///< SYMB_POS_X, Y, Z [m]
    std::int32_t symbolPen = 1;                ///< SYMB_VIEW_PEN
    double storyElevation = 0.0;               ///< GLOB_ELEVATION [m]
    double northAngle = 90.0;                  ///< GLOB_NORTH_DIR [degrees]
    /// Number of an attribute of this name, 0 when there is none.
    std::function<std::int32_t(ScriptAttribute kind, std::string_view name)> findAttribute;
    /// The part of this name for a macro call, null when there is none; it must outlive the run.
    std::function<const ScriptPart*(std::string_view name)> findMacro;
    /// What LIBRARYGLOBAL gives for an object and a variable.
    std::function<std::optional<ScriptValue>(std::string_view object, std::string_view variable)>
        libraryGlobal;
    /// Answers of REQUEST by the question's name in upper case; a question that is not here gives
    /// 0.
    std::map<std::string, std::vector<ScriptValue>, std::less<>> requests;
    ScriptLimits limits;
};

/// Why a script stopped before its end.
struct ScriptError {
    std::string part; ///< whose script it is
    ScriptKind script = ScriptKind::Master;
    std::int32_t line = 0;   ///< from 1, in that script
    std::string statement;   ///< its word: "PRISM_", "CALL"
    std::string explanation; ///< Portuguese, without the place
};

/// One Portuguese sentence that names part, script, line and statement.
std::string DescribeScriptError(const ScriptError& error);

/// Runs master and plan script. What was drawn before an error stands in `drawing`.
std::optional<ScriptError> RunPlanScript(const ScriptPart& part,
                                         const ScriptEnvironment& environment,
                                         PlanSymbolDrawing& drawing);

/// Runs master and model script. What was built before an error stands in `model`.
std::optional<ScriptError> RunModelScript(const ScriptPart& part,
                                          const ScriptEnvironment& environment, PartModel& model);

/// A range of values that a parameter may have.
struct ParameterRange {
    std::optional<double> lowest;
    std::optional<double> highest;
    bool lowestIncluded = true;
    bool highestIncluded = true;
    std::optional<double> stepStart;
    std::optional<double> step;

    bool operator==(const ParameterRange&) const = default;
};

/// What VALUES tells of one parameter.
struct ParameterValues {
    std::vector<ScriptValue> values;
    std::vector<std::string> texts; ///< of VALUES{2}: as many as `values`
    std::vector<ParameterRange> ranges;
    bool allowsOthers = false; ///< CUSTOM

    bool operator==(const ParameterValues&) const = default;
};

/// What the parameter script tells of the part's parameters; names as the part spells them.
struct ParameterRules {
    std::map<std::string, ParameterValues> values;
    std::vector<std::string> locked;
    std::vector<std::string> hidden;
    std::map<std::string, ScriptVariable> assigned; ///< by PARAMETERS, in force from the next run

    bool operator==(const ParameterRules&) const = default;
};

/// Runs master and parameter script.
std::optional<ScriptError> RunParameterScript(const ScriptPart& part,
                                              const ScriptEnvironment& environment,
                                              ParameterRules& rules);

} // namespace Merivane::Workbench
