#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Workbench/Script/ScriptProgram.hpp"
#include "Workbench/Script/ScriptTokens.hpp"

/// The parser's own records: how tokens become a `ScriptProgram`.
namespace Merivane::Workbench {

/// A block of control flow that is open.
struct OpenBlock {
    enum class Kind { If, Else, For, Do, While, Repeat } kind = Kind::If;
    std::int32_t line = 0;
    std::int32_t begin = 0;  ///< the instruction to go round to
    std::int32_t leave = -1; ///< the jump to set when the block's end is known
    std::int32_t variable = -1;
};

struct ScriptCompiler {
    const std::vector<ScriptToken>& tokens;
    ScriptProgram& program;
    SymbolTable& symbols;
    std::size_t place = 0;
    std::vector<OpenBlock> blocks = {};
    std::string statement = {}; ///< the word of the statement being parsed
    std::int32_t depth = 0;     ///< of brackets, or of IFs on one line
    struct Jump {
        std::int32_t instruction;
        std::string label;
        std::string shown;
    };
    std::vector<Jump> jumps = {}; ///< to labels, set at the end
};

const ScriptToken& Now(const ScriptCompiler& compiler);
const ScriptToken& Next(const ScriptCompiler& compiler);
bool AtSign(const ScriptCompiler& compiler, char sign);
bool AtWord(const ScriptCompiler& compiler, std::string_view upper);

/// Steps over a sign or a word that stands here.
bool SkipSign(ScriptCompiler& compiler, char sign);
bool SkipWord(ScriptCompiler& compiler, std::string_view upper);

/// True where a statement's arguments end: line end, `:`, ELSE, ENDIF.
bool AtStatementEnd(const ScriptCompiler& compiler);

/// Notes the first error with its place; returns false for the caller to return.
bool Refuse(ScriptCompiler& compiler, std::string error);

/// Place of a text in the program.
std::int32_t KeepText(ScriptCompiler& compiler, std::string text);

/// Parses an expression to the operations that `argument` spans.
bool ParseExpression(ScriptCompiler& compiler, ScriptArgument& argument);

/// An argument of a list: an expression, a bare variable, or GET and USE of several values.
bool ParseArgument(ScriptCompiler& compiler, ScriptArgument& argument);

/// A variable, or a place in a table, that is to be written to or named.
bool ParsePlace(ScriptCompiler& compiler, ScriptArgument& argument);

/// An argument that stands for a word.
ScriptArgument WordArgument(ScriptCompiler& compiler, std::string word);

/// Starts an instruction of the current statement; its arguments follow.
Instruction& AddInstruction(ScriptCompiler& compiler, InstructionKind kind, std::int32_t line);
void AddArgument(ScriptCompiler& compiler, const ScriptArgument& argument);

/// Expressions parted by commas, up to the statement's end.
bool ParseArgumentList(ScriptCompiler& compiler);

/// The arguments of a row of the table of statements.
bool ParseStatementArguments(ScriptCompiler& compiler, std::int32_t entry);

/// CALL, its word being passed, and a text that stands for it.
bool ParseCall(ScriptCompiler& compiler, std::int32_t line);

/// A word of control flow, the word being passed. `known` tells whether it is one.
bool ParseControl(ScriptCompiler& compiler, const ScriptToken& word, bool& known);

/// One statement.
bool ParseStatement(ScriptCompiler& compiler);

} // namespace Merivane::Workbench
