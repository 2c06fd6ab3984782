#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <pango/pangocairo.h>

#include "Drawing/DisplayList.hpp"

namespace Merivane::Drawing {

/// Fonts of every text, by its face. Where one is missing Pango takes the nearest.
inline constexpr const char* FontFamily = "DejaVu Sans";
inline constexpr const char* MonospacedFamily = "DejaVu Sans Mono";

/// Size of the font (em) for capitals of height 1: both fonts have capitals of 1493 / 2048 em.
inline constexpr double EmPerCapital = 2048.0 / 1493.0;

struct ReleaseObject {
    void operator()(void* object) const { g_object_unref(object); }
};
using LayoutPointer = std::unique_ptr<PangoLayout, ReleaseObject>;

/// A line of text laid out by Pango in millimetres (one Pango unit of length is 1 mm), without
/// hinting, so that it is as long on every surface as it was measured.
LayoutPointer MakeTextLayout(std::string_view text, double height, TextWeight weight,
                             TextFace face = TextFace::Proportional);

/// The first and only line of a layout that `MakeTextLayout` made.
PangoLayoutLine* TextLine(const LayoutPointer& layout);

/// `text` as valid UTF-8 on one line: what is not UTF-8 becomes U+FFFD, control characters blanks.
std::string CleanText(std::string_view text);

} // namespace Merivane::Drawing
