#pragma once

#include <string>

#include "Drawing/DisplayList.hpp"

namespace Merivane::Drawing {

/// How a PNG is written.
struct PngOptions {
    double dotsPerInch = 150.0;
};

/// Writes the list as a PNG image on white, width and height rounded to whole dots, at least 1;
/// the resolution stands in the image. The same list gives the same bytes.
///
/// Returns false and sets `error` to one Portuguese sentence where `CheckDisplayList` refuses,
/// where a side would have more than 30000 dots, or where the drawing library fails; `bytes` is
/// then untouched.
bool WritePng(const DisplayList& list, std::string& bytes, std::string& error,
              const PngOptions& options = {});

} // namespace Merivane::Drawing
