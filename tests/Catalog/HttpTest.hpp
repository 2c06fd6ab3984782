#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/HttpClient.hpp"
#include "Support/LoopbackServer.hpp"
#include "Support/Variable.hpp"

namespace Merivane::Catalog {

inline void PrintTo(const HttpResult& result, std::ostream* out) {
    *out << (result.ok ? "ok, " : "not ok, ") << result.status << ", " << result.body.size()
         << " bytes \"" << result.body.substr(0, 80) << "\", error \"" << result.error << '"';
}

/// Tests that talk with servers on loopback: no proxy and no certificates from the environment.
class HttpTest : public testing::Test {
protected:
    static constexpr std::uint64_t Megabyte = 1048576;

    static HttpResult Get(const std::string& url) { return HttpGet(url, Megabyte); }

private:
    Tests::Variable httpProxy{"http_proxy", std::nullopt};
    Tests::Variable httpsProxy{"https_proxy", std::nullopt};
    Tests::Variable httpsProxyCapitals{"HTTPS_PROXY", std::nullopt};
    Tests::Variable allProxy{"all_proxy", std::nullopt};
    Tests::Variable allProxyCapitals{"ALL_PROXY", std::nullopt};
    Tests::Variable noProxy{"no_proxy", std::nullopt};
    Tests::Variable noProxyCapitals{"NO_PROXY", std::nullopt};
    Tests::Variable certificates{"SSL_CERT_FILE", std::nullopt};
};

} // namespace Merivane::Catalog
