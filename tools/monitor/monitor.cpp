#include "tools/monitor/monitor.h"

#include <optional>
#include <poll.h>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

#include "foundation/product.h"

using namespace ui::messages;

namespace {

constexpr char help[] = "w, wire on [PROCESS]   switch the wireframe on, for one application or all\n"
                        "W, wire off [PROCESS]  switch it off\n"
                        "d [PROCESS]            disconnect\n"
                        "q                      quit";

// 0 when there is no such file.
uint64_t fileNumber(const std::string &path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? status.st_ino : 0;
}

std::optional<Message> commandFor(const std::string &verb, const std::string &argument) {
    if (verb == "w" || (verb == "wire" && argument == "on")) return guiRenderModeOn();
    if (verb == "W" || (verb == "wire" && argument == "off")) return guiRenderModeOff();
    if (verb == "d") return guiDisconnect();
    return std::nullopt;
}

} // namespace

Monitor::Monitor(std::unique_ptr<MonitorOutput> output, int ending, bool takesCommands, bool endsWithTheFirst)
    : m_output(std::move(output)), m_server(productName, 16), m_socketFile(fileNumber(m_server.path())),
      m_ending(ending), m_takesCommands(takesCommands), m_endsWithTheFirst(endsWithTheFirst) {}

Monitor::~Monitor() {
    if (isListening() && fileNumber(m_server.path()) == m_socketFile) unlink(m_server.path().c_str());
}

void Monitor::run() {
    m_output->listening(m_server.path(), m_takesCommands);
    while (!m_isEnding && fflush(stdout) == 0) {
        std::vector<pollfd> waiting{{m_ending, POLLIN, 0},
                                    {m_server.descriptor(), POLLIN, 0},
                                    {m_takesCommands ? STDIN_FILENO : -1, POLLIN, 0},
                                    // Reports only that the reader of a pipe has gone.
                                    {STDOUT_FILENO, 0, 0}};
        const size_t first = waiting.size();
        for (const auto &application : m_applications)
            waiting.push_back({application->descriptor(), POLLIN, 0});
        if (poll(waiting.data(), waiting.size(), -1) < 0) continue;
        if (waiting[3].revents) return;
        if (waiting[0].revents) return readWhatIsLeft();
        for (size_t index = first; index < waiting.size(); ++index) {
            if (waiting[index].revents) readRecord(*m_applications[index - first]);
        }
        dropEnded();
        if (waiting[1].revents) accept();
        if (waiting[2].revents) readCommands();
    }
}

void Monitor::accept() {
    m_applications.push_back(std::make_unique<MonitoredApplication>(m_server));
    dropEnded();
}

void Monitor::readRecord(MonitoredApplication &application) {
    if (const auto message = application.receive()) m_output->record(application, *message);
}

void Monitor::dropEnded() {
    std::erase_if(m_applications, [this](const auto &application) {
        if (application->descriptor() >= 0) return false;
        // One that leaves without a hello has not been shown.
        if (application->processNumber()) m_output->ended(*application);
        m_isEnding |= m_endsWithTheFirst && application->processNumber();
        return true;
    });
}

void Monitor::readWhatIsLeft() {
    for (bool isNew = true; isNew;) {
        pollfd arriving{m_server.descriptor(), POLLIN, 0};
        isNew = poll(&arriving, 1, 0) > 0;
        if (isNew) accept();
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

void Monitor::readCommands() {
    char typed[256];
    const ssize_t count = read(STDIN_FILENO, typed, sizeof typed);
    if (count <= 0) {
        m_takesCommands = false;
        return;
    }
    m_typed.append(typed, count);
    for (size_t end = m_typed.find('\n'); end != std::string::npos; end = m_typed.find('\n')) {
        obey(m_typed.substr(0, end));
        m_typed.erase(0, end + 1);
    }
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
        } else {
            m_output->notice(std::to_string(application->processNumber()) + " takes no command now");
        }
    }
    m_output->notice("sent to " + std::to_string(reached) + (reached == 1 ? " application" : " applications"));
}
