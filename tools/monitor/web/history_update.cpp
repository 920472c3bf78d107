// The data that a page has not received, as one object:
//   now           the time in milliseconds since 1970
//   isWhole       true: discard all earlier data
//   isCleared     true: discard log lines and refusals
//   numbers       of all existing applications; all others are to be removed
//   applications  those that have changed: number, pid, command, program, device, started, title, isWireframe, ended
//   reports       the System Reports that have changed, by the number of the application
//   frames        frames drawn in whole seconds, by the number of the application: the first second, then values
//   refusals      all of them, if one is new: number, who, time, application (0 for none), isForTheHost, text
//   notices       responses to commands: number, text
//   skipped       the number of log lines that the page was too slow to receive
//   log           log lines as "zelvane monitor --json" writes them
#include <algorithm>

#include <nlohmann/json.hpp>

#include "tools/monitor/web/clock.h"
#include "tools/monitor/web/history.h"

namespace {

// Further lines are sent with the next update, so that no update blocks the monitor for long.
constexpr uint64_t mostLinesInAnUpdate = 4000;

using Json = nlohmann::json;

// Texts of applications may not be valid UTF-8.
std::string textOf(const Json &json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json jsonOf(uint64_t number, const ShownApplication &application) {
    return {{"number", number},
            {"pid", application.processNumber},
            {"command", application.command},
            {"program", application.program},
            {"device", application.device},
            {"started", application.startMs},
            {"title", application.title},
            {"isWireframe", application.isWireframe},
            {"ended", application.endMs}};
}

std::string keyOf(uint64_t number) {
    return '"' + std::to_string(number) + "\":";
}

// Appends the item, after a comma unless it is the first.
void append(std::string &list, const std::string &item) {
    if (!list.empty()) list += ',';
    list += item;
}

} // namespace

void History::tellApplications(std::string &text, const Cursor &cursor) const {
    if (m_version == cursor.version) return;
    std::string numbers, applications, reports;
    for (const auto &[number, entry] : m_applications) {
        append(numbers, std::to_string(number));
        if (entry.version > cursor.version) append(applications, textOf(jsonOf(number, entry.shown)));
        if (entry.reportVersion > cursor.version) append(reports, keyOf(number) + entry.report);
    }
    text += ",\"numbers\":[" + numbers + "],\"applications\":[" + applications + "],\"reports\":{" + reports + '}';
}

void History::tellFrames(std::string &text, const Cursor &cursor, int64_t now) const {
    std::string frames;
    for (const auto &[number, entry] : m_applications) {
        std::string values;
        for (const uint32_t value : entry.frames.values(cursor.second, now))
            values += ',' + std::to_string(value);
        if (values.empty()) continue;
        append(frames, keyOf(number) + '[' + std::to_string(entry.frames.first(cursor.second, now)) + values + ']');
    }
    if (!frames.empty()) text += ",\"frames\":{" + frames + '}';
}

void History::tellNews(std::string &text, const Cursor &cursor) const {
    std::string refusals, notices;
    if (!m_refusals.empty() && m_refusals.back().version > cursor.version) {
        for (const News &news : m_refusals)
            append(refusals, news.json);
        text += ",\"refusals\":[" + refusals + ']';
    }
    for (const News &news : m_notices) {
        if (cursor.version != 0 && news.version > cursor.version) append(notices, news.json);
    }
    if (!notices.empty()) text += ",\"notices\":[" + notices + ']';
}

void History::tellLog(std::string &text, Cursor &cursor) const {
    if (m_log.end() == cursor.line) return;
    const uint64_t first = std::max(cursor.line, m_log.begin());
    if (cursor.version != 0 && m_clearedAt <= cursor.version && first > cursor.line)
        text += ",\"skipped\":" + std::to_string(first - cursor.line);
    cursor.line = std::min(first + mostLinesInAnUpdate, m_log.end());
    std::string lines;
    for (uint64_t number = first; number < cursor.line; ++number)
        append(lines, m_log[number]);
    text += ",\"log\":[" + lines + ']';
}

std::string History::update(Cursor &cursor) const {
    const std::lock_guard lock(m_mutex);
    const int64_t now = secondNow();
    std::string text;
    if (cursor.version == 0) {
        text += ",\"isWhole\":true";
    } else if (m_clearedAt > cursor.version) {
        text += ",\"isCleared\":true";
    }
    tellApplications(text, cursor);
    tellFrames(text, cursor, now);
    tellNews(text, cursor);
    tellLog(text, cursor);
    cursor.version = m_version;
    cursor.second = now;
    if (text.empty()) return text;
    return "{\"now\":" + std::to_string(millisecondsNow()) + text + '}';
}
