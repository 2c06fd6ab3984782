#include <string>
#include <vector>

#include "AddOn/CommandTable.hpp"
#include "AddOn/Entry/EntryPoints.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Program/CommandChoice.hpp"
#include "Program/Commands.hpp"
#include "Program/DialogFiles.hpp"
#include "Program/HostedRun.hpp"
#include "Program/Interrupt.hpp"
#include "Program/Message.hpp"
#include "Program/OutputFiles.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/DialogRun.hpp"
#include "Workbench/MenuRun.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Program {

namespace {

using Workbench::CurrentSession;

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
    if (!session.projectOpen || (arguments.saveAs.empty() && !session.projectChanged)) {
        return true;
    }
    return SaveProjectFile(arguments.saveAs.empty() ? arguments.projectFile : arguments.saveAs,
                           false, error);
}

bool OpenProject(const RunArguments& arguments, std::string& error) {
    return arguments.projectFile.empty() || OpenProjectFile(arguments.projectFile, error);
}

/// The command between loading and unloading the add-on. What it leaves undone is told in `error`.
bool RunLoaded(const RunArguments& arguments, std::string& error) {
    if (!LoadAddOn(error) || !OpenProject(arguments, error)) {
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
    PrepareHost({});
    std::string error;
    if (!ReadAnswers(arguments.answerFile, CurrentSession().userInterface.answers, error)) {
        return Fail(error);
    }
    const bool done = RunLoaded(arguments, error);
    FreeData();
    TellScriptComplaints();
    if (Interrupted()) {
        TellError("comando cancelado");
        return StatusCancelled;
    }
    if (!done || !SaveProject(arguments, error)) {
        return Fail(error);
    }
    return Commands::FailureTold() ? StatusFailed : StatusDone;
}

} // namespace Merivane::Program
