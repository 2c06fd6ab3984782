#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Catalog/HttpClient.hpp"

/// What the two halves of the HTTP client say alike: what is asked, how an answer is judged, and
/// the words for whatever went wrong.
namespace Merivane::Catalog {

inline constexpr std::string_view HttpUserAgent = "Vantoro/1.0 (Archicad add-on)";
inline constexpr int MaximumRedirects = 10;

/// Kinds of failure that the user is told in words; any other is told by its number.
enum class NetworkFailure {
    TimedOut,
    InvalidAddress,
    NameNotFound,
    NoConnection,
    ConnectionLost,
    NotSecure, ///< no TLS connection, or a certificate that does not hold
};

/// Sets `error` to the words for a failure.
void SetFailure(HttpResult& result, NetworkFailure failure);

/// Sets `error` to the words for a failure without words of its own: `number` as the system's
/// HTTP library counts its errors.
void SetFailureNumber(HttpResult& result, std::uint32_t number);

/// Sets `error` to the words for a text that is no address.
void SetInvalidAddress(HttpResult& result, const std::string& url);

/// The words for a file longer than `maxBytes`, and for one that nobody waits for any more.
std::string TooLargeText(std::uint64_t maxBytes);
std::string StoppedText();

/// True for UTF-8 without control characters: anything else is no address, and could end a line of
/// the request.
bool CanBeAddress(std::string_view url);

/// Appends bytes to the body. Returns false, with `error` set and the body as it was, when it would
/// be longer than `maxBytes` then.
bool AppendToBody(HttpResult& result, std::string_view bytes, std::uint64_t maxBytes);

/// Judges an answer whose body is complete by its status: sets `ok` or `error`.
void JudgeStatus(HttpResult& result, const std::string& url);

} // namespace Merivane::Catalog
