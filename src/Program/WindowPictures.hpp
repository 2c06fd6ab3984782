#pragma once

#include <string>
#include <vector>

#include "Drawing/DisplayList.hpp"
#include "Host/Stories.hpp"
#include "Program/OutputFiles.hpp"
#include "Workbench/Project/Project.hpp"

/// Windows of a project as pictures.
namespace Merivane::Program {

/// A drawing with the title that its files are named after.
struct WindowPicture {
    std::string title;
    Drawing::DisplayList list;
};

/// Reference and name of a worksheet, section or elevation.
std::string WindowTitle(const Workbench::ProjectDatabase& database);

/// Draws a window at a scale denominator; 0 takes the window's own.
WindowPicture DrawWindow(const Workbench::Project& project,
                         const Workbench::ProjectDatabase& database, double scale);
WindowPicture DrawFloor(const Workbench::Project& project, const Host::Story& story, double scale);

/// The plan of every floor, then every other window, each in the project's order.
std::vector<WindowPicture> DrawWindows(const Workbench::Project& project, double scale);

/// Adds each picture as SVG, PDF and PNG, a large one in coarser dots. No file gets the name of
/// another or one of `taken`, names without extension. Returns false with one Portuguese sentence
/// that names the picture that can't be drawn.
bool WritePictures(const std::vector<WindowPicture>& pictures,
                   const std::vector<std::string>& taken, std::vector<OutputFile>& files,
                   std::string& error);

} // namespace Merivane::Program
