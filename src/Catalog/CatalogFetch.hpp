#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "Catalog/CatalogProduct.hpp"
#include "Catalog/HttpClient.hpp"
#include "Catalog/Sha256.hpp"
#include "Catalog/StopAsked.hpp"

/// The files of a catalogue, from a folder or from the web. `address` is a normalised base, see
/// `NormalizeCatalogAddress`.
namespace Merivane::Catalog {

/// What a fetch brought.
struct FetchResult {
    bool ok = false;
    std::string bytes;
    std::string error; ///< one Portuguese sentence without accents when not `ok`
};

/// How files come from the web: `HttpGet`, or another way in its place.
using HttpFetch = std::function<HttpResult(const std::string& url, std::uint64_t maxBytes)>;

/// Most that a file of a catalogue may hold, of the web as of a folder [bytes].
inline constexpr std::uint64_t LargestCatalogFile = std::uint64_t{256} << 20;

/// Fetches a file by its path, without any check of what it holds. A path that would leave the
/// folder of a local catalogue, also by a link, is refused and nothing is read.
FetchResult FetchCatalogFile(const std::string& address, std::string_view relativePath,
                             const HttpFetch& http = HttpGet);

/// Fetches a file that an index lists and holds it to the listed size and digest. A copy in the
/// cache whose digest is the listed one is taken instead; what passes is kept there, what does not
/// pass is neither kept nor given on.
FetchResult FetchVerifiedFile(const std::string& address, const CatalogFile& file,
                              const HttpFetch& http = HttpGet);

/// What stands in a file.
struct FileDigest {
    std::uint64_t size = 0; ///< [bytes]
    std::string sha256;
};

/// Size and digest of what a file holds now, the cache aside; the file of a folder is not held in
/// memory, and is left where `stopAsked` says so. Returns true and sets `digest`, or returns false
/// and sets `error`; the other stays as it was.
bool DigestCatalogFile(const std::string& address, std::string_view relativePath,
                       FileDigest& digest, std::string& error, const HttpFetch& http = HttpGet,
                       const StopAsked& stopAsked = {});

/// The sentence on a file that the index has no path for.
std::string FileNotListed();

/// How what was fetched differs from what the index lists, as one sentence; empty when it does not.
/// A size or a digest that is not listed is not compared; letter case counts.
std::string MismatchOf(const CatalogFile& file, const FileDigest& fetched);

} // namespace Merivane::Catalog
