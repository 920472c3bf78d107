#include "tools/monitor/web/page_server.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <httplib.h>
#include <nlohmann/json.hpp>
#include <sys/socket.h>

#include "tools/command/failure.h"
#include "tools/monitor/web/loopback_port.h"
#include "tools/monitor/web/page.h"
#include "tools/monitor/web/token.h"

namespace {

// Each open page occupies a thread; the others serve requests. A browser has six connections for all its pages of one
// host, and a page without one could not report that.
constexpr int mostStreams = 5;
constexpr size_t threads = 16;
constexpr size_t mostBytesOfACommand = 1024;
constexpr std::chrono::milliseconds pauseBetweenUpdates{250};
// The time that a page waits before it reconnects.
constexpr char reconnection[] = "retry: 1000\n\n";

constexpr char notAdmitted[] = "403: this is not the address that \"zelvane monitor\" has printed.\n";

// The id of an update, which a reconnecting page sends to continue there.
std::string idOf(const History::Cursor &cursor) {
    return std::to_string(cursor.version) + ' ' + std::to_string(cursor.second) + ' ' + std::to_string(cursor.line);
}

History::Cursor cursorOf(const std::string &id) {
    unsigned long long version = 0, line = 0;
    long long second = 0;
    if (sscanf(id.c_str(), "%llu %lld %llu", &version, &second, &line) != 3) return {};
    return {version, second, line};
}

[[noreturn]] void failFor(int port) {
    const int error = whyNotFree(port);
    const std::string start = "port " + std::to_string(port) + " of 127.0.0.1 ";
    const int next = error == EADDRINUSE ? nextFreePort(port) : 0;
    if (error != EADDRINUSE) failCommand(start + "cannot be used: " + strerror(error));
    failCommand(start + "is taken" +
                (next ? "; the next free one is " + std::to_string(next) + ": --web " + std::to_string(next) : ""));
}

// The command line for a request; empty for an invalid one.
std::string lineOf(const nlohmann::json &command) {
    const auto isOn = command.find("wireframe");
    if (isOn == command.end() || !isOn->is_boolean()) return {};
    const std::string line = isOn->get<bool>() ? "w" : "W";
    const auto process = command.find("pid");
    if (process == command.end()) return line + '\n';
    return process->is_number_integer() ? line + ' ' + std::to_string(process->get<int32_t>()) + '\n' : std::string();
}

void offer(httplib::Response &response, const std::string &name, const std::string &text) {
    response.set_header("Content-Disposition", "attachment; filename=\"" + name + '"');
    response.set_content(text, "application/x-ndjson");
}

} // namespace

PageServer::PageServer(int port, History &history, Command command)
    : m_history(history), m_command(std::move(command)), m_server(std::make_unique<httplib::Server>()) {
    m_server->new_task_queue = [] { return new httplib::ThreadPool(threads); };
    // Replaces the library's socket options, which let two servers share a port.
    m_server->set_socket_options([](int socket) {
        const int yes = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    m_server->set_tcp_nodelay(true);
    // Idle connections of a browser would occupy threads.
    m_server->set_keep_alive_max_count(1);
    m_server->set_payload_max_length(mostBytesOfACommand);
    const int bound = port == 0                                   ? m_server->bind_to_any_port("127.0.0.1")
                      : m_server->bind_to_port("127.0.0.1", port) ? port
                                                                  : -1;
    if (bound < 0) failFor(port);
    m_guard = std::make_unique<Guard>(bound);
    addRoutes();
    m_thread = std::thread([this] { m_server->listen_after_bind(); });
    // A server that has not started cannot be stopped.
    while (!m_server->is_running())
        std::this_thread::yield();
}

PageServer::~PageServer() {
    m_history.close();
    m_server->stop();
    m_thread.join();
}

void PageServer::addRoutes() {
    using httplib::Request, httplib::Response;
    m_server->set_pre_routing_handler([this](const Request &request, Response &response) {
        Guard::protect(response);
        if (m_guard->admits(request)) return httplib::Server::HandlerResponse::Unhandled;
        response.status = 403;
        response.set_content(notAdmitted, "text/plain; charset=utf-8");
        return httplib::Server::HandlerResponse::Handled;
    });
    const std::string prefix = m_guard->prefix();
    m_server->Get(prefix, [this](const Request &, Response &response) { servePage(response); });
    m_server->Get(prefix + "events", [this](const Request &request, Response &response) { stream(request, response); });
    m_server->Get(prefix + "log", [this](const Request &, Response &response) {
        offer(response, "zelvane-log.jsonl", m_history.logText());
    });
    m_server->Get(prefix + "records", [this](const Request &, Response &response) {
        offer(response, "zelvane-records.jsonl", m_history.recordText());
    });
    m_server->Post(prefix + "commands",
                   [this](const Request &request, Response &response) { obey(request, response); });
}

void PageServer::servePage(httplib::Response &response) const {
    const std::string nonce = makeToken();
    std::string text = pageText();
    for (size_t at = 0; (at = text.find(pageNonce, at)) != std::string::npos;)
        text.replace(at, pageNonce.size(), nonce);
    Guard::allowOnly(response, nonce);
    response.set_content(text, "text/html; charset=utf-8");
}

void PageServer::stream(const httplib::Request &request, httplib::Response &response) {
    // Decreased when the response is destroyed.
    if (++m_streams > mostStreams) {
        --m_streams;
        response.status = 503;
        return;
    }
    const auto next = [this, cursor = cursorOf(request.get_header_value("Last-Event-ID"))](
                          size_t offset, httplib::DataSink &sink) mutable {
        if (offset == 0) return sink.write(reconnection, strlen(reconnection));
        // Also checks whether the page is still connected.
        if (!m_history.wait(cursor) || !sink.is_writable()) return false;
        const std::string update = m_history.update(cursor);
        if (update.empty()) return true;
        const std::string event = "id: " + idOf(cursor) + "\ndata: " + update + "\n\n";
        return sink.write(event.data(), event.size()) && m_history.pause(pauseBetweenUpdates);
    };
    response.set_chunked_content_provider("text/event-stream", next, [this](bool) { --m_streams; });
}

void PageServer::obey(const httplib::Request &request, httplib::Response &response) {
    const auto command = nlohmann::json::parse(request.body, nullptr, false);
    response.status = 400;
    if (!command.is_object()) return;
    response.status = 204;
    if (command.value("clear", nlohmann::json()) == true) return m_history.clear();
    const std::string line = lineOf(command);
    response.status = line.empty() ? 400 : m_command(line) ? 204 : 503;
}
