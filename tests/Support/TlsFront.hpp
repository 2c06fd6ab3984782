#pragma once

#include <filesystem>
#include <string>

namespace Merivane::Tests {

/// Files of a certificate that signs itself, in PEM.
struct Certificate {
    std::filesystem::path certificate;
    std::filesystem::path key;
};

/// Makes one in `folder`, with OpenSSL's program. `names` as OpenSSL writes the names that it holds
/// for: "DNS:localhost,IP:127.0.0.1". Valid from now on for `days`; -1 makes one that ended a day
/// ago.
Certificate MakeCertificate(const std::filesystem::path& folder, const std::string& names,
                            int days = 2);

/// A TLS server on 127.0.0.1, a process of its own, before a plain one. Its connections end without
/// TLS's own goodbye, as those of many servers do.
class TlsFront {
public:
    TlsFront(const Certificate& certificate, int plainPort);
    ~TlsFront();
    TlsFront(const TlsFront&) = delete;
    TlsFront& operator=(const TlsFront&) = delete;

    int Port() const { return port; }

private:
    int process = -1;
    int input = -1; ///< write end of the standard input that keeps it alive
    int port = 0;
};

} // namespace Merivane::Tests
