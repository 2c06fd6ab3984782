#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Workbench/Interface/ResourceScript.hpp"

/// The files of the folder `resources`, carried inside the program so that nothing has to be found
/// beside it.
namespace Merivane::Workbench {

/// A file as it stood when the program was built.
struct EmbeddedFile {
    std::string_view path; ///< below `resources`, "RINT/Menus.grc"
    std::string_view bytes;
};

/// All of them, by path.
const std::vector<EmbeddedFile>& EmbeddedFiles();

/// The resources of all embedded scripts. One that can't be read is left out; a test sees to it
/// that there is none.
const ResourceScript& OwnResources();

/// The SVG text of an icon by its base name; empty when there is none.
std::string_view OwnIconImage(const std::string& name);

} // namespace Merivane::Workbench
