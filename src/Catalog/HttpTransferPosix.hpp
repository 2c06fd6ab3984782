#pragma once

#include <cstdint>
#include <string>

#include <curl/curl.h>

#include "Catalog/HttpClient.hpp"

namespace Merivane::Catalog {

/// Runs the one request that `easy` is set up for, without following redirects, and keeps the
/// time-outs of its steps. The body goes to `result`, up to `maxBytes` bytes.
///
/// Returns `CURLE_WRITE_ERROR` when it was broken off here: at the head of a redirect (see
/// `Location`), whose body is not read, or with the reason in `result.error`.
CURLcode RunTransfer(CURL* easy, std::uint64_t maxBytes, const HttpTimeouts& timeouts,
                     HttpResult& result);

/// Where the answer that `easy` got sends us, as the server wrote it; empty when it is no redirect.
std::string Location(CURL* easy);

} // namespace Merivane::Catalog
