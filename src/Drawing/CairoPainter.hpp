#pragma once

#include <memory>
#include <string>

#include <cairo.h>

#include "Drawing/DisplayList.hpp"

namespace Merivane::Drawing {

struct ReleaseSurface {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using SurfacePointer = std::unique_ptr<cairo_surface_t, ReleaseSurface>;

/// How texts reach the surface: as outlines, placed to a fraction of a dot, or as letters of an
/// embedded font that a reader can search and copy.
enum class TextForm { Outlines, Letters };

/// Draws a checked list on a surface of which one millimetre is `unitsPerMillimetre` units.
/// Returns false and sets `error` to one Portuguese sentence when the drawing library fails.
bool PaintDisplayList(const DisplayList& list, cairo_surface_t* surface, double unitsPerMillimetre,
                      TextForm textForm, std::string& error);

/// A function for Cairo's streams that appends to the `std::string` behind `target`.
cairo_status_t AppendToString(void* target, const unsigned char* data, unsigned int length);

/// The Portuguese sentence for a failure of the drawing library.
std::string PaintingError(cairo_status_t status);

} // namespace Merivane::Drawing
