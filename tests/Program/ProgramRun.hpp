#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Merivane::Tests {

/// How one call of the program ended.
struct ProgramEnd {
    int status = -1; ///< exit status; 128 + n when signal n ended it
    std::string output;
    std::string error;
};

/// Where and how the program is called.
struct ProgramCall {
    std::filesystem::path program; ///< empty = the one of this build
    std::filesystem::path folder;  ///< working folder; empty = the test's own
    std::filesystem::path output;  ///< file for standard output; empty = it comes back in the end
    std::string prelude;           ///< shell commands before it ("ulimit -f 8;")
};

/// Calls `vantoro` with the arguments and waits for its end. Its temporary and configuration
/// folders are fresh ones, and every signal does what it does in a terminal, also where these tests
/// run in the background.
ProgramEnd RunVantoro(const std::vector<std::string>& arguments, const ProgramCall& call = {});

/// `text` as one word of the shell.
std::string ShellWord(const std::string& text);

/// Number of processes of this system whose command line or environment holds `text`.
int ProcessesWith(const std::string& text);

} // namespace Merivane::Tests
