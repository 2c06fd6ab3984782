#include "Catalog/CatalogAddress.hpp"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "Text/Ascii.hpp"

namespace Merivane::Catalog {

namespace {

// Set by the build: the site whose pages people paste, and where it serves bare files, by
// owner/repository/branch/file.
constexpr std::string_view CodeHost = VANTORO_CODE_HOST;
constexpr std::string_view RawContentBase = VANTORO_RAW_CONTENT_BASE;

bool EndsInAnyCase(std::string_view text, std::string_view lowerEnd) {
    return Text::ToLower(text).ends_with(lowerEnd);
}

std::string_view TrimPasted(std::string_view text) {
    constexpr std::string_view Around = " \t\r\n\"'";
    const std::size_t first = text.find_first_not_of(Around);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(Around) - first + 1);
}

std::string_view WithoutIndexName(std::string_view path) {
    if (path.size() <= CatalogIndexName.size() || !EndsInAnyCase(path, CatalogIndexName)) {
        return path;
    }
    path.remove_suffix(CatalogIndexName.size());
    while (path.ends_with('\\') || path.ends_with('/')) {
        path.remove_suffix(1);
    }
    return path;
}

/// The parts of a path between its slashes, empty ones left out.
std::vector<std::string_view> PathParts(std::string_view path) {
    std::vector<std::string_view> parts;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/'), path.size());
        if (end > 0) {
            parts.push_back(path.substr(0, end));
        }
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return parts;
}

/// The path of a page of the code host, behind its name; empty when the address is on another site.
std::string_view RepositoryPath(std::string_view address) {
    const std::string lower = Text::ToLower(address);
    const std::size_t start = lower.find("://") + 3;
    for (const std::string_view prefix : {"", "www."}) {
        const std::string host = std::string(prefix) + std::string(CodeHost) + "/";
        if (lower.compare(start, host.size(), host) == 0) {
            return address.substr(start + host.size());
        }
    }
    return {};
}

/// The bare files behind a page of a repository; empty when it is not one.
std::string RawContentAddress(std::string_view address) {
    const std::vector<std::string_view> parts = PathParts(RepositoryPath(address));
    if (parts.size() < 2) {
        return {};
    }
    std::string_view repository = parts[1];
    constexpr std::string_view Ending = ".git";
    if (repository.size() > Ending.size() && EndsInAnyCase(repository, Ending)) {
        repository.remove_suffix(Ending.size());
    }
    const bool namesBranch = parts.size() >= 4 && (parts[2] == "tree" || parts[2] == "blob");
    std::string raw(RawContentBase);
    raw.append(parts[0]).append("/").append(repository).append("/");
    raw.append(namesBranch ? parts[3] : "main").append("/");
    for (std::size_t i = 4; namesBranch && i < parts.size(); ++i) {
        raw.append(parts[i]).append("/");
    }
    return raw;
}

std::string NormalizeRemote(std::string_view text) {
    std::string address(text.substr(0, text.find_first_of("?#")));
    if (std::string raw = RawContentAddress(address); !raw.empty()) {
        address = std::move(raw);
    }
    const std::string indexEnd = "/" + std::string(CatalogIndexName);
    if (address.size() > indexEnd.size() && EndsInAnyCase(address, indexEnd)) {
        address.resize(address.size() - CatalogIndexName.size());
    }
    return address.ends_with('/') ? address : address + "/";
}

} // namespace

bool IsRemoteAddress(std::string_view text) {
    const std::string start = Text::ToLower(text.substr(0, 8));
    return start.starts_with("http://") || start.starts_with("https://");
}

std::string NormalizeCatalogAddress(std::string_view text) {
    const std::string_view pasted = TrimPasted(text);
    return IsRemoteAddress(pasted) ? NormalizeRemote(pasted)
                                   : std::string(WithoutIndexName(pasted));
}

std::string_view WithoutLeadingSlashes(std::string_view path) {
    path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
    return path;
}

std::string ResolveInCatalog(std::string_view base, std::string_view relativePath) {
    const bool isRemote = IsRemoteAddress(base);
    constexpr char Separator = static_cast<char>(std::filesystem::path::preferred_separator);
    std::string address(base);
    if (!address.ends_with('/') && (isRemote || !address.ends_with(Separator))) {
        address += isRemote ? '/' : Separator;
    }
    for (const char c : WithoutLeadingSlashes(relativePath)) {
        if (isRemote && c == ' ') {
            address += "%20";
        } else {
            address += !isRemote && c == '/' ? Separator : c;
        }
    }
    return address;
}

} // namespace Merivane::Catalog
