#pragma once

#include <string>
#include <vector>

/// Command lines by the rules with which the Windows C runtime takes them apart.
namespace Merivane::Radiance {

/// One argument as it stands in a command line: unchanged when it is not empty and holds no blank,
/// tab or double quote; otherwise between double quotes, with the backslashes that this needs.
std::wstring QuoteArgument(const std::wstring& text);

/// Program and arguments, each quoted, with one blank between them.
std::wstring JoinCommandLine(const std::wstring& program,
                             const std::vector<std::wstring>& arguments);

/// The program and the arguments of a command line, unquoted; the inverse of `JoinCommandLine`.
/// Blanks and tabs outside double quotes separate. A quote that is never closed lasts to the end.
std::vector<std::wstring> SplitCommandLine(const std::wstring& commandLine);

} // namespace Merivane::Radiance
