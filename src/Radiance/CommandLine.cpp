#include "Radiance/CommandLine.hpp"

#include <cstddef>

namespace Merivane::Radiance {

std::wstring QuoteArgument(const std::wstring& text) {
    if (!text.empty() && text.find_first_of(L" \t\"") == std::wstring::npos) {
        return text;
    }
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : text) {
        if (c == L'\\') {
            ++backslashes;
            continue;
        }
        // Only in front of a double quote does a backslash escape, so only there it is doubled.
        quoted.append(c == L'"' ? 2 * backslashes + 1 : backslashes, L'\\');
        quoted.push_back(c);
        backslashes = 0;
    }
    quoted.append(2 * backslashes, L'\\');
    quoted.push_back(L'"');
    return quoted;
}

std::wstring JoinCommandLine(const std::wstring& program,
                             const std::vector<std::wstring>& arguments) {
    std::wstring commandLine = QuoteArgument(program);
    for (const std::wstring& argument : arguments) {
        commandLine += L' ';
        commandLine += QuoteArgument(argument);
    }
    return commandLine;
}

std::vector<std::wstring> SplitCommandLine(const std::wstring& commandLine) {
    std::vector<std::wstring> words;
    std::wstring word;
    bool inWord = false; // an empty pair of quotes is a word too
    bool inQuotes = false;
    std::size_t backslashes = 0;
    const auto writeBackslashes = [&](std::size_t count) {
        word.append(count, L'\\');
        backslashes = 0;
    };
    for (const wchar_t c : commandLine) {
        if (c == L'\\') {
            ++backslashes;
            inWord = true;
        } else if (c == L'"') {
            const bool escaped = backslashes % 2 == 1;
            writeBackslashes(backslashes / 2);
            if (escaped) {
                word.push_back(c);
            } else {
                inQuotes = !inQuotes;
            }
            inWord = true;
        } else if ((c == L' ' || c == L'\t') && !inQuotes) {
            writeBackslashes(backslashes);
            if (inWord) {
                words.push_back(word);
            }
            word.clear();
            inWord = false;
        } else {
            writeBackslashes(backslashes);
            word.push_back(c);
            inWord = true;
        }
    }
    writeBackslashes(backslashes);
    if (inWord) {
        words.push_back(word);
    }
    return words;
}

} // namespace Merivane::Radiance
