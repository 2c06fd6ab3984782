#include "Catalog/CatalogFetch.hpp"

#include <utility>

#include "Catalog/CatalogAddress.hpp"
#include "Catalog/CatalogCache.hpp"
#include "Catalog/HttpAnswer.hpp"
#include "Catalog/InnerPath.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativeFile.hpp"
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

/// Opens a plain file below the folder of a local catalogue, first, and looks where it stands then:
/// whatever is put in its place meanwhile is not what is read. Null with the reason in `error`.
Text::FileHandle OpenInFolder(const std::string& folder, std::string_view relativePath,
                              std::string& error) {
    const std::string path = ResolveInCatalog(folder, relativePath);
    relativePath = WithoutLeadingSlashes(relativePath);
    if (const PathFault fault = FaultOfPath(relativePath); fault != PathFault::None) {
        error = RefusedPath(fault, relativePath);
        return nullptr;
    }
    Text::FileHandle file(Text::OpenPlainFile(Text::Widen(path)));
    if (!file) {
        error = NotFound(path);
        return nullptr;
    }
    if (!StandsBelow(Text::NativePath(Text::Widen(folder)),
                     Text::NativePath(Text::RealPathOf(file.get())))) {
        error = RefusedPath(PathFault::LinkLeadsOut, relativePath);
        return nullptr;
    }
    return file;
}

/// Reads a file below the folder of a local catalogue, block by block. False with the reason.
bool ReadInFolder(const std::string& folder, std::string_view relativePath,
                  const Text::TakeBlock& take, std::string& error) {
    const Text::FileHandle file = OpenInFolder(folder, relativePath, error);
    if (!file) {
        return false;
    }
    error = NotFound(ResolveInCatalog(folder, relativePath));
    std::uint64_t length = 0;
    const bool read = Text::ReadBlocks(file.get(), [&](std::string_view block) {
        length += block.size();
        if (length > LargestCatalogFile) {
            error = TooLargeText(LargestCatalogFile);
            return false;
        }
        return take(block);
    });
    if (read) {
        error.clear();
    }
    return read;
}

FileDigest DigestOf(std::string_view bytes) {
    return {bytes.size(), Sha256Hex(bytes)};
}

} // namespace

FetchResult FetchCatalogFile(const std::string& address, std::string_view relativePath,
                             const HttpFetch& http) {
    FetchResult local;
    if (!IsRemoteAddress(address)) {
        const auto append = [&local](std::string_view block) {
            local.bytes.append(block);
            return true;
        };
        local.ok = ReadInFolder(address, relativePath, append, local.error);
        return local.ok ? local : Failed(std::move(local.error));
    }
    HttpResult fetched = http(ResolveInCatalog(address, relativePath), LargestCatalogFile);
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
                       FileDigest& digest, std::string& error, const HttpFetch& http,
                       const StopAsked& stopAsked) {
    if (IsRemoteAddress(address)) {
        FetchResult fetched = FetchCatalogFile(address, relativePath, http);
        if (fetched.ok) {
            digest = DigestOf(fetched.bytes);
        } else {
            error = std::move(fetched.error);
        }
        return fetched.ok;
    }
    Sha256Run run;
    std::string reason;
    const auto add = [&](std::string_view block) {
        Sha256Add(run, block);
        if (IsStopped(stopAsked)) {
            reason = StoppedText();
            return false;
        }
        return true;
    };
    if (!ReadInFolder(address, relativePath, add, reason)) {
        error = std::move(reason);
        return false;
    }
    digest = {run.length, Sha256Hex(run)};
    return true;
}

std::string FileNotListed() {
    return "o catalogo nao lista este arquivo";
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
