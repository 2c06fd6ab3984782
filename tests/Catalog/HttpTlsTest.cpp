#include <string>

#include <gtest/gtest.h>

#include "Catalog/HttpClient.hpp"
#include "HttpTest.hpp"
#include "Support/LoopbackServer.hpp"
#include "Support/Places.hpp"
#include "Support/TlsFront.hpp"

namespace Merivane::Catalog {
namespace {

using Tests::AnswerByPath;
using Tests::AnswerWith;
using Tests::Certificate;
using Tests::HttpAnswer;
using Tests::LoopbackServer;
using Tests::MakeCertificate;
using Tests::TlsFront;
using Tests::Variable;

const HttpResult NotSecure{false, 0, "", "falha na conexao segura (certificado)"};

class HttpTls : public HttpTest {
protected:
    static std::string Address(const std::string& host, const TlsFront& front,
                               const std::string& path) {
        return "https://" + host + ":" + std::to_string(front.Port()) + path;
    }

    /// A fetch with a certificate that is trusted.
    static HttpResult GetTrusting(const Certificate& certificate, const std::string& url) {
        const Variable trusted("SSL_CERT_FILE", certificate.certificate.string());
        return Get(url);
    }

    Tests::TemporaryFolder folder;
    Certificate local = MakeCertificate(folder.Path(), "DNS:localhost,IP:127.0.0.1");
};

TEST_F(HttpTls, BringsTheBodyFromAServerWithAGoodCertificate) {
    const std::string bytes(300000, 'x');
    const LoopbackServer plain(AnswerWith(HttpAnswer("200 OK", bytes)));
    const TlsFront front(local, plain.Port());
    for (const char* host : {"localhost", "127.0.0.1"}) {
        EXPECT_EQ(GetTrusting(local, Address(host, front, "/a.json")),
                  (HttpResult{true, 200, bytes, ""}));
    }
    ASSERT_EQ(plain.Heads().size(), 2U);
    EXPECT_EQ(plain.Heads().front(),
              "GET /a.json HTTP/1.1\r\nHost: localhost:" + std::to_string(front.Port()) +
                  "\r\nUser-Agent: Vantoro/1.0 (Archicad add-on)\r\n"
                  "Cache-Control: no-cache\r\nPragma: no-cache\r\n\r\n");
}

TEST_F(HttpTls, TellsStatusesAndTheLimitAsWithoutTls) {
    const LoopbackServer plain(AnswerByPath({{"/500", HttpAnswer("500 Server Error", "erro")}}));
    const TlsFront front(local, plain.Port());
    const std::string missing = Address("localhost", front, "/404");
    EXPECT_EQ(GetTrusting(local, missing),
              (HttpResult{false, 404, "", "arquivo nao encontrado no servidor (404): " + missing}));
    const std::string broken = Address("localhost", front, "/500");
    EXPECT_EQ(GetTrusting(local, broken),
              (HttpResult{false, 500, "erro", "o servidor respondeu 500 para " + broken}));
    const Variable trusted("SSL_CERT_FILE", local.certificate.string());
    EXPECT_EQ(HttpGet(broken, 3),
              (HttpResult{false, 500, "", "arquivo grande demais (mais de 0 MB)"}));
}

TEST_F(HttpTls, RefusesACertificateThatNobodySigned) {
    const LoopbackServer plain(AnswerWith(HttpAnswer("200 OK", "")));
    const TlsFront front(local, plain.Port());
    EXPECT_EQ(Get(Address("localhost", front, "/")), NotSecure);
    EXPECT_TRUE(plain.Heads().empty());
}

TEST_F(HttpTls, RefusesTheCertificateOfAnotherServer) {
    const Certificate other = MakeCertificate(folder.Path(), "DNS:outro.invalid");
    const LoopbackServer plain(AnswerWith(HttpAnswer("200 OK", "")));
    const TlsFront front(other, plain.Port());
    EXPECT_EQ(GetTrusting(other, Address("localhost", front, "/")), NotSecure);
    EXPECT_TRUE(plain.Heads().empty());
}

TEST_F(HttpTls, RefusesACertificateWhoseTimeIsOver) {
    const Certificate old = MakeCertificate(folder.Path(), "DNS:localhost", -1);
    const LoopbackServer plain(AnswerWith(HttpAnswer("200 OK", "")));
    const TlsFront front(old, plain.Port());
    EXPECT_EQ(GetTrusting(old, Address("localhost", front, "/")), NotSecure);
    EXPECT_TRUE(plain.Heads().empty());
}

TEST_F(HttpTls, RefusesAServerThatSpeaksNoTls) {
    const LoopbackServer plain(AnswerWith(HttpAnswer("200 OK", "")));
    const LoopbackServer chatty([](Tests::ServerConnection& connection) {
        connection.Send("220 servidor de correio\r\n");
        connection.StaySilent();
    });
    EXPECT_EQ(Get("https://127.0.0.1:" + std::to_string(chatty.Port()) + "/"), NotSecure);
}

TEST_F(HttpTls, KeepsTheSystemsCertificatesWhereTheEnvironmentNamesNone) {
    const LoopbackServer plain(AnswerWith(HttpAnswer("200 OK", "")));
    const TlsFront front(local, plain.Port());
    const Variable none("SSL_CERT_FILE", "");
    EXPECT_EQ(Get(Address("localhost", front, "/")), NotSecure);
    EXPECT_TRUE(plain.Heads().empty());
}

TEST_F(HttpTls, TellsAFileOfCertificatesThatIsNotThere) {
    const LoopbackServer plain(AnswerWith(HttpAnswer("200 OK", "")));
    const TlsFront front(local, plain.Port());
    const Variable trusted("SSL_CERT_FILE", (folder.Path() / "nenhum.pem").string());
    EXPECT_EQ(Get(Address("localhost", front, "/")), NotSecure);
}

TEST_F(HttpTls, TellsAnAnswerThatBreaksOff) {
    const LoopbackServer plain(AnswerWith("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nabc"));
    const TlsFront front(local, plain.Port());
    EXPECT_EQ(GetTrusting(local, Address("localhost", front, "/")),
              (HttpResult{false, 200, "abc", "a conexao caiu"}));
}

TEST_F(HttpTls, IsNotLeftByARedirect) {
    const LoopbackServer target(AnswerWith(HttpAnswer("200 OK", "")));
    const LoopbackServer plain(
        AnswerWith(HttpAnswer("302 Found", "mudou", "Location: " + target.Address("/") + "\r\n")));
    const TlsFront front(local, plain.Port());
    const std::string url = Address("localhost", front, "/a");
    EXPECT_EQ(GetTrusting(local, url),
              (HttpResult{false, 302, "", "o servidor respondeu 302 para " + url}));
    EXPECT_TRUE(target.Heads().empty());
}

TEST_F(HttpTls, IsNotLeftByALaterRedirectOfAChainThatEnteredIt) {
    const LoopbackServer target(AnswerWith(HttpAnswer("200 OK", "")));
    const LoopbackServer plain(
        AnswerWith(HttpAnswer("302 Found", "mudou", "Location: " + target.Address("/") + "\r\n")));
    const TlsFront front(local, plain.Port());
    const LoopbackServer entry(AnswerWith(
        HttpAnswer("301 Moved", "", "Location: " + Address("localhost", front, "/a") + "\r\n")));
    const std::string url = entry.Address("/");
    EXPECT_EQ(GetTrusting(local, url),
              (HttpResult{false, 302, "", "o servidor respondeu 302 para " + url}));
    EXPECT_TRUE(target.Heads().empty());
}

TEST_F(HttpTls, IsNotRememberedForTheNextCall) {
    const LoopbackServer plain(AnswerWith(HttpAnswer(
        "200 OK", "", "Strict-Transport-Security: max-age=31536000; includeSubDomains\r\n")));
    const TlsFront front(local, plain.Port());
    EXPECT_EQ(GetTrusting(local, Address("localhost", front, "/")),
              (HttpResult{true, 200, "", ""}));
    EXPECT_EQ(Get("http://localhost:" + std::to_string(plain.Port()) + "/"),
              (HttpResult{true, 200, "", ""}));
}

TEST_F(HttpTls, IsEnteredAndKeptByRedirects) {
    const LoopbackServer plain(
        AnswerByPath({{"/a", HttpAnswer("302 Found", "mudou", "Location: b\r\n")},
                      {"/b", HttpAnswer("200 OK", "seguro")}}));
    const TlsFront front(local, plain.Port());
    const LoopbackServer entry(AnswerWith(
        HttpAnswer("301 Moved", "", "Location: " + Address("localhost", front, "/a") + "\r\n")));
    EXPECT_EQ(GetTrusting(local, entry.Address("/")), (HttpResult{true, 200, "seguro", ""}));
}

} // namespace
} // namespace Merivane::Catalog
