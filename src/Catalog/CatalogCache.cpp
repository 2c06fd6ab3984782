#include "Catalog/CatalogCache.hpp"

#include <filesystem>
#include <system_error>

#include "Catalog/InnerPath.hpp"
#include "Catalog/Sha256.hpp"
#include "Catalog/UserCacheFolder.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Catalog {

namespace {

constexpr std::size_t FolderDigits = 16; // of the address's digest

/// The place of a copy; empty when it may not be there.
std::filesystem::path PlaceOf(const std::wstring& cacheFolder, std::string_view path) {
    if (cacheFolder.empty() || !IsInnerPath(path)) {
        return {};
    }
    const std::filesystem::path folder = Text::NativePath(cacheFolder);
    std::filesystem::path place = folder / Text::NativePath(Text::Widen(path));
    return IsFreeOfLinks(folder, place) ? place : std::filesystem::path();
}

} // namespace

std::wstring CatalogCacheFolder(std::string_view address) {
    const std::wstring root = UserCacheFolder();
    if (root.empty()) {
        return {};
    }
    const std::string name = Sha256Hex(address).substr(0, FolderDigits);
    return Text::WidePath(Text::NativePath(root) / "Vantoro" / "catalogo" / name);
}

bool ReadCached(const std::wstring& cacheFolder, std::string_view path, std::string& bytes) {
    const std::filesystem::path place = PlaceOf(cacheFolder, path);
    return !place.empty() && Text::ReadFileBytes(Text::WidePath(place), bytes);
}

bool StoreCached(const std::wstring& cacheFolder, std::string_view path, std::string_view bytes) {
    const std::filesystem::path place = PlaceOf(cacheFolder, path);
    if (place.empty()) {
        return false;
    }
    std::error_code code;
    std::filesystem::create_directories(place.parent_path(), code);
    return !code && Text::ReplaceFile(Text::WidePath(place), bytes);
}

} // namespace Merivane::Catalog
