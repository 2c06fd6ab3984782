#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "Workbench/Script/ScriptCompiler.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

// Control flow becomes jumps between instructions.
namespace Merivane::Workbench {

namespace {

using Kind = OpenBlock::Kind;

constexpr std::int32_t MostNestedIfs = 100;

std::int32_t NextInstruction(const ScriptCompiler& compiler) {
    return static_cast<std::int32_t>(compiler.program.instructions.size());
}

Instruction& InstructionAt(ScriptCompiler& compiler, std::int32_t place) {
    return compiler.program.instructions[static_cast<std::size_t>(place)];
}

/// Lets the jump lead to what comes next.
void JumpHere(ScriptCompiler& compiler, std::int32_t jump) {
    InstructionAt(compiler, jump).target = NextInstruction(compiler);
}

/// An instruction with the expression that stands here; returns its place, -1 on an error.
std::int32_t AddWithExpression(ScriptCompiler& compiler, InstructionKind kind, std::int32_t line) {
    ScriptArgument argument;
    if (!ParseExpression(compiler, argument)) {
        return -1;
    }
    AddInstruction(compiler, kind, line);
    AddArgument(compiler, argument);
    return NextInstruction(compiler) - 1;
}

/// GOTO or GOSUB to the label that stands here.
bool ParseJump(ScriptCompiler& compiler, bool isGosub, std::int32_t line) {
    const ScriptToken& label = Now(compiler);
    const bool written = label.kind == TokenKind::Number || label.kind == TokenKind::Text;
    const std::size_t begin = compiler.place;
    const std::int32_t jump =
        AddWithExpression(compiler, isGosub ? InstructionKind::Gosub : InstructionKind::Goto, line);
    if (jump < 0) {
        return false;
    }
    if (written && compiler.place == begin + 1) {
        const ScriptValue value =
            label.kind == TokenKind::Number ? NumberValue(label.number) : TextValue(label.text);
        const std::string name = LabelName(value);
        compiler.jumps.push_back({jump, name, value.isText ? "\"" + name + "\"" : name.substr(1)});
    }
    return true;
}

bool ParseLineStatement(ScriptCompiler& compiler);

bool RefuseBlock(ScriptCompiler& compiler, std::size_t blocks) {
    return compiler.blocks.size() == blocks ||
           Refuse(compiler, "um bloco não cabe em um IF de uma linha");
}

/// The rest of an IF that stands on one line.
bool ParseLineIf(ScriptCompiler& compiler, std::int32_t unless) {
    if (compiler.depth >= MostNestedIfs) {
        return Refuse(compiler, "IFs demais, um dentro do outro");
    }
    const std::size_t blocks = compiler.blocks.size();
    const std::string word = compiler.statement;
    ++compiler.depth;
    bool parsed = ParseLineStatement(compiler) && RefuseBlock(compiler, blocks);
    if (parsed && SkipWord(compiler, "ELSE")) {
        AddInstruction(compiler, InstructionKind::Jump, Now(compiler).line);
        const std::int32_t leave = NextInstruction(compiler) - 1;
        JumpHere(compiler, unless);
        parsed = ParseLineStatement(compiler) && RefuseBlock(compiler, blocks);
        if (parsed) {
            JumpHere(compiler, leave);
        }
    } else if (parsed) {
        JumpHere(compiler, unless);
    }
    --compiler.depth;
    SkipWord(compiler, "ENDIF");
    compiler.statement = word;
    return parsed;
}

bool ParseLineStatement(ScriptCompiler& compiler) {
    const TokenKind kind = Now(compiler).kind;
    if (kind == TokenKind::Number) {
        compiler.statement = "GOTO";
        return ParseJump(compiler, false, Now(compiler).line);
    }
    if (kind == TokenKind::Text && (Next(compiler).kind == TokenKind::EndOfLine)) {
        compiler.statement = "GOTO";
        return ParseJump(compiler, false, Now(compiler).line);
    }
    return ParseStatement(compiler);
}

bool ParseIf(ScriptCompiler& compiler, std::int32_t line) {
    const std::int32_t unless = AddWithExpression(compiler, InstructionKind::JumpUnless, line);
    if (unless < 0) {
        return false;
    }
    if (AtWord(compiler, "GOTO") || AtWord(compiler, "GOSUB")) {
        return ParseLineIf(compiler, unless);
    }
    if (!SkipWord(compiler, "THEN")) {
        return Refuse(compiler, "falta THEN");
    }
    if (AtStatementEnd(compiler)) {
        compiler.blocks.push_back({Kind::If, line, 0, unless});
        return true;
    }
    return ParseLineIf(compiler, unless);
}

bool RefuseUnopened(ScriptCompiler& compiler, const std::string& word) {
    return Refuse(compiler, word + " sem o começo do bloco");
}

bool InBlock(const ScriptCompiler& compiler, Kind kind) {
    return !compiler.blocks.empty() && compiler.blocks.back().kind == kind;
}

bool ParseElse(ScriptCompiler& compiler, std::int32_t line) {
    if (!InBlock(compiler, Kind::If)) {
        return RefuseUnopened(compiler, "ELSE");
    }
    AddInstruction(compiler, InstructionKind::Jump, line);
    OpenBlock& block = compiler.blocks.back();
    JumpHere(compiler, block.leave);
    block.kind = Kind::Else;
    block.leave = NextInstruction(compiler) - 1;
    return true;
}

bool ParseEndIf(ScriptCompiler& compiler) {
    if (!InBlock(compiler, Kind::If) && !InBlock(compiler, Kind::Else)) {
        return RefuseUnopened(compiler, "ENDIF");
    }
    JumpHere(compiler, compiler.blocks.back().leave);
    compiler.blocks.pop_back();
    return true;
}

/// A hidden variable of its own for the limit or the step of a loop.
std::int32_t HiddenVariable(ScriptCompiler& compiler) {
    const std::string name = "#" + std::to_string(compiler.symbols.names.size());
    return FindSymbol(compiler.symbols, name, name);
}

bool AssignHere(ScriptCompiler& compiler, std::int32_t variable, std::int32_t line) {
    const std::int32_t instruction = AddWithExpression(compiler, InstructionKind::Assign, line);
    if (instruction < 0) {
        return false;
    }
    InstructionAt(compiler, instruction).target = variable;
    return true;
}

bool ParseFor(ScriptCompiler& compiler, std::int32_t line) {
    if (Now(compiler).kind != TokenKind::Word) {
        return Refuse(compiler, "falta a variável que conta");
    }
    const ScriptToken& name = Now(compiler);
    const std::int32_t counter = FindSymbol(compiler.symbols, name.text, name.spelling);
    ++compiler.place;
    const std::int32_t limit = HiddenVariable(compiler);
    const std::int32_t step = HiddenVariable(compiler);
    if (!SkipSign(compiler, '=')) {
        return Refuse(compiler, "falta \"=\"");
    }
    if (!AssignHere(compiler, counter, line)) {
        return false;
    }
    if (!SkipWord(compiler, "TO")) {
        return Refuse(compiler, "falta TO");
    }
    if (!AssignHere(compiler, limit, line)) {
        return false;
    }
    if (SkipWord(compiler, "STEP")) {
        if (!AssignHere(compiler, step, line)) {
            return false;
        }
    } else {
        ScriptArgument one;
        one.begin = static_cast<std::int32_t>(compiler.program.operations.size());
        compiler.program.operations.push_back({OperationCode::Number, 0, 0, 1.0});
        one.end = one.begin + 1;
        AddInstruction(compiler, InstructionKind::Assign, line).target = step;
        AddArgument(compiler, one);
    }
    Instruction& test = AddInstruction(compiler, InstructionKind::ForTest, line);
    test.variable = counter;
    test.other = limit;
    const std::int32_t begin = NextInstruction(compiler) - 1;
    compiler.blocks.push_back({Kind::For, line, begin, begin, counter});
    return true;
}

bool ParseNext(ScriptCompiler& compiler, std::int32_t line) {
    if (!InBlock(compiler, Kind::For)) {
        return RefuseUnopened(compiler, "NEXT");
    }
    const OpenBlock block = compiler.blocks.back();
    if (Now(compiler).kind == TokenKind::Word && !AtStatementEnd(compiler)) {
        const ScriptToken& name = Now(compiler);
        if (FindSymbol(compiler.symbols, name.text, name.spelling) != block.variable) {
            return Refuse(compiler, "NEXT " + name.spelling + " não é do FOR que está aberto");
        }
        ++compiler.place;
    }
    Instruction& next = AddInstruction(compiler, InstructionKind::ForNext, line);
    next.target = block.begin;
    next.variable = block.variable;
    next.other = InstructionAt(compiler, block.begin).other;
    JumpHere(compiler, block.leave);
    compiler.blocks.pop_back();
    return true;
}

/// WHILE begins a loop of its own where DO stands behind its condition, and ends one of DO else.
bool ParseWhile(ScriptCompiler& compiler, std::int32_t line) {
    const std::int32_t begin = NextInstruction(compiler);
    const std::int32_t test = AddWithExpression(compiler, InstructionKind::JumpUnless, line);
    if (test < 0) {
        return false;
    }
    if (SkipWord(compiler, "DO")) {
        compiler.blocks.push_back({Kind::While, line, begin, test});
        return true;
    }
    if (!InBlock(compiler, Kind::Do)) {
        return Refuse(compiler, "falta DO");
    }
    AddInstruction(compiler, InstructionKind::Jump, line).target = compiler.blocks.back().begin;
    JumpHere(compiler, test);
    compiler.blocks.pop_back();
    return true;
}

bool ParseEndWhile(ScriptCompiler& compiler, std::int32_t line) {
    if (!InBlock(compiler, Kind::While)) {
        return RefuseUnopened(compiler, "ENDWHILE");
    }
    const OpenBlock block = compiler.blocks.back();
    AddInstruction(compiler, InstructionKind::Jump, line).target = block.begin;
    JumpHere(compiler, block.leave);
    compiler.blocks.pop_back();
    return true;
}

bool ParseUntil(ScriptCompiler& compiler, std::int32_t line) {
    if (!InBlock(compiler, Kind::Repeat)) {
        return RefuseUnopened(compiler, "UNTIL");
    }
    const std::int32_t test = AddWithExpression(compiler, InstructionKind::JumpUnless, line);
    if (test < 0) {
        return false;
    }
    InstructionAt(compiler, test).target = compiler.blocks.back().begin;
    compiler.blocks.pop_back();
    return true;
}

bool OpenLoop(ScriptCompiler& compiler, Kind kind, std::int32_t line) {
    compiler.blocks.push_back({kind, line, NextInstruction(compiler), -1});
    return true;
}

bool ParseEnd(ScriptCompiler& compiler, std::int32_t line) {
    AddInstruction(compiler, InstructionKind::End, line);
    return AtStatementEnd(compiler) || ParseArgumentList(compiler);
}

bool ParseReturn(ScriptCompiler& compiler, std::int32_t line) {
    AddInstruction(compiler, InstructionKind::Return, line);
    return true;
}

struct ControlRow {
    ControlWord word;
    bool (*parse)(ScriptCompiler&, std::int32_t line);
};

constexpr ControlRow Rows[] = {
    {{"IF", "THEN, ELSE and ENDIF in a block, or one statement each on its line"}, ParseIf},
    {{"ELSE", "of IF"}, ParseElse},
    {{"ENDIF", "of IF"},
     [](ScriptCompiler& compiler, std::int32_t) { return ParseEndIf(compiler); }},
    {{"FOR", "TO, STEP; tested before the first round"}, ParseFor},
    {{"NEXT", "of FOR"}, ParseNext},
    {{"DO", "ended by WHILE and its condition"},
     [](ScriptCompiler& compiler, std::int32_t line) {
         return OpenLoop(compiler, Kind::Do, line);
     }},
    {{"WHILE", "with DO a loop of its own, without it the end of DO"}, ParseWhile},
    {{"ENDWHILE", "of WHILE"}, ParseEndWhile},
    {{"REPEAT", "ended by UNTIL and its condition"},
     [](ScriptCompiler& compiler, std::int32_t line) {
         return OpenLoop(compiler, Kind::Repeat, line);
     }},
    {{"UNTIL", "of REPEAT"}, ParseUntil},
    {{"GOTO", "to a label that is a number or a text, also a computed one"},
     [](ScriptCompiler& compiler, std::int32_t line) { return ParseJump(compiler, false, line); }},
    {{"GOSUB", "the same, and RETURN comes back"},
     [](ScriptCompiler& compiler, std::int32_t line) { return ParseJump(compiler, true, line); }},
    {{"RETURN", "of GOSUB"}, ParseReturn},
    {{"END", "of the script and, in the master script, of the one behind it; with values for "
             "RETURNED_PARAMETERS"},
     ParseEnd},
    {{"EXIT", "the same as END"}, ParseEnd},
};

// Words that the statement's parser takes itself.
constexpr ControlWord OwnWords[] = {
    {"LET", "may stand in front of an assignment"},
    {"DIM", "tables of one or two dimensions, of a size or growing"},
    {"PUT", "values into the parameter buffer"},
    {"CALL", "a macro, with PARAMETERS, ALL and RETURNED_PARAMETERS"},
};

} // namespace

bool ParseControl(ScriptCompiler& compiler, const ScriptToken& word, bool& known) {
    for (const ControlRow& row : Rows) {
        if (row.word.name == word.text) {
            known = true;
            ++compiler.place;
            return row.parse(compiler, word.line);
        }
    }
    known = false;
    return true;
}

std::span<const ControlWord> ControlWords() {
    static const auto All = [] {
        std::array<ControlWord, std::size(Rows) + std::size(OwnWords)> words;
        std::size_t count = 0;
        for (const ControlRow& row : Rows) {
            words[count++] = row.word;
        }
        for (const ControlWord& word : OwnWords) {
            words[count++] = word;
        }
        return words;
    }();
    return All;
}

} // namespace Merivane::Workbench
