#include "tools/monitor/web/history.h"

#include <algorithm>

#include "tools/command/json.h"
#include "tools/monitor/web/clock.h"

History::History() : m_start(std::chrono::steady_clock::now()) {}

uint64_t History::add(ShownApplication application) {
    const std::lock_guard lock(m_mutex);
    Entry &entry = m_applications[++m_lastNumber];
    entry.shown = std::move(application);
    changed(entry);
    return m_lastNumber;
}

void History::setTitle(uint64_t number, const std::string &title) {
    const std::lock_guard lock(m_mutex);
    Entry &entry = m_applications[number];
    if (entry.shown.title == title) return;
    entry.shown.title = title;
    changed(entry);
}

void History::setWireframe(uint64_t number, bool isOn) {
    const std::lock_guard lock(m_mutex);
    Entry &entry = m_applications[number];
    if (entry.shown.isWireframe == isOn) return;
    entry.shown.isWireframe = isOn;
    changed(entry);
}

void History::setReport(uint64_t number, std::string json) {
    if (json.size() > mostReportBytes) return;
    const std::lock_guard lock(m_mutex);
    Entry &entry = m_applications[number];
    entry.report = std::move(json);
    changed(entry);
    entry.reportVersion = entry.version;
}

void History::countFrame(uint64_t number) {
    const std::lock_guard lock(m_mutex);
    m_applications[number].frames.count(secondNow());
}

void History::end(uint64_t number) {
    const std::lock_guard lock(m_mutex);
    Entry &entry = m_applications[number];
    entry.shown.endMs = millisecondsNow();
    entry.frames.end(secondNow());
    changed(entry);
    forgetEnded(mostEnded);
}

void History::addRecord(std::string line) {
    const std::lock_guard lock(m_mutex);
    m_records.add(std::move(line));
}

void History::addLogLine(std::string line) {
    const std::lock_guard lock(m_mutex);
    m_log.add(std::move(line));
    m_isChanged.notify_all();
}

void History::addRefusal(uint64_t number, const std::string &text, bool isForTheHost) {
    const std::lock_guard lock(m_mutex);
    std::string who = "A connection";
    if (const auto found = m_applications.find(number); found != m_applications.end())
        who = found->second.shown.command + ' ' + std::to_string(found->second.shown.processNumber);
    addNews(m_refusals, {{"who", who},
                         {"time", millisecondsNow()},
                         {"application", number},
                         {"isForTheHost", isForTheHost},
                         {"text", text}});
}

void History::addNotice(const std::string &text) {
    const std::lock_guard lock(m_mutex);
    addNews(m_notices, {{"text", text}});
}

void History::clear() {
    const std::lock_guard lock(m_mutex);
    m_clearedAt = ++m_version;
    forgetEnded(0);
    m_refusals.clear();
    m_notices.clear();
    m_log.clear();
    m_records.clear();
    m_isChanged.notify_all();
}

static std::string textOf(const BoundedLines &lines) {
    std::string text;
    for (uint64_t number = lines.begin(); number < lines.end(); ++number)
        text += lines[number] + '\n';
    return text;
}

std::string History::logText() const {
    const std::lock_guard lock(m_mutex);
    return textOf(m_log);
}

std::string History::recordText() const {
    const std::lock_guard lock(m_mutex);
    return textOf(m_records);
}

bool History::wait(const Cursor &cursor) const {
    using namespace std::chrono;
    // Just after the full second, when every curve has a new value.
    const auto next = m_start + seconds(duration_cast<seconds>(steady_clock::now() - m_start).count() + 1);
    std::unique_lock lock(m_mutex);
    m_isChanged.wait_until(lock, next,
                           [&] { return m_isClosed || m_version > cursor.version || m_log.end() > cursor.line; });
    return !m_isClosed;
}

bool History::pause(std::chrono::milliseconds time) const {
    std::unique_lock lock(m_mutex);
    return !m_isClosing.wait_for(lock, time, [this] { return m_isClosed; });
}

void History::close() {
    const std::lock_guard lock(m_mutex);
    m_isClosed = true;
    m_isChanged.notify_all();
    m_isClosing.notify_all();
}

int64_t History::secondNow() const {
    return std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - m_start).count();
}

void History::changed(Entry &entry) {
    entry.version = ++m_version;
    m_isChanged.notify_all();
}

void History::addNews(std::deque<News> &news, const Json &fields) {
    ++m_version;
    Json json = {{"number", m_version}};
    json.update(fields);
    news.push_back({m_version, jsonLine(json)});
    if (news.size() > mostNews) news.pop_front();
    m_isChanged.notify_all();
}

void History::forgetEnded(size_t kept) {
    const auto isEnded = [](const auto &item) { return item.second.shown.endMs != 0; };
    size_t ended = std::count_if(m_applications.begin(), m_applications.end(), isEnded);
    std::erase_if(m_applications, [&](const auto &item) { return isEnded(item) && ended > kept && ended-- > 0; });
}
