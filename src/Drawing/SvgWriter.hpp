#pragma once

#include <string>

#include "Drawing/DisplayList.hpp"

namespace Merivane::Drawing {

/// Writes the list as an SVG image of the page's real size: a group for each layer with the
/// layer's name (Inkscape shows them as layers), texts as text, stretched to their measured width
/// where the reader's font differs. The same list gives the same bytes.
///
/// Returns false and sets `error` where `CheckDisplayList` refuses; `bytes` is then untouched.
bool WriteSvg(const DisplayList& list, std::string& bytes, std::string& error);

/// The same image as an element to stand in an HTML page, as wide as the page lets it: without
/// declaration, names of layers and ids, which no two images of a page may share.
bool WriteSvgElement(const DisplayList& list, std::string& element, std::string& error);

} // namespace Merivane::Drawing
