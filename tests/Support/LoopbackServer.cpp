#include "Support/LoopbackServer.hpp"

#include <array>
#include <mutex>
#include <thread>
#include <utility>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace Merivane::Tests {

struct ServerState {
    Conversation conversation;
    int listener = -1;
    int port = 0;
    std::array<int, 2> stop = {-1, -1}; ///< a pipe whose read end becomes readable at the end
    std::mutex guard;
    std::vector<std::string> heads;
    std::thread thread;
};

namespace {

constexpr int NoLimit = -1; // ms

sockaddr_in LoopbackAddress(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

int OpenSocket(int kind) {
    const int number = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | kind, 0);
    EXPECT_GE(number, 0);
    return number;
}

/// Binds a socket to a free port and returns that.
int Bind(int number) {
    sockaddr_in address = LoopbackAddress(0);
    socklen_t size = sizeof address;
    EXPECT_EQ(::bind(number, reinterpret_cast<sockaddr*>(&address), size), 0);
    EXPECT_EQ(::getsockname(number, reinterpret_cast<sockaddr*>(&address), &size), 0);
    return ntohs(address.sin_port);
}

/// Waits until `number` is ready for `events`; false when the server ends first.
bool WaitFor(int number, short events, int stop) {
    std::array<pollfd, 2> watched = {pollfd{number, events, 0}, pollfd{stop, POLLIN, 0}};
    ::poll(watched.data(), watched.size(), NoLimit);
    return watched[1].revents == 0;
}

void Serve(ServerState& state) {
    while (WaitFor(state.listener, POLLIN, state.stop[0])) {
        const int number = ::accept4(state.listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (number < 0) {
            continue;
        }
        ServerConnection connection(number, state);
        state.conversation(connection);
        ::close(number);
    }
}
} // namespace

ServerConnection::ServerConnection(int connectionNumber, ServerState& serverState)
    : connection(connectionNumber), server(serverState) {}

std::string ServerConnection::ReadHead() {
    std::string head;
    char byte = 0;
    while (!head.ends_with("\r\n\r\n")) {
        if (!WaitFor(connection, POLLIN, server.stop[0]) || ::recv(connection, &byte, 1, 0) <= 0) {
            return {};
        }
        head += byte;
    }
    const std::lock_guard lock(server.guard);
    server.heads.push_back(head);
    return head;
}

bool ServerConnection::Send(std::string_view bytes) {
    while (!bytes.empty()) {
        if (!WaitFor(connection, POLLOUT, server.stop[0])) {
            return false;
        }
        const ssize_t count =
            ::send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

void ServerConnection::StaySilent() {
    std::array<char, 65536> buffer;
    while (WaitFor(connection, POLLIN, server.stop[0]) &&
           ::recv(connection, buffer.data(), buffer.size(), 0) > 0) {
    }
}

void ServerConnection::StayDeaf() {
    WaitFor(connection, 0, server.stop[0]);
}

void ServerConnection::Reset() {
    const linger atOnce{1, 0};
    ::setsockopt(connection, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
}

LoopbackServer::LoopbackServer(Conversation conversation) : state(std::make_unique<ServerState>()) {
    state->conversation = std::move(conversation);
    state->listener = OpenSocket(0);
    // The packets and the memory of a connection through a real network: a client that sends to
    // deaf ears notices soon. Of loopback's own the system would take a megabyte first.
    const int bufferSize = 4096;
    const int packetSize = 1400;
    ::setsockopt(state->listener, SOL_SOCKET, SO_RCVBUF, &bufferSize, sizeof bufferSize);
    ::setsockopt(state->listener, IPPROTO_TCP, TCP_MAXSEG, &packetSize, sizeof packetSize);
    state->port = Bind(state->listener);
    EXPECT_EQ(::listen(state->listener, SOMAXCONN), 0);
    EXPECT_EQ(::pipe2(state->stop.data(), O_CLOEXEC), 0);
    state->thread = std::thread([this] { Serve(*state); });
}

LoopbackServer::~LoopbackServer() {
    ::close(state->stop[1]); // the read end becomes readable
    state->thread.join();
    ::close(state->stop[0]);
    ::close(state->listener);
}

int LoopbackServer::Port() const {
    return state->port;
}

std::string LoopbackServer::Address(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(state->port) + path;
}

std::vector<std::string> LoopbackServer::Heads() const {
    const std::lock_guard lock(state->guard);
    return state->heads;
}

// The system keeps as many connections waiting as the listener allows and lets what comes then
// wait for an answer: that many are made here and never taken.
UnansweringPort::UnansweringPort() {
    sockets.push_back(OpenSocket(0));
    port = Bind(sockets.front());
    EXPECT_EQ(::listen(sockets.front(), 0), 0);
    const sockaddr_in address = LoopbackAddress(port);
    for (int i = 0; i < 4; ++i) {
        sockets.push_back(OpenSocket(SOCK_NONBLOCK));
        ::connect(sockets.back(), reinterpret_cast<const sockaddr*>(&address), sizeof address);
    }
}

UnansweringPort::~UnansweringPort() {
    for (const int number : sockets) {
        ::close(number);
    }
}

int ClosedPort() {
    const int number = OpenSocket(0);
    const int port = Bind(number);
    ::close(number);
    return port;
}

std::string HttpAnswer(const std::string& status, const std::string& body,
                       const std::string& headers) {
    return "HTTP/1.1 " + status + "\r\n" + headers +
           "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

Conversation AnswerWith(const std::string& answer) {
    return [answer](ServerConnection& connection) {
        if (!connection.ReadHead().empty()) {
            connection.Send(answer);
        }
    };
}

Conversation AnswerByPath(std::map<std::string, std::string> answers) {
    return [answers = std::move(answers)](ServerConnection& connection) {
        const std::string head = connection.ReadHead();
        const std::size_t begin = head.find(' ') + 1;
        const auto found = answers.find(head.substr(begin, head.find(' ', begin) - begin));
        connection.Send(found != answers.end() ? found->second : HttpAnswer("404 Not Found", ""));
    };
}

} // namespace Merivane::Tests
