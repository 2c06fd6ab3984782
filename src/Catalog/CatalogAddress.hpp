#pragma once

#include <string>
#include <string_view>

/// Where a catalogue stands: a folder of this computer, or an address on the web. All in UTF-8.
namespace Merivane::Catalog {

/// Name of the index in a catalogue's root.
inline constexpr std::string_view CatalogIndexName = "catalogo.json";

/// True for a text that starts with "http://" or "https://", whatever its letter case.
bool IsRemoteAddress(std::string_view text);

/// The base of a catalogue from whatever a user pastes: a folder, a path to its index, a page of a
/// repository, a link to a file. Quotes and white space round it go. A remote base ends in "/" and
/// has neither query nor fragment; a repository page becomes the raw content of its branch ("main"
/// where none is named). Empty stays empty.
std::string NormalizeCatalogAddress(std::string_view text);

/// A path of a catalogue without the slashes before it, which have no meaning.
std::string_view WithoutLeadingSlashes(std::string_view path);

/// The full address of a file of a catalogue. Slashes before `relativePath` go; on the web a blank
/// becomes "%20", in a folder "/" becomes this system's separator.
std::string ResolveInCatalog(std::string_view base, std::string_view relativePath);

} // namespace Merivane::Catalog
