#include <string>
#include <utility>

#include "AddOn/CommandTable.hpp"
#include "AddOn/Entry/EntryPoints.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Program/CommandChoice.hpp"
#include "Program/Commands.hpp"
#include "Program/DialogFiles.hpp"
#include "Program/Interrupt.hpp"
#include "Program/Message.hpp"
#include "Program/OutputFiles.hpp"
#include "Text/FileBytes.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/DialogRun.hpp"
#include "Workbench/MenuRun.hpp"
#include "Workbench/Project/ProjectFile.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Program {

namespace {

using Workbench::CurrentSession;

bool ReadAnswers(const std::string& file, std::string& error) {
    if (file.empty()) {
        return true;
    }
    std::string bytes;
    if (!Text::ReadFileBytes(Text::Widen(file), bytes)) {
        error = "não foi possível ler \"" + file + "\"";
        return false;
    }
    if (!Workbench::ParseAnswerScript(bytes, CurrentSession().userInterface.answers, error)) {
        error = "\"" + file + "\": " + error;
        return false;
    }
    return true;
}

bool LoadAddOn(std::string& error) {
    Host::AddOnEnvironment environment;
    CheckEnvironment(environment);
    for (const auto step : {RegisterInterface, Initialize}) {
        if (const Host::ErrorCode code = step()) {
            error = "o complemento não pôde ser carregado (" + Commands::ErrorName(code) + ")";
            return false;
        }
    }
    return true;
}

/// Opens the project behind the add-on, which is told of it.
bool OpenProject(const std::string& file, std::string& error) {
    if (file.empty()) {
        return true;
    }
    Workbench::Project project;
    const std::wstring path = Text::Widen(file);
    if (!Workbench::ReadProject(path, project, error)) {
        return false;
    }
    Workbench::OpenProject(std::move(project), path);
    return true;
}

bool ChooseFromMenu(std::int16_t command, std::string& error) {
    const MenuPlace place = FindMenuPlace(command);
    if (const Host::ErrorCode code = Workbench::ChooseMenuItem(place.resource, place.item)) {
        error = "o menu recusou o comando (" + Commands::ErrorName(code) + ")";
        return false;
    }
    return Workbench::AllAnswersUsed(error);
}

bool ShowDialogs(const RunArguments& arguments, std::string& error) {
    if (arguments.showDialogs) {
        TellDialogs();
    }
    if (arguments.imageFolder.empty()) {
        return true;
    }
    const std::wstring folder = Text::Widen(arguments.imageFolder);
    std::vector<OutputFile> pictures;
    return DrawDialogs(pictures, error) && PrepareOutputFolder(folder, error) &&
           WriteOutputFiles(folder, pictures, error);
}

bool SaveProject(const RunArguments& arguments, std::string& error) {
    const Workbench::Session& session = CurrentSession();
    const std::string& file = arguments.saveAs.empty() ? arguments.projectFile : arguments.saveAs;
    if (!session.projectOpen || (arguments.saveAs.empty() && !session.projectChanged)) {
        return true;
    }
    if (!Workbench::SaveProject(Text::Widen(file), session.project, error)) {
        return false;
    }
    TellLine("Projeto gravado: " + file);
    return true;
}

/// The command between loading and unloading the add-on. What it leaves undone is told in `error`.
bool RunLoaded(const RunArguments& arguments, std::string& error) {
    if (!LoadAddOn(error) || !OpenProject(arguments.projectFile, error)) {
        return false;
    }
    const bool chosen = ChooseFromMenu(arguments.command, error);
    std::string showing; // dialogs tell best why an answer was refused
    const bool shown = ShowDialogs(arguments, showing);
    if (chosen && !shown) {
        error = showing;
    }
    return chosen && shown;
}

int Fail(const std::string& error) {
    TellError(error);
    return StatusFailed;
}

} // namespace

int RunCommand(const RunArguments& arguments) {
    const Commands::CommandRow& command = *Commands::FindCommand(arguments.command);
    if (!command.run) {
        return Fail("o comando " + std::to_string(command.number) + " (" +
                    std::string(command.name) + ") ainda não foi construído");
    }
    CatchInterrupts();
    Workbench::SessionOptions& options = CurrentSession().options;
    options.cancelAsked = Interrupted;
    options.onReport = [](const Workbench::ReportLine& line) { TellLine(line.text); };

    std::string error;
    if (!ReadAnswers(arguments.answerFile, error)) {
        return Fail(error);
    }
    const bool done = RunLoaded(arguments, error);
    FreeData();
    if (Interrupted()) {
        TellError("comando cancelado");
        return StatusCancelled;
    }
    return done && SaveProject(arguments, error) ? StatusDone : Fail(error);
}

} // namespace Merivane::Program
