// Serves the page of the monitor and its requests on the loopback address. Runs on threads of its own.
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "tools/monitor/web/guard.h"
#include "tools/monitor/web/history.h"

class PageServer {
public:
    // Passes on a command line. False when it is not accepted now. Called on threads of the server.
    using Command = std::function<bool(const std::string &line)>;

    // port: 0 for any. The history is owned by the caller. If the port is taken, fails the command with the next free
    // port in the message.
    PageServer(int port, History &history, Command command);
    PageServer(const PageServer &) = delete;
    PageServer &operator=(const PageServer &) = delete;
    // Ends all streams and closes the history.
    ~PageServer();

    // The address with the token, which grants access.
    [[nodiscard]] std::string address() const { return m_guard->address(); }

private:
    void addRoutes();
    void servePage(httplib::Response &response) const;
    void stream(const httplib::Request &request, httplib::Response &response);
    void obey(const httplib::Request &request, httplib::Response &response);

    History &m_history;
    Command m_command;
    std::unique_ptr<httplib::Server> m_server;
    std::unique_ptr<Guard> m_guard;
    std::atomic<int> m_streams = 0; // open pages
    std::thread m_thread;
};
