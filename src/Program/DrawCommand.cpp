#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "Program/Commands.hpp"
#include "Program/HostedRun.hpp"
#include "Program/Message.hpp"
#include "Program/OutputFiles.hpp"
#include "Program/WindowPictures.hpp"
#include "Text/FoldAccents.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Display/WindowDrawing.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Program {

namespace {

using Workbench::Project;
using Workbench::ProjectDatabase;

/// Names are compared without regard to accents and capitals.
bool IsNamed(const ProjectDatabase& database, const std::string& name) {
    const std::string folded = Text::FoldAccents(name);
    return folded == Text::FoldAccents(database.window.name) ||
           folded == Text::FoldAccents(database.window.reference) ||
           folded == Text::FoldAccents(WindowTitle(database));
}

bool DrawNamedWindow(const Project& project, const DrawArguments& arguments,
                     std::vector<WindowPicture>& drawings, std::string& error) {
    std::string known;
    for (const ProjectDatabase& database : project.databases) {
        if (IsNamed(database, arguments.window)) {
            drawings.push_back(DrawWindow(project, database, arguments.scale));
        }
        known += (known.empty() ? "\"" : ", \"") + WindowTitle(database) + "\"";
    }
    if (drawings.empty()) {
        error = "o projeto não tem a janela \"" + arguments.window + "\"" +
                (known.empty() ? "" : "; tem " + known);
    }
    return !drawings.empty();
}

const Host::Story* FindStory(const Project& project, int index) {
    const auto found = std::find_if(project.stories.begin(), project.stories.end(),
                                    [&](const Host::Story& story) { return story.index == index; });
    return found == project.stories.end() ? nullptr : &*found;
}

WindowPicture DrawModel(const Project& project, const Host::Story* story, double scale) {
    Workbench::AxonometryView view;
    std::string title = "axonometria";
    if (story != nullptr) {
        view.floorIndex = story->index;
        title += " " + std::to_string(story->index);
    }
    return {title, Workbench::DrawAxonometry(project, view, scale)};
}

bool DrawOneFloor(const Project& project, const DrawArguments& arguments,
                  std::vector<WindowPicture>& drawings, std::string& error) {
    const Host::Story* const story = FindStory(project, *arguments.floor);
    if (story == nullptr) {
        error = "o projeto não tem o pavimento " + std::to_string(*arguments.floor) + "; tem de " +
                std::to_string(project.stories.front().index) + " a " +
                std::to_string(project.stories.back().index);
        return false;
    }
    drawings.push_back(arguments.axonometry ? DrawModel(project, story, arguments.scale)
                                            : DrawFloor(project, *story, arguments.scale));
    return true;
}

bool DrawWanted(const Project& project, const DrawArguments& arguments,
                std::vector<WindowPicture>& drawings, std::string& error) {
    if (!arguments.window.empty()) {
        return DrawNamedWindow(project, arguments, drawings, error);
    }
    if (arguments.floor) {
        return DrawOneFloor(project, arguments, drawings, error);
    }
    if (arguments.axonometry) {
        drawings.push_back(DrawModel(project, nullptr, arguments.scale));
        return true;
    }
    drawings = DrawWindows(project, arguments.scale);
    drawings.push_back(DrawModel(project, nullptr, arguments.scale));
    return true;
}

bool DrawOpenProject(const DrawArguments& arguments, std::vector<WindowPicture>& drawings,
                     std::string& error) {
    Project& project = Workbench::CurrentSession().project;
    project.lightingSymbols = project.lightingSymbols || arguments.symbols;
    return DrawWanted(project, arguments, drawings, error);
}

} // namespace

int DrawCommand(const DrawArguments& arguments) {
    std::string error;
    std::vector<WindowPicture> drawings;
    std::vector<OutputFile> files;
    const std::wstring folder = Text::Widen(arguments.outputFolder);
    PrepareHost({});
    if (!OpenProjectFile(arguments.projectFile, error) ||
        !DrawOpenProject(arguments, drawings, error) ||
        !WritePictures(drawings, {}, files, error) || !PrepareOutputFolder(folder, error) ||
        !WriteOutputFiles(folder, files, error)) {
        TellError(error);
        return StatusFailed;
    }
    TellScriptComplaints();
    for (const OutputFile& file : files) {
        TellLine("Gravado: " +
                 (std::filesystem::path(arguments.outputFolder) / file.name).string());
    }
    return StatusDone;
}

} // namespace Merivane::Program
