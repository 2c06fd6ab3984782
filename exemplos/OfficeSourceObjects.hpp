#pragma once

#include <string>
#include <vector>

/// The objects that the sample project's luminaires are made of, as a modeller draws them: bodies
/// and plans, no photometry.
namespace Merivane::Examples {

struct SourceObject {
    std::string name;   ///< of the object's part
    double sizeA = 1.0; ///< [m]
    double sizeB = 1.0;
    double cable = 0.0; ///< default of its parameter `comprimentoCabo`; 0 = it has none [m]
    std::string modelScript;
    std::string planScript;
};

/// What becomes of one: the file that lights it, and what its maker tells.
struct SourceLuminaire {
    SourceObject object;
    std::string iesFile;
    double colourRendering = 0.0; ///< what its maker tells where the file does not; 0 = nothing
};

/// The five types of the office, in the order in which it uses them.
std::vector<SourceLuminaire> OfficeSourceLuminaires();

} // namespace Merivane::Examples
