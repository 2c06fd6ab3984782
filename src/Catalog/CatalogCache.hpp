#pragma once

#include <string>
#include <string_view>

/// Copies of what catalogues publish, so that nothing is fetched twice. Each catalogue has a folder
/// of its own, in which files keep their paths.
namespace Merivane::Catalog {

/// The cache of the catalogue of this normalised address; empty when the user has no folder for
/// caches, and nothing is kept then. The folder may not exist yet.
std::wstring CatalogCacheFolder(std::string_view address);

/// Reads the copy of a file by its path in the catalogue. False when there is none, or its path
/// would leave the cache.
bool ReadCached(const std::wstring& cacheFolder, std::string_view path, std::string& bytes);

/// Keeps a copy, whole or not at all. False when it can't be written, and when its path would leave
/// the cache, also by a link: nothing is written outside of it.
bool StoreCached(const std::wstring& cacheFolder, std::string_view path, std::string_view bytes);

} // namespace Merivane::Catalog
