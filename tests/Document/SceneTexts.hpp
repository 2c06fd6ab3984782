#pragma once

#include <string>

#include "Document/SceneDocument.hpp"

namespace Merivane::Tests {

/// A photometric file of 1 cd in every direction: 4 pi lm. `header` lines end in "\n".
std::string UniformIes(const std::string& header = "");

/// The bytes of every path: `UniformIes`, except for "falta.ies", which can't be read, and
/// "ruim.ies", which is no IES file.
Document::IesLoader UniformLoader();

/// A whole document: one square Zone of 4 m named "Sala" and these members behind it.
std::string SceneText(const std::string& members);

/// A document whose one Zone has these members beside its name.
std::string ZoneText(const std::string& members);

/// Reads the text; the record where it is accepted, else a failed test.
Simulation::LightingStudy ReadScene(const std::string& text);

/// The refusal of the text; empty where it is accepted.
std::string SceneError(const std::string& text);

} // namespace Merivane::Tests
