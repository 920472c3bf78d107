// The listening side of the GUI link. Everything runs on one thread, in one poll loop: records of the applications,
// commands of the user, and the descriptor that ends it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tools/monitor/application.h"
#include "tools/monitor/listener.h"
#include "tools/monitor/output.h"
#include "tools/monitor/record_filter.h"

struct MonitorOptions {
    bool takesCommands = false;    // reads lines of standard input as commands
    bool endsWithTheFirst = false; // of the applications that the filter follows
    RecordFilter filter = {};
    MonitorOutput *page = nullptr; // receives all records, independent of the filter; owned by the caller
    int pageCommands = -1;         // a pipe with command lines; owned by the caller
};

class Monitor {
public:
    // ending: a descriptor that is readable when the monitor is to end; owned by the caller. Fails the command when the
    // socket cannot be opened.
    Monitor(std::unique_ptr<MonitorOutput> output, int ending, MonitorOptions options);
    Monitor(const Monitor &) = delete;
    Monitor &operator=(const Monitor &) = delete;

    // Runs until the user, the descriptor or the end of the first application ends it. Data that disconnected
    // applications have sent is still shown. SIGPIPE must be ignored: an output without a reader ends the monitor.
    void run();

private:
    // False when no descriptor is left for a waiting connection.
    bool accept();
    void readRecord(MonitoredApplication &application);
    void dropEnded();
    void readWhatIsLeft();
    // Command lines, and their source.
    struct CommandInput {
        int descriptor;    // negative if there are no commands, or no more
        std::string typed; // an incomplete line
    };
    void readCommands(CommandInput &input);
    // Executes a line such as "w", "W 1234", "wire off" or "d".
    void obey(const std::string &line);

    void notice(const std::string &text);

    std::unique_ptr<MonitorOutput> m_output;
    Listener m_listener;
    int m_ending;
    MonitorOptions m_options;
    bool m_isFull = false;  // applications wait for a descriptor
    bool m_hasTold = false; // whether that was reported
    bool m_isEnding = false;
    CommandInput m_terminal, m_page;
    std::vector<std::unique_ptr<MonitoredApplication>> m_applications;
};
