#include "Program/ProgramRun.hpp"

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <system_error>

#include <gtest/gtest.h>

#include <sys/wait.h>

#include "Support/Places.hpp"

namespace Merivane::Tests {

namespace {

std::string ReadIfThere(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes; // throws nothing where a process ends while it is looked at
    bytes << file.rdbuf();
    return bytes.str();
}

/// A shell can't take back that it was started with a signal ignored, so this process must.
void HeedSignals() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
        std::signal(signal, SIG_DFL);
    }
}

} // namespace

std::string ShellWord(const std::string& text) {
    std::string word = "'";
    for (const char c : text) {
        if (c == '\'') {
            word += "'\\'";
        }
        word += c;
    }
    return word + "'";
}

ProgramEnd RunVantoro(const std::vector<std::string>& arguments, const ProgramCall& call) {
    const TemporaryFolder own;
    std::filesystem::create_directories(own.Path() / "tmp");
    const std::filesystem::path program =
        call.program.empty() ? BuildFolder() / "vantoro" : call.program;
    const std::filesystem::path folder = call.folder.empty() ? own.Path() : call.folder;

    std::string command = "cd " + ShellWord(folder.string()) +
                          " && export TMPDIR=" + ShellWord((own.Path() / "tmp").string()) +
                          " XDG_CONFIG_HOME=" + ShellWord((own.Path() / "config").string()) + "; " +
                          call.prelude + " exec " + ShellWord(program.string());
    for (const std::string& argument : arguments) {
        command += " " + ShellWord(argument);
    }
    const std::filesystem::path output = call.output.empty() ? own.Path() / "out" : call.output;
    command += " </dev/null >" + ShellWord(output.string()) + " 2>" +
               ShellWord((own.Path() / "err").string());

    HeedSignals();
    const int ended = std::system(command.c_str());
    ProgramEnd end;
    end.status = WIFEXITED(ended) ? WEXITSTATUS(ended) : 128 + WTERMSIG(ended);
    end.output = ReadIfThere(own.Path() / "out");
    end.error = ReadIfThere(own.Path() / "err");
    return end;
}

int ProcessesWith(const std::string& text) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename().string();
        if (name.find_first_not_of("0123456789") != std::string::npos) {
            continue;
        }
        if (ReadIfThere(entry.path() / "cmdline").find(text) != std::string::npos ||
            ReadIfThere(entry.path() / "environ").find(text) != std::string::npos) {
            ++count;
        }
    }
    return count;
}

} // namespace Merivane::Tests
