// The system's library follows redirects by itself: 10 at most and none from https to http, which
// it answers with the redirect as it stands.

#include "Catalog/HttpClient.hpp"

#include <array>
#include <cwchar>
#include <utility>

#include <windows.h>

#include <winhttp.h>

#include "Catalog/HttpAnswer.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Catalog {

namespace {

constexpr DWORD BufferSize = 65536; // bytes

/// A session, connection or request that is closed with its owner; null when there is none.
class InternetHandle {
public:
    explicit InternetHandle(HINTERNET systemHandle) : handle(systemHandle) {}
    InternetHandle(InternetHandle&& other) noexcept
        : handle(std::exchange(other.handle, nullptr)) {}
    InternetHandle& operator=(InternetHandle&& other) noexcept {
        std::swap(handle, other.handle);
        return *this;
    }
    ~InternetHandle() {
        if (handle != nullptr) {
            WinHttpCloseHandle(handle);
        }
    }

    HINTERNET Get() const { return handle; }
    bool IsOpen() const { return handle != nullptr; }

private:
    HINTERNET handle = nullptr;
};

/// What is needed of an address to ask for it.
struct Address {
    std::wstring host;
    INTERNET_PORT port = 0;
    bool isSecure = false;
    std::wstring path; ///< with the query, without the fragment; never empty
};

/// False for a text that is no address of the web.
bool ParseAddress(const std::string& url, Address& address) {
    if (!CanBeAddress(url)) {
        return false;
    }
    const std::wstring wide = Text::Widen(url);
    constexpr DWORD pointIntoText = static_cast<DWORD>(-1);
    URL_COMPONENTS parts{};
    parts.dwStructSize = sizeof(parts);
    parts.dwHostNameLength = pointIntoText;
    parts.dwUrlPathLength = pointIntoText;
    parts.dwExtraInfoLength = pointIntoText;
    if (WinHttpCrackUrl(wide.c_str(), static_cast<DWORD>(wide.size()), 0, &parts) == FALSE ||
        parts.dwHostNameLength == 0) {
        return false;
    }
    address.host.assign(parts.lpszHostName, parts.dwHostNameLength);
    address.port = parts.nPort;
    address.isSecure = parts.nScheme == INTERNET_SCHEME_HTTPS;
    address.path.assign(parts.lpszUrlPath, parts.dwUrlPathLength);
    address.path.append(parts.lpszExtraInfo, parts.dwExtraInfoLength);
    address.path = address.path.substr(0, address.path.find(L'#'));
    if (!address.path.starts_with(L'/')) {
        address.path.insert(0, L"/"); // also before a query
    }
    return true;
}

/// Sets `error` by the last error of the system.
void SetLastFailure(HttpResult& result) {
    const DWORD number = GetLastError();
    switch (number) {
    case ERROR_WINHTTP_TIMEOUT:
        return SetFailure(result, NetworkFailure::TimedOut);
    case ERROR_WINHTTP_INVALID_URL:
    case ERROR_WINHTTP_UNRECOGNIZED_SCHEME:
        return SetFailure(result, NetworkFailure::InvalidAddress);
    case ERROR_WINHTTP_NAME_NOT_RESOLVED:
        return SetFailure(result, NetworkFailure::NameNotFound);
    case ERROR_WINHTTP_CANNOT_CONNECT:
        return SetFailure(result, NetworkFailure::NoConnection);
    case ERROR_WINHTTP_CONNECTION_ERROR:
        return SetFailure(result, NetworkFailure::ConnectionLost);
    case ERROR_WINHTTP_SECURE_FAILURE:
        return SetFailure(result, NetworkFailure::NotSecure);
    default:
        return SetFailureNumber(result, number);
    }
}

InternetHandle OpenSession(const HttpTimeouts& timeouts) {
    const std::wstring agent = Text::Widen(HttpUserAgent);
    const auto open = [&](DWORD access) {
        return InternetHandle(
            WinHttpOpen(agent.c_str(), access, WINHTTP_NO_PROXY_NAME, WINHTTP_NO_PROXY_BYPASS, 0));
    };
    InternetHandle session = open(WINHTTP_ACCESS_TYPE_AUTOMATIC_PROXY);
    if (!session.IsOpen()) {
        session = open(WINHTTP_ACCESS_TYPE_DEFAULT_PROXY); // before Windows 8.1
    }
    if (session.IsOpen()) {
        WinHttpSetTimeouts(session.Get(), static_cast<int>(timeouts.resolve.count()),
                           static_cast<int>(timeouts.connect.count()),
                           static_cast<int>(timeouts.send.count()),
                           static_cast<int>(timeouts.receive.count()));
    }
    return session;
}

/// Asks, and waits for the head of the answer. False with the system's last error set on failure.
bool Ask(HINTERNET request, HttpResult& result) {
    constexpr const wchar_t* headers = L"Cache-Control: no-cache\r\nPragma: no-cache\r\n";
    constexpr DWORD endsInZero = static_cast<DWORD>(-1);
    DWORD status = 0;
    DWORD size = sizeof(status);
    if (WinHttpSendRequest(request, headers, endsInZero, WINHTTP_NO_REQUEST_DATA, 0, 0, 0) ==
            FALSE ||
        WinHttpReceiveResponse(request, nullptr) == FALSE ||
        WinHttpQueryHeaders(request, WINHTTP_QUERY_STATUS_CODE | WINHTTP_QUERY_FLAG_NUMBER,
                            WINHTTP_HEADER_NAME_BY_INDEX, &status, &size,
                            WINHTTP_NO_HEADER_INDEX) == FALSE) {
        return false;
    }
    result.status = status;
    return true;
}

/// Length that the server announced [bytes]; 0 where it did not.
std::uint64_t AnnouncedLength(HINTERNET request) {
    std::array<wchar_t, 32> text{};
    DWORD size = sizeof(text) - sizeof(wchar_t);
    if (WinHttpQueryHeaders(request, WINHTTP_QUERY_CONTENT_LENGTH, WINHTTP_HEADER_NAME_BY_INDEX,
                            text.data(), &size, WINHTTP_NO_HEADER_INDEX) == FALSE) {
        return 0;
    }
    return std::wcstoull(text.data(), nullptr, 10);
}

/// Reads the body to its end. False, with `error` set, when it broke off or does not fit.
bool ReadBody(HINTERNET request, std::uint64_t maxBytes, const StopAsked& stopAsked,
              HttpResult& result) {
    std::string buffer(BufferSize, '\0');
    for (;;) {
        if (IsStopped(stopAsked)) {
            result.error = StoppedText();
            return false;
        }
        DWORD count = 0;
        if (WinHttpReadData(request, buffer.data(), BufferSize, &count) == FALSE) {
            SetLastFailure(result);
            return false;
        }
        if (count == 0) {
            return true;
        }
        if (!AppendToBody(result, {buffer.data(), count}, maxBytes)) {
            return false;
        }
    }
}

} // namespace

HttpResult HttpGetWith(const std::string& url, std::uint64_t maxBytes, const HttpTimeouts& timeouts,
                       const StopAsked& stopAsked) {
    HttpResult result;
    Address address;
    if (!ParseAddress(url, address)) {
        SetInvalidAddress(result, url);
        return result;
    }
    const InternetHandle session = OpenSession(timeouts);
    if (!session.IsOpen()) {
        SetLastFailure(result);
        return result;
    }
    const InternetHandle connection(
        WinHttpConnect(session.Get(), address.host.c_str(), address.port, 0));
    if (!connection.IsOpen()) {
        SetLastFailure(result);
        return result;
    }
    const InternetHandle request(WinHttpOpenRequest(
        connection.Get(), L"GET", address.path.c_str(), nullptr, WINHTTP_NO_REFERER,
        WINHTTP_DEFAULT_ACCEPT_TYPES, address.isSecure ? WINHTTP_FLAG_SECURE : 0));
    if (!request.IsOpen() || !Ask(request.Get(), result)) {
        SetLastFailure(result);
        return result;
    }
    if (!ReadBody(request.Get(), maxBytes, stopAsked, result)) {
        return result;
    }
    JudgeStatus(result, url);
    // Not every version of the library tells a connection that closes early.
    if (result.ok && result.body.size() < AnnouncedLength(request.Get())) {
        result.ok = false;
        SetFailure(result, NetworkFailure::ConnectionLost);
    }
    return result;
}

} // namespace Merivane::Catalog
