#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The words that the host's resource script is made of.
namespace Merivane::Workbench {

enum class TokenKind {
    Word,   ///< letters, digits and `_`
    Number, ///< whole, with or without a sign; `text` as written
    Text,   ///< between double quotes; `text` with its escapes resolved
    Type,   ///< four characters between single quotes
    Sign,   ///< one of `{`, `}`, `|`
    End,    ///< behind the last one
};

struct ResourceToken {
    TokenKind kind = TokenKind::End;
    std::string text;
    int line = 1;
    int number = 0; ///< of kind Number
};

/// Splits a script: comments and a byte order mark are left out, the last token is an `End`.
/// Returns false and sets `error` to "linha N: " and the reason, in Portuguese, for bytes that are
/// not UTF-8, a text or a comment without its end, an unknown escape, a number that does not fit
/// into 32 bits, a preprocessor line and any other character; `tokens` must then not be used.
bool SplitResourceScript(std::string_view script, std::vector<ResourceToken>& tokens,
                         std::string& error);

} // namespace Merivane::Workbench
