// The data for the pages of a monitor: applications with their last state, log lines, failed calls. The monitor's
// thread writes it, threads of the server read it. All of it is bounded, so that long logging does not grow the
// process.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <string>

#include <nlohmann/json_fwd.hpp>

#include "tools/monitor/web/bounded_lines.h"
#include "tools/monitor/web/frame_curve.h"

struct ShownApplication {
    int32_t processNumber = 0;
    std::string command;
    std::string program;
    std::string device;  // empty for none
    int64_t startMs = 0; // since 1970; 0 if unknown
    std::string title;
    bool isWireframe = false;
    int64_t endMs = 0; // 0 while it is connected
};

class History {
public:
    // The bounds. The page has the same bound for its log lines.
    static constexpr size_t mostLogLines = 10000;
    static constexpr size_t mostLogBytes = 8 << 20;
    static constexpr size_t mostRecords = 200000;
    static constexpr size_t mostRecordBytes = 16 << 20;
    static constexpr size_t mostEnded = 32;            // applications that stay after their end
    static constexpr size_t mostNews = 32;             // refusals, and answers to commands
    static constexpr size_t mostReportBytes = 1 << 18; // of one application; a longer report is omitted

    History();
    History(const History &) = delete;
    History &operator=(const History &) = delete;

    // Called by the monitor. Numbers of applications are never reused.
    [[nodiscard]] uint64_t add(ShownApplication application);
    void setTitle(uint64_t number, const std::string &title);
    void setWireframe(uint64_t number, bool isOn);
    // json: one object.
    void setReport(uint64_t number, std::string json);
    void countFrame(uint64_t number);
    void end(uint64_t number);
    // Lines are JSON objects.
    void addRecord(std::string line);
    void addLogLine(std::string line);
    // number: 0 for a process that is not a connected application. isForTheHost: the host lacks a feature.
    void addRefusal(uint64_t number, const std::string &text, bool isForTheHost);
    void addNotice(const std::string &text);

    // Called for pages. Removes all data except the connected applications.
    void clear();
    [[nodiscard]] std::string logText() const;
    [[nodiscard]] std::string recordText() const;

    // The position up to which a page has read; initially nothing.
    struct Cursor {
        uint64_t version = 0;
        int64_t second = 0;
        uint64_t line = 0;
    };
    // Waits up to a second for new data. False once close() was called.
    [[nodiscard]] bool wait(const Cursor &cursor) const;
    // Always waits, which limits the update rate of a page. False as above.
    [[nodiscard]] bool pause(std::chrono::milliseconds time) const;
    // The new data as one JSON object; empty if there is none. Advances the cursor.
    [[nodiscard]] std::string update(Cursor &cursor) const;
    // Ends all waits.
    void close();

private:
    struct Entry {
        ShownApplication shown;
        uint64_t version = 0; // of the last change
        std::string report;
        uint64_t reportVersion = 0;
        FrameCurve frames;
    };
    struct News {
        uint64_t version;
        std::string json;
    };

    [[nodiscard]] int64_t secondNow() const;
    void changed(Entry &entry);
    void addNews(std::deque<News> &news, const nlohmann::ordered_json &fields);
    void forgetEnded(size_t kept);
    // Parts of an update: each appends the data after the cursor.
    void tellApplications(std::string &text, const Cursor &cursor) const;
    void tellFrames(std::string &text, const Cursor &cursor, int64_t now) const;
    void tellNews(std::string &text, const Cursor &cursor) const;
    void tellLog(std::string &text, Cursor &cursor) const;

    const std::chrono::steady_clock::time_point m_start;
    mutable std::mutex m_mutex; // guards all below
    mutable std::condition_variable m_isChanged, m_isClosing;
    bool m_isClosed = false;
    uint64_t m_version = 1;    // increased by every change except frames and lines
    uint64_t m_clearedAt = 0;  // the version of the last clear()
    uint64_t m_lastNumber = 0; // of an application
    std::map<uint64_t, Entry> m_applications;
    std::deque<News> m_refusals, m_notices;
    BoundedLines m_log{mostLogLines, mostLogBytes};
    BoundedLines m_records{mostRecords, mostRecordBytes};
};
