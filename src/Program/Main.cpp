#include <cstdio>
#include <exception>
#include <new>
#include <string>
#include <variant>
#include <vector>

#include "Program/CommandLine.hpp"
#include "Program/Commands.hpp"
#include "Program/Message.hpp"
#include "Workbench/Session.hpp"
#include "Workbench/SystemPlaces.hpp"

namespace {

using namespace Merivane::Program;

struct RunRequest {
    int status = StatusDone;

    int operator()(std::monostate /*nothing*/) const { return status; }
    int operator()(const CalculateArguments& arguments) const {
        return CalculateCommand(arguments);
    }
    int operator()(const SimulateArguments& arguments) const { return SimulateCommand(arguments); }
    int operator()(const IesArguments& arguments) const { return IesCommand(arguments); }
    int operator()(const UgrArguments& arguments) const { return UgrCommand(arguments); }
    int operator()(const TasksArguments& arguments) const { return TasksCommand(arguments); }
    int operator()(const CheckRadianceArguments& arguments) const {
        return CheckRadianceCommand(arguments);
    }
    int operator()(const ListCommandsArguments& arguments) const {
        return ListCommandsCommand(arguments);
    }
    int operator()(const RunArguments& arguments) const { return RunCommand(arguments); }
    int operator()(const DrawArguments& arguments) const { return DrawCommand(arguments); }
    int operator()(const CheckCatalogArguments& arguments) const {
        return CheckCatalogCommand(arguments);
    }
    int operator()(const ListCatalogArguments& arguments) const {
        return ListCatalogCommand(arguments);
    }
    int operator()(const ShowPartArguments& arguments) const { return ShowPartCommand(arguments); }
    int operator()(const ExportPartArguments& arguments) const {
        return ExportPartCommand(arguments);
    }
};

int RunProgram(const std::vector<std::string>& arguments) {
    Merivane::Workbench::SessionOptions session;
    session.preferencesFile = Merivane::Workbench::UserPreferencesFile();
    Merivane::Workbench::OpenSession(session);

    const CommandLineResult line = ReadCommandLine(arguments);
    std::fputs(line.output.c_str(), stdout);
    std::fputs(line.error.c_str(), stderr);
    const int status = std::visit(RunRequest{line.status}, line.request);
    const bool told = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    if (told || status != StatusDone) {
        return status;
    }
    TellError("não foi possível escrever na saída padrão");
    return StatusFailed;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return RunProgram(std::vector<std::string>(argv, argv + argc));
    } catch (const std::bad_alloc&) {
        TellError("a memória não basta para este trabalho");
    } catch (const std::exception& problem) {
        TellError(std::string("erro inesperado: ") + problem.what());
    }
    return StatusFailed;
}
