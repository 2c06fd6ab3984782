#include <algorithm>
#include <utility>

#include "Text/Number.hpp"
#include "Text/ShownText.hpp"
#include "Workbench/Script/ModelStatements.hpp"
#include "Workbench/Script/ScriptCompiler.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

namespace Merivane::Workbench {

namespace {

/// The label that stands at a line's beginning, if one does.
bool ParseLabel(ScriptCompiler& compiler, bool& isLabel) {
    const ScriptToken& token = Now(compiler);
    const ScriptToken& next = Next(compiler);
    const bool named = token.kind == TokenKind::Number || token.kind == TokenKind::Text;
    isLabel = named && next.kind == TokenKind::Sign && next.sign == ':';
    if (!isLabel) {
        return true;
    }
    const ScriptValue label =
        token.kind == TokenKind::Number ? NumberValue(token.number) : TextValue(token.text);
    const auto place = static_cast<std::int32_t>(compiler.program.instructions.size());
    if (!compiler.program.labels.emplace(LabelName(label), place).second) {
        return Refuse(compiler, "o rótulo aparece duas vezes");
    }
    compiler.place += 2;
    return true;
}

/// `name[indices] = value` or `name = value`, the name being the current token.
bool ParseAssignment(ScriptCompiler& compiler) {
    const std::int32_t line = Now(compiler).line;
    ScriptArgument place;
    if (!ParsePlace(compiler, place)) {
        return false;
    }
    if (!SkipSign(compiler, '=')) {
        return Refuse(compiler, "falta \"=\"");
    }
    ScriptArgument value;
    if (!ParseExpression(compiler, value)) {
        return false;
    }
    const bool element = place.end - place.begin > 1;
    const Operation& last = compiler.program.operations.back();
    if (!element && value.end - value.begin == 1 && last.code == OperationCode::Load) {
        value.kind = ArgumentKind::Variable;
        value.index = last.index;
    }
    AddInstruction(compiler, element ? InstructionKind::AssignElement : InstructionKind::Assign,
                   line)
        .target = place.index;
    AddArgument(compiler, value);
    if (element) {
        AddArgument(compiler, place);
    }
    return true;
}

/// DIM name[], name[n], name[n][m]; sizes may be left out.
bool ParseDimension(ScriptCompiler& compiler, std::int32_t line) {
    do {
        if (Now(compiler).kind != TokenKind::Word) {
            return Refuse(compiler, "falta o nome de uma tabela");
        }
        const ScriptToken& name = Now(compiler);
        const std::int32_t variable = FindSymbol(compiler.symbols, name.text, name.spelling);
        ++compiler.place;
        std::vector<ScriptArgument> sizes;
        std::int32_t dimensions = 0;
        while (SkipSign(compiler, '[')) {
            ++dimensions;
            if (AtSign(compiler, ']')) {
                ++compiler.place;
                continue;
            }
            if (!ParseExpression(compiler, sizes.emplace_back())) {
                return false;
            }
            if (!SkipSign(compiler, ']')) {
                return Refuse(compiler, "falta \"]\"");
            }
        }
        constexpr std::int32_t most = 2;
        if (dimensions == 0 || dimensions > most) {
            return Refuse(compiler, "uma tabela tem uma ou duas dimensões, entre colchetes");
        }
        Instruction& instruction = AddInstruction(compiler, InstructionKind::Dimension, line);
        instruction.target = variable;
        instruction.other = dimensions;
        for (const ScriptArgument& size : sizes) {
            AddArgument(compiler, size);
        }
    } while (SkipSign(compiler, ','));
    return true;
}

/// The words of a statement's name: SET and DEFINE take the next one along.
std::string StatementName(ScriptCompiler& compiler) {
    std::string name = Now(compiler).text;
    ++compiler.place;
    if (Now(compiler).kind == TokenKind::Word && (name == "SET" || name == "DEFINE")) {
        name = name == "SET" ? Now(compiler).text : name + " " + Now(compiler).text;
        ++compiler.place;
    }
    return name;
}

void SkipStatement(ScriptCompiler& compiler) {
    while (Now(compiler).kind != TokenKind::EndOfLine &&
           Now(compiler).kind != TokenKind::EndOfScript) {
        ++compiler.place;
    }
}

bool ParseWordStatement(ScriptCompiler& compiler, std::int32_t line) {
    const std::string name = StatementName(compiler);
    compiler.statement = name;
    if (IsModelShape(name)) {
        AddInstruction(compiler, InstructionKind::Shape, line);
        return AtStatementEnd(compiler) || ParseArgumentList(compiler);
    }
    const std::int32_t entry = FindStatement(name);
    if (entry >= 0) {
        AddInstruction(compiler, InstructionKind::Statement, line).target = entry;
        return ParseStatementArguments(compiler, entry);
    }
    AddInstruction(compiler, InstructionKind::Unknown, line);
    SkipStatement(compiler);
    return true;
}

bool IsAssignment(const ScriptCompiler& compiler) {
    const ScriptToken& next = Next(compiler);
    return next.kind == TokenKind::Sign && (next.sign == '=' || next.sign == '[');
}

/// A statement that begins with a word.
bool ParseFromWord(ScriptCompiler& compiler) {
    const ScriptToken word = Now(compiler);
    if (IsAssignment(compiler)) {
        compiler.statement = word.spelling;
        return ParseAssignment(compiler);
    }
    compiler.statement = word.text;
    if (word.text == "LET") {
        ++compiler.place;
        return Now(compiler).kind == TokenKind::Word ? ParseAssignment(compiler)
                                                     : Refuse(compiler, "falta uma variável");
    }
    bool known = false;
    if (!ParseControl(compiler, word, known)) {
        return false;
    }
    if (known) {
        return true;
    }
    if (word.text == "DIM") {
        ++compiler.place;
        return ParseDimension(compiler, word.line);
    }
    if (word.text == "PUT") {
        ++compiler.place;
        AddInstruction(compiler, InstructionKind::Put, word.line);
        return ParseArgumentList(compiler);
    }
    if (word.text == "CALL") {
        ++compiler.place;
        return ParseCall(compiler, word.line);
    }
    return ParseWordStatement(compiler, word.line);
}

/// The statement's end: a line end or `:`.
bool PassStatementEnd(ScriptCompiler& compiler) {
    if (Now(compiler).kind == TokenKind::EndOfLine) {
        ++compiler.place;
        return true;
    }
    return SkipSign(compiler, ':') ||
           Refuse(compiler, "não se entende o que vem depois da instrução");
}

const char* BlockWord(OpenBlock::Kind kind) {
    switch (kind) {
    case OpenBlock::Kind::If:
    case OpenBlock::Kind::Else:
        return "IF";
    case OpenBlock::Kind::For:
        return "FOR";
    case OpenBlock::Kind::Do:
        return "DO";
    case OpenBlock::Kind::While:
        return "WHILE";
    case OpenBlock::Kind::Repeat:
        return "REPEAT";
    }
    return "";
}

bool SetJumps(ScriptCompiler& compiler) {
    for (const ScriptCompiler::Jump& jump : compiler.jumps) {
        const auto label = compiler.program.labels.find(jump.label);
        if (label == compiler.program.labels.end()) {
            Instruction& from =
                compiler.program.instructions[static_cast<std::size_t>(jump.instruction)];
            compiler.program.error = "o rótulo " + jump.shown + " não existe";
            compiler.program.errorLine = from.line;
            compiler.program.errorStatement =
                compiler.program.texts[static_cast<std::size_t>(from.word)];
            return false;
        }
        compiler.program.instructions[static_cast<std::size_t>(jump.instruction)].target =
            label->second;
    }
    return true;
}

bool ParseLines(ScriptCompiler& compiler) {
    while (Now(compiler).kind != TokenKind::EndOfScript) {
        compiler.statement.clear();
        if (Now(compiler).kind == TokenKind::EndOfLine || AtSign(compiler, ':')) {
            ++compiler.place;
            continue;
        }
        bool isLabel = false;
        if (!ParseLabel(compiler, isLabel)) {
            return false;
        }
        if (isLabel) {
            continue;
        }
        if (!ParseStatement(compiler)) {
            return false;
        }
        // What follows ELSE is a statement of its own; every other one ends with its line.
        const bool goesOn = compiler.statement == "ELSE";
        if (!goesOn && !PassStatementEnd(compiler)) {
            return false;
        }
    }
    if (!compiler.blocks.empty()) {
        const OpenBlock& block = compiler.blocks.back();
        compiler.program.error = std::string("o bloco ") + BlockWord(block.kind) + " não termina";
        compiler.program.errorLine = block.line;
        compiler.program.errorStatement = BlockWord(block.kind);
        return false;
    }
    return SetJumps(compiler);
}

} // namespace

const ScriptToken& Now(const ScriptCompiler& compiler) {
    return compiler.tokens[std::min(compiler.place, compiler.tokens.size() - 1)];
}

const ScriptToken& Next(const ScriptCompiler& compiler) {
    return compiler.tokens[std::min(compiler.place + 1, compiler.tokens.size() - 1)];
}

bool AtSign(const ScriptCompiler& compiler, char sign) {
    return Now(compiler).kind == TokenKind::Sign && Now(compiler).sign == sign;
}

bool AtWord(const ScriptCompiler& compiler, std::string_view upper) {
    return Now(compiler).kind == TokenKind::Word && Now(compiler).text == upper;
}

bool SkipSign(ScriptCompiler& compiler, char sign) {
    const bool here = AtSign(compiler, sign);
    compiler.place += here ? 1 : 0;
    return here;
}

bool SkipWord(ScriptCompiler& compiler, std::string_view upper) {
    const bool here = AtWord(compiler, upper);
    compiler.place += here ? 1 : 0;
    return here;
}

bool AtStatementEnd(const ScriptCompiler& compiler) {
    const TokenKind kind = Now(compiler).kind;
    return kind == TokenKind::EndOfLine || kind == TokenKind::EndOfScript ||
           AtSign(compiler, ':') || AtWord(compiler, "ELSE") || AtWord(compiler, "ENDIF");
}

bool Refuse(ScriptCompiler& compiler, std::string error) {
    if (compiler.program.error.empty()) {
        compiler.program.error = std::move(error);
        compiler.program.errorLine = Now(compiler).line;
        compiler.program.errorStatement = compiler.statement;
    }
    return false;
}

std::int32_t KeepText(ScriptCompiler& compiler, std::string text) {
    compiler.program.texts.push_back(std::move(text));
    return static_cast<std::int32_t>(compiler.program.texts.size() - 1);
}

Instruction& AddInstruction(ScriptCompiler& compiler, InstructionKind kind, std::int32_t line) {
    std::vector<std::string>& texts = compiler.program.texts;
    if (texts.empty() || texts.back() != compiler.statement) {
        texts.push_back(compiler.statement);
    }
    Instruction instruction;
    instruction.kind = kind;
    instruction.line = line;
    instruction.word = static_cast<std::int32_t>(texts.size() - 1);
    instruction.firstArgument = static_cast<std::int32_t>(compiler.program.arguments.size());
    return compiler.program.instructions.emplace_back(instruction);
}

void AddArgument(ScriptCompiler& compiler, const ScriptArgument& argument) {
    compiler.program.arguments.push_back(argument);
    ++compiler.program.instructions.back().argumentCount;
}

bool ParseStatement(ScriptCompiler& compiler) {
    const ScriptToken& first = Now(compiler);
    if (first.kind == TokenKind::Word) {
        return ParseFromWord(compiler);
    }
    if (first.kind == TokenKind::Text) {
        compiler.statement = "CALL";
        return ParseCall(compiler, first.line);
    }
    return Refuse(compiler, "falta uma instrução");
}

std::int32_t FindSymbol(SymbolTable& symbols, const std::string& upperName,
                        const std::string& spelling) {
    const auto [place, isNew] =
        symbols.places.emplace(upperName, static_cast<std::int32_t>(symbols.names.size()));
    if (isNew) {
        symbols.names.push_back(spelling);
    }
    return place->second;
}

std::string LabelName(const ScriptValue& label) {
    return label.isText ? label.text : "#" + Text::FormatShortest(label.number);
}

ScriptProgram ParseScript(std::string_view script, SymbolTable& symbols) {
    ScriptProgram program;
    const ScriptTokens tokens = ReadScriptTokens(script);
    if (!tokens.error.empty()) {
        program.error = tokens.error;
        program.errorLine = tokens.errorLine;
        return program;
    }
    ScriptCompiler compiler{tokens.tokens, program, symbols};
    ParseLines(compiler);
    return program;
}

} // namespace Merivane::Workbench
