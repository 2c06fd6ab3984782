#pragma once

#include <filesystem>
#include <string>

namespace Merivane::Tests {

/// Text of a scene document: a closed room of 3 x 2 x 2.5 m, one luminaire "D1" with the
/// photometric file "luz.ies", one Zone "Sala", the quick profile.
std::string SampleSceneText();

/// Text of its photometric file.
std::string SampleIesText();

/// Writes both into `folder` and gives the path of the document, "cena.json".
std::filesystem::path WriteSampleScene(const std::filesystem::path& folder);

/// A folder with a copy of the program whose installation of Radiance stands beside it, its
/// programs links to the real ones, so that a test can replace one.
/// Returns the path of the program.
std::filesystem::path CopyProgram(const std::filesystem::path& folder);

/// Replaces a Radiance program beside a copied `vantoro` by a shell script.
void ReplaceTool(const std::filesystem::path& program, const std::string& tool,
                 const std::string& script);

} // namespace Merivane::Tests
