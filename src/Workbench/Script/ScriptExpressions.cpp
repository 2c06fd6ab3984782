#include <algorithm>
#include <utility>

#include "Text/ShownText.hpp"
#include "Workbench/Script/ScriptCompiler.hpp"
#include "Workbench/Script/ScriptFunctions.hpp"

// Precedence climbing into postfix operations. It calls itself for brackets, signs and the right
// side of an operator, and that only so deep.
namespace Merivane::Workbench {

namespace {

constexpr std::int32_t DeepestExpression = 200;
constexpr std::int32_t SignLevel = 6; ///< of a minus in front: above products, below powers
constexpr std::uint16_t MostCount = 60000;

struct OperatorRow {
    char sign;
    std::string_view word;
    std::int32_t level;
    OperationCode code;
};

constexpr OperatorRow Operators[] = {
    {PowerSign, "", 7, OperationCode::Power},
    {'*', "", 5, OperationCode::Multiply},
    {'/', "", 5, OperationCode::Divide},
    {'%', "MOD", 5, OperationCode::Modulo},
    {'+', "", 4, OperationCode::Add},
    {'-', "", 4, OperationCode::Subtract},
    {'=', "", 3, OperationCode::Equal},
    {NotEqualSign, "", 3, OperationCode::NotEqual},
    {'<', "", 3, OperationCode::Less},
    {'>', "", 3, OperationCode::Greater},
    {LessOrEqualSign, "", 3, OperationCode::LessOrEqual},
    {GreaterOrEqualSign, "", 3, OperationCode::GreaterOrEqual},
    {'&', "AND", 2, OperationCode::And},
    {'|', "OR", 1, OperationCode::Or},
    {'@', "EXOR", 0, OperationCode::ExclusiveOr},
};

const OperatorRow* OperatorHere(const ScriptCompiler& compiler) {
    const ScriptToken& token = Now(compiler);
    for (const OperatorRow& row : Operators) {
        const bool sign = token.kind == TokenKind::Sign && token.sign == row.sign;
        const bool word =
            token.kind == TokenKind::Word && !row.word.empty() && token.text == row.word;
        if (sign || word) {
            return &row;
        }
    }
    return nullptr;
}

void Emit(ScriptCompiler& compiler, OperationCode code, std::int32_t index = 0,
          std::size_t count = 0, double number = 0.0) {
    compiler.program.operations.push_back({code, static_cast<std::uint16_t>(count), index, number});
}

bool ParseLevel(ScriptCompiler& compiler, std::int32_t lowest);

/// Indices in square brackets behind a variable: up to two.
bool ParseIndices(ScriptCompiler& compiler, std::size_t& count) {
    count = 0;
    while (SkipSign(compiler, '[')) {
        constexpr std::size_t most = 2;
        if (count == most) {
            return Refuse(compiler, "uma tabela tem no máximo duas dimensões");
        }
        if (!ParseLevel(compiler, 0)) {
            return false;
        }
        if (!SkipSign(compiler, ']')) {
            return Refuse(compiler, "falta \"]\"");
        }
        ++count;
    }
    return true;
}

std::int32_t VariableHere(ScriptCompiler& compiler) {
    const ScriptToken& token = Now(compiler);
    return FindSymbol(compiler.symbols, token.text, token.spelling);
}

bool ParsePlaceOperations(ScriptCompiler& compiler) {
    if (Now(compiler).kind != TokenKind::Word) {
        return Refuse(compiler, "falta o nome de uma variável");
    }
    const std::int32_t variable = VariableHere(compiler);
    ++compiler.place;
    std::size_t count = 0;
    if (!ParseIndices(compiler, count)) {
        return false;
    }
    Emit(compiler, OperationCode::Reference, variable, count);
    return true;
}

/// One argument of a function: a word, a place or an expression, as the function wants it there.
bool ParseFunctionArgument(ScriptCompiler& compiler, const FunctionEntry& function,
                           std::int32_t argument) {
    if (function.wordFirst && argument == 0) {
        if (Now(compiler).kind != TokenKind::Word) {
            return Refuse(compiler, "falta uma palavra como MATERIAL");
        }
        Emit(compiler, OperationCode::Text, KeepText(compiler, Now(compiler).text));
        ++compiler.place;
        return true;
    }
    if (function.placesFrom >= 0 && argument >= function.placesFrom) {
        return ParsePlaceOperations(compiler);
    }
    return ParseLevel(compiler, 0);
}

bool ParseFunction(ScriptCompiler& compiler, std::int32_t index) {
    const FunctionEntry& function = FunctionAt(index);
    ++compiler.place;
    std::int32_t count = 0;
    if (SkipSign(compiler, '(')) {
        while (!AtSign(compiler, ')')) {
            if (count > 0 && !SkipSign(compiler, ',')) {
                return Refuse(compiler, "falta \")\"");
            }
            if (!ParseFunctionArgument(compiler, function, count)) {
                return false;
            }
            ++count;
            if (count > MostCount) {
                return Refuse(compiler, "argumentos demais");
            }
        }
        ++compiler.place;
    }
    if (count < function.least || count > function.most) {
        return Refuse(compiler, "a função " + std::string(function.name) + " não leva " +
                                    std::to_string(count) + " argumentos");
    }
    Emit(compiler, OperationCode::Call, index, static_cast<std::size_t>(count));
    return true;
}

bool ParseWord(ScriptCompiler& compiler) {
    const ScriptToken& token = Now(compiler);
    const std::int32_t function = FindFunction(token.text);
    const bool called = Next(compiler).kind == TokenKind::Sign && Next(compiler).sign == '(';
    if (function >= 0 && (called || FunctionAt(function).least == 0)) {
        return ParseFunction(compiler, function);
    }
    if (called) {
        return Refuse(compiler, "a função " + Text::QuotedText(token.spelling) + " não existe");
    }
    const std::int32_t variable = VariableHere(compiler);
    ++compiler.place;
    std::size_t count = 0;
    if (!ParseIndices(compiler, count)) {
        return false;
    }
    Emit(compiler, count == 0 ? OperationCode::Load : OperationCode::Element, variable, count);
    return true;
}

bool ParseBracket(ScriptCompiler& compiler) {
    ++compiler.place;
    if (!ParseLevel(compiler, 0)) {
        return false;
    }
    return SkipSign(compiler, ')') || Refuse(compiler, "falta \")\"");
}

bool ParsePrimary(ScriptCompiler& compiler) {
    const ScriptToken& token = Now(compiler);
    switch (token.kind) {
    case TokenKind::Number:
        Emit(compiler, OperationCode::Number, 0, 0, token.number);
        ++compiler.place;
        return true;
    case TokenKind::Text:
        Emit(compiler, OperationCode::Text, KeepText(compiler, token.text));
        ++compiler.place;
        return true;
    case TokenKind::Word:
        if (!AtStatementEnd(compiler)) {
            return ParseWord(compiler);
        }
        break;
    case TokenKind::Sign:
        if (token.sign == '(') {
            return ParseBracket(compiler);
        }
        if (token.sign == '-' || token.sign == '+') {
            ++compiler.place;
            if (!ParseLevel(compiler, SignLevel)) {
                return false;
            }
            if (token.sign == '-') {
                Emit(compiler, OperationCode::Negate);
            }
            return true;
        }
        break;
    default:
        break;
    }
    return Refuse(compiler, "falta um valor");
}

bool ParseOperators(ScriptCompiler& compiler, std::int32_t lowest) {
    if (!ParsePrimary(compiler)) {
        return false;
    }
    const OperatorRow* row = OperatorHere(compiler);
    while (row != nullptr && row->level >= lowest) {
        ++compiler.place;
        if (!ParseLevel(compiler, row->level + 1)) {
            return false;
        }
        Emit(compiler, row->code);
        row = OperatorHere(compiler);
    }
    return true;
}

bool ParseLevel(ScriptCompiler& compiler, std::int32_t lowest) {
    if (compiler.depth >= DeepestExpression) {
        return Refuse(compiler, "parênteses demais, um dentro do outro");
    }
    ++compiler.depth;
    const bool parsed = ParseOperators(compiler, lowest);
    --compiler.depth;
    return parsed;
}

/// True where a list's argument ends here.
bool AtArgumentEnd(const ScriptCompiler& compiler) {
    return AtSign(compiler, ',') || AtStatementEnd(compiler);
}

/// GET or USE as the whole of a list's argument gives as many values as it says. What was parsed
/// as the function's call then loses that call, and its argument stays.
void SpreadBufferArgument(ScriptCompiler& compiler, ScriptArgument& argument) {
    static const std::int32_t Get = FindFunction("GET");
    static const std::int32_t Use = FindFunction("USE");
    const Operation& last = compiler.program.operations.back();
    if (last.code == OperationCode::Call && (last.index == Get || last.index == Use)) {
        argument.kind = last.index == Get ? ArgumentKind::TakenOut : ArgumentKind::Used;
        compiler.program.operations.pop_back();
        --argument.end;
    }
}

} // namespace

bool ParseExpression(ScriptCompiler& compiler, ScriptArgument& argument) {
    argument = {};
    argument.begin = static_cast<std::int32_t>(compiler.program.operations.size());
    if (!ParseLevel(compiler, 0)) {
        return false;
    }
    argument.end = static_cast<std::int32_t>(compiler.program.operations.size());
    return true;
}

bool ParseArgument(ScriptCompiler& compiler, ScriptArgument& argument) {
    const ScriptToken& first = Now(compiler);
    const std::size_t begin = compiler.place;
    if (!ParseExpression(compiler, argument)) {
        return false;
    }
    const std::vector<Operation>& operations = compiler.program.operations;
    if (argument.end - argument.begin == 1 && operations.back().code == OperationCode::Load) {
        argument.kind = ArgumentKind::Variable;
        argument.index = operations.back().index;
    } else if (first.kind == TokenKind::Word && compiler.tokens[begin + 1].sign == '(' &&
               AtArgumentEnd(compiler)) {
        SpreadBufferArgument(compiler, argument);
    }
    return true;
}

bool ParsePlace(ScriptCompiler& compiler, ScriptArgument& argument) {
    argument = {};
    argument.kind = ArgumentKind::Place;
    argument.begin = static_cast<std::int32_t>(compiler.program.operations.size());
    if (!ParsePlaceOperations(compiler)) {
        return false;
    }
    argument.end = static_cast<std::int32_t>(compiler.program.operations.size());
    argument.index = compiler.program.operations.back().index;
    return true;
}

} // namespace Merivane::Workbench
