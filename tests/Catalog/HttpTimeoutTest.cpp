#include <chrono>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "Catalog/HttpClient.hpp"
#include "HttpTest.hpp"
#include "NameLookup.hpp"
#include "Support/LoopbackServer.hpp"

namespace Merivane::Catalog {
namespace {

using std::chrono::milliseconds;
using Tests::HttpAnswer;
using Tests::LoopbackServer;
using Tests::ServerConnection;

constexpr milliseconds Short{250};
constexpr milliseconds Long{20000};

/// Limits of which only one can strike in a test.
HttpTimeouts OnlyShort(milliseconds HttpTimeouts::*step) {
    HttpTimeouts timeouts{Long, Long, Long, Long};
    timeouts.*step = Short;
    return timeouts;
}

class HttpTimeout : public HttpTest {
protected:
    /// Expects that the step with the short limit ends the fetch, and when it should.
    static void ExpectTimeout(const std::string& url, milliseconds HttpTimeouts::*step,
                              std::uint32_t status = 0, const std::string& body = {}) {
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(HttpGetWith(url, Megabyte, OnlyShort(step)),
                  (HttpResult{false, status, body, "o servidor demorou demais para responder"}));
        const auto lasted = std::chrono::steady_clock::now() - begin;
        EXPECT_GE(lasted, Short);
        EXPECT_LT(lasted, Tests::SlowLookUp); // nor was the look-up waited for
    }
};

/// Sends some bytes and then nothing.
Tests::Conversation FallSilentAfter(const std::string& sent) {
    return [sent](ServerConnection& connection) {
        connection.ReadHead();
        connection.Send(sent);
        connection.StaySilent();
    };
}

TEST_F(HttpTimeout, HasTheUsualLimits) {
    const HttpTimeouts usual;
    EXPECT_EQ(usual.resolve, milliseconds(10000));
    EXPECT_EQ(usual.connect, milliseconds(15000));
    EXPECT_EQ(usual.send, milliseconds(30000));
    EXPECT_EQ(usual.receive, milliseconds(60000));
}

TEST_F(HttpTimeout, EndsALookUpThatHangs) {
    ExpectTimeout("http://" + Tests::SlowName + "/", &HttpTimeouts::resolve);
}

TEST_F(HttpTimeout, EndsAConnectionThatIsNotTaken) {
    const Tests::UnansweringPort port;
    ExpectTimeout("http://127.0.0.1:" + std::to_string(port.Port()) + "/", &HttpTimeouts::connect);
}

TEST_F(HttpTimeout, EndsASecureConnectionThatIsTakenInSilence) {
    const LoopbackServer server([](ServerConnection& connection) { connection.StaySilent(); });
    ExpectTimeout("https://127.0.0.1:" + std::to_string(server.Port()) + "/",
                  &HttpTimeouts::connect);
}

TEST_F(HttpTimeout, EndsARequestThatIsNotTaken) {
    const LoopbackServer server([](ServerConnection& connection) { connection.StayDeaf(); });
    // Longer than what the system keeps for a server that does not read.
    ExpectTimeout(server.Address("/" + std::string(1000000, 'a')), &HttpTimeouts::send);
}

TEST_F(HttpTimeout, EndsTheWaitForAnAnswer) {
    const LoopbackServer silent(FallSilentAfter(""));
    ExpectTimeout(silent.Address("/"), &HttpTimeouts::receive);
}

TEST_F(HttpTimeout, EndsAnAnswerThatFallsSilentInItsHead) {
    const LoopbackServer inLine(FallSilentAfter("HTTP/1.1 200"));
    ExpectTimeout(inLine.Address("/"), &HttpTimeouts::receive);
    const LoopbackServer inHead(FallSilentAfter("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n"));
    ExpectTimeout(inHead.Address("/"), &HttpTimeouts::receive, 200);
}

TEST_F(HttpTimeout, EndsAnAnswerThatFallsSilentInItsBody) {
    const LoopbackServer server(FallSilentAfter("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nabc"));
    ExpectTimeout(server.Address("/"), &HttpTimeouts::receive, 200, "abc");
}

TEST_F(HttpTimeout, EndsASilentServerBehindARedirect) {
    const LoopbackServer silent(FallSilentAfter(""));
    const LoopbackServer server(Tests::AnswerWith(
        HttpAnswer("302 Found", "", "Location: " + silent.Address("/") + "\r\n")));
    ExpectTimeout(server.Address("/"), &HttpTimeouts::receive);
}

TEST_F(HttpTimeout, EndsTheWaitForAProxy) {
    const LoopbackServer proxy(FallSilentAfter(""));
    const Tests::Variable variable("https_proxy", proxy.Address("/"));
    ExpectTimeout("https://catalogo.invalid/", &HttpTimeouts::connect);
}

TEST_F(HttpTimeout, IsNotWaitedForByWhoAsksToStop) {
    using Clock = std::chrono::steady_clock;
    const LoopbackServer silent(FallSilentAfter(""));
    const LoopbackServer dripping([](ServerConnection& connection) {
        connection.ReadHead();
        connection.Send("HTTP/1.1 200 OK\r\nContent-Length: 400\r\n\r\n");
        while (connection.Send("a")) {
            std::this_thread::sleep_for(milliseconds(50));
        }
    });
    const Tests::UnansweringPort deaf;
    const std::string urls[] = {silent.Address("/"), dripping.Address("/"),
                                "http://127.0.0.1:" + std::to_string(deaf.Port()) + "/",
                                "http://" + Tests::SlowName + "/"};
    for (const std::string& url : urls) {
        const auto begin = Clock::now();
        const HttpResult result = HttpGetWith(url, Megabyte, HttpTimeouts{}, [begin] {
            return Clock::now() - begin > milliseconds(300);
        });
        EXPECT_LT(Clock::now() - begin, milliseconds(1300)) << url;
        EXPECT_FALSE(result.ok);
        EXPECT_EQ(result.error, "a busca foi interrompida") << url;
    }
}

TEST_F(HttpTimeout, IsOneOfSilenceNotOfLength) {
    const LoopbackServer server([](ServerConnection& connection) {
        connection.ReadHead();
        connection.Send("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n");
        for (int i = 0; i < 4; ++i) {
            std::this_thread::sleep_for(milliseconds(300));
            connection.Send("a");
        }
    });
    const milliseconds limit{800}; // less than the whole takes
    EXPECT_EQ(HttpGetWith(server.Address("/"), Megabyte, {limit, limit, limit, limit}),
              (HttpResult{true, 200, "aaaa", ""}));
}

} // namespace
} // namespace Merivane::Catalog
