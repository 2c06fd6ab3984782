// libcurl's own limits know no silence in either direction and don't tell the four steps apart. So
// a clock of ours watches which step a transfer is in and when it last showed life.

#include "Catalog/HttpTransferPosix.hpp"

#include <algorithm>
#include <new>
#include <string_view>

#include "Catalog/HttpAnswer.hpp"
#include "Text/Ascii.hpp"

namespace Merivane::Catalog {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr long FirstRedirectStatus = 300;
constexpr long FirstErrorStatus = 400;
constexpr std::uint32_t AnswerTooLarge = 100; // CURLE_TOO_LARGE, which older headers don't name
constexpr milliseconds BetweenQuestions{200}; // whether to stop

/// A transfer's place in a multi handle, which alone lets a caller wait with a clock of its own.
class MultiHandle {
public:
    explicit MultiHandle(CURL* transfer) : multi(curl_multi_init()), easy(transfer) {
        curl_multi_add_handle(multi, easy);
    }
    ~MultiHandle() {
        curl_multi_remove_handle(multi, easy);
        curl_multi_cleanup(multi);
    }
    MultiHandle(const MultiHandle&) = delete;
    MultiHandle& operator=(const MultiHandle&) = delete;

    CURLM* Get() const { return multi; }

private:
    CURLM* multi;
    CURL* easy;
};

enum class Step { Resolve, Connect, Send, Receive };

/// One address of a chain, being fetched.
struct Transfer {
    CURL* easy = nullptr;
    HttpResult& result;
    const TransferLimits& limits;
    std::uint64_t headBytes = 0; ///< received beside the body
    std::uint64_t bodyBytes = 0; ///< the body as it came, its chunks' own lines included
    Step step = Step::Resolve;
    Clock::time_point quietSince = Clock::now(); ///< begin of the step, or its last sign of life
};

void Enter(Transfer& transfer, Step step) {
    if (transfer.step != step) {
        transfer.step = step;
        transfer.quietSince = Clock::now();
    }
}

Clock::time_point Deadline(const Transfer& transfer, const HttpTimeouts& timeouts) {
    switch (transfer.step) {
    case Step::Resolve:
        return transfer.quietSince + timeouts.resolve;
    case Step::Connect:
        return transfer.quietSince + timeouts.connect;
    case Step::Send:
        return transfer.quietSince + timeouts.send;
    case Step::Receive:
        break;
    }
    return transfer.quietSince + timeouts.receive;
}

int OnResolve(void*, void*, void* transfer) {
    Enter(*static_cast<Transfer*>(transfer), Step::Resolve);
    return 0;
}

int OnSocket(void* transfer, curl_socket_t, curlsocktype) {
    Enter(*static_cast<Transfer*>(transfer), Step::Connect);
    return CURL_SOCKOPT_OK;
}

int OnConnected(void* transfer, char*, char*, int, int) {
    Enter(*static_cast<Transfer*>(transfer), Step::Send);
    return CURL_PREREQFUNC_OK;
}

/// The only place where the library tells that the request has left.
int OnTrace(CURL*, curl_infotype kind, char* bytes, std::size_t size, void* data) {
    auto& transfer = *static_cast<Transfer*>(data);
    if (kind == CURLINFO_DATA_IN) {
        transfer.bodyBytes += size;
    }
    if (transfer.step == Step::Send && kind == CURLINFO_HEADER_OUT &&
        std::string_view(bytes, size).ends_with("\r\n\r\n")) {
        Enter(transfer, Step::Receive);
    }
    return 0;
}

/// Ends the transfer behind the head of a redirect: what follows is for readers of pages, and may
/// have no end. Nor may heads and trailers.
std::size_t OnHeaderLine(char* bytes, std::size_t, std::size_t size, void* data) {
    auto& transfer = *static_cast<Transfer*>(data);
    const std::string_view line(bytes, size);
    transfer.headBytes += size;
    if (transfer.headBytes > LargestHead) {
        SetFailureNumber(transfer.result, AnswerTooLarge);
        return 0;
    }
    const bool isEndOfHead = line == "\r\n" || line == "\n";
    return isEndOfHead && !Location(transfer.easy).empty() ? 0 : size;
}

std::size_t OnBody(char* bytes, std::size_t, std::size_t size, void* data) {
    auto& transfer = *static_cast<Transfer*>(data);
    try {
        return AppendToBody(transfer.result, {bytes, size}, transfer.limits.maxBytes) ? size : 0;
    } catch (const std::bad_alloc&) {
        SetFailureNumber(transfer.result, CURLE_OUT_OF_MEMORY);
        return 0;
    }
}

void SetCallbacks(CURL* easy, Transfer& transfer) {
    curl_easy_setopt(easy, CURLOPT_RESOLVER_START_FUNCTION, OnResolve);
    curl_easy_setopt(easy, CURLOPT_RESOLVER_START_DATA, &transfer);
    curl_easy_setopt(easy, CURLOPT_SOCKOPTFUNCTION, OnSocket);
    curl_easy_setopt(easy, CURLOPT_SOCKOPTDATA, &transfer);
    curl_easy_setopt(easy, CURLOPT_PREREQFUNCTION, OnConnected);
    curl_easy_setopt(easy, CURLOPT_PREREQDATA, &transfer);
    curl_easy_setopt(easy, CURLOPT_VERBOSE, 1L); // without it nothing is traced
    curl_easy_setopt(easy, CURLOPT_DEBUGFUNCTION, OnTrace);
    curl_easy_setopt(easy, CURLOPT_DEBUGDATA, &transfer);
    curl_easy_setopt(easy, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L); // a proxy's answers
    curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, OnHeaderLine);
    curl_easy_setopt(easy, CURLOPT_HEADERDATA, &transfer);
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, OnBody);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, &transfer);
}

/// True where lines between the chunks of a body go on and on: even in chunks of one byte each it
/// is but a sixth of what comes.
bool IsAllChunkLines(const Transfer& transfer) {
    constexpr std::uint64_t WorstShare = 8;
    return transfer.bodyBytes > LargestHead + WorstShare * transfer.result.body.size();
}

/// How long nothing need be looked at but the connection.
milliseconds LongestWait(const Transfer& transfer) {
    const milliseconds left = std::chrono::ceil<milliseconds>(
        Deadline(transfer, transfer.limits.timeouts) - Clock::now());
    return transfer.limits.stopAsked ? std::min(left, BetweenQuestions) : left;
}

/// Runs the transfer to its end or to the end of our patience.
CURLcode Run(Transfer& transfer) {
    const MultiHandle multi(transfer.easy);
    for (;;) {
        int running = 0;
        if (curl_multi_perform(multi.Get(), &running) != CURLM_OK) {
            return CURLE_FAILED_INIT;
        }
        if (running == 0) {
            int left = 0;
            const CURLMsg* message = curl_multi_info_read(multi.Get(), &left);
            return message != nullptr ? message->data.result : CURLE_FAILED_INIT;
        }
        if (IsStopped(transfer.limits.stopAsked)) {
            transfer.result.error = StoppedText();
            return CURLE_WRITE_ERROR;
        }
        if (IsAllChunkLines(transfer)) {
            SetFailureNumber(transfer.result, AnswerTooLarge);
            return CURLE_WRITE_ERROR;
        }
        const milliseconds left = LongestWait(transfer);
        if (left <= milliseconds::zero()) {
            return CURLE_OPERATION_TIMEDOUT;
        }
        int active = 0;
        curl_multi_poll(multi.Get(), nullptr, 0, static_cast<int>(left.count()), &active);
        if (active > 0 && (transfer.step == Step::Send || transfer.step == Step::Receive)) {
            transfer.quietSince = Clock::now();
        }
    }
}

} // namespace

CURLcode RunTransfer(CURL* easy, const TransferLimits& limits, HttpResult& result) {
    Transfer transfer{easy, result, limits};
    SetCallbacks(easy, transfer);
    return Run(transfer);
}

std::string Location(CURL* easy) {
    long status = 0;
    curl_easy_getinfo(easy, CURLINFO_RESPONSE_CODE, &status);
    curl_header* header = nullptr;
    if (status < FirstRedirectStatus || status >= FirstErrorStatus ||
        curl_easy_header(easy, "Location", 0, CURLH_HEADER, -1, &header) != CURLHE_OK) {
        return {};
    }
    return std::string(Text::Trim(header->value)); // of an empty line the library leaves its end
}

} // namespace Merivane::Catalog
