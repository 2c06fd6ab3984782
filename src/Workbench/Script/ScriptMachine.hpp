#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Workbench/Script/ModelStatements.hpp"
#include "Workbench/Script/PlanSymbolDrawing.hpp"
#include "Workbench/Script/ScriptGroups.hpp"
#include "Workbench/Script/ScriptPolyline.hpp"
#include "Workbench/Script/ScriptProgram.hpp"
#include "Workbench/Script/ScriptRun.hpp"
#include "Workbench/Script/ScriptTransform.hpp"
#include "Workbench/Script/ScriptValue.hpp"

/// A running script. Everything that a statement or a function may see or change is in here.
namespace Merivane::Workbench {

/// A place that a statement or a function writes to or names. Indices count from 1; 0 = none.
struct VariablePlace {
    std::int32_t variable = -1;
    std::int64_t row = 0;
    std::int64_t column = 0;
};

/// An argument of a statement that is a place.
struct PlacedArgument {
    std::size_t argument = 0; ///< of `ScriptMachine::arguments`, which holds its name
    VariablePlace place;
};

/// A variable while a script runs: `value` where it is no table.
struct RunningVariable {
    ScriptValue value;
    ScriptVariable table;
};

struct TextStyle {
    std::string font;
    double size = 5.0; ///< [mm]
    std::int32_t anchor = 1;
    std::int32_t face = 0;
};

/// Attributes in force; a macro's own settings end with it.
struct ScriptLook {
    PlanLook plan;
    TextStyle style;
    std::int32_t material = 0; ///< as scripts number them; see `SurfaceOfMaterial`
    CurveResolution curves;
    ModelLook::Detail detail = ModelLook::Detail::Solid;
};

using ParameterMap = std::unordered_map<std::string, ScriptVariable>;

/// The scripts of one part made ready, and its parameters by their names in upper case.
struct PartPrograms {
    SymbolTable symbols;
    ScriptProgram master;
    ScriptProgram script;
    ParameterMap parameters;
};

/// One part that is running: the one asked for, or a macro.
struct PartFrame {
    const ScriptPart* part = nullptr;
    const PartPrograms* programs = nullptr;
    ParameterMap given; ///< over the part's own parameters
    std::vector<RunningVariable> variables;
    std::vector<ScriptValue> buffer; ///< PUT; taken from `bufferBegin` on
    std::size_t bufferBegin = 0;
    std::size_t valueCount = 0; ///< in tables and in the buffer
    std::vector<std::int32_t> returns;
    std::size_t transformBase = 0;     ///< entries that are the caller's
    std::vector<ScriptValue> returned; ///< by END
    bool ended = false;                ///< by END
};

/// What one of the open cuts set, to be taken back at its end.
struct OpenCut {
    std::size_t planes = 0;
    std::size_t forms = 0;
};

struct ScriptMachine {
    const ScriptEnvironment* environment = nullptr;
    ScriptKind kind = ScriptKind::Plan; ///< what is run
    ScriptKind current = ScriptKind::Master;
    PlanSymbolDrawing* drawing = nullptr; ///< plan
    ModelBuild model;
    ParameterRules rules;

    PartFrame* frame = nullptr;
    const PartFrame* outermost = nullptr; ///< of the part that is asked for
    std::int32_t depth = 0;               ///< of macros and subroutines
    ScriptLook look;
    TransformStack transforms;
    std::map<std::string, TextStyle, std::less<>> styles;
    std::map<std::string, std::int32_t, std::less<>> materials; ///< defined by scripts
    std::map<std::string, ShapeGroup, std::less<>> groups;
    std::size_t madeGroups = 0; ///< by functions: they are numbered
    std::string openGroup;      ///< empty = none
    ShapeGroup outside;         ///< what was there before it
    ScriptFrame groupFrame = UnmovedFrame;
    std::vector<OpenCut> openCuts; ///< innermost last
    std::uint64_t random = 1;

    // Of the statement that runs.
    std::vector<ScriptValue> arguments; ///< the first `argumentCount` are in force; see `IsWord`
    std::size_t argumentCount = 0;
    std::vector<PlacedArgument> places;
    std::vector<ScriptValue> stack;
    std::vector<VariablePlace> stackPlaces;

    // What has been used up of `ScriptLimits`.
    std::int64_t statements = 0;
    std::size_t values = 0;
    std::size_t storedText = 0; ///< bytes in variables, tables, buffers and drawings
    std::size_t shapes = 0;
    std::size_t vertices = 0;

    std::unordered_map<const ScriptPart*, std::unique_ptr<PartPrograms>> programs;
    std::string failure; ///< why the statement can't be done (Portuguese); empty = fine
    ScriptError error;   ///< where it happened
};

/// Notes why the statement can't go on; returns false for the caller to return.
bool Fail(ScriptMachine& machine, std::string explanation);

/// Counts work that one statement does beyond the ordinary. False when the script has done too
/// much.
bool Charge(ScriptMachine& machine, std::size_t work);

/// Works out one expression. False with `failure` set.
bool Evaluate(ScriptMachine& machine, const ScriptProgram& program, const ScriptArgument& argument,
              ScriptValue& value);

/// Works out where an argument of kind Place leads. False with `failure` set.
bool EvaluatePlace(ScriptMachine& machine, const ScriptProgram& program,
                   const ScriptArgument& argument, VariablePlace& place);

/// Works out a statement's arguments, GET and tables spread out, into `arguments` and `places`.
bool EvaluateArguments(ScriptMachine& machine, const ScriptProgram& program,
                       const Instruction& instruction);

/// True for an argument that is a word of the language, not a text that spells the same: its
/// `number` is 1.
bool IsWord(const ScriptValue& argument, std::string_view word);

/// The variable's name as it is written, with its indices: "size[2]".
std::string PlaceName(const ScriptMachine& machine, const VariablePlace& place);

/// Reads and writes variables and places of tables. False with `failure` set.
bool ReadElement(ScriptMachine& machine, std::int32_t variable, const ScriptValue* indices,
                 std::size_t indexCount, ScriptValue& value);
bool MakePlace(ScriptMachine& machine, std::int32_t variable, const ScriptValue* indices,
               std::size_t indexCount, VariablePlace& place);
bool WritePlace(ScriptMachine& machine, const VariablePlace& place, const ScriptValue& value);
bool DimensionTable(ScriptMachine& machine, std::int32_t variable, bool dynamic, std::size_t rows,
                    std::size_t columns);
bool CopyTable(ScriptMachine& machine, const ScriptVariable& from, RunningVariable& to);
ScriptVariable VariableOf(const RunningVariable& variable);

/// Takes `count` values out of the buffer, or looks at them, behind `arguments`.
bool SpreadBuffer(ScriptMachine& machine, const ScriptValue& count, bool keep);
bool PutArguments(ScriptMachine& machine);
std::size_t BufferSize(const PartFrame& frame);

/// Runs a part's master script and the script of the machine's kind in `frame`. False with `error`
/// told.
bool RunPart(ScriptMachine& machine, PartFrame& frame);

/// The part's scripts made ready; kept for the machine's life.
const PartPrograms& ProgramsOf(ScriptMachine& machine, const ScriptPart& part);

/// CALL, its arguments being evaluated.
bool CallMacro(ScriptMachine& machine, const ScriptProgram& program,
               const Instruction& instruction);

} // namespace Merivane::Workbench
