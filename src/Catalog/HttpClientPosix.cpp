// libcurl can't be told to leave only redirects away from https alone, so each address of a chain
// is a request of its own.

#include "Catalog/HttpClient.hpp"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <locale.h>

#include <curl/curl.h>

#include "Catalog/HttpAnswer.hpp"
#include "Catalog/HttpTransferPosix.hpp"
#include "Text/Ascii.hpp"

namespace Merivane::Catalog {

namespace {

using std::chrono::milliseconds;

constexpr long BufferSize = 65536; // bytes
constexpr long FirstRefusal = 300; // status of a proxy that does not connect us
constexpr unsigned AddressFlags = CURLU_URLENCODE | CURLU_ALLOW_SPACE;

struct Release {
    void operator()(CURL* easy) const { curl_easy_cleanup(easy); }
    void operator()(CURLU* address) const { curl_url_cleanup(address); }
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using AddressHandle = std::unique_ptr<CURLU, Release>;
using EasyHandle = std::unique_ptr<CURL, Release>;
using ListHandle = std::unique_ptr<curl_slist, Release>;

/// UTF-8 as the encoding of this thread: the library reads a server's name with accents in that of
/// the locale, and a host may have set any.
class Utf8Locale {
public:
    Utf8Locale() : own(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {
        if (own != nullptr) {
            before = ::uselocale(own);
        }
    }
    ~Utf8Locale() {
        if (own != nullptr) {
            ::uselocale(before);
            ::freelocale(own);
        }
    }
    Utf8Locale(const Utf8Locale&) = delete;
    Utf8Locale& operator=(const Utf8Locale&) = delete;

private:
    locale_t own;
    locale_t before = nullptr;
};

std::string Part(CURLU* address, CURLUPart part) {
    char* text = nullptr;
    if (curl_url_get(address, part, &text, 0) != CURLUE_OK) {
        return {};
    }
    std::string copy = text;
    curl_free(text);
    return copy;
}

bool IsWebScheme(const std::string& scheme) {
    return scheme == "http" || scheme == "https";
}

/// False for "http:/name" and "http:///name", also as "https": the library forgives them, nobody
/// else does. True for what does not begin with a scheme of the web.
bool BeginsWell(const std::string& url) {
    const std::size_t colon = url.find(':');
    const std::string_view rest = std::string_view{url}.substr(std::min(colon, url.size()));
    return !IsWebScheme(Text::ToLower(url.substr(0, colon))) ||
           (rest.starts_with("://") && !rest.starts_with(":///"));
}

/// Null for a text that is no address of the web.
AddressHandle ParseAddress(const std::string& url) {
    AddressHandle address(curl_url());
    // The path goes out as it is written: what "." and ".." mean is the server's affair.
    const unsigned flags = AddressFlags | CURLU_PATH_AS_IS;
    if (!CanBeAddress(url) ||
        curl_url_set(address.get(), CURLUPART_URL, url.c_str(), flags) != CURLUE_OK) {
        return nullptr;
    }
    if (!IsWebScheme(Part(address.get(), CURLUPART_SCHEME)) || !BeginsWell(url)) {
        return nullptr;
    }
    return address;
}

ListHandle RequestHeaders() {
    curl_slist* list = nullptr;
    // "Accept:" takes the library's own "Accept: */*" away.
    for (const char* line : {"Cache-Control: no-cache", "Pragma: no-cache", "Accept:"}) {
        list = curl_slist_append(list, line);
    }
    return ListHandle(list);
}

void SetRequest(CURL* easy, CURLU* address, curl_slist* headers, const HttpTimeouts& timeouts) {
    curl_url_set(address, CURLUPART_USER, nullptr, 0);
    curl_url_set(address, CURLUPART_PASSWORD, nullptr, 0);
    curl_easy_setopt(easy, CURLOPT_CURLU, address);
    curl_easy_setopt(easy, CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(easy, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(easy, CURLOPT_USERAGENT, HttpUserAgent.data());
    curl_easy_setopt(easy, CURLOPT_HTTPHEADER, headers);
    curl_easy_setopt(easy, CURLOPT_BUFFERSIZE, BufferSize);
    // Of a name with several addresses none may eat up the time of the next: the library shares
    // this out among them, our own limits strike before it is over.
    const milliseconds connecting = timeouts.resolve + timeouts.connect;
    curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(connecting.count()));
    // A look-up that hangs is left behind, not waited for.
    curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L);
    // The certificates of a company's own proxy; the library does not look here by itself.
    const char* certificates = std::getenv("SSL_CERT_FILE");
    if (certificates != nullptr && *certificates != '\0') {
        curl_easy_setopt(easy, CURLOPT_CAINFO, certificates);
        curl_easy_setopt(easy, CURLOPT_PROXY_CAINFO, certificates);
    }
}

void SetError(HttpResult& result, CURLcode code) {
    switch (code) {
    case CURLE_OPERATION_TIMEDOUT:
        return SetFailure(result, NetworkFailure::TimedOut);
    case CURLE_URL_MALFORMAT:
        return SetFailure(result, NetworkFailure::InvalidAddress);
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
        return SetFailure(result, NetworkFailure::NameNotFound);
    case CURLE_COULDNT_CONNECT:
    case CURLE_PROXY:
        return SetFailure(result, NetworkFailure::NoConnection);
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
        return SetFailure(result, NetworkFailure::ConnectionLost);
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_CACERT_BADFILE:
    case CURLE_SSL_CRL_BADFILE:
    case CURLE_SSL_ISSUER_ERROR:
    case CURLE_SSL_INVALIDCERTSTATUS:
    case CURLE_SSL_CLIENTCERT:
        return SetFailure(result, NetworkFailure::NotSecure);
    default:
        return SetFailureNumber(result, static_cast<std::uint32_t>(code));
    }
}

/// True when a proxy refused to connect us with a secure server.
bool IsRefusedByProxy(CURL* easy) {
    long status = 0;
    curl_easy_getinfo(easy, CURLINFO_HTTP_CONNECTCODE, &status);
    return status >= FirstRefusal;
}

/// What a transfer that is the last of its chain came to.
void Conclude(CURL* easy, CURLcode code, const std::string& url, HttpResult& result) {
    long status = 0;
    curl_easy_getinfo(easy, CURLINFO_RESPONSE_CODE, &status);
    result.status = static_cast<std::uint32_t>(status);
    if (!result.error.empty()) {
        return; // it was broken off here
    }
    if (code == CURLE_OK) {
        JudgeStatus(result, url);
    } else if (IsRefusedByProxy(easy)) {
        SetFailure(result, NetworkFailure::NoConnection);
    } else {
        SetError(result, code);
    }
}

bool IsSecure(CURLU* address) {
    return Part(address, CURLUPART_SCHEME) == "https";
}

/// Moves `address` to where an answer sends us; false when that is no address of the web.
bool Move(CURLU* address, const std::string& location) {
    return BeginsWell(location) &&
           curl_url_set(address, CURLUPART_URL, location.c_str(), AddressFlags) == CURLUE_OK &&
           IsWebScheme(Part(address, CURLUPART_SCHEME));
}

} // namespace

HttpResult HttpGetWith(const std::string& url, std::uint64_t maxBytes, const HttpTimeouts& timeouts,
                       const StopAsked& stopAsked) {
    const Utf8Locale names;
    HttpResult result;
    const AddressHandle address = ParseAddress(url);
    if (!address) {
        SetInvalidAddress(result, url);
        return result;
    }
    const ListHandle headers = RequestHeaders();
    for (int redirects = 0;; ++redirects) {
        const EasyHandle easy(curl_easy_init());
        SetRequest(easy.get(), address.get(), headers.get(), timeouts);
        const CURLcode code = RunTransfer(easy.get(), {maxBytes, timeouts, stopAsked}, result);
        const bool isRedirect = code == CURLE_WRITE_ERROR && result.error.empty();
        const std::string location = isRedirect ? Location(easy.get()) : "";
        if (location.empty()) {
            Conclude(easy.get(), code, url, result);
            return result;
        }
        if (redirects == MaximumRedirects) {
            SetError(result, CURLE_TOO_MANY_REDIRECTS);
            return result;
        }
        const bool wasSecure = IsSecure(address.get());
        if (!Move(address.get(), location)) {
            SetFailure(result, NetworkFailure::InvalidAddress);
            return result;
        }
        if (wasSecure && !IsSecure(address.get())) {
            // As if it led nowhere: its status is what the user is told.
            Conclude(easy.get(), CURLE_OK, url, result);
            return result;
        }
    }
}

} // namespace Merivane::Catalog
