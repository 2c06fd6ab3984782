#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Workbench/Script/ScriptValue.hpp"

/// A script made ready to run: expressions in postfix form, statements as one row of instructions
/// in which control flow is jumps, variables as places in a table. Running it takes no recursion.
namespace Merivane::Workbench {

enum class OperationCode : std::uint8_t {
    Number,    ///< `number`
    Text,      ///< place `index` of `ScriptProgram::texts`
    Load,      ///< variable `index`
    Element,   ///< variable `index`, `count` indices are on the stack
    Reference, ///< variable `index` as a place, `count` indices are on the stack
    Negate,
    Power,
    Multiply,
    Divide,
    Modulo,
    Add,
    Subtract,
    Equal,
    NotEqual,
    Less,
    Greater,
    LessOrEqual,
    GreaterOrEqual,
    And,
    Or,
    ExclusiveOr,
    Call, ///< function `index` of the table of functions with `count` arguments
};

struct Operation {
    OperationCode code = OperationCode::Number;
    std::uint16_t count = 0;
    std::int32_t index = 0;
    double number = 0.0;
};

enum class ArgumentKind : std::uint8_t {
    Value,    ///< one value
    TakenOut, ///< GET: the operations give how many values to take out of the buffer
    Used,     ///< USE: the same, and they stay
    Variable, ///< a bare variable: a table gives all its values
    Place,    ///< a variable, or a place in a table, to write to or to name
    Word,     ///< a word of the language, in upper case; also one told by the statement's grammar
};

struct ScriptArgument {
    ArgumentKind kind = ArgumentKind::Value;
    std::int32_t begin = 0; ///< operations of the program
    std::int32_t end = 0;
    std::int32_t index = -1; ///< variable of Variable and Place, text of Word
};

enum class InstructionKind : std::uint8_t {
    Assign,        ///< variable `target` = argument 0
    AssignElement, ///< variable `target`, argument 0 the value, the others indices
    Jump,          ///< to instruction `target`
    JumpUnless,    ///< argument 0
    Goto,          ///< to the label that argument 0 names
    Gosub,         ///< to instruction `target`, or by argument 0
    Return,
    End,       ///< of the script, with values
    ForTest,   ///< of `variable` against the hidden variable `other`, the step behind it; the jump
               ///< out to `target`
    ForNext,   ///< adds the step and jumps to the test
    Dimension, ///< variable `target`; arguments are its sizes, none where it grows
    Put,
    Statement, ///< row `target` of the table of statements
    Shape,     ///< one of `IsModelShape`
    CallMacro, ///< argument 0 the name, pairs of Word and value, then places to return to
    Unknown,
};

struct Instruction {
    InstructionKind kind = InstructionKind::End;
    std::int32_t line = 0;
    std::int32_t word = 0; ///< of `ScriptProgram::texts`: the statement's name
    std::int32_t target = -1;
    std::int32_t other = 0;     ///< see the kinds; CallMacro: number of places to return to
    std::int32_t variable = -1; ///< that a FOR counts with
    std::int32_t firstArgument = 0;
    std::int32_t argumentCount = 0;
    bool flag = false; ///< CallMacro: ALL
};

struct ScriptProgram {
    std::vector<Instruction> instructions;
    std::vector<ScriptArgument> arguments;
    std::vector<Operation> operations;
    std::vector<std::string> texts;
    std::map<std::string, std::int32_t, std::less<>> labels; ///< by `LabelName`
    std::string error; ///< why the text is no program (Portuguese); empty = fine
    std::string errorStatement;
    std::int32_t errorLine = 0;
};

/// Variables of a part's scripts, shared between its master script and the script behind it.
struct SymbolTable {
    std::unordered_map<std::string, std::int32_t> places; ///< by name in upper case
    std::vector<std::string> names;                       ///< as first written
};

/// The variable of this name, made when it is new.
std::int32_t FindSymbol(SymbolTable& symbols, const std::string& upperName,
                        const std::string& spelling);

/// How `labels` spells a label that is a number, and one that is a text.
std::string LabelName(const ScriptValue& label);

/// Makes a script ready to run.
ScriptProgram ParseScript(std::string_view script, SymbolTable& symbols);

} // namespace Merivane::Workbench
