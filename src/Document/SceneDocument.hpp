#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Simulation/Study/LightingStudy.hpp"

/// The scene document: a JSON text with Portuguese keys that tells one calculation whole. Its keys,
/// units, ranges and defaults stand in docs/cena.md. What it holds is a study, every name resolved
/// and every value inside its range.
namespace Merivane::Document {

/// The newest format of the document that is understood.
inline constexpr int SceneFormat = 1;

/// Gives the bytes of an IES file by the path that stands in the document. Returns false when it
/// can't be read. Each path is asked for once.
using IesLoader = std::function<bool(const std::string& path, std::string& bytes)>;

/// Reads a scene document from its text. Returns false at the first thing that can't be accepted;
/// `error` is then one Portuguese sentence that names the place ("zonas[1].contorno[3]"), what was
/// expected and what was found, and `document` must not be used.
bool ParseSceneDocument(std::string_view text, const IesLoader& loadIes,
                        Simulation::LightingStudy& document, std::string& error);

/// Reads a scene document and the IES files that it names, their paths taken from the document's
/// folder. Refuses as `ParseSceneDocument` does; the sentence names the document's file.
bool ReadSceneDocument(const std::wstring& path, Simulation::LightingStudy& document,
                       std::string& error);

} // namespace Merivane::Document
