#include "Program/CommandLine.hpp"
#include "Program/Commands.hpp"

#include "Workbench/Session.hpp"
#include "Workbench/SystemPlaces.hpp"

#include <cstdio>
#include <string>
#include <variant>
#include <vector>

namespace {

using namespace Merivane::Program;

struct RunRequest {
    int status = StatusDone;

    int operator()(std::monostate /*nothing*/) const { return status; }
    int operator()(const SimulateArguments& arguments) const { return SimulateCommand(arguments); }
    int operator()(const IesArguments& arguments) const { return IesCommand(arguments); }
    int operator()(const CheckRadianceArguments& arguments) const {
        return CheckRadianceCommand(arguments);
    }
};

} // namespace

int main(int argc, char** argv) {
    Merivane::Workbench::SessionOptions session;
    session.preferencesFile = Merivane::Workbench::UserPreferencesFile();
    Merivane::Workbench::OpenSession(session);

    const CommandLineResult line = ReadCommandLine(std::vector<std::string>(argv, argv + argc));
    std::fputs(line.output.c_str(), stdout);
    std::fputs(line.error.c_str(), stderr);
    const int status = std::visit(RunRequest{line.status}, line.request);
    // What could not be written to standard output was not told.
    const bool told = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    return told || status != StatusDone ? status : StatusFailed;
}
