#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "Catalog/StopAsked.hpp"

namespace Merivane::Catalog {

/// What a fetch brought.
struct HttpResult {
    bool ok = false; ///< a complete body with status 200, and only that
    /// Of the last answer, after redirects; 0 when none came, and behind a redirect that can't be
    /// followed: to no address of the web, or the eleventh.
    std::uint32_t status = 0;
    std::string body;  ///< what was received, also of an answer that is not ok
    std::string error; ///< one Portuguese sentence without accents; empty when ok

    bool operator==(const HttpResult&) const = default;
};

/// Fetches what stands at an address (UTF-8, http or https) and waits for it; redirects are
/// followed, 10 at most and never from https to http. Stops with an error as soon as the body is
/// longer than `maxBytes` bytes; what came before that stays in `body`. Nothing is retried, nothing
/// kept between calls. Proxies come from the system's settings, off Windows from the environment;
/// certificates are always checked.
///
/// A user name and password in the address are not sent, nor is what follows `#`.
HttpResult HttpGet(const std::string& url, std::uint64_t maxBytes);

/// How long each step of a fetch may stay without an answer. A redirect begins anew.
struct HttpTimeouts {
    std::chrono::milliseconds resolve{10000}; ///< the whole look-up of the name
    std::chrono::milliseconds connect{15000}; ///< until the connection stands, TLS included
    std::chrono::milliseconds send{30000};    ///< of silence while the request goes out
    std::chrono::milliseconds receive{60000}; ///< of silence before and within the answer
};

/// `HttpGet` with other time-outs, for tests that can't wait a minute, and for a caller who may not
/// want to wait for it: `stopAsked` is asked several times a second, on Windows with each part of
/// the body. A fetch that is stopped is not ok.
HttpResult HttpGetWith(const std::string& url, std::uint64_t maxBytes, const HttpTimeouts& timeouts,
                       const StopAsked& stopAsked = {});

} // namespace Merivane::Catalog
