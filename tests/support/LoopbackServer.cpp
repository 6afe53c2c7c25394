#include "LoopbackServer.h"

#include "platform/common/KTText.h"

#include <arpa/inet.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace {

LoopbackServer::Request requestFrom(const std::string& head) {
    LoopbackServer::Request request;
    const std::vector<std::string> lines = KTSplit(head, '\n');
    request.target = KTSplit(lines[0], ' ').at(1);
    for (const std::string& line : lines)
        if (auto colon = line.find(": "); colon != std::string::npos)
            request.headers[KTLowercase(line.substr(0, colon))] = KTTrimmed(line.substr(colon + 2));
    return request;
}

} // namespace

LoopbackServer::LoopbackServer(Responder responder)
    : respond(std::move(responder)), listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{AF_INET, 0, {htonl(INADDR_LOOPBACK)}, {}};
    socklen_t size = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    if (bind(listener, generic, size) != 0 || listen(listener, 8) != 0 ||
        getsockname(listener, generic, &size) != 0)
        throw std::runtime_error("no port on the loopback address");
    port = ntohs(address.sin_port);
    thread = std::thread([this] { serve(); });
}

LoopbackServer::~LoopbackServer() {
    shutdown(listener, SHUT_RDWR); // wakes accept
    thread.join();
    close(listener);
}

std::string LoopbackServer::hostAndPort() const {
    return "127.0.0.1:" + std::to_string(port);
}

std::vector<LoopbackServer::Request> LoopbackServer::requests() const {
    std::lock_guard lock(mutex);
    return received;
}

std::string LoopbackServer::answer(int status, const std::string& body, const std::string& headers) {
    return "HTTP/1.1 " + std::to_string(status) +
           " Status\r\nContent-Length: " + std::to_string(body.size()) + "\r\nConnection: close\r\n" +
           headers + "\r\n" + body;
}

void LoopbackServer::serve() {
    for (int connection; (connection = accept(listener, nullptr, nullptr)) >= 0; close(connection))
        serve(connection);
}

void LoopbackServer::serve(int connection) {
    std::string head;
    char buffer[4096];
    while (head.find("\r\n\r\n") == std::string::npos) {
        const ssize_t count = recv(connection, buffer, sizeof buffer, 0);
        if (count <= 0)
            return;
        if (buffer[0] != 'G') { // TLS, which web servers tell so, too, where they do not expect it
            const std::string refusal = answer(400, "plain HTTP only");
            send(connection, refusal.data(), refusal.size(), MSG_NOSIGNAL);
            return;
        }
        head.append(buffer, std::size_t(count));
    }
    const Request request = requestFrom(head);
    {
        std::lock_guard lock(mutex);
        received.push_back(request);
    }
    const std::string bytes = respond(request);
    for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t count = send(connection, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count <= 0)
            return;
        sent += std::size_t(count);
    }
    if (bytes.empty())
        recv(connection, buffer, sizeof buffer, 0); // until the client gives up
}
