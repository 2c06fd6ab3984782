#include "Program/WindowPictures.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Document/ResultTable.hpp"
#include "Drawing/PdfWriter.hpp"
#include "Drawing/PngWriter.hpp"
#include "Drawing/SvgWriter.hpp"
#include "Workbench/Display/WindowDrawing.hpp"

namespace Merivane::Program {

namespace {

using Workbench::Project;
using Workbench::ProjectDatabase;

constexpr double ScreenResolution = 150.0; // [dots per inch]
constexpr double MostDots = 60e6;          // a larger sheet gets a coarser picture
constexpr double MillimetresPerInch = 25.4;

Drawing::PngOptions ResolutionFor(const Drawing::DisplayList& list) {
    const double squareInches = list.width * list.height / MillimetresPerInch / MillimetresPerInch;
    return {std::min(ScreenResolution, std::sqrt(MostDots / squareInches))};
}

std::string FloorTitle(const Host::Story& story) {
    const std::string number = "planta " + std::to_string(story.index);
    return story.name.empty() ? number : number + " " + story.name;
}

bool WritePicture(const WindowPicture& picture, const std::string& name,
                  std::vector<OutputFile>& files, std::string& error) {
    OutputFile svg{name + ".svg", ""};
    OutputFile pdf{name + ".pdf", ""};
    OutputFile png{name + ".png", ""};
    if (!Drawing::WriteSvg(picture.list, svg.bytes, error) ||
        !Drawing::WritePdf(picture.list, pdf.bytes, error) ||
        !Drawing::WritePng(picture.list, png.bytes, error, ResolutionFor(picture.list))) {
        error.insert(0, "\"" + picture.title + "\": ");
        return false;
    }
    files.push_back(std::move(svg));
    files.push_back(std::move(pdf));
    files.push_back(std::move(png));
    return true;
}

} // namespace

std::string WindowTitle(const ProjectDatabase& database) {
    const Host::Window& window = database.window;
    return window.reference.empty() ? window.name : window.reference + " " + window.name;
}

WindowPicture DrawWindow(const Project& project, const ProjectDatabase& database, double scale) {
    return {WindowTitle(database), database.window.type == Host::WindowType::Worksheet
                                       ? Workbench::DrawWorksheet(project, database, scale)
                                       : Workbench::DrawSection(project, database, scale)};
}

WindowPicture DrawFloor(const Project& project, const Host::Story& story, double scale) {
    return {FloorTitle(story), Workbench::DrawPlan(project, story.index, scale)};
}

std::vector<WindowPicture> DrawWindows(const Project& project, double scale) {
    std::vector<WindowPicture> pictures;
    for (const Host::Story& story : project.stories) {
        pictures.push_back(DrawFloor(project, story, scale));
    }
    for (const ProjectDatabase& database : project.databases) {
        pictures.push_back(DrawWindow(project, database, scale));
    }
    return pictures;
}

bool WritePictures(const std::vector<WindowPicture>& pictures,
                   const std::vector<std::string>& taken, std::vector<OutputFile>& files,
                   std::string& error) {
    std::vector<std::string> titles = taken;
    for (const WindowPicture& picture : pictures) {
        titles.push_back(picture.title);
    }
    const std::vector<std::string> names = Document::UniqueFileNames(titles, "");
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        if (!WritePicture(pictures[i], names[taken.size() + i], files, error)) {
            return false;
        }
    }
    return true;
}

} // namespace Merivane::Program
