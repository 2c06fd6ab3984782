#pragma once

#include <cstdint>
#include <string>

#include <curl/curl.h>

#include "Catalog/HttpClient.hpp"

namespace Merivane::Catalog {

/// What ends a transfer before its time.
struct TransferLimits {
    std::uint64_t maxBytes = 0; ///< of the body
    const HttpTimeouts& timeouts;
    const StopAsked& stopAsked;
};

/// Most that an answer may hold beside its body: heads, also those before it, and trailers [bytes].
inline constexpr std::size_t LargestHead = std::size_t{256} * 1024;

/// Runs the one request that `easy` is set up for, without following redirects, and keeps its
/// limits. The body goes to `result`.
///
/// Returns `CURLE_WRITE_ERROR` when it was broken off here: at the head of a redirect (see
/// `Location`), whose body is not read, or with the reason in `result.error`.
CURLcode RunTransfer(CURL* easy, const TransferLimits& limits, HttpResult& result);

/// Where the answer that `easy` got sends us, as the server wrote it; empty when it is no redirect.
std::string Location(CURL* easy);

} // namespace Merivane::Catalog
