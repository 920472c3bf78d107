#include "tools/monitor/monitor.h"

#include <cerrno>
#include <cstring>
#include <optional>
#include <poll.h>
#include <sstream>
#include <unistd.h>

using namespace ui::messages;

namespace {

constexpr char help[] = "w, wire on [PROCESS]   switch the wireframe on, for one application or all\n"
                        "W, wire off [PROCESS]  switch it off\n"
                        "d [PROCESS]            disconnect\n"
                        "q                      quit";

// The time until the next check when no descriptor is free.
constexpr int fullPauseMs = 1000;

std::optional<Message> commandFor(const std::string &verb, const std::string &argument) {
    if (verb == "w" || (verb == "wire" && argument == "on")) return guiRenderModeOn();
    if (verb == "W" || (verb == "wire" && argument == "off")) return guiRenderModeOff();
    if (verb == "d") return guiDisconnect();
    return std::nullopt;
}

} // namespace

Monitor::Monitor(std::unique_ptr<MonitorOutput> output, int ending, MonitorOptions options)
    : m_output(std::move(output)), m_ending(ending), m_options(std::move(options)),
      m_terminal{m_options.takesCommands ? STDIN_FILENO : -1, {}}, m_page{m_options.pageCommands, {}} {}

void Monitor::run() {
    m_output->listening(m_listener.path(), m_options.takesCommands);
    while (!m_isEnding && fflush(stdout) == 0) {
        std::vector<pollfd> waiting{{m_ending, POLLIN, 0},
                                    // Not polled while no descriptor is free, since it would remain readable.
                                    {m_isFull ? -1 : m_listener.descriptor(), POLLIN, 0},
                                    {m_terminal.descriptor, POLLIN, 0},
                                    {m_page.descriptor, POLLIN, 0},
                                    // Polled only for the end of a pipe's reader.
                                    {STDOUT_FILENO, 0, 0}};
        const size_t first = waiting.size();
        for (const auto &application : m_applications)
            waiting.push_back({application->descriptor(), POLLIN, 0});
        if (poll(waiting.data(), waiting.size(), m_isFull ? fullPauseMs : -1) < 0) {
            if (errno == EINTR) continue;
            return notice(std::string("cannot wait for applications: ") + strerror(errno));
        }
        if (waiting[4].revents) return;
        if (waiting[0].revents) return readWhatIsLeft();
        for (size_t index = first; index < waiting.size(); ++index) {
            if (waiting[index].revents) readRecord(*m_applications[index - first]);
        }
        dropEnded();
        m_isFull = waiting[1].revents && !accept();
        if (waiting[2].revents) readCommands(m_terminal);
        if (waiting[3].revents) readCommands(m_page);
    }
}

bool Monitor::accept() {
    const Listener::Arrival arrival = m_listener.accept();
    if (arrival.client) m_applications.push_back(std::make_unique<MonitoredApplication>(*arrival.client));
    if (!arrival.refusal.empty()) {
        const std::string text = "sent away: " + arrival.refusal;
        m_output->sentAway(text);
        if (m_options.page) m_options.page->sentAway(text);
    }
    const bool isTaken = arrival.client || !arrival.refusal.empty();
    if (!isTaken && !m_hasTold) notice("no descriptor is left: applications wait until others end");
    m_hasTold |= !isTaken;
    return isTaken;
}

void Monitor::readRecord(MonitoredApplication &application) {
    const auto message = application.receive();
    if (!message) return;
    if (m_options.filter.shows(application, message->header.type)) m_output->record(application, *message);
    if (m_options.page) m_options.page->record(application, *message);
}

void Monitor::dropEnded() {
    std::erase_if(m_applications, [this](const auto &application) {
        if (application->descriptor() >= 0) return false;
        if (m_options.page) m_options.page->ended(*application);
        // An application that disconnects without a hello was never shown.
        if (!application->processNumber()) return true;
        if (m_options.filter.showsEnd(*application)) m_output->ended(*application);
        m_isEnding |= m_options.endsWithTheFirst && m_options.filter.follows(*application);
        return true;
    });
}

void Monitor::readWhatIsLeft() {
    pollfd arriving{m_listener.descriptor(), POLLIN, 0};
    while (poll(&arriving, 1, 0) > 0 && accept()) {
    }
    for (const auto &application : m_applications) {
        pollfd gone{application->descriptor(), POLLIN, 0};
        while (gone.fd >= 0 && poll(&gone, 1, 0) > 0 && gone.revents & POLLHUP) {
            readRecord(*application);
            gone.fd = application->descriptor();
        }
    }
    dropEnded();
    fflush(stdout);
}

void Monitor::readCommands(CommandInput &input) {
    char typed[256];
    const ssize_t count = read(input.descriptor, typed, sizeof typed);
    if (count <= 0) {
        input.descriptor = -1;
        return;
    }
    input.typed.append(typed, count);
    for (size_t end = input.typed.find('\n'); end != std::string::npos; end = input.typed.find('\n')) {
        obey(input.typed.substr(0, end));
        input.typed.erase(0, end + 1);
    }
}

void Monitor::notice(const std::string &text) {
    m_output->notice(text);
    if (m_options.page) m_options.page->notice(text);
}

void Monitor::obey(const std::string &line) {
    std::istringstream words(line);
    std::string verb, argument;
    words >> verb;
    if (verb == "wire") words >> argument;
    int32_t processNumber = 0; // all
    const bool isForOne = static_cast<bool>(words >> processNumber);
    const bool isWhole = isForOne || words.eof();

    if (verb.empty()) return;
    if (verb == "q") {
        m_isEnding = true;
        return;
    }
    const auto command = commandFor(verb, argument);
    if (!command || !isWhole) {
        m_output->notice(help);
        return;
    }
    size_t reached = 0;
    for (const auto &application : m_applications) {
        if (isForOne && application->processNumber() != processNumber) continue;
        if (application->send(*command)) {
            ++reached;
            if (m_options.page) m_options.page->commanded(*application, *command);
        } else {
            notice(std::to_string(application->processNumber()) + " cannot receive a command now");
        }
    }
    notice("sent to " + std::to_string(reached) + (reached == 1 ? " application" : " applications"));
}
