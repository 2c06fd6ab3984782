#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "Workbench/Script/ScriptMachine.hpp"

/// The statements of the language, control flow aside: tables, which the parser looks words up in.
namespace Merivane::Workbench {

/// How a statement's arguments are written.
enum class StatementShape : std::uint8_t {
    Values,          ///< expressions
    Words,           ///< expressions and words of the language: ALL, ON, TOP
    Hotspot2,        ///< x, y, number, parameter, flags, parameter
    Hotspot3,        ///< the same with x, y, z
    Hotline2,        ///< the same with two places
    Hotarc2,         ///< the same with a place, a radius and two angles
    Light,           ///< expressions, ADDITIONAL_DATA name = value
    Definition,      ///< name, then expressions (no comma needed), or BASED_ON and PARAMETERS
    ParameterList,   ///< name = value, ...
    ParameterValues, ///< a name, values, CUSTOM and RANGE
    Skipped,         ///< whatever follows: nothing is worked out
};

/// Which scripts may hold a statement; in a master script all may stand, and those of another
/// script do nothing.
enum class StatementScope : std::uint8_t { All, Plan, Model };

/// Carries a statement out with the machine's arguments. False with `failure` set.
using StatementHandler = bool (*)(ScriptMachine& machine);

struct StatementEntry {
    std::string_view name;  ///< upper case, with its number in braces; DEFINE with its second word
    std::int32_t least = 0; ///< arguments
    std::int32_t most = 0;  ///< -1 = any number
    StatementHandler run = nullptr; ///< null = accepted, draws nothing
    StatementShape shape = StatementShape::Values;
    StatementScope scope = StatementScope::All;
    std::string_view does; ///< for the documentation, in English
};

std::span<const StatementEntry> TransformStatements();
std::span<const StatementEntry> AttributeStatements();
std::span<const StatementEntry> PlanStatements();
std::span<const StatementEntry> PlanPolygonStatements();
std::span<const StatementEntry> ModelControlStatements();
std::span<const StatementEntry> ParameterStatements();
std::span<const StatementEntry> QuietStatements(); ///< known, and nothing to be seen of them

/// Words that the parser itself turns into instructions, and what they do.
struct ControlWord {
    std::string_view name;
    std::string_view does;
};
std::span<const ControlWord> ControlWords();

/// Statements counted through, in the order of the tables above; -1 when there is none.
std::int32_t FindStatement(std::string_view name);
const StatementEntry& StatementAt(std::int32_t index);

/// Number of an argument; `fallback` where it is left out. False for a text.
bool NumberArgument(ScriptMachine& machine, std::size_t place, double& number,
                    double fallback = 0.0);

/// An argument as a whole number; far ones become the nearest that fits.
bool IntegerArgument(ScriptMachine& machine, std::size_t place, std::int32_t& number,
                     std::int32_t fallback = 0);

/// A number of any size as a whole number.
std::int32_t WholeNumber(double number);

/// True when every argument from `first` on is a number.
bool AllNumbers(ScriptMachine& machine, std::size_t first = 0);

/// Carries out a statement of `IsModelShape` with the machine's arguments, in the frame and with
/// the attributes in force.
bool BuildShapeStatement(ScriptMachine& machine, const std::string& keyword);

/// Ends what a model script left open: its low-level body, a group.
void FinishModel(ScriptMachine& machine);

/// A value as text: numbers in their shortest form with at most six decimals.
std::string ShownValue(const ScriptValue& value);

/// Counts a shape of so many vertices against the limits.
bool CountShape(ScriptMachine& machine, std::size_t vertices);

/// Texts up to this length [bytes] are not counted: values themselves are.
inline constexpr std::size_t SmallText = 64;

/// Counts a text that is kept.
bool CountText(ScriptMachine& machine, std::size_t bytes);

/// A material by its number or name: the number of an attribute, from `Host::FirstScriptSurface` up
/// one that a script defined, 0 the colour of the pen. Below 0 a script counts its own definitions
/// from -1 down. What nobody has gives 0.
std::int32_t MaterialNumber(const ScriptMachine& machine, const ScriptValue& material);

/// Number of a line type or fill, by number or name; 0 where there is none of the name.
std::int32_t AttributeNumber(const ScriptMachine& machine, ScriptAttribute kind,
                             const ScriptValue& value);

} // namespace Merivane::Workbench
