#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Merivane::Tests {

struct ServerState;

/// The server's end of one connection.
class ServerConnection {
public:
    ServerConnection(int connectionNumber, ServerState& serverState);

    /// Reads the head of a request, its empty line included; empty when the client is gone.
    std::string ReadHead();

    /// Sends bytes; false when the client no longer takes them.
    bool Send(std::string_view bytes);

    /// Reads what comes and says nothing until the client leaves or the server ends.
    void StaySilent();

    /// Reads nothing either.
    void StayDeaf();

    /// The connection ends in a reset, not in order.
    void Reset();

private:
    int connection;
    ServerState& server;
};

/// What a server does with one connection; it is closed afterwards.
using Conversation = std::function<void(ServerConnection&)>;

/// A server on 127.0.0.1 that takes one connection after the other.
class LoopbackServer {
public:
    explicit LoopbackServer(Conversation conversation);
    ~LoopbackServer();
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    int Port() const;

    /// "http://127.0.0.1:PORT" and `path`.
    std::string Address(const std::string& path) const;

    /// The heads of the requests read so far, in order.
    std::vector<std::string> Heads() const;

private:
    std::unique_ptr<ServerState> state;
};

/// A port of 127.0.0.1 that neither takes nor refuses a connection.
class UnansweringPort {
public:
    UnansweringPort();
    ~UnansweringPort();
    UnansweringPort(const UnansweringPort&) = delete;
    UnansweringPort& operator=(const UnansweringPort&) = delete;

    int Port() const { return port; }

private:
    std::vector<int> sockets;
    int port = 0;
};

/// A port of 127.0.0.1 that nobody listens at.
int ClosedPort();

/// A whole answer: "200 OK" or another status, the length of the body, the body. `headers` are
/// lines of their own, each with CR LF.
std::string HttpAnswer(const std::string& status, const std::string& body,
                       const std::string& headers = {});

/// Sends `answer` to the first request.
Conversation AnswerWith(const std::string& answer);

/// Answers by the path of the request, "404 Not Found" where there is none such.
Conversation AnswerByPath(std::map<std::string, std::string> answers);

} // namespace Merivane::Tests
