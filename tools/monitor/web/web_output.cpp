#include "tools/monitor/web/web_output.h"

#include <algorithm>
#include <cstring>

#include "tools/monitor/json_record.h"
#include "tools/monitor/process_facts.h"
#include "tools/monitor/web/report_json.h"

using ui::messages::Message;

namespace {

// The beginnings of the log lines in which the library and the back ends report a failed call, and whether the host's
// capabilities are the reason.
struct Refusal {
    std::string_view start;
    bool isForTheHost;
};

constexpr Refusal refusals[] = {
    {"An OpenGL ES context of the requested version could not be created", true},
    {"no OpenGL ES ", true},
    {"The application requests ", false},
};

std::string textOf(const Message &message) {
    return {message.text.text, strnlen(message.text.text, sizeof message.text.text)};
}

// Null for any other line.
const Refusal *refusalOf(const Message &message) {
    if (message.header.type == ZV_LOG_INFO) return nullptr;
    const std::string text = textOf(message);
    const auto *found =
        std::ranges::find_if(refusals, [&](const auto &refusal) { return text.starts_with(refusal.start); });
    return found == std::end(refusals) ? nullptr : found;
}

} // namespace

void WebOutput::record(const MonitoredApplication &application, const Message &message) {
    const uint32_t type = message.header.type;
    if (type == ZV_PROCESS_HELLO && !m_known.contains(&application)) greet(application);
    const auto found = m_known.find(&application);
    if (found == m_known.end()) return;
    Known &known = found->second;
    std::string line = jsonRecord(application, message);
    if (type == ZV_WINDOW_TITLE) m_history.setTitle(known.number, textOf(message));
    if (type == ZV_BACK_END_MARKER) m_history.countFrame(known.number);
    if (type >= ZV_LOG_INFO && type <= ZV_LOG_ERROR) takeLogLine(known, message, line);
    if (type >= ZV_SYSTEM_REPORT_GL_VERSION && type < ZV_SYSTEM_REPORT_END) known.report.take(message);
    if (type == ZV_SYSTEM_REPORT_END) m_history.setReport(known.number, jsonOf(known.report.report()));
    m_history.addRecord(std::move(line));
}

void WebOutput::greet(const MonitoredApplication &application) {
    const ProcessFacts facts = readProcessFacts(application.processNumber());
    ShownApplication shown;
    shown.processNumber = application.processNumber();
    shown.command = application.commandName();
    shown.program = facts.program;
    shown.device = facts.device;
    shown.startMs = facts.startMs;
    m_known.emplace(&application, Known{m_history.add(std::move(shown)), {}});
}

void WebOutput::takeLogLine(const Known &known, const Message &message, const std::string &line) {
    m_history.addLogLine(line);
    if (const Refusal *refusal = refusalOf(message))
        m_history.addRefusal(known.number, textOf(message), refusal->isForTheHost);
}

void WebOutput::ended(const MonitoredApplication &application) {
    const auto found = m_known.find(&application);
    if (found == m_known.end()) return;
    m_history.addRecord(jsonEnd(application));
    m_history.end(found->second.number);
    m_known.erase(found);
}

void WebOutput::commanded(const MonitoredApplication &application, const Message &command) {
    const auto found = m_known.find(&application);
    if (found == m_known.end() || command.header.type == ZV_GUI_DISCONNECT) return;
    m_history.setWireframe(found->second.number, command.header.type == ZV_GUI_RENDER_MODE_ON);
}
