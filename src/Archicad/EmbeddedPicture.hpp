#pragma once

#include <string>

namespace Merivane::Archicad {

/// A picture that travels inside a library part.
struct EmbeddedPicture {
    std::string name;  ///< of its file, with extension, UTF-8
    std::string bytes; ///< encoded as in its file
    std::string mime;  ///< "image/png" or "image/jpeg"

    bool operator==(const EmbeddedPicture&) const = default;
};

/// Reads a picture's file; its kind is told by how it begins, never by its extension. Returns
/// false, leaving `picture` as it was, for a file that can't be read and for one that is neither
/// PNG nor JPEG.
bool ReadEmbeddedPicture(const std::wstring& path, EmbeddedPicture& picture);

} // namespace Merivane::Archicad
