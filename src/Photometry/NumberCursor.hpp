#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Merivane::Photometry {

/// The numeric part of an IES file as tokens, with the place of the next one to read. The tokens
/// point into the text that they were taken from.
struct NumberCursor {
    std::vector<std::string_view> tokens;
    std::size_t next = 0;
    std::string error; ///< the Portuguese refusal of the first read that failed
};

/// Appends the tokens of one line. White space and commas separate, in runs too.
void AppendTokens(std::string_view line, std::vector<std::string_view>& tokens);

/// Reads one number; `label` names it in a refusal. What `strtod` reads is a number. Returns false
/// with `error` set when the tokens are used up or the token is no number.
bool ReadReal(NumberCursor& cursor, std::string_view label, double& value);

/// Reads one whole number of a magnitude up to 1e9, in any form: "2.0" and "1e2" are whole.
/// Returns false as `ReadReal` does, and for a fraction or a greater magnitude.
bool ReadInteger(NumberCursor& cursor, std::string_view label, int& value);

/// Reads `count` numbers under one label; none for a count below 1. Returns false at the first
/// that fails.
bool ReadRealList(NumberCursor& cursor, std::string_view label, int count,
                  std::vector<double>& values);

} // namespace Merivane::Photometry
