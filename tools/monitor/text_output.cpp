// Prints lines such as "18:00:00.000 1234 torus  (Error) text". The facts of a System Report are shown together after
// the last one.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <unistd.h>

#include "foundation/log.h"
#include "tools/monitor/output.h"
#include "tools/monitor/received_report.h"
#include "tools/monitor/record_fields.h"
#include "tools/monitor/time_text.h"

using ui::messages::Message;

namespace {

// Removes control characters, so that applications cannot control the terminal.
std::string printable(std::string_view text, std::string_view kept = {}) {
    std::string result(text);
    for (char &character : result) {
        const bool isControl = static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
        if (isControl && kept.find(character) == std::string_view::npos) character = '?';
    }
    // The C1 controls, U+0080 to U+009F, which terminals execute in UTF-8 too.
    for (size_t at = 0; (at = result.find('\xC2', at)) != std::string::npos; ++at) {
        const unsigned char next = result.c_str()[at + 1];
        if (next >= 0x80 && next < 0xA0) result.replace(at, 2, "?");
    }
    return result;
}

std::string valueText(const Message &message, const Field &field) {
    switch (field.kind) {
    case FieldKind::Signed:
        return std::to_string(signedAt(message, field));
    case FieldKind::Text:
        return '"' + printable(textAt(message, field)) + '"';
    case FieldKind::List: {
        const auto values = listAt(message, field);
        std::string text;
        for (const uint32_t value : values)
            text += (text.empty() ? "" : " ") + std::to_string(value);
        return '[' + text + ']';
    }
    default:
        return std::to_string(numberAt(message, field));
    }
}

std::string allFields(const Message &message) {
    const RecordKind *kind = recordKind(message.header.type);
    if (!kind) return "unknown record " + std::to_string(message.header.type);
    std::string text = kind->name;
    for (const Field &field : kind->fields)
        text += std::string(" ") + field.name + "=" + valueText(message, field);
    return text;
}

// The style of a part of a line on a terminal.
enum class Style { plain, faint, name, warning, error };

bool isForColours(int stream) {
    const char *refusal = getenv("NO_COLOR");
    const char *terminal = getenv("TERM");
    return isatty(stream) && !(refusal && *refusal) && terminal && strcmp(terminal, "dumb") != 0;
}

Style styleOf(uint32_t type) {
    return type == ZV_LOG_ERROR ? Style::error : type == ZV_LOG_WARNING ? Style::warning : Style::plain;
}

class TextOutput final : public MonitorOutput {
public:
    void listening(const std::string &path, bool takesCommands) override {
        printf("listening at %s\n", path.c_str());
        if (takesCommands) puts("w or W switches the wireframe on or off, d disconnects, q quits; ? shows help");
    }

    void record(const MonitoredApplication &application, const Message &message) override {
        const uint32_t type = message.header.type;
        if (type >= ZV_SYSTEM_REPORT_GL_VERSION && type < ZV_SYSTEM_REPORT_END) {
            m_reports[&application].take(message);
        } else if (type == ZV_SYSTEM_REPORT_END) {
            line(application, "System Report:");
            fputs(printable(m_reports[&application].text(), "\n\t").c_str(), stdout);
            m_reports.erase(&application);
        } else if (type == ZV_BACK_END_MARKER) {
            countFrame(application, message.header.frameStamp);
        } else {
            line(application, frame(message) + shortText(message), styleOf(type));
        }
    }

    void ended(const MonitoredApplication &application) override {
        m_reports.erase(&application);
        m_frames.erase(&application);
        line(application, "gone");
    }

    void notice(const std::string &text) override { puts(text.c_str()); }

private:
    void line(const MonitoredApplication &application, const std::string &text, Style style = Style::plain) const {
        const std::string name =
            std::to_string(application.processNumber()) + ' ' + printable(application.commandName());
        printf("%s %s  %s\n", styled(timeTextNow(localtime_r, "%T"), Style::faint).c_str(),
               styled(name, Style::name).c_str(), styled(text, style).c_str());
    }

    [[nodiscard]] std::string styled(const std::string &text, Style style) const {
        static constexpr const char *starts[] = {"", "\033[2m", "\033[36m", "\033[33m", "\033[31m"};
        if (!m_hasColours || style == Style::plain) return text;
        return starts[static_cast<size_t>(style)] + text + "\033[0m";
    }

    // A back end sends a marker for every frame with draws. They are counted, since a line for each would scroll all
    // other lines away.
    void countFrame(const MonitoredApplication &application, uint64_t number) {
        const auto now = std::chrono::steady_clock::now();
        const auto [found, isFirst] = m_frames.try_emplace(&application, Frames{now, 0});
        Frames &frames = found->second;
        if (!isFirst) ++frames.count;
        const std::chrono::duration<double> elapsed = now - frames.start;
        if (!isFirst && elapsed.count() < 1) return;
        const std::string label = "frame " + std::to_string(number);
        line(application, isFirst ? label : label + ": " + rateText(frames.count / elapsed.count()));
        frames = {now, 0};
    }

    static std::string rateText(double perSecond) {
        char text[64];
        snprintf(text, sizeof text, "%.1f a second", perSecond);
        return text;
    }

    static std::string frame(const Message &message) {
        return hasFrame(message) ? "frame " + std::to_string(message.header.frameStamp) + ": " : std::string();
    }

    static std::string shortText(const Message &message) {
        const std::string text = printable({message.text.text, strnlen(message.text.text, sizeof message.text.text)});
        switch (message.header.type) {
        case ZV_PROCESS_HELLO:
            return "connected";
        case ZV_LINK_STOP:
            return "stops sending";
        case ZV_WINDOW_TITLE:
            return "title: " + text;
        case ZV_LOG_INFO:
        case ZV_LOG_WARNING:
        case ZV_LOG_ERROR:
            return levelPrefix(static_cast<int32_t>(message.header.type)) + text;
        default:
            return allFields(message);
        }
    }

    struct Frames {
        std::chrono::steady_clock::time_point start;
        int count;
    };

    const bool m_hasColours = isForColours(STDOUT_FILENO);
    std::map<const MonitoredApplication *, Frames> m_frames;          // since the last line about frames
    std::map<const MonitoredApplication *, ReceivedReport> m_reports; // incomplete reports
};

} // namespace

std::unique_ptr<MonitorOutput> makeTextOutput() {
    return std::make_unique<TextOutput>();
}
