#include <algorithm>
#include <iterator>
#include <limits>

#include "Text/ShownText.hpp"
#include "Workbench/Script/ScriptCompiler.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

// The forms in which statements take their arguments.
namespace Merivane::Workbench {

namespace {

/// Words that statements take in place of a value.
constexpr std::string_view ArgumentWords[] = {"ALL", "ON",      "OFF",   "AUTO",
                                              "TOP", "SURFACE", "SOLID", "WIRE"};

bool AtArgumentWord(const ScriptCompiler& compiler) {
    const ScriptToken& token = Now(compiler);
    const ScriptToken& next = Next(compiler);
    const bool alone = next.kind != TokenKind::Sign || next.sign == ',' || next.sign == ':';
    return token.kind == TokenKind::Word && alone &&
           std::find(std::begin(ArgumentWords), std::end(ArgumentWords), token.text) !=
               std::end(ArgumentWords);
}

bool AddExpression(ScriptCompiler& compiler) {
    ScriptArgument argument;
    if (!ParseExpression(compiler, argument)) {
        return false;
    }
    AddArgument(compiler, argument);
    return true;
}

bool AddListArgument(ScriptCompiler& compiler) {
    ScriptArgument argument;
    if (!ParseArgument(compiler, argument)) {
        return false;
    }
    AddArgument(compiler, argument);
    return true;
}

void AddWord(ScriptCompiler& compiler, std::string word) {
    AddArgument(compiler, WordArgument(compiler, std::move(word)));
}

bool AddPlace(ScriptCompiler& compiler) {
    ScriptArgument argument;
    if (!ParsePlace(compiler, argument)) {
        return false;
    }
    AddArgument(compiler, argument);
    return true;
}

/// The rest of a list whose first argument, if any, has been taken.
bool ParseListRest(ScriptCompiler& compiler) {
    while (SkipSign(compiler, ',')) {
        if (!AddListArgument(compiler)) {
            return false;
        }
    }
    return true;
}

bool ParseWordsList(ScriptCompiler& compiler) {
    while (!AtStatementEnd(compiler)) {
        if (AtArgumentWord(compiler)) {
            AddWord(compiler, Now(compiler).text);
            ++compiler.place;
            SkipSign(compiler, ',');
            continue;
        }
        if (!AddListArgument(compiler)) {
            return false;
        }
        if (!SkipSign(compiler, ',')) {
            return true;
        }
    }
    return true;
}

/// A hotspot's list: two of its arguments name parameters.
bool ParseHotspotList(ScriptCompiler& compiler, std::int32_t parameter) {
    const std::int32_t displayed = parameter + 2;
    std::int32_t place = 0;
    do {
        const bool named = place == parameter || place == displayed;
        if (named && Now(compiler).kind == TokenKind::Word) {
            if (!AddPlace(compiler)) {
                return false;
            }
        } else if (!AddListArgument(compiler)) {
            return false;
        }
        ++place;
    } while (SkipSign(compiler, ','));
    return true;
}

/// To the end of the line: what stands there is not worked out.
void SkipRest(ScriptCompiler& compiler) {
    while (Now(compiler).kind != TokenKind::EndOfLine) {
        ++compiler.place;
    }
}

/// A paragraph's lines are texts and attributes, no statements of the script.
bool SkipParagraph(ScriptCompiler& compiler) {
    while (!AtWord(compiler, "ENDPARAGRAPH")) {
        if (Now(compiler).kind == TokenKind::EndOfScript) {
            return Refuse(compiler, "falta ENDPARAGRAPH");
        }
        ++compiler.place;
    }
    ++compiler.place;
    return true;
}

bool ParseLightList(ScriptCompiler& compiler) {
    do {
        if (AtWord(compiler, "ADDITIONAL_DATA")) {
            break;
        }
        if (!AddListArgument(compiler)) {
            return false;
        }
    } while (SkipSign(compiler, ','));
    if (AtWord(compiler, "ADDITIONAL_DATA")) {
        SkipRest(compiler);
    }
    return true;
}

/// `name = value`, parted by commas or blanks.
bool ParseNamedValues(ScriptCompiler& compiler) {
    while (!AtStatementEnd(compiler)) {
        if (Now(compiler).kind != TokenKind::Word) {
            return Refuse(compiler, "falta o nome de um parâmetro");
        }
        AddWord(compiler, Now(compiler).text);
        ++compiler.place;
        if (!SkipSign(compiler, '=')) {
            return Refuse(compiler, "falta \"=\"");
        }
        if (!AddExpression(compiler)) {
            return false;
        }
        SkipSign(compiler, ',');
    }
    return true;
}

bool ParseDefinition(ScriptCompiler& compiler) {
    if (!AddExpression(compiler)) {
        return false;
    }
    const bool comma = SkipSign(compiler, ',');
    if (SkipWord(compiler, "BASED_ON")) {
        AddWord(compiler, "BASED_ON");
        if (!AddExpression(compiler)) {
            return false;
        }
        SkipSign(compiler, ',');
        if (AtStatementEnd(compiler)) {
            return true;
        }
        return SkipWord(compiler, "PARAMETERS") ? ParseNamedValues(compiler)
                                                : Refuse(compiler, "falta PARAMETERS");
    }
    if (!comma && AtStatementEnd(compiler)) {
        return true;
    }
    return AddListArgument(compiler) && ParseListRest(compiler);
}

/// `name = value, ...`: a place and a value each, or two places where the value is a variable.
bool ParseParameterList(ScriptCompiler& compiler) {
    do {
        if (!AddPlace(compiler)) {
            return false;
        }
        if (!SkipSign(compiler, '=')) {
            return Refuse(compiler, "falta \"=\"");
        }
        ScriptArgument value;
        if (!ParseArgument(compiler, value)) {
            return false;
        }
        if (value.kind == ArgumentKind::Variable) {
            value.kind = ArgumentKind::Place;
            compiler.program.operations.back().code = OperationCode::Reference;
        } else if (value.kind != ArgumentKind::Value) {
            return Refuse(compiler, "um parâmetro recebe um só valor");
        }
        AddArgument(compiler, value);
    } while (SkipSign(compiler, ','));
    return true;
}

bool AddRangeLimit(ScriptCompiler& compiler) {
    if (AtSign(compiler, ',') || AtSign(compiler, ']') || AtSign(compiler, ')')) {
        AddWord(compiler, "");
        return true;
    }
    return AddExpression(compiler);
}

bool AddRangeBracket(ScriptCompiler& compiler, char including, char excluding) {
    const bool included = SkipSign(compiler, including);
    if (!included && !SkipSign(compiler, excluding)) {
        return Refuse(compiler, "o intervalo de RANGE fica entre colchetes ou parênteses");
    }
    AddWord(compiler, included ? "[" : "(");
    return true;
}

/// RANGE: the words of both brackets around two limits, "" for one that is left out; then STEP.
bool ParseRange(ScriptCompiler& compiler) {
    AddWord(compiler, "RANGE");
    if (!AddRangeBracket(compiler, '[', '(') || !AddRangeLimit(compiler)) {
        return false;
    }
    if (!SkipSign(compiler, ',')) {
        return Refuse(compiler, "falta a vírgula entre os limites de RANGE");
    }
    if (!AddRangeLimit(compiler) || !AddRangeBracket(compiler, ']', ')')) {
        return false;
    }
    if (!SkipWord(compiler, "STEP")) {
        return true;
    }
    AddWord(compiler, "STEP");
    if (!AddExpression(compiler)) {
        return false;
    }
    return SkipSign(compiler, ',') ? AddExpression(compiler)
                                   : Refuse(compiler, "STEP leva o começo e o passo");
}

bool ParseParameterValue(ScriptCompiler& compiler) {
    if (SkipWord(compiler, "RANGE")) {
        return ParseRange(compiler);
    }
    if (SkipWord(compiler, "CUSTOM")) {
        AddWord(compiler, "CUSTOM");
        return true;
    }
    for (const std::string_view mask : {"FILLTYPES_MASK", "PROFILETYPES_MASK"}) {
        if (SkipWord(compiler, mask)) {
            AddWord(compiler, std::string(mask));
            return AddExpression(compiler);
        }
    }
    return AddListArgument(compiler);
}

bool ParseParameterValues(ScriptCompiler& compiler) {
    if (!AddExpression(compiler)) {
        return false;
    }
    SkipSign(compiler, ',');
    while (!AtStatementEnd(compiler)) {
        if (!ParseParameterValue(compiler)) {
            return false;
        }
        if (!SkipSign(compiler, ',')) {
            return true;
        }
    }
    return true;
}

bool ParseShape(ScriptCompiler& compiler, StatementShape shape) {
    constexpr std::int32_t hotspot2 = 3;
    constexpr std::int32_t hotspot3 = 4;
    constexpr std::int32_t hotline2 = 5;
    constexpr std::int32_t hotarc2 = 6;
    switch (shape) {
    case StatementShape::Values:
        return AtStatementEnd(compiler) || ParseArgumentList(compiler);
    case StatementShape::Words:
        return ParseWordsList(compiler);
    case StatementShape::Hotspot2:
        return ParseHotspotList(compiler, hotspot2);
    case StatementShape::Hotspot3:
        return ParseHotspotList(compiler, hotspot3);
    case StatementShape::Hotline2:
        return ParseHotspotList(compiler, hotline2);
    case StatementShape::Hotarc2:
        return ParseHotspotList(compiler, hotarc2);
    case StatementShape::Light:
        return ParseLightList(compiler);
    case StatementShape::Definition:
        return ParseDefinition(compiler);
    case StatementShape::ParameterList:
        return ParseParameterList(compiler);
    case StatementShape::ParameterValues:
        return ParseParameterValues(compiler);
    case StatementShape::Skipped:
        if (compiler.statement == "PARAGRAPH") {
            return SkipParagraph(compiler);
        }
        SkipRest(compiler);
        return true;
    }
    return true;
}

/// Arguments that give one value each are counted at once; the others only when they are known.
bool CheckCount(ScriptCompiler& compiler, const StatementEntry& entry) {
    const std::vector<ScriptArgument>& arguments = compiler.program.arguments;
    const Instruction& instruction = compiler.program.instructions.back();
    const auto begin = arguments.begin() + instruction.firstArgument;
    const bool fixed = std::all_of(begin, arguments.end(), [](const ScriptArgument& argument) {
        return argument.kind == ArgumentKind::Value || argument.kind == ArgumentKind::Word ||
               argument.kind == ArgumentKind::Place;
    });
    const std::int32_t most =
        entry.most < 0 ? std::numeric_limits<std::int32_t>::max() : entry.most;
    if (fixed && instruction.argumentCount < entry.least) {
        return Refuse(compiler, "faltam argumentos");
    }
    if (fixed && instruction.argumentCount > most) {
        return Refuse(compiler, "há argumentos demais");
    }
    return true;
}

bool ParseReturnedPlaces(ScriptCompiler& compiler) {
    std::int32_t count = 0;
    do {
        if (!AddPlace(compiler)) {
            return false;
        }
        ++count;
    } while (SkipSign(compiler, ','));
    compiler.program.instructions.back().other = count;
    return true;
}

/// `name = value` pairs of CALL; a bare variable hands over a table whole.
bool ParseMacroParameters(ScriptCompiler& compiler) {
    while (!AtStatementEnd(compiler) && !AtWord(compiler, "RETURNED_PARAMETERS")) {
        const ScriptToken name = Now(compiler);
        if (name.kind != TokenKind::Word) {
            return Refuse(compiler, "falta o nome de um parâmetro");
        }
        ++compiler.place;
        if (!SkipSign(compiler, '=')) {
            return Refuse(compiler, "falta \"=\"");
        }
        AddWord(compiler, name.text);
        ScriptArgument value;
        if (!ParseArgument(compiler, value)) {
            return false;
        }
        if (value.kind != ArgumentKind::Variable && value.kind != ArgumentKind::Value) {
            return Refuse(compiler, "um parâmetro recebe um só valor");
        }
        AddArgument(compiler, value);
        SkipSign(compiler, ',');
    }
    return true;
}

} // namespace

ScriptArgument WordArgument(ScriptCompiler& compiler, std::string word) {
    ScriptArgument argument;
    argument.kind = ArgumentKind::Word;
    argument.index = KeepText(compiler, std::move(word));
    return argument;
}

bool ParseArgumentList(ScriptCompiler& compiler) {
    return AddListArgument(compiler) && ParseListRest(compiler);
}

bool ParseStatementArguments(ScriptCompiler& compiler, std::int32_t entry) {
    const StatementEntry& row = StatementAt(entry);
    const bool none = AtStatementEnd(compiler);
    if (none && row.least > 0) {
        return Refuse(compiler, "faltam argumentos");
    }
    if (!none && !ParseShape(compiler, row.shape)) {
        return false;
    }
    return row.shape == StatementShape::Skipped || CheckCount(compiler, row);
}

bool ParseCall(ScriptCompiler& compiler, std::int32_t line) {
    const ScriptToken name = Now(compiler);
    if (name.kind != TokenKind::Text && name.kind != TokenKind::Word) {
        return Refuse(compiler, "falta o nome da macro");
    }
    AddInstruction(compiler, InstructionKind::CallMacro, line);
    if (name.kind == TokenKind::Text) {
        ++compiler.place;
        AddWord(compiler, name.text);
    } else if (!AddPlace(compiler)) {
        return false;
    }
    SkipSign(compiler, ',');
    if (SkipWord(compiler, "PARAMETERS")) {
        if (SkipWord(compiler, "ALL")) {
            compiler.program.instructions.back().flag = true;
            SkipSign(compiler, ',');
        }
        if (!ParseMacroParameters(compiler)) {
            return false;
        }
    }
    if (SkipWord(compiler, "RETURNED_PARAMETERS")) {
        return ParseReturnedPlaces(compiler);
    }
    return AtStatementEnd(compiler) || Refuse(compiler, "falta PARAMETERS");
}

} // namespace Merivane::Workbench
