#include <algorithm>
#include <cmath>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "Document/ResultTable.hpp"
#include "Drawing/PdfWriter.hpp"
#include "Drawing/PngWriter.hpp"
#include "Drawing/SvgWriter.hpp"
#include "Program/Commands.hpp"
#include "Program/Message.hpp"
#include "Program/OutputFiles.hpp"
#include "Text/FoldAccents.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Display/WindowDrawing.hpp"
#include "Workbench/Project/ProjectFile.hpp"

namespace Merivane::Program {

namespace {

using Workbench::Project;
using Workbench::ProjectDatabase;

constexpr double ScreenResolution = 150.0; // [dots per inch]
constexpr double MostDots = 60e6;          // a larger sheet gets a coarser picture
constexpr double MillimetresPerInch = 25.4;

/// A drawing with the title that its files are named after.
struct NamedDrawing {
    std::string title;
    Drawing::DisplayList list;
};

std::string WindowTitle(const ProjectDatabase& database) {
    const Host::Window& window = database.window;
    return window.reference.empty() ? window.name : window.reference + " " + window.name;
}

std::string FloorTitle(const Host::Story& story) {
    const std::string number = "planta " + std::to_string(story.index);
    return story.name.empty() ? number : number + " " + story.name;
}

NamedDrawing DrawWindow(const Project& project, const ProjectDatabase& database, double scale) {
    return {WindowTitle(database), database.window.type == Host::WindowType::Worksheet
                                       ? Workbench::DrawWorksheet(project, database, scale)
                                       : Workbench::DrawSection(project, database, scale)};
}

/// Names are compared without regard to accents and capitals.
bool IsNamed(const ProjectDatabase& database, const std::string& name) {
    const std::string folded = Text::FoldAccents(name);
    return folded == Text::FoldAccents(database.window.name) ||
           folded == Text::FoldAccents(database.window.reference) ||
           folded == Text::FoldAccents(WindowTitle(database));
}

bool DrawNamedWindow(const Project& project, const DrawArguments& arguments,
                     std::vector<NamedDrawing>& drawings, std::string& error) {
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

NamedDrawing DrawModel(const Project& project, const Host::Story* story, double scale) {
    Workbench::AxonometryView view;
    std::string title = "axonometria";
    if (story != nullptr) {
        view.floorIndex = story->index;
        title += " " + std::to_string(story->index);
    }
    return {title, Workbench::DrawAxonometry(project, view, scale)};
}

bool DrawFloor(const Project& project, const DrawArguments& arguments,
               std::vector<NamedDrawing>& drawings, std::string& error) {
    const Host::Story* const story = FindStory(project, *arguments.floor);
    if (story == nullptr) {
        error = "o projeto não tem o pavimento " + std::to_string(*arguments.floor) + "; tem de " +
                std::to_string(project.stories.front().index) + " a " +
                std::to_string(project.stories.back().index);
        return false;
    }
    drawings.push_back(
        arguments.axonometry
            ? DrawModel(project, story, arguments.scale)
            : NamedDrawing{FloorTitle(*story),
                           Workbench::DrawPlan(project, story->index, arguments.scale)});
    return true;
}

void DrawAll(const Project& project, double scale, std::vector<NamedDrawing>& drawings) {
    for (const Host::Story& story : project.stories) {
        drawings.push_back({FloorTitle(story), Workbench::DrawPlan(project, story.index, scale)});
    }
    for (const ProjectDatabase& database : project.databases) {
        drawings.push_back(DrawWindow(project, database, scale));
    }
    drawings.push_back(DrawModel(project, nullptr, scale));
}

bool DrawWanted(const Project& project, const DrawArguments& arguments,
                std::vector<NamedDrawing>& drawings, std::string& error) {
    if (!arguments.window.empty()) {
        return DrawNamedWindow(project, arguments, drawings, error);
    }
    if (arguments.floor) {
        return DrawFloor(project, arguments, drawings, error);
    }
    if (arguments.axonometry) {
        drawings.push_back(DrawModel(project, nullptr, arguments.scale));
        return true;
    }
    DrawAll(project, arguments.scale, drawings);
    return true;
}

Drawing::PngOptions ResolutionFor(const Drawing::DisplayList& list) {
    const double squareInches = list.width * list.height / MillimetresPerInch / MillimetresPerInch;
    return {std::min(ScreenResolution, std::sqrt(MostDots / squareInches))};
}

bool WriteDrawings(const std::vector<NamedDrawing>& drawings, std::vector<OutputFile>& files,
                   std::string& error) {
    std::vector<std::string> titles;
    titles.reserve(drawings.size());
    for (const NamedDrawing& drawing : drawings) {
        titles.push_back(drawing.title);
    }
    const std::vector<std::string> names = Document::UniqueFileNames(titles, "");
    for (std::size_t i = 0; i < drawings.size(); ++i) {
        const Drawing::DisplayList& list = drawings[i].list;
        OutputFile svg{names[i] + ".svg", ""};
        OutputFile pdf{names[i] + ".pdf", ""};
        OutputFile png{names[i] + ".png", ""};
        if (!Drawing::WriteSvg(list, svg.bytes, error) ||
            !Drawing::WritePdf(list, pdf.bytes, error) ||
            !Drawing::WritePng(list, png.bytes, error, ResolutionFor(list))) {
            error.insert(0, "\"" + drawings[i].title + "\": ");
            return false;
        }
        files.push_back(std::move(svg));
        files.push_back(std::move(pdf));
        files.push_back(std::move(png));
    }
    return true;
}

} // namespace

int DrawCommand(const DrawArguments& arguments) {
    std::string error;
    Project project;
    std::vector<NamedDrawing> drawings;
    std::vector<OutputFile> files;
    const std::wstring folder = Text::Widen(arguments.outputFolder);
    if (!Workbench::ReadProject(Text::Widen(arguments.projectFile), project, error) ||
        !DrawWanted(project, arguments, drawings, error) ||
        !WriteDrawings(drawings, files, error) || !PrepareOutputFolder(folder, error) ||
        !WriteOutputFiles(folder, files, error)) {
        TellError(error);
        return StatusFailed;
    }
    for (const OutputFile& file : files) {
        TellLine("Gravado: " +
                 (std::filesystem::path(arguments.outputFolder) / file.name).string());
    }
    return StatusDone;
}

} // namespace Merivane::Program
