#include "Catalog/CatalogFetch.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "Catalog/CatalogAddress.hpp"
#include "Catalog/CatalogCache.hpp"
#include "Catalog/InnerPath.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Catalog {

namespace {

FetchResult Failed(std::string error) {
    return {false, {}, std::move(error)};
}

std::string NotFound(const std::string& path) {
    return "arquivo nao encontrado: " + path;
}

/// Finds a plain file below the folder of a local catalogue. False with the reason.
bool LocateInFolder(const std::string& folder, std::string_view relativePath, std::wstring& file,
                    std::string& error) {
    const std::string path = ResolveInCatalog(folder, relativePath);
    file = Text::Widen(path);
    relativePath.remove_prefix(std::min(relativePath.find_first_not_of('/'), relativePath.size()));
    std::error_code code;
    const std::filesystem::path place = Text::NativePath(file);
    const bool exists = std::filesystem::exists(place, code);
    if (!IsInnerPath(relativePath) ||
        (exists && !LeadsInside(Text::NativePath(Text::Widen(folder)), place))) {
        error = PathLeavesCatalog(relativePath);
        return false;
    }
    if (!std::filesystem::is_regular_file(place, code)) {
        error = NotFound(path);
        return false;
    }
    return true;
}

FetchResult ReadInFolder(const std::string& folder, std::string_view relativePath) {
    std::wstring file;
    std::string error;
    if (!LocateInFolder(folder, relativePath, file, error)) {
        return Failed(error);
    }
    FetchResult result;
    result.ok = Text::ReadFileBytes(file, result.bytes);
    return result.ok ? result : Failed(NotFound(ResolveInCatalog(folder, relativePath)));
}

FileDigest DigestOf(std::string_view bytes) {
    return {bytes.size(), Sha256Hex(bytes)};
}

} // namespace

FetchResult FetchCatalogFile(const std::string& address, std::string_view relativePath,
                             const HttpFetch& http) {
    if (!IsRemoteAddress(address)) {
        return ReadInFolder(address, relativePath);
    }
    HttpResult fetched = http(ResolveInCatalog(address, relativePath), LargestRemoteFile);
    return {fetched.ok, std::move(fetched.body), std::move(fetched.error)};
}

FetchResult FetchVerifiedFile(const std::string& address, const CatalogFile& file,
                              const HttpFetch& http) {
    if (file.path.empty()) {
        return Failed(FileNotListed());
    }
    const std::wstring cache = CatalogCacheFolder(address);
    FetchResult cached{true, {}, {}};
    if (!file.hash.empty() && ReadCached(cache, file.path, cached.bytes) &&
        Sha256Hex(cached.bytes) == file.hash) {
        return cached;
    }
    FetchResult fetched = FetchCatalogFile(address, file.path, http);
    if (!fetched.ok) {
        return Failed(fetched.error);
    }
    if (std::string mismatch = MismatchOf(file, DigestOf(fetched.bytes)); !mismatch.empty()) {
        return Failed(std::move(mismatch));
    }
    StoreCached(cache, file.path, fetched.bytes);
    return fetched;
}

bool DigestCatalogFile(const std::string& address, std::string_view relativePath,
                       FileDigest& digest, std::string& error, const HttpFetch& http) {
    if (IsRemoteAddress(address)) {
        const FetchResult fetched = FetchCatalogFile(address, relativePath, http);
        error = fetched.error;
        digest = DigestOf(fetched.bytes);
        return fetched.ok;
    }
    std::wstring file;
    if (!LocateInFolder(address, relativePath, file, error)) {
        return false;
    }
    error = NotFound(ResolveInCatalog(address, relativePath));
    return DigestFile(file, digest);
}

std::string FileNotListed() {
    return "o catalogo nao lista este arquivo";
}

std::string PathLeavesCatalog(std::string_view path) {
    return "o catalogo lista um caminho que sai da pasta dele: " + std::string(path);
}

std::string MismatchOf(const CatalogFile& file, const FileDigest& fetched) {
    if (file.size >= 1 && static_cast<std::uint64_t>(file.size) != fetched.size) {
        return file.path + " veio com " + std::to_string(fetched.size) + " bytes, o catalogo diz " +
               std::to_string(file.size) +
               " (download incompleto, ou o catalogo nao foi atualizado junto)";
    }
    if (!file.hash.empty() && file.hash != fetched.sha256) {
        return file.path + " nao confere com o catalogo (SHA-256 diferente): o arquivo foi trocado "
                           "sem reexportar o catalogo";
    }
    return {};
}

} // namespace Merivane::Catalog
