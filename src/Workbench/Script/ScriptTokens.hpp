#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The text of a script as tokens. Comments are gone, continued lines are joined.
namespace Merivane::Workbench {

enum class TokenKind { Number, Text, Word, Sign, EndOfLine, EndOfScript };

/// Signs of more than one character.
inline constexpr char LessOrEqualSign = 'l';
inline constexpr char GreaterOrEqualSign = 'g';
inline constexpr char NotEqualSign = '#';
inline constexpr char PowerSign = '^';

struct ScriptToken {
    TokenKind kind = TokenKind::EndOfScript;
    std::int32_t line = 1; ///< from 1
    char sign = 0;         ///< of a Sign; those above and the single characters
    double number = 0.0;   ///< of a Number
    std::string text;      ///< of a Text its characters; of a Word in upper case, "POLY2_B{2}"
    std::string spelling;  ///< of a Word as it is written
};

/// The tokens, ended by EndOfScript, or where and why the text has none (in Portuguese).
struct ScriptTokens {
    std::vector<ScriptToken> tokens;
    std::string error; ///< empty = fine
    std::int32_t errorLine = 0;
};

ScriptTokens ReadScriptTokens(std::string_view script);

} // namespace Merivane::Workbench
