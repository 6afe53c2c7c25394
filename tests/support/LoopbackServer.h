#pragma once
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// An HTTP server on the loopback address that answers as a test wants, one connection after the other.
class LoopbackServer {
public:
    struct Request {
        std::string target;                         ///< path and query as they arrived
        std::map<std::string, std::string> headers; ///< names in lower case
    };
    /// Makes everything that is sent before the connection is closed. Nothing leaves the client waiting until
    /// it gives up. Called on the server's thread.
    using Responder = std::function<std::string(const Request&)>;

    explicit LoopbackServer(Responder responder);
    ~LoopbackServer();
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    /// "127.0.0.1:12345".
    std::string hostAndPort() const;
    std::vector<Request> requests() const;

    /// An answer with status, further header lines (each with "\r\n" at its end) and body.
    static std::string answer(int status, const std::string& body, const std::string& headers = {});

private:
    void serve();
    void serve(int connection);

    Responder respond;
    int listener;
    int port = 0;
    mutable std::mutex mutex;
    std::vector<Request> received;
    std::thread thread;
};
